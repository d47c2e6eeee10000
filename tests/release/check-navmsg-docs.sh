#!/bin/sh
# navmsg against its documentation.
#   check-navmsg-docs.sh man NAVMSG PAGE          every command, option and operand the
#       help lists is in the man page: the top level's options under OPTIONS, each
#       command with its own section under COMMANDS holding its options and operands,
#       and an example in EXAMPLES; the page carries navmsg's version
#   check-navmsg-docs.sh version NAVMSG CHANGELOG  navmsg --version prints the
#       changelog's top version
set -eu
mode=$1
navmsg=$2

# "option -h", "operand HEX", "command decode" for each item of a help screen. Items
# sit two blanks in; section titles ("Options:") start the line.
help_items() {
    "$navmsg" "$@" --help | awk '
        /^[^ ].*:$/ { section = $0; next }
        /^  [^ ]/ {
            if (section == "Subcommands:") { print "command", $1; next }
            if ($1 ~ /^-/) {
                n = split($1, names, ",")
                for (i = 1; i <= n; i++) print "option", names[i]
            } else if (section == "Positionals:") {
                print "operand", $1
            }
        }'
}

# The text of a .SH or .SS section of the page, font changes removed.
section() {
    sed -e 's/\\f\[[A-Z]*\]//g' -e 's/\\f[BIRP]//g' -e 's/\\-/-/g' "$page" | awk -v want="$1" '
        /^\.S[HS] / { title = $0; sub(/^\.S[HS] +/, "", title); gsub(/"/, "", title)
                      inside = (title == want); next }
        inside'
}

missing=0
lacks() {
    echo "$1"
    missing=1
}

case "$mode" in
man)
    page=$3
    version=$("$navmsg" --version | sed 's/^navmsg //')
    grep -q "^\.TH .*\"ZeltNavMsg $version\"" "$page" || lacks "the page's header does not say ZeltNavMsg $version"
    examples=$(section EXAMPLES)
    options=$(section OPTIONS)
    items=$(help_items)
    [ -n "$items" ] || lacks "navmsg --help lists nothing"
    while read -r kind name; do
        case "$kind" in
        option) echo "$options" | grep -qFwe "$name" || lacks "navmsg: $name is not under OPTIONS" ;;
        command)
            text=$(section "$name")
            [ -n "$text" ] || lacks "navmsg $name has no section under COMMANDS"
            echo "$examples" | grep -Eq "^ *navmsg $name( |$)" || lacks "navmsg $name has no example"
            subitems=$(help_items "$name")
            [ -n "$subitems" ] || lacks "navmsg $name --help lists nothing"
            while read -r subkind subname; do
                echo "$text" | grep -qFwe "$subname" \
                    || lacks "navmsg $name: $subkind $subname is not in the '$name' section"
            done <<ITEMS
$subitems
ITEMS
            ;;
        esac
    done <<ITEMS
$items
ITEMS
    ;;
version)
    top=$(sed -n '/^## \[[0-9]/{s/^## \[\([0-9.]*\)\].*/\1/p;q}' "$3")
    got=$("$navmsg" --version)
    [ "$got" = "navmsg $top" ] || lacks "navmsg --version prints '$got'; the changelog's top version is '$top'"
    ;;
*)
    echo "usage: check-navmsg-docs.sh man NAVMSG PAGE | version NAVMSG CHANGELOG" >&2
    exit 2
    ;;
esac
exit $missing
