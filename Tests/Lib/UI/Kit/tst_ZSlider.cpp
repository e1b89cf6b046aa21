#include <UI/Kit/Internal/SliderTrack.h>
#include <UI/Kit/ZSlider.h>
#include <UI/Kit/ZSliderThumb.h>
#include <UI/Kit/ZTimelineSlider.h>

#include <Support/AnySignalSpy.h>
#include <Support/Input.h>
#include <Support/TestCase.h>

#include <QAccessible>
#include <QSignalSpy>
#include <QSplitter>

#include <functional>

using namespace Zelkor::Vx::UI::Kit;

using Thumb = ZSliderThumb;
using Numbers = QVector<int>;
Q_DECLARE_METATYPE(SliderTrack)

namespace {

/// Has values from 0 to 100 and 2 pixels per value.
struct Trimmer : ZSlider
{
    Trimmer()
    {
        setOrientation(Qt::Horizontal);
        setRange(0, 100);
        resize(212, 30);
    }

    Thumb* add(const QString& name, int value)
    {
        Thumb* thumb = addThumb(name);
        thumb->setValue(value);
        return thumb;
    }

    void press(int x) { QTest::mousePress(this, Qt::LeftButton, {}, {x, 25}); }
};

using Interference = std::function<void(Trimmer*, Thumb*)>;

} // namespace

Q_DECLARE_METATYPE(Interference)

class tst_ZSlider : public Support::TestCase
{
    Q_OBJECT

    static void Click(Thumb* thumb) { QTest::mouseClick(thumb, Qt::LeftButton); }
    static void Press(Thumb* thumb) { QTest::mousePress(thumb, Qt::LeftButton); }
    static void Move(Thumb* thumb, int pixels)
    {
        Support::MoveMouse(thumb, thumb->rect().center() + QPoint(pixels, 0));
    }
    static void Release(Thumb* thumb) { QTest::mouseRelease(thumb, Qt::LeftButton); }

    static void DragTo(Thumb* thumb, int value)
    {
        Press(thumb);
        Move(thumb, 2 * (value - thumb->value()));
        Release(thumb);
    }

private Q_SLOTS:
    void trackConvertsValuesAndPixels_data()
    {
        QTest::addColumn<SliderTrack>("track");
        QTest::addColumn<Numbers>("numbers"); // a value with its pixel for a thumb and a segment; a pixel and its value
        QTest::newRow("middle") << SliderTrack{212, 6, 0, 100} << Numbers{50, 106, 106, 106, 50};
        QTest::newRow("beyond the end") << SliderTrack{212, 6, 0, 100} << Numbers{100, 206, 206, 500, 100};
        QTest::newRow("thumbs ignore the minimum") << SliderTrack{212, 6, 10, 110} << Numbers{10, 26, 6, 6, 10};
        QTest::newRow("rounding") << SliderTrack{19, 6, -10, 10} << Numbers{3, 7, 10, 9, -1};
        QTest::newRow("empty range") << SliderTrack{212, 6, 7, 7} << Numbers{1, 206, -1194, 100, 7};
        QTest::newRow("range of int") << SliderTrack{212, 6, INT_MIN, INT_MAX}
                                      << Numbers{INT_MAX, 106, 206, 206, INT_MAX};
        QTest::newRow("no groove") << SliderTrack{0, 6, 0, 100} << Numbers{100, -5, -6, 0, 0};
        QTest::newRow("clamped pixel") << SliderTrack{0, 6, INT_MAX - 1, INT_MAX}
                                       << Numbers{INT_MAX, 6 - (1 << 24), -6, 0, INT_MAX - 1};
    }

    void trackConvertsValuesAndPixels()
    {
        QFETCH(SliderTrack, track);
        QFETCH(Numbers, numbers);
        QCOMPARE(track.pixelOfThumb(numbers[0]), numbers[1]);
        QCOMPARE(track.pixelOfSegment(numbers[0]), numbers[2]);
        QCOMPARE(track.valueAt(numbers[3]), numbers[4]);
    }

