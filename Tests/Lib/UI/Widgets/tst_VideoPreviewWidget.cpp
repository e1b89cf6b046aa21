#include <UI/Widgets/VideoPreviewWidget.h>

#include <Support/Frames.h>
#include <Support/LogCapture.h>
#include <Support/TestCase.h>

#include <atomic>
#include <chrono>
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
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y) != BACKGROUND)
                    picture |= QRect(x, y, 1, 1);
            }
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
    void pictureIsFittedAndCentred_data()
    {
        QTest::addColumn<QSize>("preview");
        QTest::addColumn<QSize>("frame");
        QTest::addColumn<QRect>("picture");
        QTest::newRow("shrunk") << QSize(320, 240) << QSize(1280, 720) << QRect(0, 30, 320, 180);
        QTest::newRow("small ones keep their size") << QSize(320, 240) << QSize(160, 120) << QRect(80, 60, 160, 120);
        QTest::newRow("one pixel too wide") << QSize(320, 240) << QSize(321, 100) << QRect(0, 70, 320, 99);
        QTest::newRow("one pixel too high") << QSize(320, 240) << QSize(100, 241) << QRect(110, 0, 99, 240);
        QTest::newRow("exact") << QSize(320, 240) << QSize(320, 240) << QRect(0, 0, 320, 240);
        QTest::newRow("an odd rest rounds down") << QSize(301, 240) << QSize(100, 101) << QRect(100, 69, 100, 101);
        QTest::newRow("a line") << QSize(32, 24) << QSize(2000, 1) << QRect(0, 11, 32, 1);
    }

    void pictureIsFittedAndCentred()
    {
        QFETCH(QSize, preview);
        QFETCH(QSize, frame);
        QFETCH(QRect, picture);
        Scene scene(preview);
        QCOMPARE(scene.preview->size(), preview);
        scene.preview->UpdateView(SolidFrame(frame, Qt::green));
        QCOMPARE(scene.Picture(), picture);
        QCOMPARE(scene.Grab().pixelColor(picture.center()), QColor(Qt::green));
        // The picture of a fitting frame is the frame's own memory, not a copy.
        const auto own = SolidFrame(frame, Qt::green);
        scene.preview->UpdateView(own);
        QCOMPARE(own->GetRefCount() > 1, frame == picture.size());
        // Converted frames go the same way.
        scene.preview->UpdateView(GreyFrame(frame, 200));
        QCOMPARE(scene.Picture(), picture);
        QVERIFY(qAbs(scene.Grab().pixelColor(picture.center()).green() - 200) <= 2);
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
        for (const auto pixFmt : {Proc::PixFmt::None, Proc::PixFmt(777), Proc::PixFmt::NV12, Proc::PixFmt::BGRA}) {
            scene.preview->UpdateView(SolidFrame({32, 32}, Qt::green));
            format.pixFmt = pixFmt;
            const StandIn::Plane tooSmall{storage->data(), 32, 500};
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
        struct PaintCounter : QObject
        {
            bool eventFilter(QObject*, QEvent* event) override
            {
                paints += event->type() == QEvent::Paint;
                posted += event->type() == QEvent::User;
                return false;
            }
            int paints = 0;
            int posted = 0;
        } counter;
        Scene scene(QSize(64, 48));
        scene.Grab();
        QCoreApplication::processEvents();
        scene.preview->installEventFilter(&counter);
        std::vector<boost::intrusive_ptr<StandIn::VideoFrame>> frames;
        for (int grey = 0; grey < 256; ++grey)
            frames.push_back(GreyFrame({64, 48}, grey));
        std::thread feeder([&] {
            for (int i = 0; i < 5000; ++i)
                scene.preview->UpdateView(frames[i % 200]);
            scene.preview->UpdateView(SolidFrame({64, 48}, Qt::magenta));
        });
        feeder.join();
        QTRY_COMPARE(counter.paints, 1);
        QCOMPARE(counter.posted, 1);
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
        struct Feeder : QObject
        {
            explicit Feeder(VideoPreviewWidget* preview) : QObject(preview), preview(preview)
            {
                preview->installEventFilter(this);
                thread = std::thread([this] {
                    while (!end)
                        this->preview->UpdateView(GreyFrame({64, 48}, 100));
                });
            }
            ~Feeder() override
            {
                if (thread.joinable())
                    std::terminate();
            }
            bool eventFilter(QObject*, QEvent* event) override
            {
                if (event->type() == QEvent::Destroy) {
                    end = true;
                    thread.join();
                }
                return false;
            }
            VideoPreviewWidget* preview;
            std::atomic<bool> end{false};
            std::thread thread;
        };
        for (int i = 0; i < 50; ++i) {
            auto preview = std::make_unique<VideoPreviewWidget>(nullptr);
            preview->SetPreviewWidth(64);
            new Feeder(preview.get());
            QCoreApplication::processEvents();
        }
    }
};

VX_TEST_MAIN(tst_VideoPreviewWidget)
#include "tst_VideoPreviewWidget.moc"
