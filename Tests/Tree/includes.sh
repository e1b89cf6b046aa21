#!/usr/bin/env bash
# includes.sh TREE: fails on includes against the direction of dependencies, on circles between units of Lib, and on code
# of the stand-in in a namespace of the boundary.
set -euo pipefail
cd "$1"
failed=0

# report WHY FOUND: prints both and fails, unless FOUND is empty.
report() {
    [ -z "$2" ] || { echo "$1:"; echo "$2"; failed=1; }
}

# forbid FOLDER PATTERN WHY: fails if a source below FOLDER includes a file that matches PATTERN.
forbid() {
    [ -d "$1" ] || { echo "no folder $1"; failed=1; return; }
    local found
    found=$(grep -rnE "#include *[<\"]($2)" --include='*.h' --include='*.cpp' "$1" || true)
    report "$3" "$found"
}

forbid Lib/UI/Common 'UI/(Kit|Widgets)/|Zelkor/' 'Common may include Qt and glog only'
forbid Lib/UI/Kit 'UI/Widgets/|Zelkor/|glog/' 'the kit may include Qt and Common only'
forbid Lib 'Zelkor/StandIn/|libyuv|gst/|glib|\.\./' 'Lib may include the boundary of the host only'
forbid Host 'UI/' 'Host must not include Lib'
forbid Host/include '(Zelkor/)?StandIn/|gst/|glib|libyuv|glog/' 'the boundary must not include the stand-in or its libraries'

# opened FOLDER: prints the lines below FOLDER that open a namespace.
opened() { grep -rnE '^ *(inline )?namespace( |$)' --include='*.h' --include='*.cpp' "$1"; }

# The stand-in is in Zelkor::StandIn. A source in Boundary may open a namespace of the boundary to define members and
# functions that the header of the same name declares, but no types or helpers.
report 'the boundary opens the namespace of the stand-in' "$(opened Host/include | grep StandIn || true)"
report 'the stand-in opens a namespace of the boundary' \
    "$(opened Host/StandIn | grep -vE '^Host/StandIn/Boundary/|:namespace (Zelkor::StandIn )?\{$' || true)"
for file in Host/StandIn/Boundary/*; do
    [ -n "$(find Host/include -name "$(basename "${file%.*}").h")" ] ||
        { echo "the boundary has no header for $file"; failed=1; }
    report 'the stand-in defines a type or helper in a namespace of the boundary' "$(awk '
        /^namespace Zelkor/ { inside = !/^namespace Zelkor::StandIn / }
        inside && (/^namespace \{/ || /^(class|struct|enum|union) [A-Za-z]+( |;|$)/ ||
                   /^(static|inline|template|const|constexpr|using) ?/) { print FILENAME ": " $0 }' "$file")"
done

# Units of Lib (a header and the source of the same name) do not include each other, directly or through others. Lib
# includes by path only, otherwise this check would miss includes.
forbid Lib '[A-Za-z]*\.h"' 'Lib must include by path'
circles=$(grep -rE '^#include <UI/' --include='*.h' --include='*.cpp' Lib |
    sed -E 's/^Lib\/(.*)\.(h|cpp):#include <(.*)\.h>.*/\1 \3/' | awk '$1 != $2' | sort -u | tsort 2>&1 >/dev/null || true)
[ -z "$circles" ] || { echo "units of Lib include each other:"; echo "$circles"; failed=1; }

# Widgets do not include each other, except for these pairs.
allowed='ButtonWithPopUpContainer:AccessiblePopUpButton
ButtonWithPopUpContainer:PopUpWindow
ButtonWithPopUpList:AccessiblePopUpButton
CustomTabWidget:HorizontalTabBar
FastPresetButton:ButtonWithLabels
FrameReaderThread:PreviewGate
PixmapWidget:PixmapCrop
PopUpWindow:PopUpPlacement
PreviewGate:VideoPreviewWidget
SliderWithTickLabels:TickLabelLayout
SliderWithTickLabels:TickSlider
TickLabelLayout:TickSlider
VideoPreviewWidget:PreviewFeeder
VolumeSlider:LevelMeterGeometry
WebCameraPreviewStream:FrameReaderThread
WebCameraPreviewStream:PreviewCapture
WebCameraPreviewStream:PreviewFeeder
WebCameraPreviewStream:PreviewGate
WebCameraPreviewStream:RetrySchedule
WebCameraPreviewStream:VideoModeChoice
WebCameraPreviewStream:VideoPreviewWidget
ZGraphicsShadowEffect:InnerShadow'
while IFS=: read -r file _ include; do
    from=$(basename "${file%.*}")
    to=$(sed -E 's|.*UI/Widgets/([A-Za-z]+)\.h.*|\1|' <<<"$include")
    [ "$from" = "$to" ] || grep -qx "$from:$to" <<<"$allowed" ||
        { echo "a widget includes another: $file -> $to"; failed=1; }
done < <(grep -rnE '#include <UI/Widgets/' Lib/UI/Widgets)
exit $failed
