#!/usr/bin/env bash
# Builds and runs every test: the dev preset (Debug with AddressSanitizer and
# UndefinedBehaviorSanitizer) and the release preset, warnings as errors.
# Other workflow presets may be named as arguments instead.
set -euo pipefail
cd "$(dirname "$0")/.."

presets=("$@")
[ ${#presets[@]} -eq 0 ] && presets=(dev release)

scripts/deps.sh
for preset in "${presets[@]}"; do
    echo "== $preset" >&2
    cmake --workflow --preset "$preset"
done
