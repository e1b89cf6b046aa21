#include <UI/Kit/SliderTrack.h>
#include <UI/Kit/ZSlider.h>
#include <UI/Kit/ZSliderThumb.h>

#include <Support/EventWatch.h>
#include <Support/TestCase.h>

#include <QAccessible>
#include <QLineEdit>
#include <QSignalSpy>
#include <QVBoxLayout>

namespace {

const QMap<QRgb, QString> NAMES{{0xffffffff, "white"}, {0xff00ff00, "lime"}, {0xff0000ff, "blue"},
                                {0xffff0000, "red"},   {0xff808080, "gray"}, {0, "none"}};

/// 0 to 100 over 200 pixels, that is 2 pixels a value.
struct Trimmer : ZSlider
{
    Trimmer()
    {
        setOrientation(Qt::Horizontal);
        setRange(0, 100);
        resize(212, 30);
    }

    ZSliderThumb* add(const QString& name, int value)
    {
        ZSliderThumb* thumb = addThumb(name);
        thumb->setValue(value);
        return thumb;
    }

    void colour()
    {
        setGrooveEmptyStyle("background: white");
        setGrooveNormalStyle("background: lime");
        setGrooveSelectedStyle("background: blue");
        setGrooveBorderStyle("background: red");
        defaultThumb()->hide();
    }

    void press(int x) { QTest::mousePress(this, Qt::LeftButton, {}, {x, 25}); }
    void click(int x) { QTest::mouseClick(this, Qt::LeftButton, {}, {x, 25}); }

    // The colours in the middle of these pixels along the groove.
    QString at(const QVector<int>& pixels)
    {
        const QImage image = grab().toImage();
        QStringList names;
        for (const int pixel : pixels) {
            const QPointF point(orientation() == Qt::Horizontal ? QPointF(pixel + 0.5, 15.5)
                                                                : QPointF(15.5, pixel + 0.5));
            names << NAMES.value(image.pixel((point * image.devicePixelRatio() - QPointF(0.5, 0.5)).toPoint()), "?");
        }
        return names.join(' ');
    }
};

void Drag(QPointer<ZSliderThumb> thumb, int pixels)
{
    QTest::mousePress(thumb, Qt::LeftButton, {}, QPoint(7, 7));
    // The position counts from where the thumb stands.
    QMouseEvent move(QEvent::MouseMove, QPointF(7 + pixels, 7), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    if (thumb)
        QCoreApplication::sendEvent(thumb, &move);
}

void Click(ZSliderThumb* thumb)
{
    QTest::mouseClick(thumb, Qt::LeftButton);
}

void Release(ZSliderThumb* thumb)
{
    QTest::mouseRelease(thumb, Qt::LeftButton, {}, QPoint(7, 7));
}

using Hook = std::function<void(ZSliderThumb*, std::function<void()>)>;

template<class Signal>
Hook At(Signal signal)
{
    return [signal](ZSliderThumb* thumb, const std::function<void()>& act) {
        QObject::connect(thumb, signal, thumb, [act] { act(); });
    };
}

} // namespace

class tst_ZSlider : public Support::TestCase
{
    Q_OBJECT

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
        ZSliderThumb* thumb = slider.defaultThumb();
        QCOMPARE(thumb->geometry(), QRect(99, 0, 14, 14));
        thumb->setParentMargin(5);
        thumb->setPointOffset(3);
        QCOMPARE(thumb->pos(), QPoint(103, 5));
        slider.resize(512, 30);
        QCOMPARE(thumb->pos(), QPoint(253, 5));
        slider.resize(412, 30);
        slider.setGrooveOffset(56);
        slider.setRange(0, 200);
        QCOMPARE(thumb->pos(), QPoint(128, 5));
        slider.setOrientation(Qt::Vertical);
        slider.resize(30, 212);
        QCOMPARE(thumb->pos(), QPoint(5, 78));

