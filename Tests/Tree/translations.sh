#!/usr/bin/env bash
# translations.sh TREE LUPDATE: fails on source texts missing from the .ts files, on missing translations, and on
# translations whose placeholders differ from those of the source text.
set -euo pipefail
tree=$1
lupdate=$2
copy=$(mktemp -d)
trap 'rm -rf "$copy"' EXIT
failed=0

# Work on a copy: updating the files and translating new texts is up to the developer.
cp "$tree"/Translations/*.ts "$copy"
warnings=$("$tree/Translations/update.sh" "$lupdate" "$copy" 2>&1) || failed=1
[ -z "$warnings" ] || { echo "lupdate complains:"; echo "$warnings"; failed=1; }

for file in "$tree"/Translations/*.ts; do
    name=$(basename "$file")
    changes=$(diff "$file" "$copy/$name" || true)
    [ -z "$changes" ] ||
        { echo "$name differs from the texts of the sources (build the target 'translations'):"; echo "$changes"; failed=1; }

    # Each translation has the same %1, %2, ... and %n as the source text of its message.
    awk -v RS='</message>' -v name="$name" '
        function inside(text, tag) {
            sub(".*<" tag "[^>]*>", "", text)
            sub("</" tag ">.*", "", text)
            return text
        }
        function placeholders(text, i, all) {
            for (i = 1; i <= 9; ++i)
                all = all gsub("%L?" i, "", text) " "
            return all gsub("%L?n", "", text)
        }
        function check(text) {
            if (text == "")
                complain("not translated")
            else if (placeholders(text) != placeholders(source))
                complain("other placeholders in \"" text "\"")
        }
        function complain(what) { print name ": " what ": " source; failed = 1 }
        !/<source>/ { next }
        {
            source = inside($0, "source")
            translation = inside($0, "translation")
            if (/<translation type="unfinished"/)
                complain("not translated")
            else if (/<message numerus="yes"/) {
                count = split(translation, forms, "</numerusform>")
                for (i = 1; i < count; ++i)
                    check(inside(forms[i], "numerusform"))
            } else
                check(translation)
        }
        END { exit failed }' "$file" || failed=1
done
exit $failed
