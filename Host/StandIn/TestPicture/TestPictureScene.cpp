#include <StandIn/TestPicture/TestPictureScene.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace Zelkor::StandIn {

namespace {

constexpr double TWO_PI = 6.283185307179586;

struct Color
{
    double red, green, blue;
};

// The sky at the top, halfway down and at the horizon. It fades between early and late colours.
constexpr Color ZENITH_EARLY{0.16, 0.30, 0.58};
constexpr Color ZENITH_LATE{0.15, 0.13, 0.38};
constexpr Color DUSK_EARLY{0.66, 0.58, 0.76};
constexpr Color DUSK_LATE{0.60, 0.34, 0.58};
constexpr Color HORIZON_EARLY{0.99, 0.80, 0.58};
constexpr Color HORIZON_LATE{0.96, 0.52, 0.44};
constexpr Color SUN{1.0, 0.93, 0.72};
constexpr Color CLOUD{0.98, 0.90, 0.88};
constexpr Color FAR_HILLS{0.42, 0.36, 0.56};
constexpr Color MIDDLE_HILLS{0.27, 0.26, 0.45};
constexpr Color NEAR_HILLS{0.13, 0.16, 0.30};
constexpr Color TEXT_BACKGROUND{0.06, 0.07, 0.12};
constexpr Color TEXT{0.96, 0.96, 0.96};

constexpr double SKY_HEIGHT = 0.72; // in picture heights
constexpr double SKY_PERIOD = 40.0; // seconds
constexpr double SUN_PERIOD = 24.0;
constexpr double BAR_PERIOD = 4.0;
constexpr int GLOW_AMOUNT = 9;
constexpr int BAR_AMOUNT = 14;

// `x` and `speed` are in picture widths, `y` and `size` in picture heights.
struct Cloud
{
    double x, y, size, speed;
};

constexpr Cloud CLOUDS[] = {
    {0.05, 0.16, 0.050, 0.020}, {0.35, 0.30, 0.070, 0.032}, {0.62, 0.12, 0.040, 0.015}, {0.85, 0.25, 0.060, 0.026}};

// The discs of a cloud, which has a straight base. In units of its size.
struct Puff
{
    double x, y, radius;
};

constexpr Puff PUFFS[] = {{-1.9, 0.0, 0.7}, {-0.9, -0.35, 1.0}, {0.4, -0.6, 1.25}, {1.5, -0.2, 0.9}, {2.3, 0.0, 0.6}};
constexpr double CLOUD_BASE = 0.25;
constexpr double CLOUD_MARGIN = 0.25; // beyond the edges where clouds wrap around, in picture widths

constexpr int GLYPH_WIDTH = 5;
constexpr int GLYPH_HEIGHT = 7;
constexpr int GLYPH_STEP = GLYPH_WIDTH + 1;
using Glyph = std::array<unsigned char, GLYPH_HEIGHT>; // one byte per row; the leftmost dot is bit 4

constexpr Glyph DIGITS[] = {
    {14, 17, 19, 21, 25, 17, 14}, {4, 12, 4, 4, 4, 4, 14},    {14, 17, 1, 2, 4, 8, 31},   {31, 2, 4, 2, 1, 17, 14},
    {2, 6, 10, 18, 31, 2, 2},     {31, 16, 30, 1, 1, 17, 14}, {6, 8, 16, 30, 17, 17, 14}, {31, 1, 2, 4, 8, 8, 8},
    {14, 17, 17, 14, 17, 17, 14}, {14, 17, 17, 15, 1, 2, 12},
};
constexpr Glyph COLON{0, 12, 12, 0, 12, 12, 0};
constexpr Glyph FULL_STOP{0, 0, 0, 0, 0, 12, 12};
constexpr Glyph SPACE{};

const Glyph& GlyphOf(char character)
{
    if (character >= '0' && character <= '9')
        return DIGITS[character - '0'];
    return character == ':' ? COLON : character == '.' ? FULL_STOP : SPACE;
}

Color Mix(const Color& from, const Color& to, double share)
{
    return {from.red + (to.red - from.red) * share, from.green + (to.green - from.green) * share,
            from.blue + (to.blue - from.blue) * share};
}

Ink InkOf(const Color& color, ColorMatrix matrix)
{
    return Ink(color.red, color.green, color.blue, matrix);
}

double Fraction(double value)
{
    return value - std::floor(value);
}

/// Calls `draw(y, left, right)` for each row of a disc above `bottom`.
template<class Draw>
void ForDisc(double x, double y, double radius, double bottom, Draw draw)
{
    const int last = int(std::ceil(std::min(y + radius, bottom)));
    for (int row = int(std::floor(y - radius)); row < last; ++row) {
        const double dy = row + 0.5 - y;
        const double half = std::sqrt(std::max(radius * radius - dy * dy, 0.0));
        draw(row, x - half, x + half);
    }
}

} // namespace

TestPictureScene::TestPictureScene(int width, int height, ColorMatrix matrix)
    : width(width), height(height), matrix(matrix)
{
    hills.push_back(MakeHills(InkOf(FAR_HILLS, matrix), 0.66, 0.07, 3, 0.02));
    hills.push_back(MakeHills(InkOf(MIDDLE_HILLS, matrix), 0.77, 0.06, 2, 0.045));
    hills.push_back(MakeHills(InkOf(NEAR_HILLS, matrix), 0.89, 0.05, 1, 0.09));
}

