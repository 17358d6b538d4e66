#!/usr/bin/env bash
# Users read the fields of elements, derive from the public bases and pass enumerators: sizes, the places of fields and the
# values of enumerators are part of the binary interface. They are read off the debugging information of all public headers,
# for 64-bit systems. What the library's own classes are made of - descriptions, hooks, the family template - is not promised.
#
# usage: check-layouts.sh COMPILER SOURCE-DIR [--update]
set -euo pipefail
compiler=${1:?usage: $0 COMPILER SOURCE-DIR [--update]}
source=${2:?usage: $0 COMPILER SOURCE-DIR [--update]}
list=$(cd "$(dirname "$0")" && pwd)/layouts.txt

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
headers=("$source"/ims/{dpl,xml}/include/*.h)
printf '#include "%s"\n' "${headers[@]##*/}" >"$work/all.cpp"
"$compiler" -std=c++17 -gdwarf-4 -femit-class-debug-always -fno-eliminate-unused-debug-types -c "$work/all.cpp" \
    -o "$work/all.o" -I"$source/ims/dpl/include" -I"$source/ims/xml/include"

framework='/Xml(Class|Family|FamilyDecoder|FamilyMarshaller|Fields|Hooks|Names|NamespaceTable)\.h$'
mapfile -t promised < <(printf '%s\n' "${headers[@]}" | grep -vE "$framework")
# The types that the headers define, each with its members and their offsets, or its enumerators and their values.
sed -nE 's/^(class|struct|enum)( class)?( IX_XML_EXPORT)? (\w+) .*\{.*/\4/p' "${promised[@]}" >"$work/types"
layouts() {
    readelf --debug-dump=info "$work/all.o" | awk '
        function flush() {
            if (tag == "DW_TAG_namespace" && depth == 1) space = name "::"
            else if (tag ~ /^DW_TAG_(class|structure|enumeration)_type$/ && depth == level && name in wanted && size != "") {
                label[type] = space name; head[type] = space name " " size
            }
            else if (depth != level + 1) ;
            else if (tag == "DW_TAG_inheritance") { base[type, ++bases[type]] = of; at[type, bases[type]] = place }
            else if (tag == "DW_TAG_member" && place != "") text[type] = text[type] "\n  " name " " place
            else if (tag == "DW_TAG_enumerator") text[type] = text[type] "\n  " name " = " value
            tag = name = size = place = value = of = ""
        }
        FILENAME != "-" { wanted[$1]; next }
        /^ *<[0-9a-f]+><[0-9a-f]+>: Abbrev Number/ {
            flush()
            split($1, part, /[<>]/); depth = part[2]
            tag = $NF; gsub(/[()]/, "", tag)
            # Types stand at the first level, or in a namespace there.
            if (depth == 1) { level = tag == "DW_TAG_namespace" ? 2 : 1; space = "" }
            if (depth == level) type = part[4]
            next
        }
        /DW_AT_name / { name = $NF }
        /DW_AT_byte_size / { size = $NF }
        /DW_AT_data_member_location/ { place = $NF }
        /DW_AT_const_value/ { value = $NF }
        /DW_AT_type / { of = $NF; gsub(/[<>]|0x/, "", of) }
        END {
            flush()
            for (type in head) {
                line = head[type]
                for (i = 1; i <= bases[type]; i++) line = line "\n  (" label[base[type, i]] ") " at[type, i]
                print line text[type] "\n"
            }
        }' "$work/types" - | awk 'BEGIN { RS = ""; FS = "\n" } { gsub(/\n/, "\t"); print }' | LC_ALL=C sort | tr '\t' '\n'
}
if [ "${3:-}" = --update ]; then
    layouts >"$list"
    exit 0
fi
diff -u "$list" <(layouts) || { echo "layouts differ from $list; $0 COMPILER SOURCE-DIR --update accepts that" >&2; exit 1; }
