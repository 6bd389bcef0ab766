#!/usr/bin/env bash
# Renders the icon sources in this folder to the PNGs the editor module loads
# from Resources/. Needs rsvg-convert (Debian: apt-get install librsvg2-bin).
set -euo pipefail

here="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"
out="$(dirname "$here")"

if ! command -v rsvg-convert >/dev/null 2>&1; then
    echo "rsvg-convert not found; install it with: apt-get install -y librsvg2-bin" >&2
    exit 1
fi

# Command icons are drawn for 64 px and the module looks them up as <Name>_64x.png;
# the plugin icon has the fixed name and size the plugin browser expects.
for svg in "$here"/*.svg; do
    name="$(basename "$svg" .svg)"
    case "$name" in
        Icon128) size=128; png="$out/Icon128.png" ;;
        *)       size=64;  png="$out/${name}_64x.png" ;;
    esac
    rsvg-convert --width "$size" --height "$size" --format png "$svg" --output "$png"
    echo "$png (${size}x${size})"
done

# A new mod starts with the plugin icon of the base template; keep that copy the same
# picture, so that re-rendering is the one step after changing Icon128.svg.
template_icon="$(dirname "$out")/Templates/BaseTemplate/Resources/Icon128.png"
if [ -d "$(dirname "$template_icon")" ]; then
    cp "$out/Icon128.png" "$template_icon"
    echo "$template_icon (copy of Icon128.png)"
fi
