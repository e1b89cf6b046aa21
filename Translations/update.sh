#!/usr/bin/env bash
# update.sh LUPDATE FOLDER: updates the .ts files in FOLDER from the sources.
set -euo pipefail
lupdate=$1
folder=$(cd "$2" && pwd)
cd "$(dirname "${BASH_SOURCE[0]}")/.."

update() {
    local name=$1
    shift
    "$lupdate" -silent -no-obsolete -locations none "$@" -ts "$folder/$name"_*.ts
}
update VxUiWidgets -I Lib Lib
update VxHost Host
update VxGallery Gallery Catalogue Examples/Support
update VxRecorder Examples
