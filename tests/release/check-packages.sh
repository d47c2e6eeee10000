#!/usr/bin/env bash
# Checks the Debian packages that scripts/package.sh wrote to DIR, without installing
# them: what each holds and depends on, then, unpacked into a temporary root, navmsg
# and its man page, the Python module in the system's interpreter, and a host built
# against libzeltnavmsg-dev with find_package (shared and static library) and with
# pkg-config.
#   tests/release/check-packages.sh DIR
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
dir=$1

version=$(sed -n '/^## \[[0-9]/{s/^## \[\([0-9.]*\)\].*/\1/p;q}' "$here/../../CHANGELOG.md")
arch=$(dpkg --print-architecture)
multiarch=$(dpkg-architecture -qDEB_HOST_MULTIARCH)
lib=usr/lib/$multiarch
failures=0
fail() {
    echo "FAIL: $*"
    failures=$((failures + 1))
}

deb() { echo "$dir/${1}_${version}-1_$arch.deb"; }
# The paths a package holds, without "./", directories left out.
contents() { dpkg-deb --contents "$(deb "$1")" | awk '$1 !~ /^d/ { sub(/^\.\//, "", $6); print $6 }'; }

# Each package holds at least these paths; no path is in two of them (dpkg would
# refuse it), so a file in the wrong package is missing from the right one.
expect_paths() {
    local package=$1 listing path
    shift
    [ -f "$(deb "$package")" ] || { fail "no $(deb "$package")"; return; }
    listing=$(contents "$package")
    for path in "$@"; do
        grep -qxF "$path" <<<"$listing" || fail "$package lacks $path"
    done
}
expect_paths libzeltnavmsg0 "$lib/libzeltnavmsg.so.0" "$lib/libzeltnavmsg.so.$version" \
    usr/share/doc/zeltnavmsg/LICENSE usr/share/doc/zeltnavmsg/README.md \
    usr/share/doc/zeltnavmsg/CHANGELOG.md usr/share/doc/libzeltnavmsg0/copyright
expect_paths libzeltnavmsg-dev usr/include/zeltnavmsg/NavMessageDecoder.h \
    usr/include/zeltnavmsg/Export.h usr/include/zeltnavmsg/Version.h \
    "$lib/libzeltnavmsg.so" "$lib/libzeltnavmsg.a" "$lib/pkgconfig/zeltnavmsg.pc" \
    "$lib/cmake/ZeltNavMsg/ZeltNavMsgConfig.cmake" "$lib/cmake/ZeltNavMsg/ZeltNavMsgTargets.cmake" \
    "$lib/cmake/ZeltNavMsg/ZeltNavMsgConfigVersion.cmake" usr/share/doc/libzeltnavmsg-dev/copyright
expect_paths zeltnavmsg-tools usr/bin/navmsg usr/share/man/man1/navmsg.1.gz \
    usr/share/doc/zeltnavmsg-tools/copyright
# The module is built for the system's interpreter, named for its ABI.
python=/usr/bin/python3
pyversion=$($python -c 'import sys; print("%d.%d" % sys.version_info[:2])')
pydir=usr/lib/python3/dist-packages/zeltnavmsg
expect_paths python3-zeltnavmsg "$pydir/__init__.py" "$pydir/_zeltnavmsg.pyi" "$pydir/py.typed" \
    "$pydir/_zeltnavmsg$($python -c 'import sysconfig; print(sysconfig.get_config_var("EXT_SUFFIX"))')" \
    usr/share/doc/python3-zeltnavmsg/copyright
[ $failures = 0 ] || exit 1
packages="libzeltnavmsg0 libzeltnavmsg-dev zeltnavmsg-tools python3-zeltnavmsg"
twice=$(for p in $packages; do contents $p; done | sort | uniq -d)
[ -z "$twice" ] || fail "in two packages: $twice"