    void thumbsAreAtTheirValues()
    {
        Trimmer slider;
        slider.show();
        slider.setValue(50);
        Thumb* thumb = slider.defaultThumb();
        QCOMPARE(thumb->geometry(), QRect(99, 0, 14, 14));
        thumb->setParentMargin(5);
        thumb->setPointOffset(3);
        slider.resize(412, 30);
        QCOMPARE(thumb->pos(), QPoint(203, 5));
        for (const int offset : {INT_MIN, INT_MAX}) {
            thumb->setPointOffset(offset);
            thumb->setParentMargin(offset);
            QCOMPARE(thumb->x() < 0, offset > 0);
            QCOMPARE(thumb->y() < 0, offset < 0);
            QVERIFY(slider.sizeHint().height() > 0);
        }
        thumb->setParentMargin(5);
        thumb->setPointOffset(3);
        slider.setGrooveOffset(56);
        slider.setRange(0, 200);
        slider.setOrientation(Qt::Vertical);
        slider.resize(30, 212);
        QCOMPARE(thumb->pos(), QPoint(5, 78));
    }

    void limitsAndRangeClampValues()
    {
        Trimmer slider;
        slider.setRange(0, 200);
        slider.setValue(50);
        Thumb* thumb = slider.defaultThumb();
        QSignalSpy moved(thumb, &Thumb::valueChanged);
        thumb->setUpperLimit(40);
        QCOMPARE(slider.value(), 40);
        thumb->setLowerLimit(45);
        QCOMPARE(thumb->value(), 40);
        thumb->setUpperLimit(300);
        thumb->setValue(250);
        thumb->setValue(200);
        QCOMPARE(moved, QList<QVariantList>({{40}, {45}, {200}}));
        // A narrower range emits signals of the slider, but not of other thumbs.
        Thumb* other = slider.add("other", 150);
        QSignalSpy otherMoved(other, &Thumb::valueChanged);
        slider.setRange(0, 100);
        QCOMPARE(Numbers({slider.value(), thumb->value(), other->value()}), Numbers({100, 100, 100}));
        QCOMPARE(otherMoved.size(), 0);
        // The new name does not replace an accessible name, nor the key in the slider.
        other->setAccessibleName("Mine");
        other->setName("new");
        QCOMPARE(QAccessible::queryAccessibleInterface(other)->text(QAccessible::Name), QString("Mine"));
        QCOMPARE(slider.thumb("other"), other);
    }

