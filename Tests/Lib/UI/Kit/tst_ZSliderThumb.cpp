#include <Lib/UI/Kit/SliderFixture.h>

#include <Support/AnySignalSpy.h>
#include <Support/Input.h>
#include <Support/TestCase.h>

#include <QAccessible>

#include <functional>

using Thumb = ZSliderThumb;
using Numbers = QVector<int>;
using Interference = std::function<void(Trimmer*, Thumb*)>;
Q_DECLARE_METATYPE(Interference)

namespace {

void Click(Thumb* thumb)
{
    QTest::mouseClick(thumb, Qt::LeftButton);
}

void StartDrag(Thumb* thumb, int pixels)
{
    QTest::mousePress(thumb, Qt::LeftButton);
    Support::MoveMouse(thumb, thumb->rect().center() + QPoint(pixels, 0));
}

void DragTo(Thumb* thumb, int value)
{
    StartDrag(thumb, 2 * (value - thumb->value()));
    QTest::mouseRelease(thumb, Qt::LeftButton);
}

} // namespace

class tst_ZSliderThumb : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
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
        slider.removeThumb("default");
        slider.setValue(20);
        QVERIFY(slider.thumbNames().isEmpty());
    }

    void clickOnTheTopThumbReachesTheOneBelow()
    {
        Trimmer slider;
        slider.add("b", 50);
        Thumb* a = slider.add("a", 50);
        slider.show();
        const auto top = [&] { return static_cast<Thumb*>(slider.childAt(106, 7)); };
        QCOMPARE(top(), slider.thumb("b"));
        a->setZOrder(INT_MAX);
        slider.add("c", 50)->setZOrder(INT_MIN);
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
        StartDrag(thumb, 20);
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
        for (const Numbers& row : {Numbers{20, 68, 68}, {20, 69, 70}, {20, 72, 72}, {100, 61, 70}}) {
            slider.setSnapDistance(row[0]);
            DragTo(thumb, row[1]);
            QCOMPARE(thumb->value(), row[2]);
        }
        thumb->setDraggable(false);
        DragTo(thumb, 10);
        QCOMPARE(thumb->value(), 70);
    }

    void slotsMayDeleteThumbAndSlider_data()
    {
        QTest::addColumn<Interference>("interfere");
        const auto row = [](const char* name, const Interference& interfere) { QTest::newRow(name) << interfere; };
        row("delete thumb", [](Trimmer*, Thumb* thumb) { delete thumb; });
        row("delete slider", [](Trimmer* slider, Thumb*) { delete slider; });
        row("replace thumb", [](Trimmer* slider, Thumb*) { slider->addThumb("mark"); });
    }

    // Interferes at the first signal of the thumb, then at the second one, and so on.
    void slotsMayDeleteThumbAndSlider()
    {
        QFETCH(Interference, interfere);
        using Act = void (*)(Thumb*);
        const Act press = [](Thumb* thumb) { QTest::mousePress(thumb, Qt::LeftButton); };
        const Act drag = [](Thumb* thumb) { Support::MoveMouse(thumb, {27, 7}); };
        const Act release = [](Thumb* thumb) { QTest::mouseRelease(thumb, Qt::LeftButton); };
        const Act key = [](Thumb* thumb) { QTest::keyClick(thumb, Qt::Key_Up); };
        int moment = -1;
        for (bool hasInterfered = true; hasInterfered;) {
            ++moment;
            hasInterfered = false;
            int count = 0;
            QPointer<Trimmer> slider = new Trimmer;
            QPointer<Thumb> thumb = slider->add("mark", 20);
            slider->show();
            const Support::AnySignalSpy spy(thumb, [&](auto&) {
                if (count++ == moment) {
                    hasInterfered = true;
                    interfere(slider, thumb);
                }
            });
            for (const Act act : {press, drag, release, press, release, key}) {
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
};

VX_TEST_MAIN(tst_ZSliderThumb)
#include "tst_ZSliderThumb.moc"
