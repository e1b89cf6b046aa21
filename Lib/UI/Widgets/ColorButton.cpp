#include <UI/Widgets/ColorButton.h>

#include <UI/Common/MirroredStyle.h>

#include <Zelkor/Util/WidgetStyle.h>

#include <QApplication>
#include <QColorDialog>
#include <QDialogButtonBox>
#include <QPainter>
#include <QPointer>
#include <QStyleOptionButton>

#include <cmath>

namespace Zelkor::Vx {

namespace {

// Pixels between the square and the edges of the button: 16 at the right, 6 above, 8 below.
constexpr int RIGHT_SPACE = 16;
constexpr int TOP_SPACE = 6;
constexpr int VERTICAL_SPACE = 14;

QRect DefaultColorRect(const QSize& button)
{
    const int side = button.height() - VERTICAL_SPACE;
    return QRect(button.width() - RIGHT_SPACE - side, TOP_SPACE, side, side);
}

constexpr int TEXT_SPACE = 4; ///< minimum distance between text and square

// Clamps, since QColor stores alpha in 16 bits and a quotient may exceed 1 by rounding.
QColor WithAlpha(QColor color, double alpha)
{
    color.setAlphaF(qBound(0.0, alpha, 1.0));
    return color;
}

// Qt closes open pop-ups while it shows a modal dialog. Closing them earlier keeps their handlers from reaching a
// dialog that is half shown.
void ClosePopUps()
{
    while (QWidget* popUp = QApplication::activePopupWidget()) {
        if (!popUp->close())
            return;
    }
}

} // namespace

struct ColorButton::Impl
{
    double MaximumAlpha() const { return std::isnan(maximumAlpha) ? 1.0 : qBound(0.0, maximumAlpha, 1.0); }
    bool IsLimited() const { return alphaEnabled && MaximumAlpha() < 1.0; }

    void ClampAlpha()
    {
        if (alphaEnabled && color.alphaF() > MaximumAlpha())
            color = WithAlpha(color, MaximumAlpha());
    }

    // Scales 0..maximum to the whole range of the dialog.
    QColor ToDialog() const
    {
        if (!IsLimited())
            return color;
        return WithAlpha(color, MaximumAlpha() > 0 ? color.alphaF() / MaximumAlpha() : 0.0);
    }

    QColor FromDialog(const QColor& chosen) const
    {
        return IsLimited() ? WithAlpha(chosen, chosen.alphaF() * MaximumAlpha()) : chosen;
    }

    // Returns whether the dialog was accepted. Shows the dialog before entering its event loop, since closing or
    // deleting it earlier would not end the loop.
    static bool RunDialog(ColorButton& button)
    {
        const QPointer<ColorButton> self(&button);
        const QPointer<QColorDialog> dialog(button.impl->dialog);
        if (dialog && dialog->isEnabled())
            dialog->show();
        if (!self || !dialog)
            return false;
        if (!dialog->isVisible() || !dialog->isEnabled()) {
            // Its window is mapped nevertheless, and blocks the other windows.
            delete dialog;
            return false;
        }
        button.impl->isDialogShown = true;
        const bool isAccepted = dialog->exec() == QDialog::Accepted;
        if (self)
            button.impl->isDialogShown = false;
        return isAccepted && dialog;
    }