    void splitterHasOnePaneForTheSlider()
    {
        QSplitter splitter;
        splitter.resize(300, 100);
        splitter.show();
        // QSplitter adds a pane for each child widget.
        const ZSlider* slider = new ZTimelineSlider(&splitter);
        QTRY_VERIFY(slider->isVisible());
        QCOMPARE(splitter.count(), 1);
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

    void defaultThumbFollowsTheSlider()
    {
        Trimmer slider;
        QSignalSpy ofSlider(&slider, &ZSlider::valueChanged);
        QSignalSpy ofThumb(slider.defaultThumb(), &Thumb::valueChanged);
        slider.setValue(30);
        slider.defaultThumb()->setValue(60);
        QCOMPARE(ofSlider, QList<QVariantList>({{30}, {60}}));
        QCOMPARE(ofThumb, ofSlider);

        // A slot may move either of them again.
        auto once = connect(slider.defaultThumb(), &Thumb::valueChanged, &slider, [&](int value) {
            value == 10 ? slider.setValue(20) : slider.defaultThumb()->setValue(25);
        });
        slider.setValue(10);
        QCOMPARE(Numbers({slider.value(), slider.defaultThumb()->value()}), Numbers({25, 25}));
        disconnect(once);

        // Keys respect the limits of the thumb.
        slider.defaultThumb()->setUpperLimit(26);
        QTest::keyClick(&slider, Qt::Key_PageUp);
        QCOMPARE(slider.value(), 26);
        slider.addThumb("default");
        QCOMPARE(slider.defaultThumb()->value(), 26);
        slider.setValue(70);
        QCOMPARE(slider.defaultThumb()->value(), 70);
        QVERIFY(!slider.selectedThumb());
        slider.removeThumb("default");
        slider.setValue(20);
        QVERIFY(!slider.defaultThumb());
        QVERIFY(slider.thumbNames().isEmpty());
    }

    void clickOnTheTopThumbReachesTheOneBelow()
    {
        Trimmer slider;
        Thumb* b = slider.add("b", 50);
        Thumb* a = slider.add("a", 50);
        slider.show();
        const auto top = [&] { return static_cast<Thumb*>(slider.childAt(106, 7)); };
        QCOMPARE(top(), b);
        a->setZOrder(INT_MAX);
        b->setZOrder(INT_MIN);
        QCOMPARE(top(), a);
        slider.add("c", 50);
        Click(top());
        QCOMPARE(top(), a);
        QCOMPARE(slider.selectedThumb(), a);
        Click(top());
        QVERIFY(top() != a);
        QCOMPARE(slider.selectedThumb(), slider.defaultThumb());
    }

    void atMostOneThumbIsSelected()
    {
        Trimmer slider;
        Thumb* b = slider.add("b", 50);
        Thumb* a = slider.add("a", 50);
        slider.show();
        Click(a);
        Click(b);
        QVERIFY(b->isChecked());
        QVERIFY(!a->isChecked());
        QCOMPARE(slider.selectedThumb(), b);
        Click(b);
        b->setSelectable(false);
        Click(b);
        QVERIFY(!b->isChecked());
        slider.setSelectedThumb(b);
        // A slot may select another thumb.
        connect(b, &Thumb::toggled, a, [&](bool on) { slider.setSelectedThumb(on ? b : slider.defaultThumb()); });
        slider.setSelectedThumb(a);
        QVERIFY(!a->isChecked());
        QVERIFY(!b->isChecked());
        QVERIFY(slider.defaultThumb()->isChecked());
        slider.setSelectedThumb(nullptr);
        QVERIFY(!slider.defaultThumb()->isChecked());
        slider.setSelectedThumb(a);
        slider.removeThumb("a");
        QCOMPARE(slider.selectedThumb(), slider.defaultThumb());
    }

    void dragEmitsSignalsInOrder()
    {
        Trimmer slider;
        Thumb* thumb = slider.add("mark", 20);
        slider.setValue(60);
        QStringList signalNames;
        const auto takeSignals = [&] { return std::exchange(signalNames, {}).join(' '); };
        connect(&slider, &ZSlider::sliderPressed, this, [&] { signalNames << "down"; });
        connect(&slider, &ZSlider::sliderMoved, this,
                [&](int value) { signalNames << QString("moved %1").arg(value); });
        connect(&slider, &ZSlider::sliderReleased, this, [&] { signalNames << "up"; });
        connect(thumb, &Thumb::dragStarted, this, [&] { signalNames << "start"; });
        connect(thumb, &Thumb::dragFinished, this, [&] { signalNames << "finish"; });
        connect(thumb, &Thumb::toggled, this, [&] { signalNames << "toggled"; });
        slider.show();
        DragTo(thumb, 20); // does not move
        QCOMPARE(takeSignals(), "toggled");
        DragTo(thumb, 30);
        QCOMPARE(thumb->value(), 30);
        QCOMPARE(takeSignals(), "down start up finish");
        DragTo(slider.defaultThumb(), 70);
        QCOMPARE(slider.value(), 70);
        QCOMPARE(takeSignals(), "down moved 70 up");
        // Disabling the slider ends the drag.
        Press(thumb);
        Move(thumb, 20);
        slider.setEnabled(false);
        QCOMPARE(takeSignals(), "down start up finish");
    }

    void draggedThumbSnapsToTheDefaultThumb()
    {
        Trimmer slider;
        Thumb* thumb = slider.add("mark", 20);
        slider.setValue(70);
        slider.show();
        slider.setSnapping(true);
        // Closer than 2 % of the maximum, then closer than 10 %.
        for (const Numbers& row : {Numbers{20, 68, 68}, {20, 69, 70}, {20, 71, 70}, {20, 72, 72}, {100, 61, 70}}) {
            slider.setSnapDistance(row[0]);
            DragTo(thumb, row[1]);
            QCOMPARE(thumb->value(), row[2]);
        }
        thumb->setDraggable(false);
        DragTo(thumb, 10);
        QCOMPARE(thumb->value(), 70);
    }

    void hidingEndsADragOnTheGroove()
    {
        ZSlider slider;
        slider.resize(30, 200);
        slider.show();
        QTest::mousePress(&slider, Qt::LeftButton, {}, QPoint(15, 150));
        QVERIFY(slider.isSliderDown());
        slider.hide();
        QVERIFY(!slider.isSliderDown());
    }

    void pressOnTheGrooveMovesAThumb()
    {
        Trimmer slider;
        Thumb* mark = slider.add("mark", 20);
        slider.show();
        QTest::mousePress(&slider, Qt::RightButton, {}, {106, 25});
        QCOMPARE(slider.value(), 0);
        QSignalSpy moved(&slider, &ZSlider::sliderMoved);
        slider.press(106);
        QVERIFY(slider.isSliderDown());
        Support::MoveMouse(&slider, {126, 25});
        QTest::mouseRelease(&slider, Qt::LeftButton, {}, {126, 25});
        QVERIFY(!slider.isSliderDown());
        Support::MoveMouse(&slider, {126, 25});
        QCOMPARE(moved, QList<QVariantList>({{50}, {60}}));

        slider.setSelectedThumb(mark);
        slider.press(86);
        mark->setMovesOnGrooveClick(false);
        slider.press(6);
        slider.defaultThumb()->setMovesOnGrooveClick(false);
        slider.press(106);
        QCOMPARE(mark->value(), 40);
        QCOMPARE(slider.value(), 0);
        QVERIFY(!slider.isSliderDown());
        // A thumb may be removed while it is dragged from the groove.
        mark->setMovesOnGrooveClick(true);
        slider.press(106);
        slider.removeThumb("mark");
        QVERIFY(!slider.isSliderDown());
    }

    void slotsMayDeleteThumbAndSlider_data()
    {
        QTest::addColumn<Interference>("interfere");
        const auto row = [](const char* name, const Interference& interfere) { QTest::newRow(name) << interfere; };
        row("delete thumb", [](Trimmer*, Thumb* thumb) { delete thumb; });
        row("delete slider", [](Trimmer* slider, Thumb*) { delete slider; });
        row("replace thumb", [](Trimmer* slider, Thumb*) { slider->addThumb("mark"); });
        row("change range", [](Trimmer* slider, Thumb*) { slider->setRange(0, 10); });
        row("move another thumb", [](Trimmer* slider, Thumb*) { slider->setValue(slider->value() + 1); });
    }

    // Interferes at the first signal of the thumb, then at the second one, and so on.
    void slotsMayDeleteThumbAndSlider()
    {
        QFETCH(Interference, interfere);
        using Act = void (*)(Thumb*);
        const Act drag = [](Thumb* thumb) { Move(thumb, 20); };
        const Act key = [](Thumb* thumb) { QTest::keyClick(thumb, Qt::Key_Up); };
        int moment = -1;
        for (bool hasInterfered = true; hasInterfered;) {
            ++moment;
            hasInterfered = false;
            int count = 0;
            QPointer<Trimmer> slider = new Trimmer;
            QPointer<Thumb> thumb = slider->add("mark", 20);
            slider->show();
            const Support::AnySignalSpy spy(thumb, [&] {
                if (count++ == moment) {
                    hasInterfered = true;
                    interfere(slider, thumb);
                }
            });
            for (const Act act : {Act(Press), drag, Act(Release), Act(Press), Act(Release), key}) {
                if (thumb)
                    act(thumb);
            }
            if (!slider)
                continue;
            const auto thumbs = slider->findChildren<Thumb*>();
            QVERIFY(!slider->isSliderDown());
            QCOMPARE(slider->thumbNames().size(), thumbs.size());
            QVERIFY(!slider->selectedThumb() || thumbs.contains(slider->selectedThumb()));
            QCOMPARE(slider->defaultThumb()->value(), slider->value());
            delete slider;
        }
        QVERIFY2(moment >= 9, qPrintable(QString::number(moment)));
    }

    void thumbWithoutASliderDoesNothing()
    {
        Thumb thumb(nullptr);
        thumb.setZOrder(1);
        thumb.setParentMargin(2);
        thumb.setValue(5);
        thumb.show();
        Click(&thumb);
        QTest::keyClick(&thumb, Qt::Key_Up);
        thumb.grab();
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&thumb);
        QCOMPARE(accessible->valueInterface()->maximumValue(), 0);
    }

