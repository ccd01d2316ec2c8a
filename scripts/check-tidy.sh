#!/usr/bin/env bash
# Has clang-tidy look for faults in C++ files of src/: scripts/check-tidy.sh [--all | --since REVISION]
# In all of them, or in those that differ from REVISION, by default from the commit before the last.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

case ${1:-} in
--all) files=$(git ls-files 'src/*.cpp') ;;
--since) files=$(git diff --name-only --diff-filter=d "$2" -- 'src/*.cpp') ;;
'') files=$(git diff --name-only --diff-filter=d HEAD~1 -- 'src/*.cpp') ;;
*)
    echo "usage: scripts/check-tidy.sh [--all | --since REVISION]" >&2
    exit 2
    ;;
esac
[ -n "$files" ] || {
    echo "There are no C++ files to look at."
    exit 0
}

# What the preset "dev" has built, but with its precompiled headers as text: another compiler's are refused.
cmake --preset dev >/dev/null
cmake --build --preset dev >/dev/null
build=build/tidy
mkdir -p "$build"
for header in build/dev/src/CMakeFiles/pch_*.dir/cmake_pch.hxx; do
    name=${header%.dir/*}
    cp "$header" "$build/${name##*/}.hxx"
done
sed --regexp-extended "s#-include [^ ]*/(pch_\w+)\.dir/cmake_pch\.hxx#-include $PWD/$build/\1.hxx#; s# -fpch-preprocess##" \
    build/dev/compile_commands.json >"$build/compile_commands.json"
xargs --max-procs="$(nproc)" --max-args=1 clang-tidy -p "$build" --quiet --warnings-as-errors='*' \
    <<<"$files" 2> >(grep --invert-match --extended-regexp '^[0-9]+ warnings? generated' >&2)
echo "clang-tidy finds nothing in $(wc -l <<<"$files") files."
