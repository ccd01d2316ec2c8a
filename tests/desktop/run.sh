#!/usr/bin/env bash
# Tries the program on parts of real desktops: tests/desktop/run.sh [RUN...]
# A run is a script of this folder without its ending. All take some minutes; the exit status is 1 if one fails.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."

runs=("$@")
if [ ${#runs[@]} -eq 0 ]; then
    mapfile -t runs < <(find tests/desktop -maxdepth 1 -name '*.py' -exec basename {} .py \; | sort)
fi
scripts/setup.sh packages.txt packages-desktops.txt
cmake --preset dev
cmake --build --preset dev --target glosaria

result=0
program=$PWD/build/dev/glosaria
PYTHONPATH=$PWD/tests/program
export PYTHONPATH
for run in "${runs[@]}"; do
    echo "$run"
    mkdir -p "build/desktop/$run"
    # Pictures and logs are left in the folder in which a run is started.
    (cd "build/desktop/$run" && /usr/bin/python3 "../../../tests/desktop/$run.py" "$program") || result=1
done
exit "$result"
