#include <UI/Widgets/VideoPreviewWidget.h>

#include <Support/EventSpy.h>
#include <Support/EventSwallower.h>
#include <Support/Frames.h>
#include <Support/LogCapture.h>
#include <Support/Picture.h>
#include <Support/TestCase.h>

#include <atomic>
#include <thread>

using namespace Zelkor;
using Support::GreyFrame;
using Support::SolidFrame;
using Vx::UI::VideoPreviewWidget;

namespace {

const QColor BACKGROUND(10, 20, 30);

// A shown preview on a background of a known colour, and what it looks like.
struct Scene
{
    explicit Scene(const QSize& size) : preview(new VideoPreviewWidget(&window))
    {
        QPalette palette;
        palette.setColor(QPalette::Window, BACKGROUND);
        window.setPalette(palette);
        preview->SetPreviewWidth(size.width());
        preview->SetPreviewHeight(size.height());
        window.show();
    }

    QImage Grab() const { return window.grab(QRect(preview->pos(), preview->size())).toImage(); }

    QRect Picture() const
    {
        return Support::InkOf(Grab(), [](const QColor& color) { return color != BACKGROUND; });
    }

    mutable QWidget window;
    VideoPreviewWidget* preview;
};

} // namespace

class tst_VideoPreviewWidget : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void pictureIsFittedAndCentred()
    {
        using Row = std::tuple<const char*, QSize, QSize, QRect>; // preview, frame, picture
        const std::vector<Row> rows{
            {"shrunk", {320, 240}, {1280, 720}, {0, 30, 320, 180}},
            {"small ones keep their size", {320, 240}, {160, 120}, {80, 60, 160, 120}},
            {"one pixel too wide", {320, 240}, {321, 100}, {0, 70, 320, 99}},
            {"one pixel too high", {320, 240}, {100, 241}, {110, 0, 99, 240}},
            {"exact", {320, 240}, {320, 240}, {0, 0, 320, 240}},
            {"an odd rest rounds down", {301, 240}, {100, 101}, {100, 69, 100, 101}},
            {"a line", {32, 24}, {2000, 1}, {0, 11, 32, 1}},
        };
        for (const auto& [name, preview, frame, picture] : rows) {
            InRow(name);
            Scene scene(preview);
            const auto own = SolidFrame(frame, Qt::green);
            for (const bool isConverted : {false, true}) {
                scene.preview->UpdateView(isConverted ? GreyFrame(frame, 200) : own);
                QCOMPARE(scene.Picture(), picture);
                const int green = scene.Grab().pixelColor(picture.center()).green();
                QVERIFY(qAbs(green - (isConverted ? 200 : 255)) <= 2);
                // The picture of a fitting frame is the frame's own memory, not a copy, while it shows.
                QCOMPARE(own->GetRefCount() > 1, !isConverted && frame == picture.size());
            }
        }
    }

    void defaultImageShowsWithoutAFrame()
    {
        Scene scene(QSize(320, 240));
        QCOMPARE(scene.Picture(), QRect());
        QImage image(101, 50, QImage::Format_RGB32);
        image.fill(Qt::red);
        scene.preview->UpdateView(SolidFrame({40, 40}, Qt::green));
        scene.preview->SetDefaultImage(image);
        QCOMPARE(scene.Picture(), QRect(109, 95, 101, 50));
        scene.preview->UpdateView(SolidFrame({40, 40}, Qt::green));
        scene.preview->UpdateView(nullptr);
        QCOMPARE(scene.Picture(), QRect(109, 95, 101, 50));

        // A larger one is cut; one that was set stays where it is when the size changes.
        scene.preview->SetDefaultImage(image.scaled(400, 400));
        QCOMPARE(scene.Picture(), QRect(0, 0, 320, 240));
        scene.preview->SetDefaultImage(image);
        scene.preview->SetPreviewWidth(500);
        QCOMPARE(scene.Picture(), QRect(109, 95, 101, 50));
        scene.preview->SetDefaultImage(QImage());
        QCOMPARE(scene.Picture(), QRect());
    }

    void framesThatCannotBeReadShowTheDefaultImage()
    {
        Support::LogCapture log;
        Scene scene(QSize(64, 48));
        const auto storage = std::make_shared<std::array<std::uint8_t, 1024>>();
        const StandIn::Plane tooSmall{storage->data(), 32, 500};
        for (const auto pixFmt : {Proc::PixFmt::None, Proc::PixFmt(777), Proc::PixFmt::NV12, Proc::PixFmt::BGRA}) {
            StandIn::FrameFormat format;
            format.pixFmt = pixFmt;
            format.width = format.height = 32;
            scene.preview->UpdateView(SolidFrame({32, 32}, Qt::green));
            scene.preview->UpdateView(StandIn::VideoFrame::Reference(format, {tooSmall, tooSmall, tooSmall}, storage));
            QCOMPARE(scene.Picture(), QRect());
        }
        // The readable BGRA frames between do not go through the converter, so it sees its three in a row.
        QCOMPARE(log.Lines().size(), 2);
    }

    void framesAreOpaque_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::newRow("as large as the preview") << QSize(64, 48);
        QTest::newRow("shrunk") << QSize(128, 96);
    }

    void framesAreOpaque()
    {
        QFETCH(QSize, size);
        VideoPreviewWidget preview(nullptr);
        preview.setAttribute(Qt::WA_TranslucentBackground);
        preview.SetPreviewWidth(64);
        preview.SetPreviewHeight(48);
        preview.UpdateView(SolidFrame(size, QColor(10, 200, 30), 0));
        QImage window(64, 48, QImage::Format_ARGB32_Premultiplied);
        window.fill(Qt::transparent);
        preview.render(&window, QPoint(), QRegion(), QWidget::RenderFlags());
        QCOMPARE(window.pixelColor(32, 24), QColor(10, 200, 30));
    }

    // The GUI thread is busy; of all that came meanwhile the newest frame is painted, at one repaint, and of the others
    // nothing is left.
    void busyGuiThreadPaintsTheNewestFrame()
    {
        Scene scene(QSize(64, 48));
        scene.Grab();
        QCoreApplication::processEvents();
        QVector<QEvent::Type> events;
        const Support::EventSpy watch(scene.preview, [&](QEvent::Type type, QEvent*) { events += type; });
        std::vector<boost::intrusive_ptr<StandIn::VideoFrame>> frames;
        for (int grey = 0; grey < 200; ++grey)
            frames.push_back(GreyFrame({64, 48}, grey));
        for (int round = 1; round <= 2; ++round) {
            std::thread feeder([&] {
                for (int i = 0; i < 5000; ++i)
                    scene.preview->UpdateView(frames[i % 200]);
                scene.preview->UpdateView(SolidFrame({64, 48}, round == 1 ? Qt::magenta : Qt::cyan));
            });
            feeder.join();
            QTRY_COMPARE(events.count(QEvent::Paint), round);
            QCOMPARE(events.count(QEvent::User), round);
        }
        QCOMPARE(scene.Grab().pixelColor(30, 30), QColor(Qt::cyan));
        for (const auto& frame : frames)
            QCOMPARE(frame->GetRefCount(), 1);
    }

    void threadsFeedPaintAndReset()
    {
        Scene scene(QSize(64, 48));
        std::atomic<bool> end{false};
        std::vector<std::thread> feeders;
        for (const Qt::GlobalColor color : {Qt::green, Qt::blue}) {
            feeders.emplace_back([&, size = color == Qt::green ? QSize(64, 48) : QSize(200, 10), color] {
                while (!end) {
                    scene.preview->UpdateView(SolidFrame(size, color));
                    scene.preview->ResetPreview();
                }
            });
        }
        QVector<QColor> odd;
        QElapsedTimer timer;
        for (timer.start(); timer.elapsed() < 500;) {
            const QColor color = scene.Grab().pixelColor(32, 24);
            if (color != BACKGROUND && color != QColor(Qt::green) && color != QColor(Qt::blue))
                odd += color;
            scene.preview->SetPreviewHeight(48);
            QCoreApplication::processEvents();
        }
        end = true;
        for (std::thread& feeder : feeders)
            feeder.join();
        QCOMPARE(odd, QVector<QColor>());
    }

    // Also the window's update request and the paint itself are swallowed once.
    void pictureMovesOnAfterSwallowedEvents()
    {
        Scene scene(QSize(64, 48));
        QCoreApplication::processEvents();
        int paints = 0;
        const Support::EventSpy watch(scene.preview,
                                      [&](QEvent::Type type, QEvent*) { paints += type == QEvent::Paint; });
        const Support::EventSwallower swallower;
        const auto paintsAfterOneMore = [&] {
            std::thread([&] { scene.preview->UpdateView(GreyFrame({64, 48}, 100)); }).join();
            return paints;
        };
        QTRY_VERIFY(paintsAfterOneMore() >= 5);
    }
};

VX_TEST_MAIN(tst_VideoPreviewWidget)
#include "tst_VideoPreviewWidget.moc"
