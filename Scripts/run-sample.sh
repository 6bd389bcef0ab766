#!/usr/bin/env bash
# The main job: installs what is missing, builds the headless editor, and on a fresh copy of the sample
# sandbox runs one session of each command (the menus, a new mod from two templates cooked by the sample's
# automation tool, a cook declined at the save prompt and then saved, a distribution of the new mod and the
# sample's cooked plugins through the paking dialog); then shows what was left on disk.
set -euo pipefail
cd "$(dirname "$0")/.."

Scripts/install-dependencies.sh
# The first run builds the stand-in engine and the module, which takes a while; its progress shows.
cmake --preset release > /dev/null
cmake --build --preset release --target ugc-editor

sandbox=build/sample-run
rm -rf "$sandbox"
cp -a Samples/Sandbox "$sandbox"
# The project data the module reads: the command icons and the mod templates.
cp -a Resources Templates "$sandbox/C/Work/Moravane/"
marker=$(mktemp)
trap 'rm -f "$marker"' EXIT
sleep 1

editor=build/release/HeadlessEditor/ugc-editor
run() {
	echo
	printf '$'
	printf ' %q' "$@"
	echo
	"$@"
}

run "$editor" --root "$sandbox" menus
# A modder's whole path: a new mod, a map made in it, the mod cooked by the sample's automation tool
# (Engine/Build/BatchFiles/RunUAT.bat), then distributed with the sample's other cooked plugins.
run "$editor" --root "$sandbox" create Northline --template Route --template ServiceMode
echo
echo "(The modder saves a map in the new mod: Plugins/Northline/Content/Northline/Maps/Main.umap.)"
echo "source map of Northline (stand-in bytes)" > "$sandbox/C/Work/Moravane/Plugins/Northline/Content/Northline/Maps/Main.umap"
run "$editor" --root "$sandbox" cook Northline
run "$editor" --root "$sandbox" cook CalverlyBranchLine --dirty /CalverlyBranchLine/Maps/Main --save none
run "$editor" --root "$sandbox" cook CalverlyBranchLine --dirty /CalverlyBranchLine/Maps/Main --save all
run "$editor" --root "$sandbox" distribute --calverly5 \
	--plugin Northline --original \
	--plugin CalverlyBranchLine --original --dlcs "Moravane_Base, Calverly5_Signals" \
	--plugin ExpressTimetable --original \
	--plugin ThirdPartyLocos

echo
echo "What the run left on disk (files made or changed, below $sandbox):"
find "$sandbox" -type f -newer "$marker" | sort | while read -r file; do
	echo
	echo "--- ${file#"$sandbox"/}"
	if [[ $file == *.png ]]; then
		echo "(an image, $(stat -c %s "$file") bytes)"
	elif grep -qP '\x00' "$file"; then
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
