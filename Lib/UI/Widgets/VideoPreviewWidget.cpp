#include <UI/Widgets/VideoPreviewWidget.h>

#include <UI/Common/AccessibleFactory.h>
#include <UI/Common/GuiThreadCall.h>
#include <UI/Widgets/PreviewFeeder.h>

#include <Zelkor/Core/CoreManager.h>
#include <Zelkor/Proc/ImplNames.h>
#include <Zelkor/Proc/SettingsColorspaceConverter.h>
#include <Zelkor/Util/ImageUtils.h>

#include <QPainter>
#include <QPixmap>
#include <QThread>

#include <algorithm>
#include <array>
#include <mutex>
#include <utility>

namespace Zelkor::Vx::UI {

namespace {

constexpr Proc::PixFmt DISPLAY_FORMAT = Proc::PixFmt::BGRA;

// Returns a rectangle centred in the area, or at its top left corner if larger.
QRect CenteredRect(const QSize& area, const QSize& size)
{
    return QRect(QPoint(qMax(0, area.width() - size.width()) / 2, qMax(0, area.height() - size.height()) / 2), size);
}

bool Exceeds(const QSize& size, const QSize& area)
{
    return size.width() > area.width() || size.height() > area.height();
}

// Makes the picture of a frame opaque. The fourth byte of its pixels is undefined, and would make holes in a window
// with a translucent background.
QImage Opaque(QImage image)
{
    if (image.hasAlphaChannel())
        return std::move(image).convertToFormat(QImage::Format_RGB32);
    if (image.format() != QImage::Format_RGB32)
        return image;
    constexpr QRgb ALPHA = 0xff000000;
    constexpr int STEP = 16; // constant, so that the compiler vectorises the loop
    std::array<QRgb, STEP> common;
    common.fill(ALPHA);
    for (int y = 0; y < image.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        int x = 0;
        for (; x + STEP <= image.width(); x += STEP) {
            for (int i = 0; i < STEP; ++i)
                common[i] &= row[x + i];
        }
        for (; x < image.width(); ++x)
            common[0] &= row[x];
    }
    // The usual case, in which a picture that fits is not copied.
    if (std::all_of(common.begin(), common.end(), [](QRgb pixels) { return pixels == ALPHA; }))
        return image;
    for (int y = 0; y < image.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x)
            row[x] |= ALPHA;
    }
    return image;
}

class AccessibleVideo : public Common::AccessibleAs<QAccessible::Graphic>
{
public:
    using AccessibleAs::AccessibleAs;

    QString text(QAccessible::Text kind) const override
    {
        QString own = AccessibleAs::text(kind);
        return kind == QAccessible::Name && own.isEmpty() ? VideoPreviewWidget::tr("Video preview") : own;
    }
};

} // namespace

struct VideoPreviewWidget::Impl
{
    explicit Impl(VideoPreviewWidget* widget);

    QSize Area() const;
    void SetArea(const QSize& size);
    QImage Convert(boost::intrusive_ptr<Proc::IDataVideo> frame);
    void SetFrame(QPixmap pixmap, const QRect& rect);
    void RequestRepaint();
    void Repaint();

    VideoPreviewWidget* widget;

    mutable std::mutex pictureMutex; ///< guards the members up to the next mutex
    QRect previewRect = QRect(0, 0, 0, 0);
    QPixmap framePixmap;
    QRect frameRect;
    unsigned revision = 0; ///< incremented by each picture and each size

    std::mutex converterMutex; ///< held during a conversion, since several threads may feed
    boost::intrusive_ptr<Proc::IEffect> converter;
    Zelkor::Util::ImageUtils imageUtils;

    QPixmap defaultPixmap; ///< this and the members below: GUI thread only
    QRect defaultRect;

    bool awaitsPaint = false; ///< a picture of another thread has not been painted yet
    Common::GuiThreadCall repaint;
};

VideoPreviewWidget::Impl::Impl(VideoPreviewWidget* widget) : widget(widget), repaint(widget, [this] { Repaint(); })
{
    const auto factory = Core::CoreManager::Instance().GetEffectFactory();
    factory->CreateEffect(converter, Proc::SettingsColorspaceConverter::CLASS_ID, Proc::ImplNames::DEFAULT, nullptr);
    if (converter)
        converter->ApplySettings(Proc::SettingsColorspaceConverter(DISPLAY_FORMAT, true));
}

QSize VideoPreviewWidget::Impl::Area() const
{
    const std::lock_guard<std::mutex> lock(pictureMutex);
    return previewRect.size();
}

