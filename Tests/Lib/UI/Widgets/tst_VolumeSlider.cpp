#include <UI/Widgets/LevelMeterGeometry.h>
#include <UI/Widgets/VolumeSlider.h>

#include <Support/LogCapture.h>
#include <Support/PaintSpy.h>
#include <Support/Picture.h>
#include <Support/TestCase.h>

#include <QMetaProperty>
#include <QSignalSpy>
#include <QToolTip>

#include <cmath>

using Zelkor::Vx::VolumeSlider;
namespace LevelMeterGeometry = Zelkor::Vx::LevelMeterGeometry;

class tst_VolumeSlider : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void bars()
    {
        using Row = std::tuple<const char*, QSize, QPoint, float, float, QRect, QRect>;
        const QSize usual(30, 100);
        const QPoint inset(5, 4);
        const QRect silence(5, 93, 20, 3); // three rows
        const QRect nothing(5, 95, 20, 1);
        const QRect full(5, 2, 20, 94); // two rows above the background
        const QRect most(5, -1, 20, 97);
        const std::vector<Row> rows{
            {"silence", usual, inset, 1.0F, 0.0F, silence, silence},
            {"full", usual, inset, 1.0F, 1.0F, full, full},
            {"half volume", usual, inset, 0.5F, 1.0F, full, {5, 48, 20, 48}},
            {"clamped at the top", usual, inset, 1.0F, 9.0F, most, most},
            {"negative level", usual, inset, 1.0F, -3.0F, nothing, nothing},
            {"not a number", usual, inset, 1.0F, NAN, nothing, nothing},
            {"volume not a number", usual, inset, NAN, 0.0F, silence, nothing},
            {"lying", {200, 20}, {2, 0}, 0.25F, 0.5F, {2, 8, 196, 12}, {2, 15, 196, 5}},
        };
        for (const auto& [name, size, offset, volume, level, levelBar, volumeBar] : rows) {
            InRow(name);
            const auto bars = LevelMeterGeometry::ComputeBars({size, offset.x(), offset.y(), volume, level});
            QCOMPARE(bars.level, levelBar);
            QCOMPARE(bars.volume, volumeBar);

            // The same as pixels, in the middle column and up to its edges.
            QWidget window;
            window.setStyleSheet("QWidget { background: white } QSlider, QSlider::groove, QSlider::handle"
                                 "{ background: transparent }");
            VolumeSlider slider(Qt::Vertical, &window);
            slider.setProperty("peakValueRectOffsetX", offset.x());
            slider.setProperty("peakValueRectOffsetY", offset.y());
            slider.resize(size);
            window.show();
            slider.SetVolumes(volume, level);
            const QImage image = window.grab(slider.geometry()).toImage();
            for (int y = 0; y < size.height(); ++y) {
                const QPoint point(size.width() / 2, y);
                const QColor expected = volumeBar.contains(point)         ? QColor(37, 127, 101)
                                        : levelBar.contains(point)        ? QColor(86, 91, 107)
                                        : bars.background.contains(point) ? QColor(28, 32, 43)
                                                                          : QColor(Qt::white);
                QCOMPARE(Support::ColorAt(image, point), expected);
            }
        }
    }

    void valueFollowsTheVolume()
    {
        using Row = std::tuple<const char*, int, float, int>;
        const std::vector<Row> rows{
            {"one step is ignored", 51, 0.5F, 51}, {"two are not", 48, 0.5F, 50},
            {"truncated", 0, 0.999F, 99},          {"negative", 40, -0.2F, 0},
            {"above one", 40, 3.0F, 100},          {"huge", 40, 1e30F, 100},
            {"infinite", 40, INFINITY, 40},        {"not a number", 40, NAN, 40},
        };
        FLAGS_v = 20;
        for (const auto& [name, from, volume, to] : rows) {
            InRow(name);
            Support::LogCapture log;
            VolumeSlider slider(nullptr);
            slider.setValue(from);
            QSignalSpy changed(&slider, &VolumeSlider::VolumeChanged);
            slider.SetVolumes(volume, 0.3F);
            QCOMPARE(slider.value(), to);
            QCOMPARE(changed, from == to ? QList<QVariantList>() : QList<QVariantList>{{to}});
            const QString line("I Lib/UI/Widgets/VolumeSlider:75 Zelkor::Vx::VolumeSlider::SetVolumes: Input volume"
                               " below 0");
            QCOMPARE(log.Lines(), volume < 0 ? QStringList(line) : QStringList());
        }
        FLAGS_v = 0;
    }

    void onlyWhatChangesIsPainted()
    {
        VolumeSlider slider(nullptr);
        slider.resize(30, 100);
        slider.setProperty("borderRadius", 3);
        slider.setProperty("colorPeakValueBorder", QColor(Qt::red));
        Support::PaintSpy paints(&slider);
        slider.SetVolumes(0, 0.9F);
        QVERIFY(paints.Take().isEmpty()); // hidden
        slider.show();
        QVERIFY(QTest::qWaitForWindowExposed(&slider));
        slider.SetVolumes(0, 0.5F);

        QImage before = slider.grab().toImage();
        for (const float next : {0.5F, 0.5001F, NAN, NAN, 0.0F, 0.02F, 0.05F, 0.5F, 0.52F, 1.0F, 7.0F}) {
            paints.Take();
            slider.SetVolumes(0, next);
            const QVector<QRegion> painted = paints.Take();
            const QImage after = slider.grab().toImage();
            QCOMPARE(painted.size(), after == before ? 0 : 1);
            const QRegion region = painted.value(0);
            for (int i = 0; i < 30 * 100; ++i) {
                const QPoint point(i % 30, i / 30);
                QVERIFY(region.contains(point) || after.pixel(point) == before.pixel(point));
            }
            QVERIFY(next != 0.52F || region.boundingRect().height() < 20);
            before = after;
        }
    }

    void changedPropertyRepaintsTheWholeMeter_data()
    {
        QTest::addColumn<QByteArray>("property");
        const QMetaObject& meta = VolumeSlider::staticMetaObject;
        for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i)
            QTest::newRow(meta.property(i).name()) << QByteArray(meta.property(i).name());
    }

    void changedPropertyRepaintsTheWholeMeter()
    {
        QFETCH(QByteArray, property);
        VolumeSlider slider(nullptr);
        slider.resize(30, 100);
        slider.show();
        QVERIFY(QTest::qWaitForWindowExposed(&slider));
        Support::PaintSpy paints(&slider);
        const bool isColor = property.startsWith("color");
        for (const QVector<QRegion>& expected : {QVector<QRegion>{slider.rect()}, QVector<QRegion>()}) {
            slider.setProperty(property, isColor ? QVariant(QColor(Qt::red)) : QVariant(9));
            QCOMPARE(paints.Take(), expected); // set to the same value the second time
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
    }
};

VX_TEST_MAIN(tst_VolumeSlider)
#include "tst_VolumeSlider.moc"
