#!/usr/bin/env bash
# notices.sh packages|zip TREE FOLDER: fails if the unpacked packages or the unpacked zip in FOLDER lack a notice of what
# they contain or link.
set -euo pipefail
mode=$1
tree=$2
folder=$3
failed=0
complain() { printf '%s\n' "$*"; failed=1; }

# Debian's source package of each library that a binary in FOLDER links, without the version in its name.
linked_sources() {
    local needed
    needed=$(find "$folder/usr" -type f \( -name '*.so*' -o -path '*/bin/*' \) -exec readelf -d {} + 2>/dev/null |
        sed -n 's/.*(NEEDED).*\[\(.*\)\]/\1/p' | grep -v '^libVx' | sort -u)
    for library in $needed; do
        dpkg-query -S "*/$library" | sed 's/: .*//; s/, /\n/g' | head -n 1
    done | xargs dpkg-query -W -f '${source:Package}\n' | unversioned
}
listed_sources() { sed -n 's|.*pkg:deb/debian/\(.*\)?arch=source|\1|p' "$tree/THIRD-PARTY.spdx" | unversioned; }
unversioned() { sed -E 's/-?[0-9.]+$//' | sort -u; }

check_packages() {
    local file package docs sources missing
    for file in "$folder"/../packages/*.deb; do
        package=$(dpkg-deb -f "$file" Package)
        docs=$folder/usr/share/doc/$package
        cmp "$tree/cmake/debian/copyright" "$docs/copyright" || complain "$package lacks its copyright file"
        zcat "$docs/changelog.gz" | cmp - "$tree/CHANGELOG.md" || complain "$package lacks its changelog"
        [ "$(zcat "$docs/changelog.Debian.gz" | sed -n '1s/.*(\(.*\)).*/\1/p')" = \
            "$(dpkg-deb -f "$file" Version)" ] ||
            complain "the Debian changelog of $package is of another version"
    done
    for list in THIRD-PARTY.md THIRD-PARTY.spdx; do
        cmp "$tree/$list" "$folder"/usr/share/doc/libvxuiwidgets*[0-9]/"$list" || complain "the runtime package lacks $list"
    done
    sources=$(linked_sources)
    [ -n "$sources" ] || complain "no linked libraries found"
    missing=$(comm -23 <(echo "$sources") <(listed_sources))
    [ -z "$missing" ] || complain "linked, but not in THIRD-PARTY.spdx: $missing"
    # run.sh packs without compression, which is faster.
    if command -v lintian >/dev/null; then
        lintian --allow-root --fail-on error --suppress-tags uses-no-compression-for-data-tarball \
            "$folder"/../packages/*.deb || failed=1
    else
        echo "lintian is not installed, not run"
    fi
}

check_zip() {
    local name
    for name in Qt QtSvg QtTranslations glog libyuv Boost GccRuntime MinGW; do
        grep -qx "SPDXID: SPDXRef-$name" "$tree/THIRD-PARTY.spdx" || complain "THIRD-PARTY.spdx lacks $name"
        grep -qi copyright "$folder/licenses/$name.txt" || complain "the zip lacks the notices of $name"
    done
    for name in GPL-2 GPL-3 LGPL-2 LGPL-2.1 LGPL-3; do
        grep -q 'GENERAL PUBLIC LICENSE' "$folder/licenses/$name.txt" || complain "the zip lacks the text of $name"
    done
    for name in THIRD-PARTY.md THIRD-PARTY.spdx; do
        cmp "$tree/$name" "$folder/$name" || complain "the zip lacks $name"
    done
    while read -r name; do
        grep -qF "\`$name\`" "$tree/THIRD-PARTY.md" || complain "in the zip, but not in THIRD-PARTY.md: $name"
    done < <(find "$folder" -name '*.dll' ! -name 'Vx*' -printf '%f\n')
}

"check_$mode"
exit $failed
