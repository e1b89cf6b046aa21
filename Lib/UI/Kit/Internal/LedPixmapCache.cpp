#include <UI/Kit/Internal/LedPixmapCache.h>

#include <QPainter>

#include <cmath>
#include <cstring>

namespace Zelkor::Vx::UI::Kit {

namespace {

constexpr int PHASES = 32;
constexpr int PHASE_BITS = 10; // of both directions together
constexpr uint OPAQUE = 255;

// Copied at once. A length that the compiler knows makes copies of this size much faster.
constexpr int BLOCK = 4;

constexpr int SLOT_BITS = 9;
constexpr int SLOTS = 1 << SLOT_BITS;
constexpr quint64 NOTHING = ~quint64(0);

// Spreads keys that differ little over the slots.
int SlotOf(quint64 key)
{
    constexpr quint64 GOLDEN_RATIO = 0x9E3779B97F4A7C15;
    return int((key * GOLDEN_RATIO) >> (64 - SLOT_BITS));
}

// A pixel of four channels times a factor of 0 to 255, rounded.
QRgb Times(QRgb pixel, uint factor)
{
    constexpr QRgb EVEN = 0x00ff00ff;
    constexpr QRgb HALVES = 0x00800080;
    QRgb even = (pixel & EVEN) * factor;
    even = ((even + ((even >> 8) & EVEN) + HALVES) >> 8) & EVEN;
    QRgb odd = ((pixel >> 8) & EVEN) * factor;
    odd = (odd + ((odd >> 8) & EVEN) + HALVES) & ~EVEN;
    return even | odd;
}

} // namespace

LedPixmapCache::SubpixelPosition::SubpixelPosition(double coordinate)
{
    const double begin = std::round(coordinate * PHASES);
    pixel = int(std::floor(begin / PHASES));
    phase = int(begin - double(pixel) * PHASES);
}

void LedPixmapCache::setScale(double newScale)
{
    if (scale == newScale)
        return;
    scale = newScale;
    side = int(std::ceil(DIAMETER * scale + double(PHASES - 1) / PHASES));
    stride = (side + BLOCK - 1) / BLOCK * BLOCK;
    coverage = QVector<QImage>(1 << PHASE_BITS);
    stamps = QVector<Stamp>(SLOTS, {NOTHING, {}});
}

QImage LedPixmapCache::lineBetween(int firstPixel, int lastPixel) const
{
    return QImage(lastPixel + stride - firstPixel, side, QImage::Format_ARGB32_Premultiplied);
}

void LedPixmapCache::draw(QImage& line, int pixel, int phaseX, int phaseY, QRgb color, bool apart)
{
    const QRgb* stamp = stampOf(phaseY * PHASES + phaseX, color);
    auto* out = reinterpret_cast<QRgb*>(line.bits()) + pixel;
    for (int y = 0; y < side; ++y, stamp += stride, out += line.width()) {
        if (apart) {
            // What a block has too much, the next stamp sets right.
            for (int x = 0; x < stride; x += BLOCK)
                std::memcpy(out + x, stamp + x, BLOCK * sizeof(QRgb));
        } else {
            for (int x = 0; x < side; ++x)
                out[x] = stamp[x] + Times(out[x], OPAQUE - uint(qAlpha(stamp[x])));
        }
    }
}

const QImage& LedPixmapCache::coverageAt(int phase)
{
    QImage& image = coverage[phase];
    if (image.isNull()) {
        image = QImage(side, side, QImage::Format_Alpha8);
        image.fill(0);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(Qt::black);
        painter.translate(double(phase % PHASES) / PHASES, double(phase / PHASES) / PHASES);
        // What fills curves makes polygons of them first, as fine as the scale needs: in other units, it gets others.
        painter.scale(scale, scale);
        painter.drawEllipse(QRectF(0, 0, DIAMETER, DIAMETER));
    }
    return image;
}

const QRgb* LedPixmapCache::stampOf(int phase, QRgb color)
{
    const quint64 key = quint64(color) << PHASE_BITS | quint64(phase);
    Stamp& stamp = stamps[SlotOf(key)];
    if (stamp.key != key) {
        stamp.key = key;
        stamp.pixels.resize(side * stride);
        const QRgb premultiplied = qPremultiply(color);
        const QImage& circle = coverageAt(phase);
        for (int y = 0; y < side; ++y) {
            const uchar* line = circle.constScanLine(y);
            QRgb* out = stamp.pixels.data() + y * stride;
            for (int x = 0; x < side; ++x)
                out[x] = Times(premultiplied, line[x]);
        }
    }
    return stamp.pixels.constData();
}

} // namespace Zelkor::Vx::UI::Kit
