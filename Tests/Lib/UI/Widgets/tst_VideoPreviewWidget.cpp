#include <UI/Widgets/VideoPreviewWidget.h>

#include <Support/EventSpy.h>
#include <Support/Frames.h>
#include <Support/Picture.h>
#include <Support/TestCase.h>

#include <thread>

using namespace Zelkor;
using Support::GreyFrame;
using Support::SolidFrame;

namespace {

const QColor BACKGROUND(10, 20, 30);

struct Preview : Vx::UI::VideoPreviewWidget
{
    explicit Preview(const QSize& size) : VideoPreviewWidget(nullptr)
    {
        setPalette(BACKGROUND);
        SetPreviewWidth(size.width());
        SetPreviewHeight(size.height());
        show();
    }

    QRect Picture()
    {
        return Support::InkOf(grab().toImage(), [](const QColor& color) { return color != BACKGROUND; });
    }
};

} // namespace

class tst_VideoPreviewWidget : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void frameIsScaledAndCentred()
    {
        const auto pictureOf = [](const QSize& size) {
            Preview preview({320, 240});
            preview.UpdateView(GreyFrame(size, 200));
            const QRect picture = preview.Picture();
            const int grey = preview.grab().toImage().pixelColor(picture.center()).green();
            const auto frame = SolidFrame(size, Qt::green);
            preview.UpdateView(frame);
            [&] { QVERIFY(qAbs(grey - 200) <= 2); }();
            [&] { QCOMPARE(preview.Picture(), picture); }();
            [&] { QCOMPARE(frame->GetRefCount() > 1, size == picture.size()); }(); // drawn from its memory
            return picture;
        };
        QCOMPARE(pictureOf({1280, 720}), QRect(0, 30, 320, 180));
        QCOMPARE(pictureOf({321, 100}), QRect(0, 70, 320, 99));
        QCOMPARE(pictureOf({100, 241}), QRect(110, 0, 99, 240));
        QCOMPARE(pictureOf({320, 240}), QRect(0, 0, 320, 240));
        QCOMPARE(pictureOf({101, 101}), QRect(109, 69, 101, 101));
    }

    void defaultImageIsShownWithoutAFrame()
    {
        Preview preview({320, 240});
        QImage image(101, 50, QImage::Format_RGB32);
        image.fill(Qt::red);
        preview.UpdateView(SolidFrame({40, 40}, Qt::green));
        preview.SetDefaultImage(image);
        QCOMPARE(preview.Picture(), QRect(109, 95, 101, 50));
        preview.UpdateView(SolidFrame({40, 40}, Qt::green));
        preview.UpdateView(nullptr);
        preview.SetPreviewWidth(500); // for the next image
        QCOMPARE(preview.Picture(), QRect(109, 95, 101, 50));
        preview.SetDefaultImage(image.scaled(600, 400));
        QCOMPARE(preview.Picture(), QRect(0, 0, 500, 240));
        preview.SetDefaultImage(QImage());
        QCOMPARE(preview.Picture(), QRect());
    }

    void unreadableFrameShowsTheDefaultImage()
    {
        Preview preview({64, 48});
        const auto storage = std::make_shared<std::array<std::uint8_t, 1024>>();
        const StandIn::Plane tooSmall{storage->data(), 32, 500};
        for (const auto pixFmt : {Proc::PixFmt(777), Proc::PixFmt::NV12, Proc::PixFmt::BGRA}) {
            preview.UpdateView(SolidFrame({32, 32}, Qt::green));
            preview.UpdateView(
                StandIn::VideoFrame::Reference({pixFmt, 32, 32}, {tooSmall, tooSmall, tooSmall}, storage));
            QCOMPARE(preview.Picture(), QRect());
        }
    }

    void busyGuiThreadPaintsTheNewestFrame()
    {
        Preview preview({64, 48});
        preview.grab();
        QCoreApplication::processEvents();
        QVector<QEvent::Type> events;
        const Support::EventSpy spy(&preview, [&](auto type, auto) { events += type; });
        const auto frame = GreyFrame({64, 48}, 100);
        for (int round = 1; round <= 2; ++round) {
            std::thread([&] {
                for (int i = 0; i < 1000; ++i)
                    preview.UpdateView(frame);
                preview.UpdateView(SolidFrame({64, 48}, round == 1 ? Qt::magenta : Qt::cyan, 0)); // alpha is ignored
            }).join();
            QTRY_COMPARE(events.count(QEvent::Paint), round);
            QCOMPARE(events.count(QEvent::User), round);
        }
        QCOMPARE(preview.grab().toImage().pixelColor(30, 30), QColor(Qt::cyan));
        QCOMPARE(frame->GetRefCount(), 1);
    }
};

VX_TEST_MAIN(tst_VideoPreviewWidget)
#include "tst_VideoPreviewWidget.moc"
