#include <Lib/UI/Kit/SliderFixture.h>

#include <Support/TestCase.h>

#include <QSignalSpy>

/// Keys and wheel events of a slider and its thumbs.
class tst_ZSliderKeys : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
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
        const QSignalSpy stepped(slider.defaultThumb(), &ZSliderThumb::stepped);
        QTest::keyClick(slider.defaultThumb(), Qt::Key_Up);
        QCOMPARE(stepped, QList<QVariantList>({{120}}));
        QCOMPARE(slider.value(), 50);
    }

    void keysAndWheelReachEveryThumb()
    {
        Trimmer slider;
        // `low` covers the default thumb, `high` is not selectable.
        ZSliderThumb* low = slider.add("low", 0);
        ZSliderThumb* high = slider.add("high", 80);
        high->setSelectable(false);
        slider.show();
        QApplication::setActiveWindow(&slider);
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
