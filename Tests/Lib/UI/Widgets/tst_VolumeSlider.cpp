#include <UI/Widgets/LevelMeter.h>
#include <UI/Widgets/VolumeSlider.h>

#include <Support/LogCapture.h>
#include <Support/TestCase.h>

#include <QSignalSpy>
#include <QToolTip>

#include <cmath>
#include <limits>

using Zelkor::Vx::VolumeSlider;
namespace LevelMeter = Zelkor::Vx::LevelMeter;

namespace {

const float NOT_A_NUMBER = std::numeric_limits<float>::quiet_NaN();
const float INFINITE = std::numeric_limits<float>::infinity();

struct PaintCounter : QObject
{
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            ++paints;
            region = static_cast<QPaintEvent*>(event)->region();
        }
        return false;
    }
    int paints = 0;
    QRegion region;
};

} // namespace

class tst_VolumeSlider : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void bars_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QPoint>("offset");
        QTest::addColumn<float>("volume");
        QTest::addColumn<float>("level");
        QTest::addColumn<QRect>("levelBar");
        QTest::addColumn<QRect>("volumeBar");
        const QSize usual(30, 100);
        const QPoint offset(5, 4);
        const QRect silence(5, 93, 20, 3); // three rows
        QTest::newRow("silence") << usual << offset << 1.0F << 0.0F << silence << silence;
        QTest::newRow("full: two rows above the background")
            << usual << offset << 1.0F << 1.0F << QRect(5, 2, 20, 94) << QRect(5, 2, 20, 94);
        QTest::newRow("half volume") << usual << offset << 0.5F << 1.0F << QRect(5, 2, 20, 94) << QRect(5, 48, 20, 48);
        QTest::newRow("clamped at the top")
            << usual << offset << 1.0F << 9.0F << QRect(5, -1, 20, 97) << QRect(5, -1, 20, 97);
        QTest::newRow("negative level") << usual << offset << 1.0F << -3.0F << QRect(5, 95, 20, 1)
                                        << QRect(5, 95, 20, 1);
        QTest::newRow("not a number") << usual << offset << 1.0F << NOT_A_NUMBER << QRect(5, 95, 20, 1)
                                      << QRect(5, 95, 20, 1);
        QTest::newRow("volume not a number")
            << usual << offset << NOT_A_NUMBER << 0.0F << silence << QRect(5, 95, 20, 1);
        QTest::newRow("lying") << QSize(200, 20) << QPoint(2, 0) << 0.25F << 0.5F << QRect(2, 8, 196, 12)
                               << QRect(2, 15, 196, 5);
    }

    void bars()
    {
        QFETCH(QSize, size);
        QFETCH(QPoint, offset);
        QFETCH(float, volume);
        QFETCH(float, level);
        QFETCH(QRect, levelBar);
        QFETCH(QRect, volumeBar);
        const auto bars = LevelMeter::BarsOf({size, offset.x(), offset.y(), volume, level});
        QCOMPARE(bars.level, levelBar);
        QCOMPARE(bars.volume, volumeBar);

        // The same as pixels, in the middle column and up to its edges.
        QWidget window;
        window.setStyleSheet("QWidget { background: white } QSlider { background: transparent }"
                             "QSlider::groove { background: transparent } QSlider::handle { background: transparent }");
        VolumeSlider slider(Qt::Vertical, &window);
        slider.setProperty("peakValueRectOffsetX", offset.x());
        slider.setProperty("peakValueRectOffsetY", offset.y());
        slider.resize(size);
        window.show();
        slider.SetVolumes(volume, level);
        const QImage image = window.grab(slider.geometry()).toImage();
        const qreal ratio = image.devicePixelRatio();
        for (int y = 0; y < size.height(); ++y) {
            const QColor expected = volumeBar.contains(size.width() / 2, y)         ? QColor(37, 127, 101)
                                    : levelBar.contains(size.width() / 2, y)        ? QColor(86, 91, 107)
                                    : bars.background.contains(size.width() / 2, y) ? QColor(28, 32, 43)
                                                                                    : QColor(Qt::white);
            QCOMPARE(image.pixelColor(int(size.width() * ratio / 2), int((y + 0.5) * ratio)), expected);
        }
    }

    void valueFollowsTheVolume_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<float>("volume");
        QTest::addColumn<int>("to");
        QTest::newRow("one step is ignored") << 51 << 0.5F << 51;
        QTest::newRow("two are not") << 48 << 0.5F << 50;
        QTest::newRow("truncated") << 0 << 0.999F << 99;
        QTest::newRow("negative") << 40 << -0.2F << 0;
        QTest::newRow("above one") << 40 << 3.0F << 100;
        QTest::newRow("huge") << 40 << 1e30F << 100;
        QTest::newRow("infinite") << 40 << INFINITE << 40;
        QTest::newRow("not a number") << 40 << NOT_A_NUMBER << 40;
    }

    void valueFollowsTheVolume()
    {
        QFETCH(int, from);
        QFETCH(float, volume);
        QFETCH(int, to);
        FLAGS_v = 20;
        Support::LogCapture log;
        VolumeSlider slider(nullptr);
        QCOMPARE(slider.orientation(), Qt::Vertical);
        slider.setValue(from);
        QSignalSpy changed(&slider, &VolumeSlider::VolumeChanged);
        slider.SetVolumes(volume, 0.3F);
        QCOMPARE(slider.value(), to);
        QCOMPARE(changed, from == to ? QList<QVariantList>() : QList<QVariantList>{{to}});
        QCOMPARE(log.Lines(), volume < 0 ? QStringList("I Lib/UI/Widgets/VolumeSlider:75 Zelkor::Vx::VolumeSlider::"
                                                       "SetVolumes: Input volume below 0")
                                         : QStringList());
        FLAGS_v = 0;
    }

    void onlyWhatChangesIsPainted()
    {
        PaintCounter counter;
        VolumeSlider slider(nullptr);
        slider.resize(30, 100);
        slider.setProperty("borderRadius", 3);
        slider.setProperty("colorPeakValueBorder", QColor(Qt::red));
        slider.installEventFilter(&counter);
        slider.SetVolumes(0, 0.9F);
        QCoreApplication::processEvents();
        QCOMPARE(counter.paints, 0); // hidden
        slider.show();
        QVERIFY(QTest::qWaitForWindowExposed(&slider));
        slider.SetVolumes(0, 0.5F);
        QTRY_VERIFY(counter.paints > 0);
        QCoreApplication::processEvents();

        float level = 0.5F;
        QImage before = slider.grab().toImage();
        for (const float next :
             {0.5F, 0.5001F, NOT_A_NUMBER, NOT_A_NUMBER, 0.0F, 0.02F, 0.05F, 0.5F, 0.52F, 1.0F, 7.0F}) {
            slider.removeEventFilter(&counter);
            slider.installEventFilter(&counter);
            counter.paints = 0;
            slider.SetVolumes(0, next);
            QCoreApplication::processEvents();
            const int paints = counter.paints;
            const QRegion painted = paints ? counter.region : QRegion();
            const QImage after = slider.grab().toImage();
            QCOMPARE(paints, after == before ? 0 : 1);
            for (int y = 0; y < 100; ++y) {
                for (int x = 0; x < 30; ++x)
                    QVERIFY(painted.contains(QPoint(x, y)) || after.pixel(x, y) == before.pixel(x, y));
            }
            if (level == 0.5F && next == 0.52F)
                QVERIFY(painted.boundingRect().height() < 20);
            before = after;
            level = next;
        }
    }

    void toolTipTellsTheValue()
    {
        QPointer<VolumeSlider> slider = new VolumeSlider(nullptr);
        slider->setValue(30);
        QVERIFY(!QToolTip::isVisible());
        slider->show();
        QString shownAtSignal;
        connect(slider, &VolumeSlider::VolumeChanged, [&] { shownAtSignal = QToolTip::text(); });
        slider->setValue(50);
        QCOMPARE(shownAtSignal, QString("50 %"));
        QTRY_VERIFY(!QToolTip::isVisible());
        slider->setValue(60);
        delete slider; // its timer is pending
        QToolTip::hideText();
        QTRY_VERIFY(!QToolTip::isVisible());
    }
};

VX_TEST_MAIN(tst_VolumeSlider)
#include "tst_VolumeSlider.moc"
