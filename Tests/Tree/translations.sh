#!/usr/bin/env bash
# translations.sh TREE LUPDATE: fails on a text of the sources that the translation files lack, and on a translation
# that is missing or shows other values than its source.
set -euo pipefail
tree=$1
lupdate=$2
copy=$(mktemp -d)
trap 'rm -rf "$copy"' EXIT
failed=0

# The tree itself is left alone: it is for a person to bring the files up to date, and to translate what is new.
cp "$tree"/Translations/*.ts "$copy"
warnings=$("$tree/Translations/update.sh" "$lupdate" "$copy" 2>&1) || failed=1
[ -z "$warnings" ] || { echo "lupdate complains:"; echo "$warnings"; failed=1; }

for file in "$tree"/Translations/*.ts; do
    name=$(basename "$file")
    changes=$(diff "$file" "$copy/$name" || true)
    [ -z "$changes" ] ||
        { echo "$name differs from the texts of the sources (build the target 'translations'):"; echo "$changes"; failed=1; }

    # One message after the other: each of its translations has the %1, %2 .. and %n of the source.
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
