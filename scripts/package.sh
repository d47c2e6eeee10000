#!/usr/bin/env bash
# Builds the Debian packages libzeltnavmsg0, libzeltnavmsg-dev, zeltnavmsg-tools and
# python3-zeltnavmsg (the package preset: Release, the shared and the static library
# from the same objects, navmsg and its man page, the Python module) and writes them
# to DIR, build/packages by default.
#   scripts/package.sh [DIR]
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
out=$(realpath -m "${1:-$root/build/packages}")
cd "$root"

# pandoc for the man page; pybind11 and Python's headers for the module;
# dpkg-shlibdeps (dpkg-dev) and file for the dependencies.
scripts/deps.sh pandoc pybind11-dev python3-dev dpkg-dev file
cmake --preset package >/dev/null
cmake --build --preset package
mkdir -p "$out"
cpack --preset package -B "$out"
rm -rf "$out/_CPack_Packages"
echo "Packages in $out" >&2
