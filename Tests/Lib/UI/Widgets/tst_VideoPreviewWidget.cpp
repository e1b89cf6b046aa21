#include <UI/Widgets/VideoPreviewWidget.h>

#include <Support/EventWatch.h>
#include <Support/Frames.h>
#include <Support/LogCapture.h>
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

    // The smallest rectangle around all that is not background.
    QRect Picture() const
    {
        const QImage image = Grab();
        QRect picture;
        for (int i = 0; i < image.width() * image.height(); ++i) {
            const QPoint point(i % image.width(), i / image.width());
            if (image.pixelColor(point) != BACKGROUND)
                picture |= QRect(point, QSize(1, 1));
        }
        return picture;
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
            QCOMPARE(scene.preview->size(), preview);
            const auto own = SolidFrame(frame, Qt::green);
            scene.preview->UpdateView(own);
            QCOMPARE(scene.Picture(), picture);
            QCOMPARE(scene.Grab().pixelColor(picture.center()), QColor(Qt::green));
            // The picture of a fitting frame is the frame's own memory, not a copy.
            QCOMPARE(own->GetRefCount() > 1, frame == picture.size());
            // Converted frames go the same way.
            scene.preview->UpdateView(GreyFrame(frame, 200));
            QCOMPARE(scene.Picture(), picture);
            QVERIFY(qAbs(scene.Grab().pixelColor(picture.center()).green() - 200) <= 2);
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
        QCOMPARE(scene.preview->GetDefaultImage().convertToFormat(image.format()), image);
        scene.preview->UpdateView(SolidFrame({40, 40}, Qt::green));
        QCOMPARE(scene.Picture(), QRect(140, 100, 40, 40));
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
        scene.preview->SetPreviewHeight(-5);
        QCOMPARE(scene.preview->size(), QSize(500, 0));
    }

    void framesThatCannotBeReadShowTheDefaultImage()
    {
        Support::LogCapture log;
        Scene scene(QSize(64, 48));
        StandIn::FrameFormat format;
        format.width = 32;
        format.height = 32;
        const auto storage = std::make_shared<std::array<std::uint8_t, 1024>>();
        const StandIn::Plane tooSmall{storage->data(), 32, 500};
        for (const auto pixFmt : {Proc::PixFmt::None, Proc::PixFmt(777), Proc::PixFmt::NV12, Proc::PixFmt::BGRA}) {
            scene.preview->UpdateView(SolidFrame({32, 32}, Qt::green));
            format.pixFmt = pixFmt;
            scene.preview->UpdateView(StandIn::VideoFrame::Reference(format, {tooSmall, tooSmall, tooSmall}, storage));
            QCOMPARE(scene.Picture(), QRect());
        }
        // The readable BGRA frames between do not go through the converter, so it sees its three in a row.
        QCOMPARE(log.Lines().size(), 2);
    }

    // The GUI thread is busy; of all that came meanwhile the newest frame is painted, at one repaint, and of the others
    // nothing is left.
    void busyGuiThreadPaintsTheNewestFrame()
    {
        Scene scene(QSize(64, 48));
        scene.Grab();
        QCoreApplication::processEvents();
        QVector<QEvent::Type> events;
        const Support::EventWatch watch(scene.preview, [&](QEvent::Type type, QEvent*) { events += type; });
        std::vector<boost::intrusive_ptr<StandIn::VideoFrame>> frames;
        for (int grey = 0; grey < 200; ++grey)
            frames.push_back(GreyFrame({64, 48}, grey));
        std::thread feeder([&] {
            for (int i = 0; i < 5000; ++i)
                scene.preview->UpdateView(frames[i % 200]);
            scene.preview->UpdateView(SolidFrame({64, 48}, Qt::magenta));
        });
        feeder.join();
        QTRY_COMPARE(events.count(QEvent::Paint), 1);
        QCOMPARE(events.count(QEvent::User), 1);
        QCOMPARE(scene.Grab().pixelColor(30, 30), QColor(Qt::magenta));
        for (const auto& frame : frames)
            QCOMPARE(frame->GetRefCount(), 1);
    }

    void threadsFeedPaintAndReset()
    {
        Scene scene(QSize(64, 48));
        std::atomic<bool> end{false};
        const auto feed = [&](const QColor& color, const QSize& size) {
            while (!end) {
                scene.preview->UpdateView(SolidFrame(size, color));
                scene.preview->ResetPreview();
            }
        };
        std::thread first(feed, QColor(Qt::green), QSize(64, 48));
        std::thread second(feed, QColor(Qt::blue), QSize(200, 10));
        QElapsedTimer timer;
        timer.start();
        bool sound = true;
        while (timer.elapsed() < 500) {
            const QColor color = scene.Grab().pixelColor(32, 24);
            sound &= color == BACKGROUND || color == QColor(Qt::green) || color == QColor(Qt::blue);
            scene.preview->SetPreviewHeight(48);
            QCoreApplication::processEvents();
        }
        end = true;
        first.join();
        second.join();
        QVERIFY(sound);
    }

    void feederLearnsOfTheEndWhileFramesAreTaken()
    {
        for (int i = 0; i < 50; ++i) {
            auto preview = std::make_unique<VideoPreviewWidget>(nullptr);
            preview->SetPreviewWidth(64);
            std::atomic<bool> end{false};
            std::thread feeder([&end, view = preview.get()] {
                while (!end)
                    view->UpdateView(GreyFrame({64, 48}, 100));
            });
            const Support::EventWatch watch(preview.get(), [&](QEvent::Type type, QEvent*) {
                if (type == QEvent::Destroy && !end.exchange(true)) // each class of a widget tells its end
                    feeder.join();
            });
            QCoreApplication::processEvents();
            preview.reset();
            QVERIFY(!feeder.joinable());
        }
    }
};

VX_TEST_MAIN(tst_VideoPreviewWidget)
#include "tst_VideoPreviewWidget.moc"
