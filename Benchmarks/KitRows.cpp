#include "SpeedTable.h"

#include <UI/Kit/QLedMatrix.h>
#include <UI/Kit/ZComboBox.h>
#include <UI/Kit/ZLabel.h>
#include <UI/Kit/ZTimeEdit.h>
#include <UI/Kit/ZUndoStack.h>

#include <QCoreApplication>
#include <QPainter>
#include <QStringListModel>
#include <QUndoStack>

namespace SpeedTable {

namespace {

constexpr int LEDS = 64;
constexpr int CELL = 10;
constexpr int STEPS = 1000000;

QRgb ColorOf(int row, int column)
{
    constexpr QRgb COLORS[] = {QLedMatrix::NoColor, QLedMatrix::Red, QLedMatrix::Green, QLedMatrix::Orange};
    return COLORS[(row * 7 + column * 3) / 5 % 4];
}

void Fill(QLedMatrix& matrix)
{
    matrix.setRowCount(LEDS);
    matrix.setColumnCount(LEDS);
    for (int row = 0; row < LEDS; ++row) {
        for (int column = 0; column < LEDS; ++column)
            matrix.setColorAt(row, column, ColorOf(row, column), false);
    }
    matrix.resize(LEDS * CELL, LEDS * CELL);
}

Rounds LedMatrix()
{
    QLedMatrix matrix;
    Fill(matrix);
    QImage canvas(matrix.size(), QImage::Format_RGB32);
    return Interleave([&] { matrix.render(&canvas, QPoint(), QRegion(), QWidget::RenderFlags()); },
                      [&] {
                          QPainter painter(&canvas);
                          painter.setRenderHint(QPainter::Antialiasing);
                          painter.setPen(Qt::NoPen);
                          painter.fillRect(canvas.rect(), Qt::black);
                          for (int row = 0; row < LEDS; ++row) {
                              for (int column = 0; column < LEDS; ++column) {
                                  painter.setBrush(QColor(ColorOf(row, column)));
                                  painter.drawEllipse(column * CELL + 1, row * CELL + 1, CELL - 2, CELL - 2);
                              }
                          }
                      },
                      31, 4);
}

// Processes pending paint events.
void PaintNow()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

Rounds OneLed()
{
    QLedMatrix matrix;
    Fill(matrix);
    matrix.show();
    PaintNow();
    int led = 0;
    return Interleave(
        [&] {
            led = (led + 197) % (LEDS * LEDS);
            matrix.setColorAt(led / LEDS, led % LEDS, QLedMatrix::White);
            PaintNow();
        },
        [&] {
            matrix.update();
            PaintNow();
        },
        31, 20);
}

// Undoes and redoes all commands on a new stack, including their creation.
template<class Stack>
std::function<void()> History()
{
    return [] {
        Stack stack;
        for (int i = 0; i < STEPS; ++i)
            stack.push(new QUndoCommand);
        while (stack.canUndo())
            stack.undo();
        while (stack.canRedo())
            stack.redo();
    };
}

Rounds UndoStack()
{
    return Interleave(History<ZUndoStack>(), History<QUndoStack>(), 5, 1);
}

// Includes painting: QLabel defers all work until then.
template<class Label>
std::function<void()> ShowTexts(Label& label, void (Label::*set)(const QString&))
{
    label.resize(400, 30);
    label.show();
    PaintNow();
    const QString texts[] = {QStringLiteral("Built-in camera, 1280×720"), QStringLiteral("Built-in camera, 1920×1080")};
    return [&label, set, texts, turn = 0]() mutable {
        (label.*set)(texts[++turn % 2]);
        PaintNow();
    };
}

Rounds LabelText()
{
    ZLabel ours;
    QLabel theirs;
    return Interleave(ShowTexts(ours, &ZLabel::setOriginalText), ShowTexts(theirs, &QLabel::setText), 61, 200);
}

// Opens a new combo box each time, up to the first paint of its list.
template<class Combo>
std::function<void()> OpenLongList(QAbstractItemModel& items)
{
    return [&items] {
        Combo combo;
        combo.setModel(&items);
        combo.show();
        combo.showPopup();
        PaintNow();
        combo.hidePopup();
    };
}

Rounds LongList()
{
    QStringList texts;
    for (int i = 0; i < 100000; ++i)
        texts += QStringLiteral("Item %1").arg(i);
    QStringListModel items(texts);
    return Interleave(OpenLongList<ZComboBox>(items), OpenLongList<QComboBox>(items), 5, 1);
}

// Sets times that no format of the field shows without loss.
std::function<void()> UpdateTime(ZTimeEdit& field, int formats)
{
    const QString parts[] = {QStringLiteral("hh"), QStringLiteral("hh:mm"), QStringLiteral("mm"),
                             QStringLiteral("h:mm AP")};
    QStringList list;
    for (int i = 0; i < formats; ++i)
        list += QStringLiteral("%1' %2'").arg(parts[i % 4]).arg(i);
    field.setDisplayFormatList(list);
    return [&field, seconds = 0]() mutable { field.setTime(QTime(1, 2, ++seconds % 60)); };
}

Rounds TimeFormats()
{
    ZTimeEdit many;
    ZTimeEdit few;
    return Interleave(UpdateTime(many, 100000), UpdateTime(few, 4), 31, 20);
}

} // namespace

std::vector<Row> KitRows()
{
    return {
        {"led-matrix", "LED matrix 64x64 at 640x640", "4096 antialiased drawEllipse calls", 0.06, LedMatrix},
        {"led-change", "LED matrix, one LED changed", "full repaint of the same matrix", 0.05, OneLed},
        {"undo", "undo stack, 10^6 push, undo, redo", "QUndoStack", 0.5, UndoStack},
        {"label-text", "ZLabel::setOriginalText and repaint, text fits", "QLabel::setText and repaint", 1.5, LabelText},
        {"combo-open", "ZComboBox, list of 10^5 items opened", "QComboBox", 1.3, LongList},
        {"time-formats", "ZTimeEdit, new time with 10^5 formats", "the same with 4 formats", 1.2, TimeFormats},
    };
}

} // namespace SpeedTable
