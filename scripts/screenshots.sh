#!/usr/bin/env bash
# Takes pictures of every window in every palette and at every scale: scripts/screenshots.sh [FOLDER [LOOK...]]
# A look is a palette (light, dark, contrast) and a scale in percent (100, 125, 200): dark-125. All nine take half an
# hour. A language may follow: light-100-de. FOLDER is build/screenshots if none is given; its index.html and the contact sheets beside it show them all.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

folder=$(realpath -m -- "${1:-build/screenshots}")
looks=("${@:2}")
[ ${#looks[@]} -gt 0 ] || looks=({light,dark,contrast}-{100,125,200})
scripts/setup.sh packages.txt packages-screenshots.txt
cmake --preset dev
cmake --build --preset dev --target glosaria

export PYTHONPATH=tests/program
result=0
for look in "${looks[@]}"; do
    echo "Taking $look"
    mkdir -p "$folder/$look"
    rm -f "$folder/$look"/*.png "$folder/$look"-sheet*.png
    /usr/bin/python3 scripts/screenshots.py build/dev/glosaria "$folder/$look" "$look" || result=1
    montage -label '%t' "$folder/$look"/*.png -tile 4x3 -geometry '480x300>+6+6' "$folder/$look-sheet.png"
done
/usr/bin/python3 scripts/screenshots_index.py "$folder"
echo "Look at $folder/index.html"
exit "$result"
