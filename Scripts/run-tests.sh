#!/usr/bin/env bash
# Installs what is missing, builds everything and runs every test.
set -euo pipefail
cd "$(dirname "$0")/.."

Scripts/install-dependencies.sh
cmake --preset release
cmake --build --preset release
ctest --preset release
