#!/usr/bin/env bash
# Compares the schedule with the npm package ts-fsrs, which is installed for that into a temporary folder.
# Usage: bench/schedule/compare.sh [HISTORIES [SEED]]
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
source=$here/../../src
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
# shellcheck disable=SC2046 # flags are words
g++ -std=c++20 -O2 -fPIC -I"$source" $(pkg-config --cflags Qt6Core) "$here/replay_schedule.cpp" \
    "$source/memory/Schedule.cpp" -o "$folder/replay_schedule" $(pkg-config --libs Qt6Core)
cp "$here/compare.mjs" "$folder"
cd "$folder"
npm install --silent --no-audit --no-fund ts-fsrs@5 >/dev/null
node compare.mjs ./replay_schedule "${1:-10000}" "${2:-1}"
