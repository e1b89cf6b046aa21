#include <Lib/UI/Kit/SliderFixture.h>

#include <UI/Kit/Internal/SliderTrack.h>

#include <Support/TestCase.h>

#include <QSignalSpy>

using namespace Zelkor::Vx::UI::Kit;

using Numbers = QVector<int>;

/// The groove of a slider: positions of thumbs and segments, presses and drags.
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
};

VX_TEST_MAIN(tst_ZSlider)
#include "tst_ZSlider.moc"
