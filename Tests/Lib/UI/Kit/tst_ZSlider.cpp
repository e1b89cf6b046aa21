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

namespace {

/// 0 to 100 over 200 pixels, that is 2 pixels a value.
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

} // namespace

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

    // The position counts from where the thumb stands.
    static void DragTo(Thumb* thumb, int value)
    {
        Press(thumb);
        Move(thumb, 2 * (value - thumb->value()));
        Release(thumb);
    }

private Q_SLOTS:
    void valuesAndPixels()
    {
        // Each with a value and its pixel, for a thumb and for a segment, and a pixel and its value.
        using Rule = QVector<int>;
        const QVector<QPair<SliderTrack, Rule>> rows{
            {{212, 6, 0, 100}, {50, 106, 106, 106, 50}},
            {{212, 6, 0, 100}, {100, 206, 206, 500, 100}},
            {{212, 6, 10, 110}, {10, 26, 6, 6, 10}}, // thumbs are placed as if from 0
            {{19, 6, -10, 10}, {3, 7, 10, 9, -1}},   // half a pixel is one, a part of a value is none
            {{212, 6, 7, 7}, {1, 206, -1194, 100, 7}},
            {{212, 6, INT_MIN, INT_MAX}, {INT_MAX, 106, 206, 206, INT_MAX}},
            {{0, 6, 0, 100}, {100, -5, -6, 0, 0}},
        };
        for (const auto& [track, rule] : rows) {
            QCOMPARE(Rule({rule[0], track.pixelOfThumb(rule[0]), track.pixelOfSegment(rule[0]), rule[3],
                           track.valueAt(rule[3])}),
                     rule);
        }
        QVERIFY((SliderTrack{0, 6, INT_MAX - 1, INT_MAX}.pixelOfThumb(INT_MAX) < 0)); // far out, and an integer
    }

    void thumbsStandAtTheirValues()
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

        // Limits hold within the range, and the upper one wins.
        QSignalSpy moved(thumb, &Thumb::valueChanged);
        thumb->setUpperLimit(40);
        QCOMPARE(slider.value(), 40);
        thumb->setLowerLimit(45);
        QCOMPARE(thumb->value(), 40);
        thumb->setUpperLimit(300);
        thumb->setValue(250);
        thumb->setValue(200);
        QCOMPARE(moved, QList<QVariantList>({{40}, {45}, {200}}));
        // A narrower range says so for the slider, silently for its thumbs.
        Thumb* other = slider.add("other", 150);
        QSignalSpy otherMoved(other, &Thumb::valueChanged);
        slider.setRange(0, 100);
        QCOMPARE(QVector<int>({slider.value(), thumb->value(), other->value()}), QVector<int>({100, 100, 100}));
        QCOMPARE(otherMoved.size(), 0);
        other->setAccessibleName("Mine");
        other->setName("new");
        QCOMPARE(QAccessible::queryAccessibleInterface(other)->text(QAccessible::Name), QString("Mine"));
        QCOMPARE(slider.thumb("other"), other);
    }

    void sliderIsOnePaneOfItsSplitter()
    {
        QSplitter splitter;
        splitter.resize(300, 100);
        splitter.show();
        // The splitter asks each new child, and those that it has, for a size hint.
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

    void defaultThumbGoesWithTheSlider()
    {
        Trimmer slider;
        QSignalSpy ofSlider(&slider, &ZSlider::valueChanged);
        QSignalSpy ofThumb(slider.defaultThumb(), &Thumb::valueChanged);
        slider.setValue(30);
        slider.defaultThumb()->setValue(60);
        QCOMPARE(ofSlider, QList<QVariantList>({{30}, {60}}));
        QCOMPARE(ofThumb, ofSlider);

        // Whoever moves one of them while it is told of the other's move is heard.
        auto once = connect(slider.defaultThumb(), &Thumb::valueChanged, &slider, [&](int value) {
            value == 10 ? slider.setValue(20) : slider.defaultThumb()->setValue(25);
        });
        slider.setValue(10);
        QCOMPARE(QVector<int>({slider.value(), slider.defaultThumb()->value()}), QVector<int>({25, 25}));
        disconnect(once);

        // Keys do not go where the thumb cannot.
        slider.defaultThumb()->setUpperLimit(26);
        QTest::keyClick(&slider, Qt::Key_PageUp);
        QCOMPARE(slider.value(), 26);
        slider.addThumb("default");
        QCOMPARE(slider.defaultThumb()->value(), 26);
        slider.setValue(70);
        QVERIFY(slider.defaultThumb()->value() == 70 && !slider.selectedThumb());
        slider.removeThumb("default");
        slider.setValue(20);
        QVERIFY(!slider.defaultThumb() && slider.thumbNames().isEmpty());
    }

    void oneThumbIsSelectedAndOneIsOnTop()
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
        // A click on and a click off, and the other one is there.
        Click(top());
        QVERIFY(top() == a && slider.selectedThumb() == a);
        Click(top());
        QVERIFY(top() != a && slider.selectedThumb() == slider.defaultThumb());

        Click(a);
        Click(b);
        QVERIFY(b->isChecked() && !a->isChecked() && slider.selectedThumb() == b);
        Click(b);
        b->setSelectable(false);
        Click(b);
        QVERIFY(!b->isChecked());
        slider.setSelectedThumb(b);
        // A slot has the last word.
        connect(b, &Thumb::toggled, a, [&](bool on) { slider.setSelectedThumb(on ? b : slider.defaultThumb()); });
        slider.setSelectedThumb(a);
        QVERIFY(!a->isChecked() && !b->isChecked() && slider.defaultThumb()->isChecked());
        slider.setSelectedThumb(nullptr);
        QVERIFY(!slider.defaultThumb()->isChecked());
        slider.setSelectedThumb(a);
        slider.removeThumb("a");
        QCOMPARE(slider.selectedThumb(), slider.defaultThumb());
    }

    void dragOfAThumb()
    {
        Trimmer slider;
        Thumb* thumb = slider.add("mark", 20);
        slider.setValue(60);
        QStringList heard;
        const auto told = [&] { return std::exchange(heard, {}).join(' '); };
        connect(&slider, &ZSlider::sliderPressed, this, [&] { heard << "down"; });
        connect(&slider, &ZSlider::sliderMoved, this, [&](int value) { heard << QString("moved %1").arg(value); });
        connect(&slider, &ZSlider::sliderReleased, this, [&] { heard << "up"; });
        connect(thumb, &Thumb::dragStarted, this, [&] { heard << "start"; });
        connect(thumb, &Thumb::dragFinished, this, [&] { heard << "finish"; });
        connect(thumb, &Thumb::toggled, this, [&] { heard << "toggled"; });
        slider.show();
        DragTo(thumb, 20); // a move to where it is, is none
        QCOMPARE(told(), "toggled");
        DragTo(thumb, 30);
        QVERIFY(thumb->value() == 30 && told() == "down start up finish");
        DragTo(slider.defaultThumb(), 70);
        QVERIFY(slider.value() == 70 && told() == "down moved 70 up");

        // Nearer than 2 % of the maximum, that is 1; then nearer than 10 %.
        slider.setSnapping(true);
        using Row = QVector<int>;
        for (const Row& row : {Row{20, 68, 68}, {20, 69, 70}, {20, 71, 70}, {20, 72, 72}, {100, 61, 70}}) {
            slider.setSnapDistance(row[0]);
            DragTo(thumb, row[1]);
            QCOMPARE(thumb->value(), row[2]);
        }
        thumb->setDraggable(false);
        DragTo(thumb, 10);
        QCOMPARE(thumb->value(), 70);
        // One that is disabled under way lets go of the slider.
        thumb->setDraggable(true);
        told();
        Press(thumb);
        Move(thumb, 20);
        slider.setEnabled(false);
        QCOMPARE(told(), "down start up finish");
    }

    void pressOnTheGroove()
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
        QVERIFY(mark->value() == 40 && slider.value() == 0 && !slider.isSliderDown());
        // Dragged by the groove, and gone.
        mark->setMovesOnGrooveClick(true);
        slider.press(106);
        slider.removeThumb("mark");
        QVERIFY(!slider.isSliderDown());
    }

    // Whatever a slot does to the thumb or its slider, at whichever of the thumb's signals, nothing is left hanging.
    void slotsThatPullThingsAway()
    {
        const QPair<QString, std::function<void(Trimmer*, Thumb*)>> pulls[] = {
            {"delete", [](Trimmer*, Thumb* thumb) { delete thumb; }},
            {"delete slider", [](Trimmer* slider, Thumb*) { delete slider; }},
            {"replace", [](Trimmer* slider, Thumb*) { slider->addThumb("mark"); }},
            {"range", [](Trimmer* slider, Thumb*) { slider->setRange(0, 10); }},
            {"move another", [](Trimmer* slider, Thumb*) { slider->setValue(slider->value() + 1); }},
        };
        using Act = void (*)(Thumb*);
        const Act drag = [](Thumb* thumb) { Move(thumb, 20); };
        const Act key = [](Thumb* thumb) { QTest::keyClick(thumb, Qt::Key_Up); };
        for (const auto& pull : pulls) {
            int moment = -1;
            for (bool isPulled = true; isPulled;) {
                InRow(QString("%1 at signal %2").arg(pull.first).arg(++moment));
                isPulled = false;
                int heard = 0;
                QPointer<Trimmer> slider = new Trimmer;
                QPointer<Thumb> thumb = slider->add("mark", 20);
                slider->show();
                const Support::AnySignalSpy tap(thumb, [&] {
                    if (heard++ == moment) {
                        isPulled = true;
                        pull.second(slider, thumb);
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

    void keysLeadWhereTheyPoint_data()
    {
        QTest::addColumn<int>("orientation");
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("value");
        const auto add = [](const char* row, Qt::Orientation orientation, Qt::Key key, int value) {
            QTest::newRow(row) << int(orientation) << int(key) << value;
        };
        add("vertical, up", Qt::Vertical, Qt::Key_Up, 49);
        add("vertical, down", Qt::Vertical, Qt::Key_Down, 51);
        add("vertical, page up", Qt::Vertical, Qt::Key_PageUp, 40);
        add("vertical, page down", Qt::Vertical, Qt::Key_PageDown, 60);
        add("vertical, home", Qt::Vertical, Qt::Key_Home, 0);
        add("horizontal, up", Qt::Horizontal, Qt::Key_Up, 51);
        add("horizontal, page down", Qt::Horizontal, Qt::Key_PageDown, 40);
    }

    void keysLeadWhereTheyPoint()
    {
        QFETCH(int, orientation);
        QFETCH(int, key);
        Trimmer slider;
        slider.setOrientation(Qt::Orientation(orientation));
        slider.setValue(50);
        QTest::keyClick(&slider, Qt::Key(key));
        QTEST(slider.value(), "value");
        // A click on the default thumb gives it the keys.
        slider.setValue(50);
        Click(slider.defaultThumb());
        QTest::keyClick(slider.defaultThumb(), Qt::Key(key));
        QTEST(slider.value(), "value");
    }

    void ownerThatStepsTheDefaultThumbDecidesWhatAStepIs()
    {
        Trimmer slider;
        Click(slider.defaultThumb());
        const QSignalSpy stepped(slider.defaultThumb(), &Thumb::stepped);
        QTest::keyClick(slider.defaultThumb(), Qt::Key_Up);
        QCOMPARE(stepped, QList<QVariantList>({{120}}));
        QCOMPARE(slider.value(), 0);
    }

    void keysAndWheelReachEveryThumb()
    {
        Trimmer slider;
        // One lies on the default thumb, one is not to be selected.
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
        QVERIFY(low->value() == 0 && slider.selectedThumb() == low);
        QCOMPARE(press(Qt::Key_Right, Qt::ControlModifier), high);
        press(Qt::Key_Space);
        QVERIFY(press(Qt::Key_Up, Qt::ControlModifier) == high && !high->isChecked());
        press(Qt::Key_Left, Qt::ControlModifier);
        QCOMPARE(press(Qt::Key_Down, Qt::ControlModifier), slider.defaultThumb());
        // The slider's keys and wheel are those of the selected thumb.
        slider.setFocus();
        press(Qt::Key_Up);
        using Support::TurnWheel;
        QVERIFY(TurnWheel(&slider, {0, -240}) && TurnWheel(low, {30, 0}) && !TurnWheel(&slider, {}));
        low->setWheelStepping(false);
        QVERIFY(!TurnWheel(low, {0, 120}));
        QCOMPARE(stepped, QList<QVariantList>({{120}, {120}, {-120}, {-120}, {120}, {-240}, {30}}));
        press(Qt::Key_Space);
        QVERIFY(!low->isChecked() && !low->isDown());
    }
};

VX_TEST_MAIN(tst_ZSlider)
#include "tst_ZSlider.moc"
