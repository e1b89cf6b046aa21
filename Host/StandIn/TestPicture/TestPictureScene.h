#pragma once

#include <StandIn/TestPicture/TestPictureCanvas.h>

#include <string>
#include <utility>
#include <vector>

namespace Zelkor::StandIn {

/// The content of the test picture: an evening sky with moving sun, clouds and hills, a sweeping bar of light and a
/// counter. The constructor computes everything that depends on the size only.
class TestPictureScene
{
public:
    TestPictureScene(int width, int height, ColorMatrix matrix);

    /// Draws the picture at `time`, in seconds, with `text` in a corner. The text may contain digits, colons, full
    /// stops and spaces, and may be empty.
    void Draw(TestPictureCanvas& canvas, double time, const std::string& text) const;

private:
    using Span = std::pair<int, int>;

    /// A chain of hills, which repeats every picture width.
    struct Hills
    {
        Ink ink;
        double speed;                        ///< in picture widths per second
        std::vector<std::vector<Span>> rows; ///< the parts of each row that hills cover, from the top
    };

    Hills MakeHills(const Ink& ink, double base, double amplitude, int waves, double speed) const;

    void DrawSky(TestPictureCanvas& canvas, double time) const;
    void DrawSun(TestPictureCanvas& canvas, double time) const;
    void DrawClouds(TestPictureCanvas& canvas, double time) const;
    void DrawHills(TestPictureCanvas& canvas, const Hills& hills, double time) const;
    void DrawBar(TestPictureCanvas& canvas, double time) const;
    void DrawText(TestPictureCanvas& canvas, const std::string& text) const;

    int width;
    int height;
    ColorMatrix matrix;
    std::vector<Hills> hills; ///< from far to near
};

} // namespace Zelkor::StandIn
