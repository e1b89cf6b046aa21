#pragma once

#include <QColor>

#include <algorithm>
#include <cmath>

/// The contrast ratio of two opaque colours as WCAG 2 defines it, 1 to 21.
inline double Contrast(const QColor& a, const QColor& b)
{
    const auto luminance = [](const QColor& color) {
        const auto linear = [](double x) { return x <= 0.04045 ? x / 12.92 : std::pow((x + 0.055) / 1.055, 2.4); };
        return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
    };
    const auto [darker, lighter] = std::minmax({luminance(a), luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}
