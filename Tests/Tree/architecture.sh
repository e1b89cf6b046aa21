#!/usr/bin/env bash
# architecture.sh TREE: fails when the drawing in Docs/Architecture.md and the includes of the tree differ.
#
# The nodes of the drawing are folders, an arrow A --> B means that A includes headers of B. Includes need an arrow or a
# path of arrows, arrows need an include, and there are no circles.
set -euo pipefail
cd "$1"

drawing=$(sed -n '/^```mermaid$/,/^```$/p' Docs/Architecture.md)
nodes=$(sed -nE 's/^ *([a-z_]+)\["([^"<]+).*/\1 \2/p' <<<"$drawing")
arrows=$(sed -nE 's/^ *([a-z_]+) --> ([a-z_]+)$/\1 \2/p' <<<"$drawing")
[ -n "$nodes" ] && [ -n "$arrows" ] || { echo "no drawing in Docs/Architecture.md"; exit 1; }
while read -r _ folder; do
    [ -d "$folder" ] || { echo "no folder $folder"; exit 1; }
done <<<"$nodes"

# FILE<tab>FOLDER OF THE HEADER, for each include of a header of the tree.
includes() {
    git ls-files -- 'Lib/*.h' 'Lib/*.cpp' 'Host/*.h' 'Host/*.cpp' 'Examples/*.h' 'Examples/*.cpp' 'Catalogue/*.h' \
        'Catalogue/*.cpp' 'Gallery/*.h' 'Gallery/*.cpp' 'Designer/*.h' 'Designer/*.cpp' 'Benchmarks/*.h' 'Benchmarks/*.cpp' |
        xargs grep -E '^#include <(UI|Zelkor|Examples|Catalogue|Gallery|Designer)/' |
        sed -E 's|^([^:]+):#include <([^>]+)>.*|\1\t\2|' |
        sed -E 's|\tUI/|\tLib/UI/|; s|\tZelkor/StandIn/|\tHost/StandIn/|; s|\tZelkor/|\tHost/include/|'
}

awk -F '[ \t]' '
    function node(path, best, i) {
        for (i in folder) {
            if (index(path, folder[i] "/") == 1 && (best == "" || length(folder[i]) > length(folder[best])))
                best = i
        }
        if (best == "") {
            print "no node in the drawing for " path
            failed = 1
        }
        return best
    }
    stage == "nodes" { folder[$1] = $2; next }
    stage == "arrows" { arrow[$1, $2] = 1; reach[$1, $2] = 1; next }
    !isClosed {
        isClosed = 1
        for (k in folder) for (i in folder) for (j in folder)
            if (((i, k) in reach) && ((k, j) in reach))
                reach[i, j] = 1
        for (i in folder) {
            if ((i, i) in reach) {
                print "the drawing has a circle through " folder[i]
                failed = 1
            }
        }
    }
    {
        from = node($1)
        to = node($2)
        used[from, to] = 1
        if (from != to && !((from, to) in reach)) {
            print $1 " includes " $2 ": the drawing has no arrow from " folder[from] " to " folder[to]
            failed = 1
        }
    }
    END {
        for (pair in arrow) {
            split(pair, ends, SUBSEP)
            if (!(pair in used)) {
                print "no include for the arrow from " folder[ends[1]] " to " folder[ends[2]]
                failed = 1
            }
        }
        exit failed
    }' stage=nodes <(echo "$nodes") stage=arrows <(echo "$arrows") stage=includes <(includes)
