#!/usr/bin/env bash
# Builds the release preset and decodes the bundled example messages.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/deps.sh
cmake --preset release >/dev/null
cmake --build build/release --target navmsg
build/release/tools/navmsg batch examples/messages.txt
