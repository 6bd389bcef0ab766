#!/bin/sh
# Checks that the stand-in engine's public headers declare only UE 4.26 API, in 4.26's shape and in 4.26's
# headers: probes that use every public declaration of the stand-in as the module could, one a header, are
# compiled against the real engine headers (Windows branch, as the stand-in is), and each error names the
# declaration that differs.
#
# Needs UE_ENGINE_DIR (an extracted engine tree of UE 4.26.0) and clang++.
# Exit status: 0 every declaration is 4.26's, 1 some differ, 2 set-up problem, 77 skipped (no engine tree).
set -eu

root=$(cd "$(dirname "$0")/.." && pwd)
# The tool sits beside the repository (../shared/tools), on PATH, or where UE_HEADER_CHECK says.
header_check=${UE_HEADER_CHECK:-$root/../shared/tools/ue-header-check}
if [ ! -x "$header_check" ] && command -v ue-header-check > /dev/null; then
	header_check=$(command -v ue-header-check)
fi
if [ -z "${UE_ENGINE_DIR:-}" ] || [ ! -d "$UE_ENGINE_DIR" ]; then
	echo "check-standin-shape: skipped: UE_ENGINE_DIR does not name an extracted engine tree"
	exit 77
fi
if [ ! -x "$header_check" ]; then
	echo "check-standin-shape: skipped: no ue-header-check at $header_check"
	exit 77
fi

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
public="$root/EngineStandIn/Public"

(cd "$public" && find . -name '*.h' | sed 's|^\./||' | sort | sed 's|.*|#include "&"|') > "$work/headers.cpp"
clang++ -std=c++17 -fsyntax-only -I"$public" -Xclang -ast-dump=json "$work/headers.cpp" > "$work/ast.json"
python3 "$root/Scripts/standin-shape-probe.py" "$public" "$work/ast.json" "$work/probes"
rm "$work/ast.json"

# A probe the stand-in itself rejects would count its own mistakes as differences; it also shows a stand-in
# header that does not declare what its own declarations use, which no 4.26 header does.
if ! (cd "$work/probes" && ls | xargs -P 2 -I{} sh -c 'clang++ -std=c++17 -fsyntax-only -I"$1" {} > {}.standin.txt 2>&1 || echo {}' sh "$public") > "$work/standin-failed.txt"; then
	echo "check-standin-shape: could not compile the probes against the stand-in"
	exit 2
fi
if [ -s "$work/standin-failed.txt" ]; then
	echo "check-standin-shape: probes that do not compile against the stand-in itself:"
	while read -r failed; do head -5 "$work/probes/$failed.standin.txt"; done < "$work/standin-failed.txt"
	exit 2
fi
rm "$work"/probes/*.standin.txt

status=0
(cd "$root" && "$header_check" --platform windows --jobs 2 --max-errors 100000 "$work"/probes/*.cpp) > "$work/real.txt" 2>&1 || status=$?
if [ "$status" -eq 2 ]; then
	cat "$work/real.txt"
	exit 2
fi

# Each error is reported under the declaration whose check it breaks (the comment above the check).
grep -o '[^ ]*\.cpp:[0-9]*: error: .*' "$work/real.txt" | awk '
	function origins(probe,   line, n, origin) {
		if (probe in seen) return
		seen[probe] = 1
		while ((getline line < probe) > 0) { n++; if (line ~ /^[ \t]*\/\/ /) { sub(/^[ \t]*\/\/ /, "", line); origin = line } at[probe, n] = origin }
		close(probe)
	}
	{
		split($0, part, ":"); origins(part[1])
		message = $0; sub(/^[^:]*:[0-9]*: error: /, "", message); print at[part[1], part[2]] " | " message
	}' | sort -u > "$work/differences.txt"

cat "$work/differences.txt"
differing=$(sed "s/ | .*//" "$work/differences.txt" | sort -u | wc -l)
echo "check-standin-shape: $differing stand-in declarations differ from UE 4.26"
[ "$differing" -eq 0 ]
