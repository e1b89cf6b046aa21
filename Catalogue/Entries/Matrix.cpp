#include <Catalogue/Catalogue.h>
#include <UI/Kit/QLedMatrix.h>
#include <UI/Kit/ZSliderButton.h>

#include <cmath>
#include <iterator>

namespace Zelkor::Catalogue {

namespace {

constexpr int BIG_BOARD = 64;
constexpr QSize WIDE_PLACE(320, 120);

// A dot and "REC"; one string per row.
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
    matrix->setAccessibleName(EntryText::tr("Recording"));
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
    matrix.setAccessibleName(EntryText::tr("Waves of colour"));
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
    matrix.setAccessibleName(EntryText::tr("Colours"));
}

Entry LedMatrixEntry()
{
    return {
        "QLedMatrix",
        EntryText::tr("Kit"),
        EntryText::tr("A grid of round LEDs, each of a colour of its own."),
        "QLedMatrix",
        "grid",
        CreateSign,
        {
            MakeState<QLedMatrix>(EntryText::tr("A sign"), [](QLedMatrix&) {}),
            MakeState<QLedMatrix>(EntryText::tr("Dark"), [](QLedMatrix& matrix) { matrix.clear(); }),
            MakeState<QLedMatrix>(EntryText::tr("Transparent background"),
                                  [](QLedMatrix& matrix) { matrix.setBackgroundMode(Qt::TransparentMode); }),
            MakeState<QLedMatrix>(EntryText::tr("Named colours"), ShowColors),
            MakeState<QLedMatrix>(EntryText::tr("Wider than the grid"),
                                  [](QLedMatrix& matrix) { matrix.setFixedSize(WIDE_PLACE); }),
            MakeState<QLedMatrix>(EntryText::tr("4096 LEDs"), MakeBig),
            DisabledState(),
        },
        MakeBare<QLedMatrix>,
    };
}

QWidget* CreateSliderButton(QWidget* parent)
{
    auto* button = new ZSliderButton(parent);
    button->setAccessibleName(EntryText::tr("Volume"));
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
        EntryText::tr("Kit"),
        EntryText::tr("A button that shows a level and opens a slider above itself."),
        "ZSliderButton",
        "level-button",
        CreateSliderButton,
        {
            LevelState(EntryText::tr("Level 0"), 0),
            LevelState(EntryText::tr("From 1"), 1),
            LevelState(EntryText::tr("From 25"), 25),
            LevelState(EntryText::tr("From 50"), 50),
            LevelState(EntryText::tr("From 75"), 75),
            MakeState<ZSliderButton>(EntryText::tr("Slider in a window apart"),
                                     [](ZSliderButton& button) { button.setOnTop(true); }),
            MakeState<ZSliderButton>(EntryText::tr("High slider"),
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
    return {KitInForms<QLedMatrix>(LedMatrixEntry(), {{"columns", 16}, {"rows", 8}}),
            KitInForms<ZSliderButton>(SliderButtonEntry())};
}

} // namespace Zelkor::Catalogue
