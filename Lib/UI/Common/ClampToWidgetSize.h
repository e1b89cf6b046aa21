#pragma once

#include <QWidget>

namespace Zelkor::Vx::UI::Common {

/// Clamps a distance in pixels to QWIDGETSIZE_MAX, so that sums of a few distances do not overflow. Properties keep the
/// value that was set.
constexpr int ClampToWidgetSize(int pixels)
{
    return pixels < -QWIDGETSIZE_MAX ? -QWIDGETSIZE_MAX : pixels > QWIDGETSIZE_MAX ? QWIDGETSIZE_MAX : pixels;
}

} // namespace Zelkor::Vx::UI::Common
