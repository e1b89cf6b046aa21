#include <UI/Widgets/MaskedToolTip.h>

#include <Support/Mouse.h>
#include <Support/TestCase.h>

#include <QLabel>

using Zelkor::Vx::UI::MaskedToolTip;

class tst_MaskedToolTip : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void windowTakesTheShapeOfTheImage_data()
    {
        QTest::addColumn<int>("format");
        QTest::addColumn<int>("ratio");
        QTest::newRow("ARGB") << int(QImage::Format_ARGB32) << 1;
        QTest::newRow("indexed") << int(QImage::Format_Indexed8) << 1;
        QTest::newRow("device pixel ratio 2") << int(QImage::Format_ARGB32) << 2;
    }

    void windowTakesTheShapeOfTheImage()
    {
        QFETCH(int, format);
        QFETCH(int, ratio);
        QImage image(QSize(100, 60) * ratio, QImage::Format_ARGB32);
        image.fill(Qt::white);
        for (int i = 0; i < 20 * ratio * 10 * ratio; ++i)
            image.setPixel(i % (20 * ratio), i / (20 * ratio), 0);
        image = image.convertToFormat(QImage::Format(format));
        image.setDevicePixelRatio(ratio);
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
        tip.SetTitle("A title that needs more room than the next");
        tip.Show(QPoint(50, 40));
        QCOMPARE(tip.pos(), QPoint(57, 37));
        tip.SetTitle("Title");
        tip.SetText("Text");
        tip.Show(QPoint(50, 40)); // relative to the current position
        QCOMPARE(tip.pos(), QPoint(0, 0));
        QCOMPARE(tip.size(), tip.sizeHint());
        QVERIFY(tip.findChild<QLabel*>("titleLabel")->isVisible());
        QVERIFY(!tip.findChild<QLabel*>("textLabel")->isVisible());
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
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        MaskedToolTip tip(&window);
        tip.SetText("Hint");
        for (const bool hides : {true, false}) {
            tip.SetHideOnDeactivate(hides);
            tip.Show(QPoint(50, 40));
            tip.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&tip));
            Support::Click(window.geometry().center());
            QVERIFY(QTest::qWaitForWindowActive(&window));
            QTRY_COMPARE(tip.isVisible(), !hides);
        }
    }
};

VX_TEST_MAIN(tst_MaskedToolTip)
#include "tst_MaskedToolTip.moc"
