#!/usr/bin/env bash
# includes.sh TREE: fails on an include that runs against the order of the tree.
# Gallery, Designer, Tests -> Widgets -> Kit -> Common, and Widgets -> the boundary of the host.
set -euo pipefail
cd "$1"
failed=0

# forbid FOLDER PATTERN WHY: no source below the folder includes what the pattern matches.
forbid() {
    [ -d "$1" ] || { echo "no folder $1"; failed=1; return; }
    local found
    found=$(grep -rnE "#include *[<\"]($2)" --include='*.h' --include='*.cpp' "$1" || true)
    [ -z "$found" ] || { echo "$3:"; echo "$found"; failed=1; }
}

forbid Lib/UI/Common 'UI/(Kit|Widgets)/|Zelkor/' 'Common knows Qt and the log only'
forbid Lib/UI/Kit 'UI/Widgets/|Zelkor/|glog/' 'the kit knows Common only'
forbid Lib 'Zelkor/StandIn/|libyuv|gst/|glib|\.\./' 'the library knows the boundary of the host only'
forbid Host 'UI/' 'the host knows nothing of the library'
forbid Host/include/Zelkor 'gst/|glib|libyuv|glog/' 'the boundary shows nothing of what stands behind it'

# No widget includes another, but for these pairs; what is no class of its own (a placement, a pump) belongs to one.
allowed='WebCameraPreviewStream:VideoPreviewWidget
FramePump:VideoPreviewWidget
VideoPreviewWidget:PreviewFeeder
WebCameraPreviewStream:PreviewFeeder
WebCameraPreviewStream:FramePump
WebCameraPreviewStream:RetrySchedule
WebCameraPreviewStream:VideoModeChoice
PopUpPlacement:ButtonWithPopUpContainer
ButtonWithPopUpContainer:PopUpPlacement
VolumeSlider:LevelMeter
PixmapCut:PixmapWidget
PixmapWidget:PixmapCut
ZGraphicsShadowEffect:ShadowRim
FastPresetButton:ButtonWithLabels
CustomTabWidget:HorizontalTabBar
SliderWithTickLabels:TickLabelRow
SliderWithTickLabels:TickSlider
TickLabelRow:TickSlider'
while IFS=: read -r file _ include; do
    from=$(basename "${file%.*}")
    to=$(sed -E 's|.*UI/Widgets/([A-Za-z]+)\.h.*|\1|' <<<"$include")
    [ "$from" = "$to" ] || grep -qx "$from:$to" <<<"$allowed" ||
        { echo "a widget includes another: $file -> $to"; failed=1; }
done < <(grep -rnE '#include <UI/Widgets/' Lib/UI/Widgets)
exit $failed
