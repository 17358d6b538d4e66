#!/usr/bin/env bash
# The order of the virtual operations is part of the binary interface: users derive from the public bases. It is read off
# one concrete class of each base.
#
# usage: check-vtables.sh COMPILER SOURCE-DIR [--update]
set -euo pipefail
compiler=${1:?usage: $0 COMPILER SOURCE-DIR [--update]}
source=${2:?usage: $0 COMPILER SOURCE-DIR [--update]}
list=$(cd "$(dirname "$0")" && pwd)/virtual-operations.txt
classes='ix_string ix_pub_gruu ix_AttributeValuePair XMLGruuDecoder GruuMarshaller GruuUnMarshaller GruuDataBinder GruuContext'

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
printf '#include "Gruu.h"\n#include "XMLGruu.h"\n' >"$work/all.cpp"
(cd "$work" && "$compiler" -std=c++17 -fdump-lang-class -fsyntax-only \
    -I"$source/ims/dpl/include" -I"$source/ims/xml/include" all.cpp)
operations() {
    for class in $classes; do
        awk -v class="$class" '
            $0 == "Vtable for " class { inside = 1; print class; next }
            inside && NF == 0 { exit }
            inside && /::/ && !/_ZT/ { sub(/.*\.\.\.\)\)/, ""); print "  " $0 }
        ' "$work"/*.class
    done
}
if [ "${3:-}" = --update ]; then
    operations >"$list"
    exit 0
fi
diff -u "$list" <(operations) || { echo "virtual operations moved; $0 COMPILER SOURCE-DIR --update accepts that" >&2; exit 1; }
