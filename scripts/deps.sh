#!/usr/bin/env bash
# Installs the Debian packages the build needs, if any is missing. Quick when all
# are present. Extra package names given as arguments are checked too.
set -euo pipefail

# The build and its tests (nlohmann-json reads the JSON records back); python3-dev,
# pybind11-dev, python3-pytest and python3-pandas (to_dataframe) for the Python module,
# python3-dask and python3-distributed for its archive example and its test.
packages=(cmake ninja-build g++ libgtest-dev libcli11-dev
          python3 python3-dev pybind11-dev python3-pytest python3-pandas python3-dask
          python3-distributed nlohmann-json3-dev "$@")

missing=()
for p in "${packages[@]}"; do
    if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
        missing+=("$p")
    fi
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "Installing missing packages: ${missing[*]}" >&2
sudo=""
[ "$(id -u)" -ne 0 ] && sudo="sudo"
export DEBIAN_FRONTEND=noninteractive
$sudo apt-get install -y --no-install-recommends "${missing[@]}" \
    || { $sudo apt-get update && $sudo apt-get install -y --no-install-recommends "${missing[@]}"; }
