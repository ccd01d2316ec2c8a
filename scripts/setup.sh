#!/usr/bin/env bash
# Installs what the lists name and this machine lacks: scripts/setup.sh [LIST...]
# The lists stand beside this script; packages.txt if none is given. Says nothing when all is there.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

packages=$(cat -- "${@:-packages.txt}")
missing=()
while read -r package _; do
    case $package in '' | '#'*) continue ;; esac
    [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || missing+=("$package")
done <<<"$packages"
[ ${#missing[@]} -gt 0 ] || exit 0

as_root=()
if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
        echo "These packages are missing, and there is no sudo to install them: ${missing[*]}" >&2
        exit 1
    fi
    as_root=(sudo)
fi

echo "Installing ${missing[*]}"
log=$(mktemp)
trap 'rm -f "$log"' EXIT
quietly() {
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive "$@" >"$log" 2>&1 </dev/null || {
        cat "$log" >&2
        exit 1
    }
}
quietly apt-get update
quietly apt-get install -y --no-install-recommends "${missing[@]}"