void VideoPreviewWidget::Impl::SetArea(const QSize& size)
{
    const std::lock_guard<std::mutex> lock(pictureMutex);
    previewRect.setSize(size);
    ++revision;
}

QImage VideoPreviewWidget::Impl::Convert(boost::intrusive_ptr<Proc::IDataVideo> frame)
{
    const std::lock_guard<std::mutex> lock(converterMutex);
    if (frame->GetPixelFormat() != DISPLAY_FORMAT) {
        if (!converter)
            return QImage();
        converter->Process(frame);
    }
    return imageUtils.FrameToImage(frame);
}

void VideoPreviewWidget::Impl::SetFrame(QPixmap pixmap, const QRect& rect)
{
    {
        // The argument frees the old pixmap after the lock.
        const std::lock_guard<std::mutex> lock(pictureMutex);
        framePixmap.swap(pixmap);
        frameRect = rect;
        ++revision;
    }
    RequestRepaint();
}

// QWidget::update() is limited to the GUI thread. Requests of other threads are merged into one, so that memory does
// not grow while the GUI thread is busy.
void VideoPreviewWidget::Impl::RequestRepaint()
{
    if (QThread::currentThread() == widget->thread())
        widget->update();
    else
        repaint.Request();
}

// Qt posts no further update request for a window until the last one is delivered. If the last picture has not been
// painted yet, an event filter may have swallowed that request; repaint() does not need one.
void VideoPreviewWidget::Impl::Repaint()
{
    if (std::exchange(awaitsPaint, true))
        widget->repaint();
    else
        widget->update();
}

VideoPreviewWidget::VideoPreviewWidget(QWidget* parent) : QFrame(parent), impl(std::make_unique<Impl>(this))
{
    Common::AccessibleFactory<VideoPreviewWidget, AccessibleVideo>::Install();
}

VideoPreviewWidget::~VideoPreviewWidget()
{
    PreviewFeeder::EndAllOf(this);
    impl->repaint.Cancel();
}

int VideoPreviewWidget::GetPreviewWidth() const
{
    return impl->Area().width();
}

void VideoPreviewWidget::SetPreviewWidth(int width)
{
    const int possible = qBound(0, width, QWIDGETSIZE_MAX);
    impl->SetArea(QSize(possible, GetPreviewHeight()));
    setMinimumWidth(possible);
    setMaximumWidth(possible);
}

int VideoPreviewWidget::GetPreviewHeight() const
{
    return impl->Area().height();
}

void VideoPreviewWidget::SetPreviewHeight(int height)
{
    const int possible = qBound(0, height, QWIDGETSIZE_MAX);
    impl->SetArea(QSize(GetPreviewWidth(), possible));
    setMinimumHeight(possible);
    setMaximumHeight(possible);
}

QImage VideoPreviewWidget::GetDefaultImage() const
{
    return impl->defaultPixmap.toImage();
}

void VideoPreviewWidget::SetDefaultImage(QImage image)
{
    impl->defaultPixmap = QPixmap::fromImage(std::move(image));
    impl->defaultRect = CenteredRect(impl->Area(), impl->defaultPixmap.size());
    ResetPreview();
}

void VideoPreviewWidget::ResetPreview()
{
    impl->SetFrame(QPixmap(), QRect());
}

void VideoPreviewWidget::UpdateView(const boost::intrusive_ptr<Proc::IDataVideo>& frame)
{
    if (!frame) {
        ResetPreview();
        return;
    }
    QImage image = impl->Convert(frame);
    const QSize area = impl->Area();
    if (Exceeds(image.size(), area))
        image = image.scaled(area, Qt::KeepAspectRatio, Qt::FastTransformation);
    QPixmap pixmap = QPixmap::fromImage(Opaque(std::move(image)));
    const QRect rect = CenteredRect(area, pixmap.size());
    impl->SetFrame(std::move(pixmap), rect);
}

/// Returns a number that changes with the picture and the size of the area. Any thread.
unsigned VideoPreviewWidget::GetRevision() const
{
    const std::lock_guard<std::mutex> lock(impl->pictureMutex);
    return impl->revision;
}

void VideoPreviewWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    impl->awaitsPaint = false;
    // Held while drawing, so that a feeder cannot free the picture.
    const std::lock_guard<std::mutex> lock(impl->pictureMutex);
    if (!impl->framePixmap.isNull())
        painter.drawPixmap(impl->frameRect, impl->framePixmap);
    else if (!impl->defaultPixmap.isNull())
        painter.drawPixmap(impl->defaultRect, impl->defaultPixmap);
}

} // namespace Zelkor::Vx::UI
