#pragma once

#include <UI/Common/Export.h>

#include <QPushButton>

class ZLabel;

namespace Zelkor::Vx::UI {

/// A push button that shows an icon, a text and a hot key in labels that are styled separately.
///
/// A text that does not fit is elided; the tool tip of its label then shows the whole text. The icon has no setter: it
/// comes from the style sheet. Text and hot key are side by side or, in a vertical button, one above the other. The
/// button owns its labels. GUI thread only.
///
/// Object names for style sheets: "IconLabel", "TextLabel" and "HotKeyLabel", all of them `ZLabel`s.
class VX_WIDGETS_EXPORT ButtonWithLabels : public QPushButton
{
    Q_OBJECT

public:
    /// Creates a horizontal button. Called from code that uic generates.
    explicit ButtonWithLabels(QWidget* parent) : ButtonWithLabels(Qt::Horizontal, parent) {}

    /// Treats any orientation other than `Qt::Horizontal` as vertical.
    ButtonWithLabels(Qt::Orientation orientation, QWidget* parent);
    ~ButtonWithLabels() override;

    /// Sets the text, and the accessible name unless the application has set one.
    void SetLabelText(const QString& text);
    void SetHotkeyText(const QString& text);

    /// Fits both texts without eliding.
    QSize sizeHint() const override;

    /// Fits the whole hot key and the beginning of the text.
    QSize minimumSizeHint() const override;

protected:
    ZLabel* TextLabel() const { return textLabel; }
    ZLabel* HotKeyLabel() const { return hotKeyLabel; }

private:
    ZLabel* textLabel;
    ZLabel* hotKeyLabel;
    ZLabel* iconLabel;
    Qt::Orientation orientation;
};

} // namespace Zelkor::Vx::UI
