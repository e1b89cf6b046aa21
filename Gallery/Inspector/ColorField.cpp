#include "ColorField.h"

#include <QAction>
#include <QColorDialog>
#include <QIcon>
#include <QPainter>
#include <QPixmap>

namespace Zelkor::Gallery {

namespace {

constexpr int SWATCH_SIDE = 16;
constexpr int CHECK_SIDE = 4; ///< of the squares behind a translucent colour
constexpr int DENSEST = 4;    ///< device pixel ratio

QString ColorText(const QColor& color)
{
    return color.isValid() ? color.name(color.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb) : QString();
}

QIcon SwatchIcon(const QColor& color)
{
    QPixmap pixmap(SWATCH_SIDE * DENSEST, SWATCH_SIDE * DENSEST);
    pixmap.setDevicePixelRatio(DENSEST);
    pixmap.fill(Qt::white);
    QPainter painter(&pixmap);
    for (int y = 0; y < SWATCH_SIDE; y += CHECK_SIDE) {
        for (int x = y % (2 * CHECK_SIDE); x < SWATCH_SIDE; x += 2 * CHECK_SIDE)
            painter.fillRect(x, y, CHECK_SIDE, CHECK_SIDE, Qt::lightGray);
    }
    const QRect area(0, 0, SWATCH_SIDE, SWATCH_SIDE);
    painter.fillRect(area, color.isValid() ? color : QColor(Qt::transparent));
    painter.setPen(Qt::gray);
    painter.drawRect(QRectF(area).adjusted(0.5, 0.5, -0.5, -0.5));
    return pixmap;
}

} // namespace

ColorField::ColorField(QWidget* parent) : QLineEdit(parent), swatch(addAction(QIcon(), QLineEdit::LeadingPosition))
{
    setLayoutDirection(Qt::LeftToRight);
    setPlaceholderText(tr("No colour"));
    swatch->setText(tr("Choose a colour"));
    swatch->setShortcut(Qt::ALT | Qt::Key_Down);
    swatch->setShortcutContext(Qt::WidgetShortcut);
    swatch->setToolTip(tr("Choose a colour (%1)").arg(swatch->shortcut().toString(QKeySequence::NativeText)));
    connect(swatch, &QAction::triggered, this, &ColorField::OpenDialog);
    connect(this, &QLineEdit::editingFinished, this, [this] {
        const QColor typed(text());
        if (typed.isValid() && (hasAlpha || typed.alpha() == 255))
            Change(typed);
        setText(ColorText(color));
    });
    SetColor(QColor());
}

void ColorField::SetColor(const QColor& newColor)
{
    color = newColor;
    setText(ColorText(color));
    setCursorPosition(0);
    swatch->setIcon(SwatchIcon(color));
}

void ColorField::Change(const QColor& newColor)
{
    if (newColor == color)
        return;
    SetColor(newColor);
    Q_EMIT ColorChanged(newColor);
}

void ColorField::OpenDialog()
{
    auto* dialog = new QColorDialog(color, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setOption(QColorDialog::ShowAlphaChannel, hasAlpha);
    connect(dialog, &QColorDialog::currentColorChanged, this, &ColorField::Change);
    connect(dialog, &QDialog::rejected, this, [this, original = color] { Change(original); });
    dialog->open();
}

} // namespace Zelkor::Gallery
