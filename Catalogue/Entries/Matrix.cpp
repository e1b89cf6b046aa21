#include "Catalogue.h"

#include <UI/Kit/QLedMatrix.h>
#include <UI/Kit/ZSliderButton.h>

#include <cmath>
#include <iterator>

namespace Zelkor::Gallery {

namespace {

constexpr int BIG_BOARD = 64;
constexpr QSize WIDE_PLACE(320, 120);

// "REC", and a dot: a line for each row.
constexpr const char* SIGN[] = {
    "                       ", //
    "       gggg gggg  gggg ", //
    "  rr   g  g g    g     ", //
    " rrrr  g  g g    g     ", //
    " rrrr  gggg ggg  g     ", //
    "  rr   gg   g    g     ", //
    "       g g  g    g     ", //
    "       g  g gggg  gggg ", //
    "                       ", //
};

void SetGrid(QLedMatrix& matrix, int rows, int columns)
{
    matrix.setRowCount(rows);
    matrix.setColumnCount(columns);
    matrix.setFixedSize(matrix.sizeHint());
}

QWidget* CreateSign(QWidget* parent)
{
    auto* matrix = new QLedMatrix(parent);
    SetGrid(*matrix, int(std::size(SIGN)), int(qstrlen(SIGN[0])));
    for (int row = 0; row < matrix->rows(); ++row) {
        for (int column = 0; column < matrix->columns(); ++column) {
            const char led = SIGN[row][column];
            if (led != ' ')
                matrix->setColorAt(row, column, led == 'r' ? QLedMatrix::Red : QLedMatrix::Green);
        }
    }
    matrix->setAccessibleName(Catalogue::tr("Recording"));
    return matrix;
}

// Waves in all colours.
void MakeBig(QLedMatrix& matrix)
{
    SetGrid(matrix, BIG_BOARD, BIG_BOARD);
    matrix.setFixedSize(matrix.sizeHint() / 2);
    for (int row = 0; row < BIG_BOARD; ++row) {
        for (int column = 0; column < BIG_BOARD; ++column) {
            const double wave = std::sin(row / 6.0) + std::cos(column / 9.0);
            matrix.setColorAt(row, column, QColor::fromHsvF((wave + 2) / 4, 1, 1).rgb());
        }
    }
    matrix.setAccessibleName(Catalogue::tr("Waves of colour"));
}

void ShowColors(QLedMatrix& matrix)
{
    constexpr QLedMatrix::LEDColor COLORS[] = {QLedMatrix::NoColor,   QLedMatrix::Red,   QLedMatrix::Green,
                                               QLedMatrix::Blue,      QLedMatrix::White, QLedMatrix::Orange,
                                               QLedMatrix::OrangeRed, QLedMatrix::Yellow};
    SetGrid(matrix, 1, int(std::size(COLORS)));
    matrix.setFixedSize(matrix.sizeHint() * 3);
    for (int column = 0; column < matrix.columns(); ++column)
        matrix.setColorAt(0, column, COLORS[column]);
    matrix.setAccessibleName(Catalogue::tr("Colours"));
}

Entry LedMatrixEntry()
{
    return {
        "QLedMatrix",
        Catalogue::tr("Kit"),
        Catalogue::tr("A grid of round LEDs, each of a colour of its own."),
        "QLedMatrix",
        "grid",
        CreateSign,
        {
            MakeState<QLedMatrix>(Catalogue::tr("A sign"), [](QLedMatrix&) {}),
            MakeState<QLedMatrix>(Catalogue::tr("Dark"), [](QLedMatrix& matrix) { matrix.clear(); }),
            MakeState<QLedMatrix>(Catalogue::tr("Transparent background"),
                                  [](QLedMatrix& matrix) { matrix.setBackgroundMode(Qt::TransparentMode); }),
            MakeState<QLedMatrix>(Catalogue::tr("Named colours"), ShowColors),
            MakeState<QLedMatrix>(Catalogue::tr("Wider than the grid"),
                                  [](QLedMatrix& matrix) { matrix.setFixedSize(WIDE_PLACE); }),
            MakeState<QLedMatrix>(Catalogue::tr("4096 LEDs"), MakeBig),
            DisabledState(),
        },
        MakeBare<QLedMatrix>,
    };
}

QWidget* CreateSliderButton(QWidget* parent)
{
    auto* button = new ZSliderButton(parent);
    button->setAccessibleName(Catalogue::tr("Volume"));
    button->setValue(60);
    return button;
}

State LevelState(const QString& name, int level)
{
    return MakeState<ZSliderButton>(name, [level](ZSliderButton& button) { button.setValue(level); });
}

Entry SliderButtonEntry()
{
    return {
        "ZSliderButton",
        Catalogue::tr("Kit"),
        Catalogue::tr("A button that shows a level and opens a slider above itself."),
        "ZSliderButton",
        "sound",
        CreateSliderButton,
        {
            LevelState(Catalogue::tr("Level 0"), 0),
            LevelState(Catalogue::tr("From 1"), 1),
            LevelState(Catalogue::tr("From 25"), 25),
            LevelState(Catalogue::tr("From 50"), 50),
            LevelState(Catalogue::tr("From 75"), 75),
            MakeState<ZSliderButton>(Catalogue::tr("Slider in a window apart"),
                                     [](ZSliderButton& button) { button.setOnTop(true); }),
            MakeState<ZSliderButton>(Catalogue::tr("High slider"),
                                     [](ZSliderButton& button) { button.setSliderHeight(240); }),
            DisabledState(),
        },
        nullptr,
        3,
    };
}

} // namespace

QVector<Entry> MatrixEntries()
{
    return {LedMatrixEntry(), SliderButtonEntry()};
}

} // namespace Zelkor::Gallery
