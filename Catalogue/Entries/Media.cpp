#include <Catalogue/Catalogue.h>
#include <Catalogue/SamplePictures.h>
#include <Examples/Support/Artwork.h>
#include <Examples/Support/WidgetTexts.h>
#include <UI/Widgets/VideoPreviewWidget.h>
#include <UI/Widgets/WebCameraPreviewStream.h>

#include <Zelkor/StandIn/CaptureDevice.h>

using Zelkor::Vx::WebCameraPreviewStream;
using Zelkor::Vx::UI::VideoPreviewWidget;

namespace Zelkor::Catalogue {

using namespace Examples;

namespace {

constexpr QSize PREVIEW_SIZE(320, 180);
constexpr double TEST_FRAME_RATE = 30;

QWidget* CreatePreview(QWidget* parent)
{
    auto* preview = new VideoPreviewWidget(parent);
    preview->SetPreviewWidth(PREVIEW_SIZE.width());
    preview->SetPreviewHeight(PREVIEW_SIZE.height());
    return preview;
}

void DrawDefaultImage(VideoPreviewWidget& preview)
{
    // Applies the text colour of the style sheet to the palette.
    preview.ensurePolished();
    preview.SetDefaultImage(
        NoPictureImage(PREVIEW_SIZE, preview.palette().color(QPalette::Text), EntryText::tr("No picture")));
}

void ShowDefaultImage(VideoPreviewWidget& preview)
{
    DrawDefaultImage(preview);
    AdaptToSurroundings(&preview, [&preview] { DrawDefaultImage(preview); });
}

QWidget* CreatePreviewWithStream(QWidget* parent)
{
    auto* preview = static_cast<VideoPreviewWidget*>(CreatePreview(parent));
    ShowDefaultImage(*preview);
    auto* stream = new WebCameraPreviewStream(preview);
    stream->SetDevice(StandIn::CreateTestPictureDevice(), QString(), TEST_FRAME_RATE);
    return preview;
}

Entry VideoPreviewEntry()
{
    using Preview = VideoPreviewWidget;
    const auto showFrame = [](const QSize& size) {
        return [size](Preview& preview) { preview.UpdateView(ColorBarsFrame(size)); };
    };
    return {
        "VideoPreviewWidget",
        EntryText::tr("Media"),
        EntryText::tr("Shows live video frames in an area of fixed size."),
        "VideoPreviewWidget",
        "picture",
        CreatePreview,
        {
            MakeState<Preview>(EntryText::tr("Empty"), [](Preview&) {}),
            MakeState<Preview>(EntryText::tr("Default image"), ShowDefaultImage),
            MakeState<Preview>(EntryText::tr("Large frame"), showFrame({1280, 720})),
            MakeState<Preview>(EntryText::tr("Upright frame"), showFrame({720, 1280})),
            MakeState<Preview>(EntryText::tr("Small frame"), showFrame({160, 120})),
            MakeState<Preview>(EntryText::tr("Disabled"),
                               [showFrame](Preview& preview) {
                                   showFrame({1280, 720})(preview);
                                   preview.setEnabled(false);
                               }),
        },
        nullptr,
        2,
    };
}

Entry WebCameraStreamEntry()
{
    using Preview = VideoPreviewWidget;
    return {
        "WebCameraPreviewStream",
        EntryText::tr("Media"),
        EntryText::tr("Runs the live picture of a capture device in a preview; here, of the moving test picture."),
        "VideoPreviewWidget",
        "stream",
        CreatePreviewWithStream,
        {
            MakeState<Preview>(EntryText::tr("Stopped"), [](Preview&) {}),
            MakeState<Preview>(EntryText::tr("Live"),
                               [](Preview& preview) { preview.findChild<WebCameraPreviewStream*>()->StartStream(); }),
        },
        [](QWidget* parent) -> QObject* { return new WebCameraPreviewStream(new VideoPreviewWidget(parent)); },
        1,
    };
}

} // namespace

QVector<Entry> MediaEntries()
{
    return {InForms<VideoPreviewWidget>(VideoPreviewEntry(), {{"previewWidth", PREVIEW_SIZE.width()},
                                                              {"previewHeight", PREVIEW_SIZE.height()}}),
            NotInForms(WebCameraStreamEntry(), "it is not a widget")};
}

} // namespace Zelkor::Catalogue
