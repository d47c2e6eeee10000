#!/bin/sh
# Symbol checks of the built library.
#   check-library.sh exports LIBRARY.so  only the public API is exported
#   check-library.sh streams LIBRARY.a   only the word writer's object refers to the
#                                        standard streams or to printing functions
set -eu
mode=$1
lib=$2

case "$mode" in
exports)
    symbols=$(nm -D -C --defined-only "$lib" | cut -d' ' -f3-)
    echo "$symbols" | grep -q '^ZeltNavMsg::NavMessageDecoder::Decode' \
        || { echo "Decode is not exported from $lib"; exit 1; }
    stray=$(echo "$symbols" | grep -Ev 'ZeltNavMsg::(NavMessageDecoder|DecodingError|DecodedMessage|LogReader|MessageNumbering|MessageEncoder|EncodingError)\b|ZeltNavMsg::(MessageFormatName|AppendJsonRecord|AppendJsonError|CsvHeader|AppendCsvRows|AppendNumber|LibraryVersion)\(' || true)
    if [ -n "$stray" ]; then
        echo "exported beyond the public API:"
        echo "$stray"
        exit 1
    fi
    echo "$(echo "$symbols" | wc -l) symbols exported, all of the public API"
    ;;
streams)
    # Per archive member: does it define the word writer, and which of the printing
    # symbols does it refer to?
    nm -A -C "$lib" | awk '
        {
            split($1, where, ":"); member = where[2]
            name = $0; sub(/^[^ ]* +([0-9a-f]+ +)?[A-Za-z] +/, "", name)
        }
        / T / && name ~ /SubframeCoder::WriteWordAtEdge\(/ { writer[member] = 1 }
        / U / && name ~ /^(__)?(v?f?printf|f?puts|putc(har)?|fputc|fwrite|write|perror)(_chk|_unlocked)?$|^(stdout|stderr)$|^std::w?(cout|cerr|clog)$/ {
            uses[member] = uses[member] " " name
        }
        END {
            bad = 0; found = 0
            for (m in writer) found = 1
            if (!found) { print "no member defines the word writer"; exit 1 }
            for (m in uses) {
                if (m in writer) continue
                print m ":" uses[m]; bad = 1
            }
            for (m in writer) if (!(m in uses)) { print "the word writer prints nothing?"; exit 1 }
            if (bad) { print "only the word writer may print"; exit 1 }
            print "only the word writer prints"
        }'
    ;;
*)
    echo "usage: check-library.sh exports|streams LIBRARY" >&2
    exit 2
    ;;
esac