    void keysMoveInTheirDirection_data()
    {
        QTest::addColumn<Qt::Orientation>("orientation");
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<int>("value");
        QTest::newRow("vertical, up") << Qt::Vertical << Qt::Key_Up << 49;
        QTest::newRow("vertical, down") << Qt::Vertical << Qt::Key_Down << 51;
        QTest::newRow("vertical, page up") << Qt::Vertical << Qt::Key_PageUp << 40;
        QTest::newRow("horizontal, up") << Qt::Horizontal << Qt::Key_Up << 51;
        QTest::newRow("horizontal, page down") << Qt::Horizontal << Qt::Key_PageDown << 40;
    }

    void keysMoveInTheirDirection()
    {
        QFETCH(Qt::Orientation, orientation);
        QFETCH(Qt::Key, key);
        Trimmer slider;
        slider.setOrientation(orientation);
        slider.setValue(50);
        QTest::keyClick(&slider, key);
        QTEST(slider.value(), "value");
        slider.setValue(50);
        Click(slider.defaultThumb());
        QTest::keyClick(slider.defaultThumb(), key);
        QTEST(slider.value(), "value");
        // A connection to `stepped` replaces them.
        slider.setValue(50);
        const QSignalSpy stepped(slider.defaultThumb(), &Thumb::stepped);
        QTest::keyClick(slider.defaultThumb(), Qt::Key_Up);
        QCOMPARE(stepped, QList<QVariantList>({{120}}));
        QCOMPARE(slider.value(), 50);
    }

