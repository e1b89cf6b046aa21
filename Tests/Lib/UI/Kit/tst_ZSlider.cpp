#include <Lib/UI/Kit/SliderFixture.h>

#include <UI/Kit/Internal/SliderTrack.h>

#include <Support/Input.h>
#include <Support/PaintSpy.h>
#include <Support/Picture.h>
#include <Support/TestCase.h>

using Zelkor::Vx::UI::Kit::SliderTrack;
using Numbers = QVector<int>;

namespace {

/// With a colour for each part and no thumb.
struct Groove : Trimmer
{
    Groove()
    {
        setGrooveEmptyStyle("background: white");
        setGrooveNormalStyle("background: lime");
        setGrooveSelectedStyle("background: blue");
        setGrooveBorderStyle("background: red");
        defaultThumb()->hide();
    }

    // Returns the colours at these pixels along the groove.
    QString colorsAt(const QVector<int>& pixels)
    {
        static const QMap<QRgb, QString> NAMES{{0xffffffff, "white"}, {0xff00ff00, "lime"}, {0xff0000ff, "blue"},
                                               {0xffff0000, "red"},   {0xff808080, "gray"}, {0, "none"}};
        const QImage image = grab().toImage();
        QStringList names;
        for (const int pixel : pixels) {
            const QPoint point = orientation() == Qt::Horizontal ? QPoint(pixel, 15) : QPoint(15, pixel);
            names << NAMES.value(Support::ColorAt(image, point).rgba(), "?");
        }
        return names.join(' ');
    }
};

} // namespace

/// The groove of a slider: its picture, the positions of thumbs, presses, drags, keys and wheel events.
class tst_ZSlider : public Support::TestCase
{
    Q_OBJECT

    static void Press(Trimmer& slider, int x, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mousePress(&slider, button, {}, {x, 25});
    }

private Q_SLOTS:
    void trackConvertsValuesAndPixels()
    {
        // The pixels of a thumb and a segment at a value, and the value at a pixel.
        const auto converted = [](const SliderTrack& track, int value, int pixel) {
            return Numbers{track.pixelOfThumb(value), track.pixelOfSegment(value), track.valueAt(pixel)};
        };
        QCOMPARE(converted({212, 6, 0, 100}, 50, 106), Numbers({106, 106, 50}));
        QCOMPARE(converted({212, 6, 0, 100}, 100, 500), Numbers({206, 206, 100}));
        QCOMPARE(converted({212, 6, 10, 110}, 10, 6), Numbers({26, 6, 10})); // thumbs ignore the minimum
        QCOMPARE(converted({19, 6, -10, 10}, 3, 9), Numbers({7, 10, -1}));
        QCOMPARE(converted({212, 6, 7, 7}, 1, 100), Numbers({206, -1194, 7}));
        QCOMPARE(converted({212, 6, INT_MIN, INT_MAX}, INT_MAX, 206), Numbers({106, 206, INT_MAX}));
        QCOMPARE(converted({0, 6, INT_MAX - 1, INT_MAX}, INT_MAX, 0), Numbers({6 - (1 << 24), -6, INT_MAX - 1}));
    }

    void segmentsHaveTheirStyles()
    {
        Groove slider;
        slider.setSegments({{20, 40, false}, {80, 60, true}, {150, 100, true}});
        QCOMPARE(slider.colorsAt({30, 46, 47, 85, 86, 87}), "white red lime lime red white");
        QCOMPARE(slider.colorsAt({126, 150, 166, 205, 3}), "red blue red white none");
        slider.clearSegments();
        slider.addSegment(0, 50);
        slider.setOrientation(Qt::Vertical);
        slider.resize(30, 212);
        QCOMPARE(slider.colorsAt({20, 150}), "lime white");
    }

