#include <UI/Widgets/InnerShadow.h>

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <vector>

namespace Zelkor::InnerShadow {

namespace {

constexpr int FULL = 255;
// Larger than any widget, and in the range of int.
constexpr double MAXIMUM_OFFSET = 1e6;

// Returns a step of the ramp, which is an integer division. Offsets below one pixel add nothing.
int RampStep(double divisor)
{
    const int whole = int(std::clamp(divisor, -MAXIMUM_OFFSET, MAXIMUM_OFFSET));
    return whole == 0 ? 0 : FULL / whole;
}

// Returns the number of pixels of a half that the band covers.
int BandLength(double offset, int half)
{
    return offset > 0 ? int(std::min(std::ceil(offset), double(half))) : 0;
}

QRgb ColorAt(const Input& input, int x, int y)
{
    return qPremultiply((input.color & RGB_MASK) | QRgb(AlphaAt(input, x, y)) << 24);
}

QImage MakeImage(int width, int height)
{
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

// Fills `columns` pixels from both ends of a row in the top half.
void FillRow(const Input& input, int y, int columns, QRgb* row, int width)
{
    const int corner = std::min(columns, BandLength(input.offset.x(), columns));
    for (int x = 0; x < corner; ++x)
        row[x] = ColorAt(input, x, y);
    // Outside the corner a row has one colour.
    if (corner < columns)
        std::fill(row + corner, row + columns, ColorAt(input, corner, y));
    std::reverse_copy(row, row + columns, row + width - columns);
}

} // namespace

int AlphaAt(const Input& input, int x, int y)
{
    const double ox = input.offset.x();
    const double oy = input.offset.y();
    int sum = 0;
    if (oy > y && ox > x)
        sum = FULL / (x + 1) + FULL / (y + 1);
    else if (x >= ox && oy > y)
        sum = FULL / (y + 1) + RampStep(ox);
    else if (y >= oy && ox > x)
        sum = FULL / (x + 1) + RampStep(oy);
    const double alpha = sum * input.level;
    return alpha > 0 ? int(std::min(alpha, double(FULL))) : 0;
}

QImage WholeImage(const Input& input)
{
    const int width = input.size.width();
    const int height = input.size.height();
    QImage image = MakeImage(width, height);
    for (int y = 0; y < height / 2; ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        FillRow(input, y, width / 2, row, width);
        std::copy(row, row + width, reinterpret_cast<QRgb*>(image.scanLine(height - 1 - y)));
    }
    return image;
}

void DrawBands(QPainter& painter, const Input& input)
{
    const int width = input.size.width();
    const int height = input.size.height();
    const int rows = BandLength(input.offset.y(), height / 2);
    const int columns = BandLength(input.offset.x(), width / 2);
    if (rows > 0) {
        QImage band = MakeImage(width, rows);
        for (int y = 0; y < rows; ++y)
            FillRow(input, y, width / 2, reinterpret_cast<QRgb*>(band.scanLine(y)), width);
        painter.drawImage(QPointF(0, 0), band);
        painter.drawImage(QPointF(0, height - rows), band.mirrored(false, true));
    }
    const int between = height - 2 * rows;
    if (columns > 0 && height / 2 > rows) {
        // All rows between the corners are equal, except the middle row of an odd height, which is transparent.
        std::vector<QRgb> row;
        for (int x = 0; x < columns; ++x)
            row.push_back(ColorAt(input, x, rows));
        QImage band = MakeImage(columns, between);
        for (int y = 0; y < between; ++y) {
            if (between % 2 == 0 || y != between / 2)
                std::copy(row.begin(), row.end(), reinterpret_cast<QRgb*>(band.scanLine(y)));
        }
        painter.drawImage(QPointF(0, rows), band);
        painter.drawImage(QPointF(width - columns, rows), band.mirrored(true, false));
    }
}

} // namespace Zelkor::InnerShadow
