#!/usr/bin/env bash
# Builds the README's API example as a host without CMake would, with pkg-config
# alone, into OUT_DIR/readme_example:
#   PKG_CONFIG_PATH=<prefix>/lib/pkgconfig examples/pkg-config/build.sh OUT_DIR
# The example is taken from README.md as it stands (its first C++ block), its
# statements placed in main().
set -euo pipefail
root=$(cd "$(dirname "$0")/../.." && pwd)
out=${1:?usage: build.sh OUT_DIR}
mkdir -p "$out"

block=$(awk '/^```cpp/ {inside = 1; next} /^```/ && inside {exit} inside' "$root/README.md")
[ -n "$block" ] || { echo "build.sh: no C++ block in README.md" >&2; exit 1; }
{
    grep '^#include' <<<"$block"
    echo 'int main() {'
    grep -v '^#include' <<<"$block"
    echo '}'
} >"$out/readme_example.cpp"

# Word splitting of pkg-config's flags is intended.
# shellcheck disable=SC2046
${CXX:-c++} -o "$out/readme_example" "$out/readme_example.cpp" \
    $(pkg-config --cflags --libs zeltnavmsg)
