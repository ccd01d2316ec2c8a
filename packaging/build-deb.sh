#!/usr/bin/env bash
# Builds the Debian package into build/deb and has lintian look for faults: packaging/build-deb.sh
# The files are taken as they stand in the work tree, as far as git knows them.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

scripts/setup.sh packages.txt packages-deb.txt

result=build/deb
tree=$result/glosaria
rm -rf "$result"
mkdir -p "$tree"
git ls-files -z | tar --create --null --no-recursion --files-from=- | tar --extract --directory "$tree"
mv "$tree/packaging/debian" "$tree/debian"

# The package's build has a home folder of its own; the compiler cache stays the user's.
CCACHE_DIR=$(ccache --get-config cache_dir)
export CCACHE_DIR
(cd "$tree" && dpkg-buildpackage --unsigned-source --unsigned-changes)
rm -rf "$tree"

lintian --allow-root --info --display-info --display-experimental --pedantic \
    --fail-on error,warning,info,pedantic,experimental "$result"/*.changes
echo "The package is $(ls "$result"/glosaria_*.deb)"