# Control fields: the names, sections and dependencies Debian expects; dpkg-shlibdeps
# found the C++ runtime of the binaries.
field() { dpkg-deb --field "$(deb "$1")" "$2"; }
expect_field() {
    local value
    value=$(field "$1" "$2")
    grep -qE "$3" <<<"$value" || fail "$1 $2 is '$value', expected /$3/"
}
exact="libzeltnavmsg0 \(= ${version//./\\.}-1\)"
expect_field libzeltnavmsg0 Section '^libs$'
expect_field libzeltnavmsg0 Depends 'libstdc\+\+6 \(>= [0-9.]+\)'
expect_field libzeltnavmsg-dev Section '^libdevel$'
expect_field libzeltnavmsg-dev Depends "^$exact"
expect_field zeltnavmsg-tools Section '^science$'
expect_field zeltnavmsg-tools Depends "^$exact, .*libstdc\+\+6 \(>= [0-9.]+\)"
# The library is linked into the module: no libzeltnavmsg0, one Python version.
expect_field python3-zeltnavmsg Section '^python$'
pynext=${pyversion%.*}.$((${pyversion#*.} + 1))
expect_field python3-zeltnavmsg Depends \
    "(^|, )python3 \(>= ${pyversion//./\\.}\), python3 \(<< ${pynext//./\\.}\)(,|$)"
expect_field python3-zeltnavmsg Depends 'libstdc\+\+6 \(>= [0-9.]+\)'
[[ $(field python3-zeltnavmsg Depends) == *libzeltnavmsg0* ]] && fail "python3-zeltnavmsg depends on libzeltnavmsg0"

# Unpacked into a temporary root, never into the machine.
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
root=$work/root
for p in $packages; do dpkg -x "$(deb $p)" "$root"; done
export LD_LIBRARY_PATH=$root/$lib

[ "$("$root/usr/bin/navmsg" --version)" = "navmsg $version" ] || fail "navmsg --version"
# (grep without -q reads all, so no writer dies of a closed pipe under pipefail)
man -l "$root/usr/share/man/man1/navmsg.1.gz" 2>/dev/null | grep "^EXIT STATUS" >/dev/null \
    || fail "man -l does not show navmsg(1)"

# The unpacked module in the system's interpreter, the G04 subframe's WN and IODC
# as an independent decoder read them (tests/data/real-data/gps_lnav.tsv).
PYTHONPATH=$root/${pydir%/zeltnavmsg} $python -c '
import zeltnavmsg
m = zeltnavmsg.decode_fields("GpsLNav", 1, 0,
    "8b0d3487fffd614d351000091b1de78f322ebaf701369182b0dd6d7f8f6800ffd153eafc2f0")
values = {f.name: f.value for f in m.fields}
assert zeltnavmsg.__file__.startswith("'"$root"'"), zeltnavmsg.__file__
assert (values["wn"], values["iodc"], m.ok) == (845, 74, True), (values["wn"], values["iodc"], m.ok)
' || fail "the unpacked Python module does not decode G04 subframe 1"

# The listing of the G04 subframe: its WN and IODC as an independent decoder read them
# (tests/data/real-data/gps_lnav.tsv).
expect_host() {
    local out
    out=$("$@") || { fail "$* exits with an error"; return; }
    grep -qx "compiled $version runs $version" <<<"$out" || fail "$*: $(head -n 1 <<<"$out")"
    grep -qE '^ +wn: 0x34D 845'$'\r''?$' <<<"$out" && grep -qE '^ +iodc: 0x04A 74'$'\r''?$' <<<"$out" \
        || fail "$*: not the listing of G04 subframe 1"
}

# find_package from the unpacked root only, not from the machine's /usr.
cmake -S "$here/host" -B "$work/host" -G Ninja -DCMAKE_PREFIX_PATH="$root/usr" \
    -DCMAKE_FIND_USE_CMAKE_SYSTEM_PATH=OFF >/dev/null
cmake --build "$work/host" >/dev/null
expect_host "$work/host/host_shared"
expect_host "$work/host/host_static"
readelf -d "$work/host/host_static" | grep 'NEEDED.*libzeltnavmsg' >/dev/null \
    && fail "host_static needs the shared library"

# pkg-config, with the root as the system root of the file's paths.
flags=$(PKG_CONFIG_SYSROOT_DIR=$root PKG_CONFIG_LIBDIR=$root/$lib/pkgconfig \
    pkg-config --cflags --libs zeltnavmsg)
# shellcheck disable=SC2086  # the flags are words
c++ -o "$work/host_pkgconfig" "$here/host/host.cpp" $flags
expect_host "$work/host_pkgconfig"

if [ $failures != 0 ]; then
    echo "$failures package checks failed"
    exit 1
fi
echo "packages of $version: contents, dependencies, navmsg, man page, Python module, find_package and pkg-config hosts"
