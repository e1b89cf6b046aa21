#include <UI/Kit/Internal/LedPixmapCache.h>

#include <QPainter>

#include <cmath>
#include <cstring>

namespace Zelkor::Vx::UI::Kit {

namespace {

constexpr int PHASES = 32;
constexpr int PHASE_BITS = 10; // x and y together
constexpr uint OPAQUE = 255;

// Pixels per memcpy. A constant length makes copies of this size much faster.
constexpr int BLOCK = 4;

constexpr int INDEX_BITS = 9;
constexpr int ENTRIES = 1 << INDEX_BITS;
constexpr quint64 EMPTY_KEY = ~quint64(0);

// Fibonacci hashing, which spreads similar keys.
int IndexOf(quint64 key)
{
    constexpr quint64 GOLDEN_RATIO = 0x9E3779B97F4A7C15;
    return int((key * GOLDEN_RATIO) >> (64 - INDEX_BITS));
}

// Multiplies the four channels of a pixel by factor / 255, rounded.
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
    entries = QVector<Entry>(ENTRIES, {EMPTY_KEY, {}});
}

QImage LedPixmapCache::makeRow(int firstPixel, int lastPixel) const
{
    return QImage(lastPixel + stride - firstPixel, side, QImage::Format_ARGB32_Premultiplied);
}

void LedPixmapCache::draw(QImage& row, int pixel, int phaseX, int phaseY, QRgb color, bool apart)
{
    const QRgb* pixels = pixelsOf(phaseY * PHASES + phaseX, color);
    auto* out = reinterpret_cast<QRgb*>(row.bits()) + pixel;
    for (int y = 0; y < side; ++y, pixels += stride, out += row.width()) {
        if (apart) {
            // The next circle overwrites the excess of the last block.
            for (int x = 0; x < stride; x += BLOCK)
                std::memcpy(out + x, pixels + x, BLOCK * sizeof(QRgb));
        } else {
            for (int x = 0; x < side; ++x)
                out[x] = pixels[x] + Times(out[x], OPAQUE - uint(qAlpha(pixels[x])));
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
        // QPainter flattens curves as finely as the scale requires, so the circle must be in the units of the grid.
        painter.scale(scale, scale);
        painter.drawEllipse(QRectF(0, 0, DIAMETER, DIAMETER));
    }
    return image;
}

const QRgb* LedPixmapCache::pixelsOf(int phase, QRgb color)
{
    const quint64 key = quint64(color) << PHASE_BITS | quint64(phase);
    Entry& entry = entries[IndexOf(key)];
    if (entry.key != key) {
        entry.key = key;
        entry.pixels.resize(side * stride);
        const QRgb premultiplied = qPremultiply(color);
        const QImage& circle = coverageAt(phase);
        for (int y = 0; y < side; ++y) {
            const uchar* line = circle.constScanLine(y);
            QRgb* out = entry.pixels.data() + y * stride;
            for (int x = 0; x < side; ++x)
                out[x] = Times(premultiplied, line[x]);
        }
    }
    return entry.pixels.constData();
}

} // namespace Zelkor::Vx::UI::Kit
