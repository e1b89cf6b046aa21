#include <UI/Widgets/MaskedToolTip.h>

#include <Support/Mouse.h>
#include <Support/TestCase.h>

#include <QAccessible>
#include <QLabel>
#include <QPainter>

using Zelkor::Vx::UI::MaskedToolTip;

namespace {

// Opaque but for a transparent corner of 20 by 10.
QImage Bubble(QImage::Format format, qreal ratio = 1)
{
    QImage image(QSize(100, 60) * ratio, QImage::Format_ARGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(QRectF(QPointF(), QSizeF(20, 10) * ratio), Qt::transparent);
    painter.end();
    image = image.convertToFormat(format);
    image.setDevicePixelRatio(ratio);
    return image;
}

} // namespace

class tst_MaskedToolTip : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void imageIsTheShape()
    {
        // Format_Invalid stands for one of two pixels to a point.
        for (int format = QImage::Format_Invalid; format < QImage::NImageFormats; ++format) {
            InRow(QString("format %1").arg(format));
            const QImage mask = format ? Bubble(QImage::Format(format)) : Bubble(QImage::Format_ARGB32, 2);
            MaskedToolTip tip(nullptr);
            tip.SetMask(mask);
            tip.SetText("Hint");
            tip.Show(QPoint(50, 40));
            const QRegion whole(0, 0, 100, 60);
            QCOMPARE(tip.mask(), mask.hasAlphaChannel() ? whole - QRegion(0, 0, 20, 10) : whole);
            tip.SetMask(QImage());
            tip.Show(QPoint(50, 40));
            QVERIFY(tip.mask().isEmpty());
        }
    }

    void nameOfTheApplicationStays()
    {
        MaskedToolTip tip(nullptr);
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&tip);
        tip.SetTitle("Title");
        tip.SetText("Text");
        QCOMPARE(accessible->text(QAccessible::Name), QString("Title"));
        QCOMPARE(accessible->text(QAccessible::Description), QString("Text"));
        tip.setAccessibleName("Own");
        tip.Show(QPoint(50, 40));
        QCOMPARE(accessible->text(QAccessible::Name), QString("Own"));
    }

    void labelsAndPlace()
    {
        MaskedToolTip tip(nullptr);
        tip.setStyleSheet("#MaskedToolTip { qproperty-offsetX: 7; qproperty-offsetY: -3 }");
        tip.SetTitle("Title");
        tip.Show(QPoint(50, 40));
        const auto* title = tip.findChild<QLabel*>("titleLabel");
        const auto* text = tip.findChild<QLabel*>("textLabel");
        QVERIFY(title->isVisible() && !text->isVisible());
        QCOMPARE(tip.pos(), QPoint(57, 37));
        // A label that was empty stays hidden; the window moves on from where it stands.
        tip.SetTitle("Another");
        tip.SetText("Text");
        tip.Show(QPoint(50, 40));
        QVERIFY(title->text() == "Another" && text->text() == "Text" && !text->isVisible());
        QCOMPARE(tip.pos(), QPoint(0, 0));
    }

    void shorterTextMakesTheWindowNarrower()
    {
        MaskedToolTip tip(nullptr);
        tip.SetText("A text that needs more room than the next");
        tip.Show(QPoint(50, 40));
        tip.SetText("Hint");
        tip.Show(QPoint(50, 40));
        QCOMPARE(tip.size(), tip.sizeHint());
    }

    void closesByPressTimeAndAnotherWindow()
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
            QVERIFY(tip.isVisible());
            Support::Click(window.geometry().center());
            QVERIFY(QTest::qWaitForWindowActive(&window));
            QTRY_COMPARE(tip.isVisible(), !hides);
        }
        tip.SetDisplayTime(-5);
        tip.Show(QPoint(50, 40));
        QTest::mousePress(&tip, Qt::RightButton);
        QVERIFY(!tip.isVisible());
        tip.SetDisplayTime(150);
        QElapsedTimer timer;
        timer.start();
        tip.Show(QPoint(50, 40));
        QVERIFY(tip.isVisible());
        QTRY_VERIFY(!tip.isVisible());
        QVERIFY(timer.elapsed() >= 140);
    }
};

VX_TEST_MAIN(tst_MaskedToolTip)
#include "tst_MaskedToolTip.moc"
