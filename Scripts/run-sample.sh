#!/usr/bin/env bash
# The main job: installs what is missing, builds the headless editor, distributes the sample project's
# mods through the paking dialog on a fresh copy of the sample sandbox, and shows what the run left on disk.
set -euo pipefail
cd "$(dirname "$0")/.."

Scripts/install-dependencies.sh
# The first run builds the stand-in engine and the module, which takes a while; its progress shows.
cmake --preset release > /dev/null
cmake --build --preset release --target ugc-editor

sandbox=build/sample-run
rm -rf "$sandbox"
cp -a Samples/Sandbox "$sandbox"
marker=$(mktemp)
trap 'rm -f "$marker"' EXIT
sleep 1

command=(build/release/HeadlessEditor/ugc-editor --root "$sandbox" distribute --calverly5
	--plugin CalverlyBranchLine --original --dlcs "Moravane_Base, Calverly5_Signals"
	--plugin ExpressTimetable --original
	--plugin ThirdPartyLocos)
printf '$'; printf ' %q' "${command[@]}"; echo
"${command[@]}"

echo
echo "What the run left on disk (files made or changed, below $sandbox):"
find "$sandbox" -type f -newer "$marker" | sort | while read -r file; do
	echo
	echo "--- ${file#"$sandbox"/}"
	if grep -qP '\x00' "$file"; then
		iconv -f UTF-16 -t UTF-8 "$file"
	else
		cat "$file"
	fi
	echo
done
echo
if [[ -e $sandbox/C/pellow ]]; then
	echo "The staging tree C:/pellow/ is still there."
else
	echo "The staging tree C:/pellow/ is gone; the cooked folders keep their cooked files."
fi