    QColor color = Qt::red;
    QRect colorRect;
    bool colorRectSet = false;
    bool alphaEnabled = false;
    double maximumAlpha = 1.0;
    QColor borderNormal = Qt::darkGray;
    QColor borderDisabled = Qt::lightGray;
    QPointer<QColorDialog> dialog; ///< from the click until it has closed
    bool isDialogShown = false;    ///< if so, hiding or disabling the button closes it
};

ColorButton::ColorButton(QWidget* parent) : QPushButton(parent), impl(std::make_unique<Impl>())
{
    UI::Common::FollowLayoutDirection();
    UpdateColorRect();
    connect(this, &QAbstractButton::clicked, this, &ColorButton::ChooseColor);
}

ColorButton::~ColorButton() = default;

QColor ColorButton::GetColor() const
{
    return impl->color;
}

void ColorButton::SetColor(const QColor& color)
{
    if (color == impl->color)
        return;
    impl->color = color;
    impl->ClampAlpha();
    repaint();
    Q_EMIT ColorChanged(impl->color);
}

bool ColorButton::IsAlphaEnabled() const
{
    return impl->alphaEnabled;
}

void ColorButton::SetAlphaEnabled(bool enabled)
{
    impl->alphaEnabled = enabled;
}

double ColorButton::GetMaximumAlpha() const
{
    return impl->maximumAlpha;
}

void ColorButton::SetMaximumAlpha(double alpha)
{
    impl->maximumAlpha = alpha;
}

QRect ColorButton::GetColorRect() const
{
    return impl->colorRect;
}

void ColorButton::SetColorRect(const QRect& rect)
{
    impl->colorRect = rect;
    impl->colorRectSet = true;
    repaint();
}

QColor ColorButton::GetColorRectBorderNormal() const
{
    return impl->borderNormal;
}

void ColorButton::SetColorRectBorderNormal(const QColor& color)
{
    impl->borderNormal = color;
}

QColor ColorButton::GetColorRectBorderDisabled() const
{
    return impl->borderDisabled;
}

void ColorButton::SetColorRectBorderDisabled(const QColor& color)
{
    impl->borderDisabled = color;
}

void ColorButton::ChooseColor()
{
    if (impl->dialog)
        return;
    // Any slot may delete the button.
    const QPointer<ColorButton> self(this);
    impl->ClampAlpha();
    auto* dialog = new QColorDialog(this);
    impl->dialog = dialog;
    dialog->setModal(true);
    dialog->setOption(QColorDialog::ShowAlphaChannel, impl->alphaEnabled);
    dialog->setCurrentColor(impl->ToDialog());
    if (const auto* buttons = dialog->findChild<QDialogButtonBox*>())
        Zelkor::Util::ApplyWidgetStyle(buttons->button(QDialogButtonBox::Ok), QStringLiteral("Ok"), "SubStyle");

    ClosePopUps();
    if (self)
        Q_EMIT ColorDialogWillBeOpened();
    if (!self)
        return;
    const bool isAccepted = Impl::RunDialog(*this);
    if (self && isAccepted) {
        impl->color = impl->FromDialog(impl->dialog->selectedColor());
        repaint();
        Q_EMIT ColorChanged(impl->color);
    }
    if (self)
        Q_EMIT ColorDialogClosed();
    if (self && impl->dialog) {
        impl->dialog->deleteLater();
        impl->dialog = nullptr;
    }
}

// Keeps the text clear of the square, unless the application has placed the square.
QSize ColorButton::sizeHint() const
{
    const QSize hint = QPushButton::sizeHint();
    if (impl->colorRectSet || text().isEmpty())
        return hint;
    QStyleOptionButton option;
    initStyleOption(&option);
    option.rect = QRect(QPoint(), hint);
    const QRect contents = style()->subElementRect(QStyle::SE_PushButtonContents, &option, this);
    int width = fontMetrics().size(Qt::TextShowMnemonic, text()).width();
    if (!icon().isNull())
        width += iconSize().width() + TEXT_SPACE;
    const int textRight = contents.center().x() + (width + 1) / 2;
    const int covered = textRight + TEXT_SPACE - DefaultColorRect(hint).left();
    // Text is centred, so only half of the extra width is to its right.
    return covered > 0 ? hint + QSize(2 * covered, 0) : hint;
}

void ColorButton::paintEvent(QPaintEvent* event)
{
    QPushButton::paintEvent(event);
    QPainter painter(this);
    painter.setPen(isEnabled() ? impl->borderNormal : impl->borderDisabled);
    painter.setBrush(QBrush(impl->color, isEnabled() ? Qt::SolidPattern : Qt::Dense4Pattern));
    painter.drawRect(impl->colorRect);
}

void ColorButton::resizeEvent(QResizeEvent* event)
{
    QPushButton::resizeEvent(event);
    if (!impl->colorRectSet)
        UpdateColorRect();
}

void ColorButton::hideEvent(QHideEvent*)
{
    CloseDialog();
}

// A dialog is disabled with its parent. It would block the application without accepting the input that closes it.
void ColorButton::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::EnabledChange && !isEnabled())
        CloseDialog();
    QPushButton::changeEvent(event);
}

void ColorButton::CloseDialog()
{
    if (impl->dialog && impl->isDialogShown)
        impl->dialog->close();
}

void ColorButton::UpdateColorRect()
{
    impl->colorRect = DefaultColorRect(size());
}

} // namespace Zelkor::Vx
