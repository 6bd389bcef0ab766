#!/bin/sh
# Sample stand-in for the engine's automation tool. It prints the arguments it received, one a line, and
# for BuildDLC does what the game's automation script would: cooks the plugin that -PluginPath names for
# Windows into <plugin>/Saved/Cooked/WindowsNoEditor/Moravane/Plugins/<plugin>/Content/, where each package
# of the plugin's Content folder (.uasset, .umap) gets its cooked file and a .uexp beside it, and where the
# asset registry (AssetRegistry.bin) and the development one (Metadata/DevelopmentAssetRegistry.bin) list
# the cooked packages. Instead of real cooked bytes the files hold a line that says what they stand for.
# Called by cmd.exe as: RunUAT.bat BuildDLC -Project=... -PluginPath=... -ue4exe=... ... -dlcName=...
set -eu
host() {
	case "$1" in
	[A-Za-z]:*) printf '%s/%s%s\n' "$UGC_DRIVE_ROOT" "$(printf %s "$1" | cut -c1 | tr a-z A-Z)" "$(printf %s "$1" | cut -c3- | tr '\\' /)" ;;
	*) printf '%s\n' "$1" ;;
	esac
}
for argument in "$@"; do
	printf '%s\n' "$argument"
done
if [ "${1-}" != BuildDLC ]; then
	echo "ERROR: the stand-in automation tool knows only BuildDLC"
	exit 1
fi
descriptor=
for argument in "$@"; do
	case "$argument" in
	-PluginPath=*) descriptor=$(host "${argument#-PluginPath=}") ;;
	esac
done
if [ ! -f "$descriptor" ]; then
	echo "ERROR: BuildDLC needs -PluginPath naming a plugin descriptor"
	exit 1
fi
plugin=$(dirname "$descriptor")
name=$(basename "$descriptor" .uplugin)
cooked="$plugin/Saved/Cooked/WindowsNoEditor/Moravane/Plugins/$name/Content"
mkdir -p "$cooked/Metadata"
packages() {
	(cd "$plugin/Content" 2>/dev/null && find . -type f \( -name '*.uasset' -o -name '*.umap' \) | sed 's|^\./||' | sort)
}
registry() {
	echo "$1 of $name"
	packages | sed -e 's/\.[^.]*$//' -e "s|^|/$name/|"
}
packages | while IFS= read -r package; do
	mkdir -p "$(dirname "$cooked/$package")"
	echo "cooked $package of $name (stand-in bytes)" > "$cooked/$package"
	echo "cooked ${package%.*}.uexp of $name (stand-in bytes)" > "$cooked/${package%.*}.uexp"
	echo "Cooked /$name/${package%.*}"
done
registry "asset registry" > "$cooked/AssetRegistry.bin"
registry "development asset registry" > "$cooked/Metadata/DevelopmentAssetRegistry.bin"
echo "BUILD SUCCESSFUL"
