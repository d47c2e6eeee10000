# The ephemeris as the JSON records navmsg encode reads: one per message, the fields by
# the records' names, each a number in the record's units or {"value", "units"} (navmsg
# encode then checks the units).
def fields: to_entries | map({name: .key} + (if (.value | type) == "object" then .value else {value: .value} end));

(.gps as $g | range(1; 4) as $n | {
  sat: $g.sat, format: "GpsLNav", subframe: $n, page: 0,
  # TLM and HOW: the preamble, the TOW count of the next subframe's start, the subframe ID.
  fields: ([{name: "preamble", value: 139},
            {name: "tow_count", value: (($g.tow + 6 * $n) / 6)},
            {name: "subframe_id", value: $n}] + ($g["subframe \($n)"] | fields))
}),
(.beidou as $b | (10, 11) as $type | {
  sat: $b.sat, format: "BeidouCNav2", subframe: 0, page: 0,
  # PRN and message type first: the type chooses the layout the other fields are found in.
  fields: ([{name: "PRN", value: ($b.sat[1:] | tonumber)},
            {name: "MesType", value: $type},
            {name: "SOW", value: ($b.sow + 3 * ($type - 10)), units: "s"}] +
           ($b["message type \($type)"] | fields))
})
