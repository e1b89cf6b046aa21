#pragma once

#include <StandIn/TestPicture/TestPictureCanvas.h>

#include <string>
#include <utility>
#include <vector>

namespace Zelkor::StandIn {

/// What the test picture shows: an evening sky with sun, clouds and hills, all of which move, a bar of light that
/// sweeps over it, and a counter. Everything that depends on the size alone is worked out once.
class TestPictureScene
{
public:
    TestPictureScene(int width, int height, ColorMatrix matrix);

    /// Draws the whole picture at `time`, in seconds; `text` (digits, colon, full stop, space) goes into a corner and
    /// may be empty.
    void Draw(TestPictureCanvas& canvas, double time, const std::string& text) const;

private:
    using Span = std::pair<int, int>;

    /// A chain of hills, which repeats after the width of the picture.
    struct Hills
    {
        Ink ink;
        double speed;                        ///< in picture widths per second
        std::vector<std::vector<Span>> rows; ///< where there is a hill, for each row from the top
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
