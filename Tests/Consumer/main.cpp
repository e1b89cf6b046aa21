#include <UI/Kit/ZLabel.h>
#include <UI/Kit/ZStyleSheet.h>
#include <UI/Widgets/VideoPreviewWidget.h>

#include <Zelkor/StandIn/VideoFrame.h>
#include <Zelkor/Util/ImageUtils.h>

#include <QApplication>
#include <QVBoxLayout>

#include <iostream>

using namespace Zelkor;

// Returns a frame of one colour.
static boost::intrusive_ptr<Proc::IDataVideo> MakeFrame(const QSize& size, const QColor& color)
{
    const StandIn::FrameFormat format{Proc::PixFmt::BGRA, size.width(), size.height()};
    return StandIn::VideoFrame::Create(format, [&](const auto& data, const auto& strides) {
        QImage(data[0], size.width(), size.height(), strides[0], QImage::Format_RGB32).fill(color);
    });
}

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    const QSize size(64, 48);
    const auto frame = MakeFrame(size, Qt::darkCyan);

    // Uses an exported widget, a control of the kit, and the host's conversion of frames to images.
    QWidget window;
    QVBoxLayout layout(&window);
    Vx::UI::VideoPreviewWidget preview(&window);
    preview.SetPreviewWidth(size.width());
    preview.SetPreviewHeight(size.height());
    preview.UpdateView(frame);
    ZLabel label;
    label.setOriginalText(QStringLiteral("A frame of the host in a widget of the library"));
    layout.addWidget(&preview);
    layout.addWidget(&label);

    const QRgb wanted = Util::ImageUtils().FrameToImage(frame).pixel(0, 0);
    const QRgb shown = preview.grab().toImage().pixel(size.width() / 2, size.height() / 2);
    std::cout << label.originalText().toStdString() << ": " << QColor(shown).name().toStdString() << std::endl;

#ifdef VX_WITH_STYLE_SHEET
    // The template in the colours of the application's palette file, with its icons.
    if (!ZStyleSheet::applyFile(":/Styles/Brand.qss") || ZStyleSheet::icon("camera").pixmap(16).isNull() ||
        QApplication::palette().color(QPalette::Link) != QColor("#7a3db8"))
        return 1;
#endif
    return shown == wanted && wanted == QColor(Qt::darkCyan).rgb() ? 0 : 1;
}
