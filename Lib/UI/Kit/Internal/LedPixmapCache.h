#pragma once

#include <QImage>
#include <QVector>

namespace Zelkor::Vx::UI::Kit {

/// Draws many filled circles of one diameter from cached pixels, much faster than one by one.
///
/// Circles are positioned at multiples of 1/32 pixel (QPainter: 1/64), which bounds the size of the cache. Pixels at
/// the edge differ from those of QPainter by a few of 255 steps. All lengths are device pixels.
class LedPixmapCache
{
public:
    /// Diameter of the circles, in units of the grid.
    static constexpr double DIAMETER = 8;

    /// Largest scale in pixels per unit. Larger circles are few and limited by their area, so a cache does not help.
    static constexpr double LARGEST_SCALE = 8;

    /// A coordinate, rounded to a multiple of 1/32 pixel.
    struct SubpixelPosition
    {
        explicit SubpixelPosition(double coordinate = 0);

        int pixel; ///< whole pixels
        int phase; ///< 32nds of a pixel beyond that
    };

    /// Sets the pixels per unit. Clears the cache if the scale changes.
    void setScale(double newScale);

    /// Returns an uninitialised image for a row of circles, the first and last of which begin at these pixels.
    QImage makeRow(int firstPixel, int lastPixel) const;

    /// Draws a circle into a row. Circles that are `apart` are copied and must be drawn from left to right.
    void draw(QImage& row, int pixel, int phaseX, int phaseY, QRgb color, bool apart);

    /// Returns whether circles at this distance share no pixel.
    bool areApart(double distance) const { return side <= distance; }

private:
    const QImage& coverageAt(int phase);
    const QRgb* pixelsOf(int phase, QRgb color);

    double scale = -1;
    int side = 0;   ///< width and height of a circle
    int stride = 0; ///< pixels per line of a circle, a multiple of four

    QVector<QImage> coverage; ///< alpha of a circle by phase, drawn on first use

    /// A direct-mapped cache of circles in the colours used last.
    struct Entry
    {
        quint64 key;
        QVector<QRgb> pixels; ///< premultiplied
    };
    QVector<Entry> entries;
};

} // namespace Zelkor::Vx::UI::Kit
