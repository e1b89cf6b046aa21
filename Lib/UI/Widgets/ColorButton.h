#pragma once

#include <UI/Common/Export.h>

#include <QColor>
#include <QPushButton>
#include <QRect>

#include <memory>

namespace Zelkor::Vx {

/// A push button that shows a colour as a square at its right edge and opens a colour dialog when clicked.
///
/// With alpha enabled, the colour may be translucent up to a maximum opacity, and the dialog maps its whole alpha range
/// to 0 to that maximum. Hiding or disabling the button cancels an open dialog; deleting the button deletes the dialog.
/// Open pop-ups close before the dialog opens, even one that contains the button. GUI thread only.
class VX_WIDGETS_EXPORT ColorButton : public QPushButton
{
    Q_OBJECT
    Q_PROPERTY(QRect colorRect READ GetColorRect WRITE SetColorRect)
    ///< the square in widget coordinates; follows the size of the button until it is set
    Q_PROPERTY(QColor colorRectBorderNormal READ GetColorRectBorderNormal WRITE SetColorRectBorderNormal)
    ///< outline of the square in an enabled button; default dark grey
    Q_PROPERTY(QColor colorRectBorderDisabled READ GetColorRectBorderDisabled WRITE SetColorRectBorderDisabled)
    ///< outline of the square in a disabled button; default light grey

public:
    explicit ColorButton(QWidget* parent = nullptr);
    ~ColorButton() override;

    /// The chosen colour, opaque red by default. Setting a different colour clamps its alpha to the maximum, repaints
    /// and emits `ColorChanged`.
    QColor GetColor() const;
    void SetColor(const QColor& color);

    /// Whether the dialog offers alpha and the maximum alpha applies; false by default.
    bool IsAlphaEnabled() const;
    void SetAlphaEnabled(bool enabled);

    /// The highest opacity, 0 to 1; 1 by default. Takes effect with the next colour. Values out of range are returned
    /// unchanged but clamped when used; NaN counts as 1.
    double GetMaximumAlpha() const;
    void SetMaximumAlpha(double alpha);

    /// Setting the square repaints it and detaches it from the size of the button.
    QRect GetColorRect() const;
    void SetColorRect(const QRect& rect);

    /// The setters of the outline do not repaint.
    QColor GetColorRectBorderNormal() const;
    void SetColorRectBorderNormal(const QColor& color);
    QColor GetColorRectBorderDisabled() const;
    void SetColorRectBorderDisabled(const QColor& color);

    /// Fits the text and the square side by side, unless `colorRect` has been set.
    QSize sizeHint() const override;

Q_SIGNALS:
    /// Emitted when `SetColor` changes the colour, and whenever the dialog is accepted.
    void ColorChanged(const QColor& color);

    /// Emitted before the colour dialog opens.
    void ColorDialogWillBeOpened();

    /// Emitted after the dialog has closed, accepted or not, and after `ColorChanged`.
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