    void keysAndWheelReachEveryThumb()
    {
        Trimmer slider;
        // `low` covers the default thumb, `high` is not selectable.
        Thumb* low = slider.add("low", 0);
        Thumb* high = slider.add("high", 80);
        high->setSelectable(false);
        slider.show();
        QApplication::setActiveWindow(&slider);
        slider.setFocus();
        const auto press = [](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
            QTest::keyClick(QApplication::focusWidget(), key, modifiers);
            return QApplication::focusWidget();
        };
        QCOMPARE(press(Qt::Key_Right, Qt::ControlModifier), low);
        QSignalSpy stepped(low, &Thumb::stepped);
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
        using Support::TurnWheel;
        QVERIFY(TurnWheel(&slider, {0, -240}));
        QVERIFY(TurnWheel(low, {30, 0}));
        QVERIFY(!TurnWheel(&slider, {}));
        low->setWheelStepping(false);
        QVERIFY(!TurnWheel(low, {0, 120}));
        QCOMPARE(stepped, QList<QVariantList>({{120}, {120}, {-120}, {-120}, {120}, {-240}, {30}}));
        press(Qt::Key_Space);
        QVERIFY(!low->isChecked());
        QVERIFY(!low->isDown());
    }
};

VX_TEST_MAIN(tst_ZSlider)
#include "tst_ZSlider.moc"
