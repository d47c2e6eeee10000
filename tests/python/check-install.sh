#!/bin/sh
# Installs the Python package into an empty prefix and imports it from there as the
# README says: PYTHONPATH=<prefix>/<install dir>.
#   check-install.sh CMAKE BUILD_DIR INSTALL_DIR PYTHON
set -eu
cmake=$1
build=$2
dir=$3
python=$4
prefix=$(mktemp -d)
trap 'rm -rf "$prefix"' EXIT
"$cmake" --install "$build" --component python --prefix "$prefix" >/dev/null
cd "$prefix"
PYTHONPATH="$prefix/$dir" "$python" - "$prefix/$dir/zeltnavmsg" <<'PY'
import pathlib, sys
import zeltnavmsg
package = pathlib.Path(zeltnavmsg.__file__).parent
assert package == pathlib.Path(sys.argv[1]), package
assert {"__init__.py", "_dataframe.py", "_encoding.py", "py.typed", "_zeltnavmsg.pyi"} <= \
    {p.name for p in package.iterdir()}
assert zeltnavmsg.decode("GpsLNav", 1, 0, "8b0d3487").startswith("Subframe: 1\r\n")
assert zeltnavmsg.decode_fields("GpsLNav", 1, 0, "8b0d3487").fields[0].value == 0x8B
assert zeltnavmsg.encode("GpsLNav", 1, 0, "8b0d3487", keep_checks=True).startswith("8b0d3487")
PY
