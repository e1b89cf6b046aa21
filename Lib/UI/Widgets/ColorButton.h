#pragma once

#include <UI/Common/Export.h>

#include <QColor>
#include <QPushButton>
#include <QRect>

#include <memory>

namespace Zelkor::Vx {

/// A push button that shows a colour as a square at its right end, and opens a colour dialog when clicked.
///
/// With alpha enabled the colour may be translucent, up to a maximum opacity; the dialog's whole alpha range then means
/// 0 to that maximum. While the dialog is open the button may be hidden, which cancels the dialog, or destroyed. Open
/// pop-ups close before the dialog opens, also one that holds the button: the dialog opens without it. GUI thread only.
class VX_WIDGETS_EXPORT ColorButton : public QPushButton
{
    Q_OBJECT
    Q_PROPERTY(QRect colorRect READ GetColorRect WRITE SetColorRect)
    Q_PROPERTY(QColor colorRectBorderNormal READ GetColorRectBorderNormal WRITE SetColorRectBorderNormal)
    Q_PROPERTY(QColor colorRectBorderDisabled READ GetColorRectBorderDisabled WRITE SetColorRectBorderDisabled)

public:
    explicit ColorButton(QWidget* parent = nullptr);
    ~ColorButton() override;

    /// Opaque red by default. Setting another colour emits `ColorChanged`; its alpha is cut to the maximum.
    QColor GetColor() const;
    void SetColor(const QColor& color);

    /// Whether the dialog offers alpha and the maximum holds; off by default.
    bool IsAlphaEnabled() const;
    void SetAlphaEnabled(bool enabled);

    /// The highest opacity, 0 to 1; 1 by default. Takes effect with the next colour. Other values are kept and count
    /// as the nearest of these, what is not a number as 1.
    double GetMaximumAlpha() const;
    void SetMaximumAlpha(double alpha);

    /// Where the square is, in pixels of the widget. It follows the button's size until it is set once.
    QRect GetColorRect() const;
    void SetColorRect(const QRect& rect);

    /// The square's outline, dark grey, and of a disabled button, light grey. Shows with the next repaint.
    QColor GetColorRectBorderNormal() const;
    void SetColorRectBorderNormal(const QColor& color);
    QColor GetColorRectBorderDisabled() const;
    void SetColorRectBorderDisabled(const QColor& color);

    /// Room for the text and, unless it was placed, the square beside it.
    QSize sizeHint() const override;

Q_SIGNALS:
    /// The colour is another one; after the dialog was accepted also when it is the same.
    void ColorChanged(const QColor& color);

    /// Come before and after each colour dialog, accepted or not. The dialog is cancelled when the button is hidden or
    /// disabled.
    void ColorDialogWillBeOpened();
    void ColorDialogClosed();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void ChooseColor();
    void CloseDialog();
    void UpdateColorRect();

    struct Q_DECL_HIDDEN Impl;
    std::unique_ptr<Impl> impl;
};

} // namespace Zelkor::Vx
