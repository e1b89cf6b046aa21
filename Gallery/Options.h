#pragma once

#include <QSize>
#include <QString>
#include <QStringList>

#include <variant>

namespace Zelkor::Gallery {

constexpr int EXIT_BAD_USE = 2;
constexpr int LARGEST_SIDE = 8192; ///< of a window, in pixels of the picture

/// What the command line asks for, checked.
struct Options
{
    bool list = false;
    QString page;          ///< empty for the start page
    QString styleArgument; ///< "dark", "light" or a file
    QString shot;          ///< file for a picture of the page; empty for none
    QString shots;         ///< folder for a picture of each page; empty for none
    QString pictures;      ///< folder for a picture of each widget by itself; empty for none
    QString press;         ///< the button to press before the picture; empty for none
    QString fallbackShot;  ///< file for a picture when there is no display to show a window on
    QSize size;            ///< of the window; invalid for its own
    double scale = 1;      ///< of the whole user interface
    bool rightToLeft = false;
    QString language; ///< empty for the texts as they were written
    int after = 0;    ///< milliseconds from the window to the picture

    bool TakesPictures() const { return !shot.isEmpty() || !shots.isEmpty() || !pictures.isEmpty(); }
};

/// An answer that ends the program: for the terminal, on standard output when the code is 0, else on standard error.
struct Answer
{
    int exitCode;
    QString text;
};

/// Reads the command line; `arguments` begin with the program. Needs no application object.
std::variant<Options, Answer> ReadOptions(const QStringList& arguments);

} // namespace Zelkor::Gallery
