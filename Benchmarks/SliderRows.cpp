#include "SpeedTable.h"

#include <UI/Kit/ZSlider.h>
#include <UI/Kit/ZSliderThumb.h>

#include <QCoreApplication>

namespace SpeedTable {

namespace {

const QString GROOVE = QStringLiteral("height: 4px; border-radius: 2px; background: gray");
const QString ADD_PAGE = QStringLiteral("background: none");
const QString SUB_PAGE = QStringLiteral("border-radius: 2px; background: blue");
const QString KNOB = QStringLiteral("border: 1px solid gray; border-radius: 7px; background: white; ");

void Prepare(QSlider& slider)
{
    slider.setRange(0, 1000);
    slider.resize(600, 32);
    slider.show();
    QCoreApplication::processEvents();
}

std::function<void()> Steps(QSlider& slider)
{
    return [&slider] {
        slider.setValue((slider.value() + 7) % 1000);
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    };
}

// A page ends at the value, so that the groove is redrawn for each value.
Rounds SliderStep()
{
    ZSlider ours;
    ours.setOrientation(Qt::Horizontal);
    ours.setGrooveEmptyStyle(GROOVE);
    ours.setAddPageStyle(ADD_PAGE);
    ours.setSubPageStyle(SUB_PAGE);
    ours.setStyleSheet(ours.styleSheet() + QStringLiteral("ZSliderThumb { %1 }").arg(KNOB));
    Prepare(ours);
    QSlider theirs(Qt::Horizontal);
    theirs.setStyleSheet(QStringLiteral("QSlider::groove { %1 } QSlider::add-page { %2 } QSlider::sub-page { %3 }"
                                        "QSlider::handle { %4 width: 14px; margin: -5px 0px }")
                             .arg(GROOVE, ADD_PAGE, SUB_PAGE, KNOB));
    Prepare(theirs);
    return Interleave(Steps(ours), Steps(theirs), 61, 100);
}

constexpr int THUMBS = 1000;

// Adds thumbs to a visible, empty slider, up to their layout, and removes them.
void AddThumbs(int count)
{
    ZSlider slider;
    slider.setOrientation(Qt::Horizontal);
    Prepare(slider);
    for (int i = 0; i < count; ++i)
        slider.addThumb(QStringLiteral("mark %1").arg(i))->setValue(i % 1000);
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

Rounds Thumbs()
{
    return Interleave([] { AddThumbs(2 * THUMBS); }, [] { AddThumbs(THUMBS); }, 11, 1);
}

} // namespace

std::vector<Row> SliderRows()
{
    return {
        {"zslider-step", "slider with thumbs, value change and repaint", "plain QSlider with the same groove", 2,
         SliderStep},
        {"zslider-thumbs", "ZSlider::addThumb, 2000 thumbs", "the same with 1000 thumbs", 2.3, Thumbs},
    };
}

} // namespace SpeedTable
