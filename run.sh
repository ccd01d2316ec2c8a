#!/usr/bin/env bash
# Builds the program as users get it and starts it on FILE, or on a lesson: ./run.sh [FILE]
# Without a display it is started on a virtual one, and a screenshot is left in the build folder.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)

file=$(realpath -- "${1:-$here/samples/german/01-greetings.gla}")
[ -f "$file" ] || {
    echo "There is no file $file" >&2
    exit 1
}
cd "$here"
scripts/setup.sh
cmake --preset release
cmake --build --preset release --target glosaria

build=$here/build/release
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    exec "$build/glosaria" "$file"
fi
picture=$build/glosaria-screenshot.png
echo "There is no display here: starting Glosaria on a virtual one."
PYTHONPATH=tests/program /usr/bin/python3 scripts/show.py "$build/glosaria" "$file" "$picture"
echo "What it shows: $picture"
