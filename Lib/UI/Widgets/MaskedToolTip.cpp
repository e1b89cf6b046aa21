#include <UI/Widgets/MaskedToolTip.h>

#include <UI/Common/AccessibleFactory.h>
#include <UI/Common/BoxLayouts.h>
#include <UI/Common/ClampToWidgetSize.h>
#include <UI/Common/PlainLook.h>
#include <UI/Common/WaylandPopUp.h>

#include <QApplication>
#include <QBitmap>
#include <QEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>
#include <QWindow>

namespace Zelkor::Vx::UI {

namespace {

QLabel* MakeLabel(const char* objectName, QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setObjectName(QLatin1String(objectName));
    return label;
}

void SetTextOrHide(QLabel* label, const QString& text)
{
    if (text.isEmpty())
        label->hide();
    else
        label->setText(text);
}

// Returns a bitmap whose set bits are the pixels of the image with more than half opacity.
QBitmap OpaquePart(const QImage& image)
{
    // A mask is in logical pixels, so an image with a device pixel ratio is scaled.
    const QSize size = (QSizeF(image.size()) / image.devicePixelRatio()).toSize();
    QImage alpha = (size == image.size() ? image : image.scaled(size)).convertToFormat(QImage::Format_Alpha8);
    alpha.setDevicePixelRatio(1);
    alpha.reinterpretAsFormat(QImage::Format_Grayscale8);
    QImage bits = alpha.convertToFormat(QImage::Format_Mono, Qt::MonoOnly | Qt::ThresholdDither);
    bits.invertPixels(QImage::InvertRgb);
    return QBitmap::fromImage(bits);
}

bool IsIn(const QObject* part, const QWindow* window)
{
    while (part && part != window)
        part = part->parent();
    return part;
}

/// Uses the title, or else the text, as accessible name, unless the application sets one.
class AccessibleToolTip : public QAccessibleWidget
{
public:
    explicit AccessibleToolTip(MaskedToolTip* tip) : QAccessibleWidget(tip, QAccessible::ToolTip), tip(tip) {}

    QString text(QAccessible::Text kind) const override
    {
        const QString own = QAccessibleWidget::text(kind);
        if (!own.isEmpty())
            return own;
        const bool hasTitle = !tip->GetTitle().isEmpty();
        if (kind == QAccessible::Name)
            return hasTitle ? tip->GetTitle() : tip->GetText();
        return kind == QAccessible::Description && hasTitle ? tip->GetText() : QString();
    }

private:
    MaskedToolTip* tip;
};

} // namespace

// On Wayland, only pop-ups and tool tips have a position, relative to the parent's window.
MaskedToolTip::MaskedToolTip(QWidget* parent)
    : ZFrame(parent,
             (Common::IsWayland() ? Qt::ToolTip : Qt::Dialog) | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint),
      titleLabel(MakeLabel("titleLabel", this)), textLabel(MakeLabel("textLabel", this))
{
    Common::AccessibleFactory<MaskedToolTip, AccessibleToolTip>::Install();
    setObjectName(QStringLiteral("MaskedToolTip"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    if (Common::IsWayland()) {
        // A mask does not shape a window there, so paintEvent() does.
        setAttribute(Qt::WA_TranslucentBackground);
        setAttribute(Qt::WA_NoSystemBackground, false);
    }
    auto* layout = Common::MakeBoxLayout<QVBoxLayout>(this);
    layout->addWidget(titleLabel);
    layout->addWidget(textLabel);
    Common::SetPlainMargins(this, [this] {
        const int gap = Common::PlainGap(*this);
        return QMargins(gap, gap / 2, gap, gap / 2);
    });
}

MaskedToolTip::~MaskedToolTip() = default;

void MaskedToolTip::Show(const QPoint& globalPos)
{
    ensurePolished();
    SetTextOrHide(titleLabel, title);
    SetTextOrHide(textLabel, text);
    if (maskImage.isNull())
        clearMask();
    else
        setMask(OpaquePart(maskImage));
    // Visible labels can only enlarge the window. Keeps a size that the application has set.
    if (!testAttribute(Qt::WA_Resized)) {
        adjustSize();
        setAttribute(Qt::WA_Resized, false);
    }
    if (displayTime > 0)
        QTimer::singleShot(displayTime, this, &QWidget::close);
    // A mapped window does not move on Wayland.
    if (Common::IsWayland())
        hide();
    const QPoint point = globalPos + QPoint(Common::ClampToWidgetSize(offsetX), Common::ClampToWidgetSize(offsetY));
    // For a window that was moved while it was hidden, mapFromGlobal() uses the position before.
    move(isWindow() ? point - pos() : mapFromGlobal(point));
    activeAtShow = QApplication::activeWindow();
    show();
    QCoreApplication::instance()->installEventFilter(this);
}

// Watches all windows while the tip is visible: a press may reach a native child of the followed one.
bool MaskedToolTip::eventFilter(QObject* watched, QEvent* event)
{
    if (!isVisible() || !isWindow()) {
        QCoreApplication::instance()->removeEventFilter(this);
        return false;
    }
    const QWidget* followed = parentWidget() ? parentWidget()->window() : activeAtShow.data();
    if (!followed)
        return false;
    if (watched == followed && event->type() == QEvent::Move && !Common::IsWayland()) {
        const auto* moved = static_cast<QMoveEvent*>(event);
        move(pos() + moved->pos() - moved->oldPos());
    }
    // On Wayland, the tip disappears with its window and would not come back with it.
    const bool isHidden = watched == followed && event->type() == QEvent::Hide;
    const bool isLeft = watched == followed && event->type() == QEvent::WindowDeactivate && !isActiveWindow();
    // The window remains active while the tip is shown, so a press in it counts as its activation.
    const bool isPressed =
        event->type() == QEvent::MouseButtonPress && watched->isWindowType() && IsIn(watched, followed->windowHandle());
    if (isHidden || (hideOnDeactivate && (isLeft || isPressed)))
        close();
    return false;
}

void MaskedToolTip::paintEvent(QPaintEvent* event)
{
    ZFrame::paintEvent(event);
    if (mask().isEmpty() && !Common::HasStyleSheet(*this)) {
        QPainter painter(this);
        painter.setPen(palette().color(QPalette::Mid));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
    if (!Common::IsWayland() || mask().isEmpty())
        return;
    QPainter painter(this);
    painter.setCompositionMode(QPainter::CompositionMode_Clear);
    for (const QRect& outside : QRegion(rect()) - mask())
        painter.fillRect(outside, Qt::transparent);
}

void MaskedToolTip::changeEvent(QEvent* event)
{
    ZFrame::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && hideOnDeactivate && !isActiveWindow())
        close();
}

void MaskedToolTip::mousePressEvent(QMouseEvent* event)
{
    event->accept();
    close();
}

} // namespace Zelkor::Vx::UI
