#!/usr/bin/env bash
# Installs, from Debian's packages only, whatever of the build and test tools this machine lacks.
set -euo pipefail

packages=(cmake ninja-build g++ libgtest-dev libpng-dev nlohmann-json3-dev jq file clang-format)
missing=()
for package in "${packages[@]}"; do
	dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed" || missing+=("$package")
done
((${#missing[@]} == 0)) && exit 0

sudo=()
[[ $(id -u) -eq 0 ]] || sudo=(sudo)
echo "Installing ${missing[*]}"
"${sudo[@]}" apt-get update -qq
DEBIAN_FRONTEND=noninteractive "${sudo[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
