#pragma once

#include <QImage>
#include <QVector>

namespace Zelkor::Vx::UI::Kit {

/// Draws many filled circles of one diameter, much faster than one by one.
///
/// Qt places what it fills on a grid of 64ths of a pixel. A stamp is placed on one of 32nds, which bounds the number of
/// stamps whatever their places are, and makes a pixel at the edge differ by a few of 255 steps at most. All lengths
/// are pixels of the device.
class LedPixmapCache
{
public:
    /// Of the circles, in units of the grid that they are on.
    static constexpr double DIAMETER = 8;

    /// In pixels for a unit. Larger circles are few, and cost what their area costs: stamps would only take memory.
    static constexpr double LARGEST_SCALE = 8;

    /// A coordinate on the grid of stamps.
    struct SubpixelPosition
    {
        explicit SubpixelPosition(double coordinate = 0);

        int pixel; ///< where the stamp begins
        int phase; ///< which part of that pixel the circle begins at
    };

    /// Forgets the stamps of another scale.
    void setScale(double newScale);

    /// A line of stamps, of which the first and the last begin at these pixels. Not filled.
    QImage lineBetween(int firstPixel, int lastPixel) const;

    /// Draws a circle on a line. Those that are `apart` must come from left to right.
    void draw(QImage& line, int pixel, int phaseX, int phaseY, QRgb color, bool apart);

    /// Whether stamps at this distance have no pixel in common.
    bool areApart(double distance) const { return side <= distance; }

private:
    const QImage& coverageAt(int phase);
    const QRgb* stampOf(int phase, QRgb color);

    double scale = -1;
    int side = 0;   ///< of a stamp
    int stride = 0; ///< pixels from one line of a stamp to the next, in blocks of four

    QVector<QImage> coverage; ///< of white circles, by phase; made when they are needed first

    /// Stamps in the colours used last, each in the one slot that it can be in.
    struct Stamp
    {
        quint64 key;
        QVector<QRgb> pixels; ///< premultiplied
    };
    QVector<Stamp> stamps;
};

} // namespace Zelkor::Vx::UI::Kit