    void grooveIsRenderedAgainAfterChanges()
    {
        Groove slider;
        slider.setSubPageStyle("background: red");
        slider.setAddPageStyle("background: blue; /* %1 and } */");
        for (const int value : {50, 90}) {
            slider.setValue(value);
            QCOMPARE(slider.colorsAt({2 * value, 2 * value + 12}), "red blue");
        }
        slider.setLayoutDirection(Qt::RightToLeft);
        slider.setSubPageStyle("background: red } QSlider::sub-page:horizontal:disabled { background: gray");
        slider.setEnabled(false);
        QCOMPARE(slider.colorsAt({20}), "gray");
        ExpectWarning("braces or quotes do not match");
        slider.setSubPageStyle("background: red } }");
        slider.setAddPageStyle({});
        QCOMPARE(slider.colorsAt({20}), "white");
        slider.setGrooveEmptyStyle("background: palette(window)");
        const QPalette before = QApplication::palette();
        QApplication::setPalette(QPalette(Qt::black, Qt::blue));
        QCOMPARE(slider.colorsAt({20}), "blue");
        QApplication::setPalette(before);

        // If the groove does not depend on the value, only the thumb is repainted.
        slider.setEnabled(true);
        slider.setGrooveEmptyStyle("background: white");
        slider.defaultThumb()->show();
        Support::PaintSpy paints(&slider);
        slider.setValue(91);
        const auto painted = paints.Take();
        QCOMPARE(painted.size(), 1);
        QVERIFY(painted[0].boundingRect().width() < 20);
    }

    void thumbsAreAtTheirValues()
    {
        Trimmer slider;
        slider.show();
        slider.setValue(50);
        ZSliderThumb* thumb = slider.defaultThumb();
        QCOMPARE(thumb->geometry(), QRect(99, 0, 14, 14));
        for (const int offset : {INT_MIN, INT_MAX}) {
            thumb->setPointOffset(offset);
            thumb->setParentMargin(offset);
            QCOMPARE(thumb->x() < 0, offset > 0);
            QCOMPARE(thumb->y() < 0, offset < 0);
            QVERIFY(slider.sizeHint().height() > 0);
        }
        thumb->setParentMargin(5);
        thumb->setPointOffset(3);
        slider.resize(412, 30);
        QCOMPARE(thumb->pos(), QPoint(203, 5));
        slider.setGrooveOffset(56);
        slider.setRange(0, 200);
        slider.setOrientation(Qt::Vertical);
        slider.resize(30, 212);
        QCOMPARE(thumb->pos(), QPoint(5, 78));
    }

    void styleSheetCanSetThePropertiesOfAThumb()
    {
        Trimmer slider;
        slider.setStyleSheet("ZSliderThumb { qproperty-styleTag: x; qproperty-zOrder: 1; qproperty-parentMargin: 3 }"
                             "ZSliderThumb[styleTag=\"x\"] { border: none; min-width: 20px }");
        slider.show();
        QCOMPARE(slider.defaultThumb()->styleTag(), QString("x"));
        QCOMPARE(slider.defaultThumb()->y(), 3);
        QCOMPARE(slider.defaultThumb()->width(), 20);
    }

    void pressOnTheGrooveMovesAThumb()
    {
        Trimmer slider;
        ZSliderThumb* mark = slider.add("mark", 20);
        slider.show();
        Press(slider, 106, Qt::RightButton);
        QCOMPARE(slider.value(), 0);
        QSignalSpy moved(&slider, &ZSlider::sliderMoved);
        Press(slider, 106);
        QVERIFY(slider.isSliderDown());
        Support::MoveMouse(&slider, {126, 25});
        QTest::mouseRelease(&slider, Qt::LeftButton, {}, {126, 25});
        QVERIFY(!slider.isSliderDown());
        Support::MoveMouse(&slider, {136, 25});
        QCOMPARE(moved, QList<QVariantList>({{50}, {60}}));

        slider.setSelectedThumb(mark);
        Press(slider, 86);
        mark->setMovesOnGrooveClick(false);
        Press(slider, 6);
        slider.defaultThumb()->setMovesOnGrooveClick(false);
        Press(slider, 106);
        QCOMPARE(mark->value(), 40);
        QCOMPARE(slider.value(), 0);
        QVERIFY(!slider.isSliderDown());
    }

