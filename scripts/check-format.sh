#!/usr/bin/env bash
# Checks the form of the C++ files with clang-format and the scripts with shellcheck.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

find src tests bench fuzz -name '*.cpp' -print0 -o -name '*.h' -print0 | xargs -0 -r clang-format --dry-run --Werror
shellcheck run.sh test.sh .ci/run scripts/*.sh packaging/*.sh tests/desktop/*.sh
echo "The code and the scripts are in form."
