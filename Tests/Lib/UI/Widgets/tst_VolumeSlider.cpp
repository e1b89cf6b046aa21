#include <UI/Widgets/LevelMeterGeometry.h>
#include <UI/Widgets/VolumeSlider.h>

#include <Support/LogCapture.h>
#include <Support/PaintSpy.h>
#include <Support/Picture.h>
#include <Support/TestCase.h>

#include <QToolTip>

#include <cmath>

using Zelkor::Vx::VolumeSlider;
using Zelkor::Vx::LevelMeterGeometry::ComputeBars;

class tst_VolumeSlider : public Support::TestCase
{
    Q_OBJECT

    static QRect Level(float level) { return ComputeBars({QSize(30, 100), 5, 4, 1, level}).level; }
    static QRect Volume(float volume, float level) { return ComputeBars({QSize(30, 100), 5, 4, volume, level}).volume; }

private Q_SLOTS:
    void barsGrowFromTheBottom()
    {
        QCOMPARE(Level(0), QRect(5, 93, 20, 3));
        QCOMPARE(Level(1), QRect(5, 2, 20, 94));
        QCOMPARE(Level(9), QRect(5, -1, 20, 97));
        QCOMPARE(Level(-3), QRect(5, 95, 20, 1));
        QCOMPARE(Level(NAN), QRect(5, 95, 20, 1));
        QCOMPARE(Volume(0.5F, 1), QRect(5, 48, 20, 48));
        QCOMPARE(ComputeBars({QSize(200, 20), 2, 0, 0.25F, 0.5F}).volume, QRect(2, 15, 196, 5));
    }

    void barsArePaintedOverEachOther()
    {
        VolumeSlider slider(nullptr);
        slider.setStyleSheet("QSlider, QSlider::groove, QSlider::handle { background: transparent }");
        slider.resize(30, 100);
        slider.SetVolumes(0.5F, 0.5F);
        const QImage image = slider.grab().toImage();
        QCOMPARE(Support::ColorAt(image, QPoint(15, 30)), QColor(28, 32, 43));
        QCOMPARE(Support::ColorAt(image, QPoint(15, 60)), QColor(86, 91, 107));
        QCOMPARE(Support::ColorAt(image, QPoint(15, 90)), QColor(37, 127, 101));
    }

    // The value after a volume, and what was logged.
    static QString valueAfter(int value, float volume)
    {
        Support::LogCapture log;
        VolumeSlider slider(nullptr);
        slider.setValue(value);
        QSignalSpy changed(&slider, &VolumeSlider::VolumeChanged);
        slider.SetVolumes(volume, 0.3F);
        [&] { QCOMPARE(changed.size(), int(slider.value() != value)); }();
        return QString::number(slider.value()) + log.Take().join(' ');
    }

    void valueFollowsTheVolume()
    {
        FLAGS_v = 20;
        QCOMPARE(valueAfter(51, 0.5F), QString("51")); // one step is ignored
        QCOMPARE(valueAfter(48, 0.5F), QString("50"));
        QCOMPARE(valueAfter(0, 0.999F), QString("99"));
        QCOMPARE(valueAfter(40, 1e30F), QString("100"));
        QCOMPARE(valueAfter(40, NAN), QString("40"));
        QCOMPARE(valueAfter(40, -0.2F),
                 QString("0I Lib/UI/Widgets/VolumeSlider:75 Zelkor::Vx::VolumeSlider::SetVolumes: "
                         "Input volume below 0"));
        FLAGS_v = 0;
    }

    void onlyChangedRowsAreRepainted()
    {
        VolumeSlider slider(nullptr);
        slider.resize(30, 100);
        slider.setProperty("borderRadius", 3);
        slider.setProperty("colorPeakValueBorder", QColor(Qt::red));
        Support::PaintSpy paints(&slider);
        QImage before = slider.grab().toImage();
        for (const float level : {0.5F, 0.5001F, NAN, 0.0F, 0.02F, 0.05F, 1.0F, 0.98F, 7.0F}) {
            paints.Take();
            slider.SetVolumes(0, level);
            const QVector<QRegion> painted = paints.Take();
            const QImage after = slider.grab().toImage();
            QCOMPARE(painted.size(), after == before ? 0 : 1);
            for (int i = 0; i < 30 * 100; ++i) {
                const QPoint point(i % 30, i / 30);
                QVERIFY(after.pixel(point) == before.pixel(point) || painted[0].contains(point));
            }
            QVERIFY(level != 0.98F || painted[0].boundingRect().height() < 20);
            before = after;
        }
    }

    void toolTipShowsTheValueForASecond()
    {
        VolumeSlider slider(nullptr);
        slider.show();
        slider.setValue(50);
        QCOMPARE(QToolTip::text(), QString("50 %"));
        QTRY_VERIFY(!QToolTip::isVisible());
    }
};

VX_TEST_MAIN(tst_VolumeSlider)
#include "tst_VolumeSlider.moc"
