#include <Lib/UI/Kit/SliderFixture.h>

#include <Support/Input.h>
#include <Support/TestCase.h>

/// Keys and wheel events of a slider and its thumbs.
class tst_ZSliderKeys : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
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

VX_TEST_MAIN(tst_ZSliderKeys)
#include "tst_ZSliderKeys.moc"
