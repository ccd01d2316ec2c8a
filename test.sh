#!/usr/bin/env bash
# Builds everything with the dev preset and runs the tests. Arguments go to ctest: ./test.sh -R quiz
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

scripts/setup.sh
cmake --preset dev
cmake --build --preset dev
ctest --preset dev "$@"