TestPictureScene::Hills TestPictureScene::MakeHills(const Ink& ink, double base, double amplitude, int waves,
                                                    double speed) const
{
    std::vector<int> tops;
    for (int x = 0; x < width; ++x) {
        const double angle = TWO_PI * waves * x / width;
        const double shape = std::sin(angle) + 0.4 * std::sin(2 * angle + 1) + 0.15 * std::sin(5 * angle + 2);
        tops.push_back(int(std::lround(height * (base - amplitude * shape))));
    }
    Hills made{ink, speed, std::vector<std::vector<Span>>(std::size_t(height))};
    for (int y = 0; y < height; ++y) {
        auto& spans = made.rows[std::size_t(y)];
        for (int x = 0; x < width; ++x) {
            if (tops[std::size_t(x)] > y)
                continue;
            if (spans.empty() || spans.back().second != x)
                spans.emplace_back(x, x);
            ++spans.back().second;
        }
    }
    return made;
}

void TestPictureScene::Draw(TestPictureCanvas& canvas, double time, const std::string& text) const
{
    DrawSky(canvas, time);
    DrawSun(canvas, time);
    DrawClouds(canvas, time);
    for (const auto& chain : hills)
        DrawHills(canvas, chain, time);
    DrawBar(canvas, time);
    if (!text.empty())
        DrawText(canvas, text);
}

void TestPictureScene::DrawSky(TestPictureCanvas& canvas, double time) const
{
    const double lateness = 0.5 - 0.5 * std::cos(TWO_PI * time / SKY_PERIOD);
    const Color zenith = Mix(ZENITH_EARLY, ZENITH_LATE, lateness);
    const Color dusk = Mix(DUSK_EARLY, DUSK_LATE, lateness);
    const Color horizon = Mix(HORIZON_EARLY, HORIZON_LATE, lateness);
    for (int y = 0; y < height; ++y) {
        const double depth = std::min(y / (height * SKY_HEIGHT), 1.0);
        const Color color = depth < 0.5 ? Mix(zenith, dusk, 2 * depth) : Mix(dusk, horizon, 2 * depth - 1);
        canvas.DrawSpan(y, 0, width, InkOf(color, matrix));
    }
}

void TestPictureScene::DrawSun(TestPictureCanvas& canvas, double time) const
{
    const double angle = TWO_PI * time / SUN_PERIOD;
    const double x = width * (0.5 + 0.34 * std::sin(angle));
    const double y = height * (0.36 + 0.08 * std::cos(2 * angle));
    const double radius = height * 0.1;
    for (const double ring : {1.9, 1.6, 1.3}) {
        ForDisc(x, y, radius * ring, height, [&](int row, double left, double right) {
            canvas.Brighten(row, int(std::lround(left)), int(std::lround(right)), GLOW_AMOUNT);
        });
    }
    const Ink ink = InkOf(SUN, matrix);
    ForDisc(x, y, radius, height, [&](int row, double left, double right) { canvas.DrawSpan(row, left, right, ink); });
}

void TestPictureScene::DrawClouds(TestPictureCanvas& canvas, double time) const
{
    const Ink ink = InkOf(CLOUD, matrix);
    for (const auto& cloud : CLOUDS) {
        const double way = 1 + 2 * CLOUD_MARGIN;
        const double x = width * (Fraction((cloud.x + cloud.speed * time) / way) * way - CLOUD_MARGIN);
        const double y = height * cloud.y;
        const double size = height * cloud.size;
        for (const auto& puff : PUFFS)
            ForDisc(x + puff.x * size, y + puff.y * size, puff.radius * size, y + CLOUD_BASE * size,
                    [&](int row, double left, double right) { canvas.DrawSpan(row, left, right, ink); });
    }
}

void TestPictureScene::DrawHills(TestPictureCanvas& canvas, const Hills& chain, double time) const
{
    // Whole pixels, so that there is no seam where the hills repeat.
    const double offset = std::floor(width * Fraction(chain.speed * time));
    for (int y = 0; y < height; ++y) {
        for (const auto& [left, right] : chain.rows[std::size_t(y)]) {
            canvas.DrawSpan(y, left - offset, right - offset, chain.ink);
            canvas.DrawSpan(y, left - offset + width, right - offset + width, chain.ink);
        }
    }
}

void TestPictureScene::DrawBar(TestPictureCanvas& canvas, double time) const
{
    const double middle = width * (Fraction(time / BAR_PERIOD) * 1.2 - 0.1);
    // Three nested bars make the edges soft.
    for (const double half : {0.030, 0.022, 0.014}) {
        const int left = int(std::lround(middle - width * half));
        const int right = int(std::lround(middle + width * half));
        for (int y = 0; y < height; ++y)
            canvas.Brighten(y, left, right, BAR_AMOUNT);
    }
}

void TestPictureScene::DrawText(TestPictureCanvas& canvas, const std::string& text) const
{
    const int dot = std::max(height / 180, 1);
    const int left = 4 * dot;
    const int top = height - (GLYPH_HEIGHT + 8) * dot;
    const Ink background = InkOf(TEXT_BACKGROUND, matrix);
    const Ink ink = InkOf(TEXT, matrix);
    const int boxWidth = (int(text.size()) * GLYPH_STEP + 3) * dot;
    for (int y = 0; y < (GLYPH_HEIGHT + 4) * dot; ++y)
        canvas.DrawSpan(top + y, left, left + boxWidth, background);
    for (std::size_t i = 0; i < text.size(); ++i) {
        const Glyph& glyph = GlyphOf(text[i]);
        for (int y = 0; y < GLYPH_HEIGHT * dot; ++y) {
            for (int column = 0; column < GLYPH_WIDTH; ++column) {
                const int x = left + (2 + int(i) * GLYPH_STEP + column) * dot;
                if (glyph[std::size_t(y / dot)] & (1 << (GLYPH_WIDTH - 1 - column)))
                    canvas.DrawSpan(top + 2 * dot + y, x, x + dot, ink);
            }
        }
    }
}

} // namespace Zelkor::StandIn
