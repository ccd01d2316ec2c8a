#!/usr/bin/env bash
# Builds everything and runs the tests: ./test.sh [--sanitize] [ctest arguments]. With --sanitize they run under the
# address and undefined-behaviour sanitizers.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

preset=dev
if [ "${1:-}" = --sanitize ]; then
    preset=asan
    shift
fi
scripts/setup.sh
cmake --preset "$preset"
cmake --build --preset "$preset"
ctest --preset "$preset" "$@"
