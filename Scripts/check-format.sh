#!/usr/bin/env bash
# Fails, naming the files, when clang-format would change any C++ file of the repository.
set -euo pipefail
cd "$(dirname "$0")/.."

mapfile -t files < <(git ls-files -- '*.h' '*.cpp')
unformatted=()
for file in "${files[@]}"; do
	clang-format --dry-run -Werror "$file" > /dev/null 2>&1 || unformatted+=("$file")
done
if ((${#unformatted[@]})); then
	echo "clang-format would change these files (run clang-format -i on them):" >&2
	printf '  %s\n' "${unformatted[@]}" >&2
	exit 1
fi
echo "Formatting: ${#files[@]} C++ files as clang-format leaves them."
