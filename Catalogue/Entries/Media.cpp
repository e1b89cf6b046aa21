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

constexpr int PREVIEW_WIDTH = 320;
constexpr int PREVIEW_HEIGHT = 180;
constexpr double TEST_FRAME_RATE = 30;

VideoPreviewWidget* CreatePreview(QWidget* parent)
{
    auto* preview = new VideoPreviewWidget(parent);
    preview->SetPreviewWidth(PREVIEW_WIDTH);
    preview->SetPreviewHeight(PREVIEW_HEIGHT);
    return preview;
}

void DrawDefaultImage(VideoPreviewWidget& preview)
{
    // Applies the text colour of the style sheet to the palette.
    preview.ensurePolished();
    const QColor color = preview.palette().color(QPalette::Text);
    preview.SetDefaultImage(NoPictureImage({PREVIEW_WIDTH, PREVIEW_HEIGHT}, color, EntryText::tr("No picture")));
}

void ShowDefaultImage(VideoPreviewWidget& preview)
{
    DrawDefaultImage(preview);
    AdaptToSurroundings(&preview, [&preview] { DrawDefaultImage(preview); });
}

QWidget* CreatePreviewWithStream(QWidget* parent)
{
    VideoPreviewWidget* preview = CreatePreview(parent);
    ShowDefaultImage(*preview);
    auto* stream = new WebCameraPreviewStream(preview);
    stream->SetDevice(StandIn::CreateTestPictureDevice(), QString(), TEST_FRAME_RATE);
    return preview;
}

State FrameState(const QString& name, const QSize& size)
{
    return MakeState<VideoPreviewWidget>(
        name, [size](VideoPreviewWidget& preview) { preview.UpdateView(ColorBarsFrame(size)); });
}

Entry VideoPreviewEntry()
{
    using Preview = VideoPreviewWidget;
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
            FrameState(EntryText::tr("Large frame"), {1280, 720}),
            FrameState(EntryText::tr("Upright frame"), {720, 1280}),
            FrameState(EntryText::tr("Small frame"), {160, 120}),
            MakeState<Preview>(EntryText::tr("Disabled"),
                               [](Preview& preview) {
                                   preview.UpdateView(ColorBarsFrame({1280, 720}));
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
    return {InForms<VideoPreviewWidget>(VideoPreviewEntry(),
                                        {{"previewWidth", PREVIEW_WIDTH}, {"previewHeight", PREVIEW_HEIGHT}}),
            NotInForms(WebCameraStreamEntry(), "it is not a widget")};
}

} // namespace Zelkor::Catalogue
