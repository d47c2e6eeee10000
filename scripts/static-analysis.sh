#!/usr/bin/env bash
# Static analysis of the library (src/) and the CLI (tools/), with the compile commands
# of the `clang` preset (configured here, so that new files are in them):
#   clang-tidy   the checks of .clang-tidy, every finding an error
#   cppcheck     warning, performance, portability and style checks
#   clang-query  no mutable global state in the library: every variable of static or
#                thread storage in src/ and include/ is const or constexpr (the Python
#                module, src/python, is checked by the two above only)
# Every file under src/ is covered, new directories included. Files run in parallel.
set -euo pipefail
cd "$(dirname "$0")/.."
root=$PWD

scripts/deps.sh clang clang-tidy clang-tools cppcheck python3
build=build/clang
cmake --preset clang >/dev/null
jobs=$(nproc)

# The compile commands of src/ and tools/ only, and their source files.
db=$(mktemp -d)
trap 'rm -rf "$db"' EXIT
python3 - "$build/compile_commands.json" "$db/compile_commands.json" "$root" <<'PY'
import json, sys
entries = json.load(open(sys.argv[1]))
root = sys.argv[3]
keep = [e for e in entries if e["file"].startswith((root + "/src/", root + "/tools/"))]
json.dump(keep, open(sys.argv[2], "w"), indent=1)
print("\n".join(e["file"] for e in keep), file=open(sys.argv[2] + ".files", "w"))
PY
mapfile -t files <"$db/compile_commands.json.files"
# The library's files: all of src/ but the Python module, whose entry point holds the
# interpreter's module definition in a static variable, as the interpreter requires.
mapfile -t library < <(printf '%s\n' "${files[@]}" | grep "^$root/src/" | grep -v "^$root/src/python/")
echo "== static analysis: ${#files[@]} files (${#library[@]} of the library)" >&2

echo "== clang-tidy" >&2
run-clang-tidy -quiet -p "$db" -j "$jobs" "${files[@]}" >"$db/tidy.log" 2>&1 || {
    grep -E -A3 'warning:|error:' "$db/tidy.log" >&2 || cat "$db/tidy.log" >&2
    echo "clang-tidy: findings above" >&2
    exit 1
}

echo "== cppcheck" >&2
# Switched off: useStlAlgorithm (a plain loop over a small table reads better),
# shadowFunction (the tables' builder function field() and loop variables named field),
# cppcheckError in BitFieldDef.cpp (cppcheck 2.10 fails internally on its range loop).
cppcheck --project="$db/compile_commands.json" --std=c++20 -j "$jobs" --quiet \
    --enable=warning,performance,portability,style --inline-suppr --error-exitcode=1 \
    --suppress=missingIncludeSystem --suppress=useStlAlgorithm --suppress=shadowFunction \
    --suppress="cppcheckError:$root/src/fields/BitFieldDef.cpp"

echo "== mutable global state" >&2
query="match varDecl(hasGlobalStorage(), unless(isConstexpr()),
    unless(hasType(isConstQualified())), unless(hasType(referenceType())),
    isExpansionInFileMatching(\"^$root/(src|include)/\"))"
printf '%s\0' "${library[@]}" |
    xargs -0 -n 4 -P "$jobs" clang-query -p "$db" -c "set output diag" -c "$query" \
        >"$db/query.log" 2>&1 || { cat "$db/query.log" >&2; exit 1; }
if grep -q 'binds here' "$db/query.log"; then
    grep -B1 -A2 'binds here' "$db/query.log" >&2
    echo "mutable global state: make these const, constexpr or local" >&2
    exit 1
fi
grep -q 'match' "$db/query.log" || { cat "$db/query.log" >&2; exit 1; }
echo "static analysis: clean" >&2
