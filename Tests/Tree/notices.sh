#!/usr/bin/env bash
# notices.sh TREE: fails if THIRD-PARTY.md and THIRD-PARTY.spdx differ in a part, its version or its licence, or if a
# package of the SPDX list lacks a mandatory field.
set -euo pipefail
cd "$1"

# Prints "name | version | licence" per part.
parts_of_page() {
    sed -nE 's/^\| ([^|]+) \| ([^|]+) \| `([^`]+)` \| .*/\1 | \2 | \3/p' THIRD-PARTY.md
}
parts_of_list() {
    awk '
        function complain(what) { print "THIRD-PARTY.spdx: " name " " what >"/dev/stderr"; failed = 1 }
        function finish() {
            if (name == "")
                return
            if (!id || !location || !analyzed || licence == "")
                complain("lacks a mandatory field")
            if (ids[id]++)
                complain("has the identifier of another package")
            if (!related[id] && id != "SPDXRef-VxUiWidgets")
                complain("has no relationship")
            if (name != "VxUiWidgets")
                print name " | " version " | " licence
            name = ""
        }
        { value = $0; sub(/^[^:]*: /, "", value) }
        /^PackageName: / { finish(); name = value; id = location = analyzed = licence = version = "" }
        name != "" && /^SPDXID: SPDXRef-[A-Za-z0-9.-]+$/ { id = value }
        /^PackageVersion: / { version = value }
        /^PackageDownloadLocation: / { location = value }
        /^FilesAnalyzed: false$/ { analyzed = 1 }
        /^PackageLicenseDeclared: / { licence = value }
        /^Relationship: / { related[$2] = related[$4] = 1 }
        END { finish(); exit failed }' THIRD-PARTY.spdx
}

list=$(parts_of_list)
[ -n "$list" ] || { echo "THIRD-PARTY.spdx names no parts"; exit 1; }
diff --old-line-format='THIRD-PARTY.md only: %L' --new-line-format='THIRD-PARTY.spdx only: %L' --unchanged-line-format='' \
    <(parts_of_page | sort) <(sort <<<"$list")
