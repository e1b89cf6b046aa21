#include <UI/Widgets/MaskedToolTip.h>

#include <Support/Input.h>
#include <Support/Mouse.h>
#include <Support/TestCase.h>

#include <QLabel>

using Zelkor::Vx::UI::MaskedToolTip;

class tst_MaskedToolTip : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void windowTakesTheShapeOfTheImage()
    {
        QImage image(200, 120, QImage::Format_ARGB32);
        image.fill(Qt::white);
        for (int i = 0; i < 40 * 20; ++i)
            image.setPixel(i % 40, i / 40, 0);
        image.setDevicePixelRatio(2);
        MaskedToolTip tip(nullptr);
        tip.SetMask(image);
        tip.Show(QPoint(50, 40));
        QCOMPARE(tip.mask(), QRegion(0, 0, 100, 60) - QRegion(0, 0, 20, 10));
        tip.SetMask(QImage());
        tip.Show(QPoint(50, 40));
        QVERIFY(tip.mask().isEmpty());
    }

    void emptyLabelIsHiddenForGood()
    {
        MaskedToolTip tip(nullptr);
        tip.setStyleSheet("#MaskedToolTip { qproperty-offsetX: 7; qproperty-offsetY: -3 }");
        tip.SetTitle("Title");
        tip.Show(QPoint(50, 40));
        QCOMPARE(tip.pos(), QPoint(57, 37));
        tip.SetText("Text");
        tip.Show(QPoint(50, 40)); // relative to the current position
        QCOMPARE(tip.pos(), QPoint(0, 0));
        QVERIFY(tip.findChild<QLabel*>("titleLabel")->isVisible());
        QVERIFY(!tip.findChild<QLabel*>("textLabel")->isVisible());
        tip.Show(QPoint(200, 100));
        tip.close();
        tip.move(0, 0);
        tip.Show(QPoint(50, 40));
        QCOMPARE(tip.pos(), QPoint(57, 37));
    }

    void closesOnPressAndAfterItsTime()
    {
        MaskedToolTip tip(nullptr);
        tip.SetText("Hint");
        tip.Show(QPoint(50, 40));
        QTest::mousePress(&tip, Qt::RightButton);
        QVERIFY(!tip.isVisible());
        tip.SetDisplayTime(150);
        QElapsedTimer timer;
        timer.start();
        tip.Show(QPoint(50, 40));
        QTRY_VERIFY(!tip.isVisible());
        QVERIFY(timer.elapsed() >= 140);
    }

    void closesWhenAnotherWindowBecomesActive()
    {
        QWidget window;
        window.setGeometry(400, 300, 200, 100);
        Support::ShowActive(window);
        MaskedToolTip tip(&window);
        tip.SetText("Hint");
        for (const bool hides : {true, false}) {
            tip.SetHideOnDeactivate(hides);
            tip.Show(QPoint(50, 40));
            tip.activateWindow();
            QTRY_VERIFY(tip.isActiveWindow());
            Support::Click(window.geometry().center());
            QTRY_VERIFY(window.isActiveWindow());
            QTRY_COMPARE(tip.isVisible(), !hides);
        }
    }

    void followsItsWindowAndLeavesItActive()
    {
        QWidget window;
        window.setGeometry(400, 300, 200, 100);
        Support::ShowActive(window);
        QTRY_COMPARE(window.geometry().topLeft(), QPoint(400, 300));
        MaskedToolTip tip(&window);
        tip.SetText("Hint");
        tip.Show(QPoint(50, 40));
        QVERIFY(QTest::qWaitForWindowExposed(&tip));
        window.move(window.pos() + QPoint(30, 20));
        QTRY_COMPARE(tip.pos(), QPoint(80, 60));
        QVERIFY(window.isActiveWindow());
        Support::Click(window.geometry().center());
        QTRY_VERIFY(!tip.isVisible());
        QVERIFY(window.isActiveWindow());
    }
};

VX_TEST_MAIN(tst_MaskedToolTip)
#include "tst_MaskedToolTip.moc"
