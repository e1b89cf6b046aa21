#!/usr/bin/env bash
# includes.sh TREE: fails on an include that runs against the order of the tree.
# Gallery, Designer, Tests -> Widgets -> Kit -> Common, and Widgets -> the boundary of the host.
set -euo pipefail
cd "$1"
failed=0

# report WHY FOUND: fails when something was found.
report() {
    [ -z "$2" ] || { echo "$1:"; echo "$2"; failed=1; }
}

# forbid FOLDER PATTERN WHY: no source below the folder includes what the pattern matches.
forbid() {
    [ -d "$1" ] || { echo "no folder $1"; failed=1; return; }
    local found
    found=$(grep -rnE "#include *[<\"]($2)" --include='*.h' --include='*.cpp' "$1" || true)
    report "$3" "$found"
}

forbid Lib/UI/Common 'UI/(Kit|Widgets)/|Zelkor/' 'Common knows Qt and the log only'
forbid Lib/UI/Kit 'UI/Widgets/|Zelkor/|glog/' 'the kit knows Common only'
forbid Lib 'Zelkor/StandIn/|libyuv|gst/|glib|\.\./' 'the library knows the boundary of the host only'
forbid Host 'UI/' 'the host knows nothing of the library'
forbid Host/include '(Zelkor/)?StandIn/|gst/|glib|libyuv|glog/' 'the boundary shows nothing of what stands behind it'

# opened FOLDER: each line below the folder that opens a namespace.
opened() { grep -rnE '^ *(inline )?namespace( |$)' --include='*.h' --include='*.cpp' "$1"; }

# The stand-in has a namespace of its own. A source in Boundary may open one of the contract, to define what the header of
# the same name declares: members and functions, but neither types nor helpers.
report 'the boundary opens the namespace of the stand-in' "$(opened Host/include | grep StandIn || true)"
report 'the stand-in opens a namespace of the contract' \
    "$(opened Host/StandIn | grep -vE '^Host/StandIn/Boundary/|:namespace (Zelkor::StandIn )?\{$' || true)"
for file in Host/StandIn/Boundary/*; do
    [ -n "$(find Host/include -name "$(basename "${file%.*}").h")" ] ||
        { echo "the boundary has no header for $file"; failed=1; }
    report 'neither a type nor a helper of the stand-in belongs to a namespace of the contract' "$(awk '
        /^namespace Zelkor/ { inside = !/^namespace Zelkor::StandIn / }
        inside && (/^namespace \{/ || /^(class|struct|enum|union) [A-Za-z]+( |;|$)/ ||
                   /^(static|inline|template|const|constexpr|using) ?/) { print FILENAME ": " $0 }' "$file")"
done

# Units of Lib (a header with the source of the same name) do not include each other, directly or through others. The
# tree includes by path only, so that this check sees all of it.
forbid Lib '[A-Za-z]*\.h"' 'Lib includes by path only'
circles=$(grep -rE '^#include <UI/' --include='*.h' --include='*.cpp' Lib |
    sed -E 's/^Lib\/(.*)\.(h|cpp):#include <(.*)\.h>.*/\1 \3/' | awk '$1 != $2' | sort -u | tsort 2>&1 >/dev/null || true)
[ -z "$circles" ] || { echo "units of Lib include each other:"; echo "$circles"; failed=1; }

# No widget includes another, but for these pairs; what is no class of its own (a placement, a pump) belongs to one.
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
