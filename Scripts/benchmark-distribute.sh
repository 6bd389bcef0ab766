#!/usr/bin/env bash
# Times `ugc-editor distribute` over a tree of cooked files against one `find -L` walk of the same tree,
# and prints both medians and their ratio. The external tools exit at once, so what is measured is the
# editor's own work: the walks, the log and the files it writes.
#
# Usage: Scripts/benchmark-distribute.sh [--files N] [--plugins P] [--runs R] [--growth]
#   --files N    cooked files in all (default 20000), spread evenly over the plugins
#   --plugins P  cooked plugins, all distributed as original (default 4)
#   --runs R     timed runs of each command; the median counts (default 5)
#   --growth     also time twice the files and print how the editor's time grew
set -euo pipefail
cd "$(dirname "$0")/.."

files=20000
plugins=4
runs=5
growth=false
while (($#)); do
	case $1 in
	--files) files=$2; shift 2 ;;
	--plugins) plugins=$2; shift 2 ;;
	--runs) runs=$2; shift 2 ;;
	--growth) growth=true; shift ;;
	*) echo "usage: $0 [--files N] [--plugins P] [--runs R] [--growth]" >&2; exit 2 ;;
	esac
done

Scripts/install-dependencies.sh
cmake --preset release > /dev/null
cmake --build --preset release --target ugc-editor > /dev/null
editor=$PWD/build/release/HeadlessEditor/ugc-editor

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# A sandbox with the project file, P cooked plugins holding N files in folders of 100, and tools that do
# nothing.
make_tree() {
	local root=$1 count=$2
	local launch=$root/C/Work
	mkdir -p "$launch/Engine/Binaries/Win64" "$launch/PellowTools" "$launch/Moravane"
	echo '{ "FileVersion": 3 }' > "$launch/Moravane/Moravane.uproject"
	printf '#!/bin/sh\nexit 0\n' > "$launch/Engine/Binaries/Win64/UnrealPak.exe"
	cp "$launch/Engine/Binaries/Win64/UnrealPak.exe" "$launch/PellowTools/AssetMerger.exe"
	chmod +x "$launch/Engine/Binaries/Win64/UnrealPak.exe" "$launch/PellowTools/AssetMerger.exe"
	local p i share folder file content
	for ((p = 0; p < plugins; ++p)); do
		content=$launch/Moravane/Plugins/Mod$((p + 1))/Saved/Cooked/WindowsNoEditor/Moravane/Plugins/Mod$((p + 1))/Content
		mkdir -p "$content/Metadata"
		echo registry > "$content/Metadata/DevelopmentAssetRegistry.bin"
		echo registry > "$content/AssetRegistry.bin"
		share=$((count / plugins + (p < count % plugins ? 1 : 0)))
		for ((i = 0; i < share; ++i)); do
			printf -v folder '%s/Assets%04d' "$content" $((i / 100))
			((i % 100)) || mkdir -p "$folder"
			printf -v file '%s/Asset%06d.uasset' "$folder" "$i"
			printf x > "$file"
		done
	done
}

median() {
	sort -n | awk '{ a[NR] = $1 } END { print (NR % 2) ? a[(NR + 1) / 2] : (a[NR / 2] + a[NR / 2 + 1]) / 2 }'
}

# Median wall time of a command in seconds, over the runs. The clock is read by the shell itself: a
# `date` started to read it would add its own start-up to every run, as much as a whole find -L takes.
# The output goes to a file, as a user's would, so that neither program is timed writing to /dev/null.
time_runs() {
	local start end LC_ALL=C
	for ((run = 0; run < runs; ++run)); do
		start=$EPOCHREALTIME
		"$@" > "$work/output"
		end=$EPOCHREALTIME
		awk -v s="$start" -v e="$end" 'BEGIN { print e - s }'
	done | median
}

measure() {
	local count=$1 root=$work/tree-$1
	make_tree "$root" "$count"
	local arguments=(--root "$root" distribute)
	for ((p = 1; p <= plugins; ++p)); do
		arguments+=(--plugin "Mod$p" --original)
	done
	editor_time=$(time_runs "$editor" "${arguments[@]}")
	find_time=$(time_runs find -L "$root/C/Work/Moravane/Plugins")
	printf '%6d files in %d plugins: ugc-editor distribute %8.3f s   find -L %8.3f s   ratio %6.1f\n' \
		"$count" "$plugins" "$editor_time" "$find_time" "$(awk -v a="$editor_time" -v b="$find_time" 'BEGIN { print a / b }')"
}

measure "$files"
if $growth; then
	first=$editor_time
	measure $((files * 2))
	printf 'twice the files: %.2f times the editor time\n' "$(awk -v a="$editor_time" -v b="$first" 'BEGIN { print a / b }')"
fi
