#pragma once

#include <QWidget>

namespace Zelkor::Vx::UI::Common {

/// A distance in pixels, cut to what a widget can be wide. Properties keep what they were told; sums of distances that
/// went through this do not overflow, and look no different.
constexpr int ClampToWidgetSize(int pixels)
{
    return pixels < -QWIDGETSIZE_MAX ? -QWIDGETSIZE_MAX : pixels > QWIDGETSIZE_MAX ? QWIDGETSIZE_MAX : pixels;
}

} // namespace Zelkor::Vx::UI::Common
