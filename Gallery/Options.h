#pragma once

#include <Gallery/Palette/Palette.h>

#include <QSize>
#include <QString>
#include <QStringList>

#include <optional>
#include <variant>

namespace Zelkor::Gallery {

constexpr int EXIT_BAD_USE = 2;

/// The options of a valid command line.
struct Options
{
    bool list = false;
    QString page;                   ///< empty for the start page
    int state = 0;                  ///< index of the selected state of the page
    QString styleArgument;          ///< the name of a style, or a file
    std::optional<Palette> palette; ///< read from that file, if it is one of a palette
    QString shot;                   ///< file for a picture of the page, or empty
    QString shots;                  ///< folder for a picture of each page, or empty
    QString pictures;               ///< folder for a picture of each single widget, or empty
    QString press;                  ///< the button to click before the picture, or empty
    QString fallbackShot;           ///< file for a picture without a display
    QSize size;                     ///< of the window; invalid for its size hint
    double scale = 1;               ///< scale factor of the user interface
    bool rightToLeft = false;
    QString language; ///< empty for the source texts
    int after = 0;    ///< milliseconds between window and picture

    bool TakesPictures() const { return !shot.isEmpty() || !shots.isEmpty() || !pictures.isEmpty(); }
};

/// A text and exit code that end the program: for standard output if the code is 0, otherwise for standard error.
struct Answer
{
    int exitCode;
    QString text;
};

/// Parses the command line; `arguments` include the program. Needs no application object.
std::variant<Options, Answer> ReadOptions(const QStringList& arguments);

} // namespace Zelkor::Gallery
