#pragma once

#include <UI/Common/Export.h>

#include <QPushButton>

class ZLabel;

namespace Zelkor::Vx::UI {

/// A push button whose face is made of an icon, a text and a hot key, each with a look of its own.
///
/// A text that does not fit is elided and shown whole as the tool tip of its label. The icon has no setter: the style
/// sheet draws it. Text and hot key stand beside each other or, in a vertical button, one above the other. The button
/// owns its labels. GUI thread only.
///
/// Object names for style sheets: "IconLabel", "TextLabel" and "HotKeyLabel", all of them `ZLabel`s.
class VX_WIDGETS_EXPORT ButtonWithLabels : public QPushButton
{
    Q_OBJECT

public:
    /// A horizontal button, as code that is generated from a form makes it.
    explicit ButtonWithLabels(QWidget* parent) : ButtonWithLabels(Qt::Horizontal, parent) {}

    /// Any orientation but `Qt::Horizontal` counts as vertical.
    ButtonWithLabels(Qt::Orientation orientation, QWidget* parent);
    ~ButtonWithLabels() override;

    void SetLabelText(const QString& text);
    void SetHotkeyText(const QString& text);

    /// Room for both texts as a whole.
    QSize sizeHint() const override;

    /// Room for the hot key and the beginning of the text.
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