    void removedThumbAndHidingEndTheDrag()
    {
        Trimmer slider;
        slider.show();
        slider.setSelectedThumb(slider.add("mark", 20));
        Press(slider, 106);
        slider.removeThumb("mark");
        QVERIFY(!slider.isSliderDown());
        Press(slider, 56);
        QVERIFY(slider.isSliderDown());
        slider.hide();
        QVERIFY(!slider.isSliderDown());
    }

    void keysMoveInTheirDirection()
    {
        const auto moved = [](Qt::Orientation orientation, Qt::Key key) {
            Trimmer slider;
            slider.setOrientation(orientation);
            slider.setValue(50);
            QTest::keyClick(&slider, key);
            const int first = slider.value() - 50;
            QTest::mouseClick(slider.defaultThumb(), Qt::LeftButton);
            QTest::keyClick(slider.defaultThumb(), key);
            return QPair<int, int>(first, slider.value() - 50);
        };
        QCOMPARE(moved(Qt::Vertical, Qt::Key_Up), qMakePair(-1, -2));
        QCOMPARE(moved(Qt::Vertical, Qt::Key_Down), qMakePair(1, 2));
        QCOMPARE(moved(Qt::Vertical, Qt::Key_PageUp), qMakePair(-10, -20));
        QCOMPARE(moved(Qt::Horizontal, Qt::Key_Up), qMakePair(1, 2));
        QCOMPARE(moved(Qt::Horizontal, Qt::Key_PageDown), qMakePair(-10, -20));
    }

    void keysAndWheelReachEveryThumb()
    {
        Trimmer slider;
        // `low` covers the default thumb, `high` is not selectable.
        ZSliderThumb* low = slider.add("low", 0);
        ZSliderThumb* high = slider.add("high", 80);
        high->setSelectable(false);
        slider.show();
        Support::SetActiveWindow(&slider);
        slider.setFocus();
        const auto press = [](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
            QTest::keyClick(QApplication::focusWidget(), key, modifiers);
            return QApplication::focusWidget();
        };
        QCOMPARE(press(Qt::Key_Right, Qt::ControlModifier), low);
        QSignalSpy stepped(low, &ZSliderThumb::stepped);
        for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Right, Qt::Key_Down, Qt::Key_Left, Qt::Key_Home, Qt::Key_Space})
            press(key);
        QCOMPARE(low->value(), 0);
        QCOMPARE(slider.selectedThumb(), low);
        QCOMPARE(press(Qt::Key_Right, Qt::ControlModifier), high);
        press(Qt::Key_Space);
        QCOMPARE(press(Qt::Key_Up, Qt::ControlModifier), high);
        QVERIFY(!high->isChecked());
        press(Qt::Key_Left, Qt::ControlModifier);
        QCOMPARE(press(Qt::Key_Down, Qt::ControlModifier), slider.defaultThumb());
        // The focused slider sends keys and wheel events to the selected thumb.
        slider.setFocus();
        press(Qt::Key_Up);
        QVERIFY(Support::TurnWheel(&slider, {0, -240}));
        QVERIFY(Support::TurnWheel(low, {30, 0}));
        QVERIFY(!Support::TurnWheel(&slider, {}));
        low->setWheelStepping(false);
        QVERIFY(!Support::TurnWheel(low, {0, 120}));
        QCOMPARE(stepped, QList<QVariantList>({{120}, {120}, {-120}, {-120}, {120}, {-240}, {30}}));
        press(Qt::Key_Space);
        QVERIFY(!low->isChecked());
        QVERIFY(!low->isDown());
    }
};

VX_TEST_MAIN(tst_ZSlider)
#include "tst_ZSlider.moc"
