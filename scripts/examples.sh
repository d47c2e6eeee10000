#!/usr/bin/env bash
# Builds the release preset and decodes the bundled example messages. Only the
# listings go to standard output (scripts/examples.sh > out.txt keeps them); the
# build reports on standard error.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/deps.sh >&2
cmake --preset release >&2
cmake --build build/release --target navmsg >&2
build/release/tools/navmsg batch examples/messages.txt