        // Limits hold within the range, and the upper one wins.
        QSignalSpy moved(thumb, &ZSliderThumb::valueChanged);
        thumb->setUpperLimit(40);
        QCOMPARE(slider.value(), 40);
        thumb->setLowerLimit(45);
        QCOMPARE(thumb->value(), 40);
        thumb->setUpperLimit(300);
        QCOMPARE(thumb->value(), 45);
        thumb->setValue(250);
        thumb->setValue(200);
        QCOMPARE(moved, QList<QVariantList>({{40}, {45}, {200}}));
        // A narrower range says so for the slider, silently for its thumbs.
        ZSliderThumb* other = slider.addThumb("other");
        other->setValue(150);
        QSignalSpy otherMoved(other, &ZSliderThumb::valueChanged);
        slider.setRange(0, 100);
        QCOMPARE(QVector<int>({slider.value(), thumb->value(), other->value()}), QVector<int>({100, 100, 100}));
        QCOMPARE(otherMoved.size(), 0);
    }

    void defaultThumbGoesWithTheSlider()
    {
        Trimmer slider;
        QSignalSpy ofSlider(&slider, &ZSlider::valueChanged);
        QSignalSpy ofThumb(slider.defaultThumb(), &ZSliderThumb::valueChanged);
        slider.setValue(30);
        slider.defaultThumb()->setValue(60);
        QCOMPARE(ofSlider, QList<QVariantList>({{30}, {60}}));
        QCOMPARE(ofThumb, ofSlider);

        // Whoever moves one of them while it is told of the other's move is heard.
        auto once = connect(slider.defaultThumb(), &ZSliderThumb::valueChanged, &slider, [&](int value) {
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

    void oneThumbIsSelected()
    {
        Trimmer slider;
        ZSliderThumb* a = slider.add("a", 20);
        ZSliderThumb* b = slider.add("b", 80);
        slider.show();
        Click(a);
        Click(b);
        QVERIFY(b->isChecked() && !a->isChecked() && slider.selectedThumb() == b);
        Click(b);
        QCOMPARE(slider.selectedThumb(), slider.defaultThumb());
        b->setSelectable(false);
        Click(b);
        QVERIFY(!b->isChecked());
        slider.setSelectedThumb(b);
        // A slot has the last word.
        connect(b, &ZSliderThumb::toggled, a,
                [&](bool on) { slider.setSelectedThumb(on ? b : slider.defaultThumb()); });
        slider.setSelectedThumb(a);
        QVERIFY(!a->isChecked() && !b->isChecked() && slider.defaultThumb()->isChecked());
        slider.setSelectedThumb(nullptr);
        QVERIFY(!slider.defaultThumb()->isChecked());
        slider.setSelectedThumb(a);
        slider.removeThumb("unknown");
        slider.removeThumb("a");
        QCOMPARE(slider.selectedThumb(), slider.defaultThumb());
    }

    void dragOfAThumb()
    {
        Trimmer slider;
        ZSliderThumb* thumb = slider.add("mark", 20);
        slider.setValue(60);
        QStringList heard;
        const auto told = [&] { return std::exchange(heard, {}).join(' '); };
        connect(&slider, &ZSlider::sliderPressed, this, [&] { heard << "down"; });
        connect(&slider, &ZSlider::sliderMoved, this, [&](int value) { heard << QString("moved %1").arg(value); });
        connect(&slider, &ZSlider::sliderReleased, this, [&] { heard << "up"; });
        connect(thumb, &ZSliderThumb::dragStarted, this, [&] { heard << "start"; });
        connect(thumb, &ZSliderThumb::dragFinished, this, [&] { heard << "finish"; });
        connect(thumb, &ZSliderThumb::toggled, this, [&] { heard << "toggled"; });
        slider.show();
        const auto dragTo = [](ZSliderThumb* dragged, int value) {
            Drag(dragged, 2 * (value - dragged->value()));
            Release(dragged);
        };
        // A move to where it is, is none.
        dragTo(thumb, 20);
        QCOMPARE(told(), "toggled");
        dragTo(thumb, 30);
        QCOMPARE(thumb->value(), 30);
        QCOMPARE(told(), "down start up finish");
        dragTo(slider.defaultThumb(), 70);
        QCOMPARE(slider.value(), 70);
        QCOMPARE(told(), "down moved 70 up");

        // Nearer than 2 % of the maximum, that is 1.
        slider.setSnapping(true);
        for (const auto& row : QVector<QPair<int, int>>{{68, 68}, {69, 70}, {71, 70}, {72, 72}}) {
            dragTo(thumb, row.first);
            QCOMPARE(thumb->value(), row.second);
        }
        slider.setSnapDistance(100);
        dragTo(thumb, 61);
        QCOMPARE(thumb->value(), 70);
        thumb->setDraggable(false);
        dragTo(thumb, 10);
        QCOMPARE(thumb->value(), 70);
        // One that is disabled under way lets go of the slider.
        thumb->setDraggable(true);
        told();
        Drag(thumb, 20);
        slider.setEnabled(false);
        QCOMPARE(told(), "down start up finish");
    }

    void pressOnTheGroove()
    {
        Trimmer slider;
        ZSliderThumb* mark = slider.add("mark", 20);
        slider.show();
        QTest::mousePress(&slider, Qt::RightButton, {}, {106, 25});
        QCOMPARE(slider.value(), 0);
        QSignalSpy moved(&slider, &ZSlider::sliderMoved);
        slider.press(106);
        QVERIFY(slider.isSliderDown());
        QMouseEvent move(QEvent::MouseMove, QPointF(126, 25), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&slider, &move);
        QTest::mouseRelease(&slider, Qt::LeftButton, {}, {126, 25});
        QVERIFY(!slider.isSliderDown());
        QCoreApplication::sendEvent(&slider, &move);
        QCOMPARE(moved, QList<QVariantList>({{50}, {60}}));

        slider.setSelectedThumb(mark);
        slider.click(86);
        mark->setMovesOnGrooveClick(false);
        slider.click(6);
        slider.defaultThumb()->setMovesOnGrooveClick(false);
        slider.click(106);
        QVERIFY(mark->value() == 40 && slider.value() == 0 && !slider.isSliderDown());
    }

    // Whatever a slot does to the thumb or its slider, at whichever signal, nothing is left hanging.
    void slotsThatPullThingsAway()
    {
        using Pull = std::function<void(Trimmer*, ZSliderThumb*)>;
        const QVector<QPair<QString, Pull>> pulls{
            {"delete", [](Trimmer*, ZSliderThumb* thumb) { delete thumb; }},
            {"delete slider", [](Trimmer* slider, ZSliderThumb*) { delete slider; }},
            {"replace", [](Trimmer* slider, ZSliderThumb*) { slider->addThumb("mark"); }},
            {"range", [](Trimmer* slider, ZSliderThumb*) { slider->setRange(0, 10); }},
            {"move another", [](Trimmer* slider, ZSliderThumb*) { slider->setValue(slider->value() + 1); }},
        };
        using Thumb = ZSliderThumb;
        const QVector<void (*)(Thumb*)> acts{[](Thumb* thumb) { Drag(thumb, 20); }, Release, Click,
                                             [](Thumb* thumb) { QTest::keyClick(thumb, Qt::Key_Up); }};
        const QVector<QPair<QString, Hook>> hooks{
            {"pressed", At(&Thumb::pressed)},       {"started", At(&Thumb::dragStarted)},
            {"moved", At(&Thumb::valueChanged)},    {"released", At(&Thumb::released)},
            {"finished", At(&Thumb::dragFinished)}, {"toggled", At(&Thumb::toggled)},
            {"stepped", At(&Thumb::stepped)},
        };
        for (const auto& pull : pulls) {
            for (const auto& hook : hooks) {
                InRow(pull.first + " when " + hook.first);
                QPointer<Trimmer> slider = new Trimmer;
                QPointer<Thumb> thumb = slider->add("mark", 20);
                slider->show();
                bool isPulled = false;
                hook.second(thumb, [&] {
                    isPulled = true;
                    pull.second(slider, thumb);
                });
                for (const auto& act : acts) {
                    if (thumb)
                        act(thumb);
                }
                QVERIFY(isPulled);
                if (!slider)
                    continue;
                QVERIFY(!slider->isSliderDown());
                QCOMPARE(slider->thumbNames().size(), slider->findChildren<Thumb*>().size());
                QVERIFY(!slider->selectedThumb() || slider->findChildren<Thumb*>().contains(slider->selectedThumb()));
                QCOMPARE(slider->defaultThumb()->value(), slider->value());
                delete slider;
            }
        }
        // Dragged by the groove, and gone.
        Trimmer slider;
        slider.setSelectedThumb(slider.add("mark", 20));
        slider.press(106);
        slider.removeThumb("mark");
        QVERIFY(!slider.isSliderDown());
        QTest::mouseMove(&slider, QPoint(150, 25));
        QCOMPARE(slider.value(), 0);
    }

    void keysReachEveryThumb()
    {
        QWidget window;
        auto* layout = new QVBoxLayout(&window);
        auto* slider = new Trimmer;
        layout->addWidget(slider);
        auto* after = new QLineEdit(&window);
        // One lies on the default thumb, one is not to be selected.
        ZSliderThumb* low = slider->add("low", 0);
        ZSliderThumb* high = slider->add("high", 80);
        high->setSelectable(false);
        window.show();
        QApplication::setActiveWindow(&window);
        after->setFocus();
        const auto press = [](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
            QTest::keyClick(QApplication::focusWidget(), key, modifiers);
            return QApplication::focusWidget();
        };
        QCOMPARE(press(Qt::Key_Tab), slider);
        QCOMPARE(press(Qt::Key_Right, Qt::ControlModifier), low);
        QSignalSpy stepped(low, &ZSliderThumb::stepped);
        for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Right, Qt::Key_Down, Qt::Key_Left, Qt::Key_Home})
            press(key);
        QCOMPARE(stepped, QList<QVariantList>({{120}, {120}, {-120}, {-120}}));
        press(Qt::Key_Space);
        QVERIFY(low->value() == 0 && slider->selectedThumb() == low);
        QCOMPARE(press(Qt::Key_Right, Qt::ControlModifier), high);
        press(Qt::Key_Space);
        QVERIFY(press(Qt::Key_Up, Qt::ControlModifier) == high && !high->isChecked());
        press(Qt::Key_Left, Qt::ControlModifier);
        QCOMPARE(press(Qt::Key_Down, Qt::ControlModifier), slider->defaultThumb());
        QCOMPARE(press(Qt::Key_Tab), after);
        QCOMPARE(press(Qt::Key_Backtab, Qt::ShiftModifier), slider);
        // The slider's keys and wheel are those of the selected thumb.
        const auto turn = [](QWidget* widget, const QPoint& angle) {
            QWheelEvent event(QPointF(5, 5), QPointF(5, 5), {}, angle, {}, {}, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(widget, &event);
            return event.isAccepted();
        };
        stepped.clear();
        press(Qt::Key_Up);
        QVERIFY(turn(slider, {0, -240}) && turn(low, {30, 0}) && !turn(slider, {}));
        low->setWheelStepping(false);
        QVERIFY(!turn(low, {0, 120}));
        QCOMPARE(stepped, QList<QVariantList>({{120}, {-240}, {30}}));
        press(Qt::Key_Space);
        QVERIFY(!low->isChecked() && !low->isDown());
        QCOMPARE(press(Qt::Key_Backtab, Qt::ShiftModifier), after);
    }

    void stackingAndThumbsOverOneAnother()
    {
        Trimmer slider;
        ZSliderThumb* a = slider.add("a", 50);
        ZSliderThumb* b = slider.add("b", 50);
        slider.show();
        const auto top = [&] { return static_cast<ZSliderThumb*>(slider.childAt(106, 7)); };
        QCOMPARE(top(), b);
        a->setZOrder(INT_MAX);
        b->setZOrder(INT_MIN);
        QCOMPARE(top(), a);
        slider.add("c", 50);
        // A click on and a click off, and the other one is there.
        Click(top());
        QCOMPARE(top(), a);
        Click(top());
        QVERIFY(top() != a);
    }

    void grooveInItsLooks()
    {
        Trimmer slider;
        slider.colour();
        slider.setSegments({{20, 40, false}, {80, 60, true}, {150, 100, true}});
        QCOMPARE(slider.at({30, 46, 47, 85, 86, 87}), "white red lime lime red white");
        QCOMPARE(slider.at({126, 150, 166, 205, 3}), "red blue red white none");
        slider.clearSegments();
        slider.addSegment(0, 50);
        slider.setRange(7, 7);
        QCOMPARE(slider.at({100}), "white");
        slider.setRange(0, 100);
        slider.setOrientation(Qt::Vertical);
        slider.resize(30, 212);
        QCOMPARE(slider.at({3, 20, 150}), "none lime white");
    }

    void grooveFollowsWhatItShows()
    {
        Trimmer slider;
        slider.colour();
        QCOMPARE(slider.at({50}), "white");
        slider.setSubPageStyle("background: red");
        slider.setAddPageStyle("background: blue; /* %1 and } */");
        for (const int value : {50, 10, 90}) {
            slider.setValue(value);
            QCOMPARE(slider.at({2 * value, 2 * value + 12}), "red blue");
        }
        slider.setLayoutDirection(Qt::RightToLeft);
        QCOMPARE(slider.at({20}), "red");
        slider.setSubPageStyle("background: red } QSlider::sub-page:horizontal:disabled { background: gray");
        QCOMPARE(slider.at({20}), "red");
        slider.setEnabled(false);
        QCOMPARE(slider.at({20}), "gray");
        ExpectWarning("braces or quotes do not match");
        slider.setSubPageStyle("background: red } }");
        QCOMPARE(slider.subPageStyle(), "background: red } }");
        slider.setAddPageStyle({});
        QCOMPARE(slider.at({20}), "white");
        slider.setGrooveEmptyStyle("background: palette(window)");
        const QPalette before = QApplication::palette();
        QApplication::setPalette(QPalette(Qt::black, Qt::blue));
        QCOMPARE(slider.at({20}), "blue");
        QApplication::setPalette(before);
        slider.resize(0, 0);
        slider.grab();

        // A value that changes nothing but a thumb has nothing else painted.
        slider.setEnabled(true);
        slider.resize(212, 30);
        slider.setGrooveEmptyStyle("background: white");
        slider.defaultThumb()->show();
        slider.show();
        QVERIFY(QTest::qWaitForWindowExposed(&slider));
        slider.setValue(10);
        QCoreApplication::processEvents();
        QRegion painted;
        const Support::EventWatch watch(&slider, [&](QEvent::Type type, QEvent* event) {
            painted += type == QEvent::Paint ? static_cast<QPaintEvent*>(event)->region() : QRegion();
        });
        slider.setValue(11);
        QTRY_VERIFY(!painted.isEmpty());
        QVERIFY(painted.boundingRect().width() < 20);
    }

    void assistiveTechnology()
    {
        Trimmer slider;
        ZSliderThumb* mark = slider.add("mark", 20);
        mark->setUpperLimit(70);
        QAccessibleInterface* whole = QAccessible::queryAccessibleInterface(&slider);
        QAccessibleInterface* part = QAccessible::queryAccessibleInterface(mark);
        QVERIFY(whole->role() == QAccessible::Slider && whole->childCount() == 2);
        QVERIFY(part->role() == QAccessible::Slider && part->text(QAccessible::Name) == "mark");
        QCOMPARE(part->valueInterface()->maximumValue().toInt(), 70);
        part->valueInterface()->setCurrentValue(90);
        slider.setSelectedThumb(mark);
        QVERIFY(part->text(QAccessible::Value) == "70" && part->state().selected);
        mark->setAccessibleName("Mark of mine");
        mark->setName("other");
        QVERIFY(part->text(QAccessible::Name) == "Mark of mine" && slider.thumb("mark") == mark);
    }
};

VX_TEST_MAIN(tst_ZSlider)
#include "tst_ZSlider.moc"
