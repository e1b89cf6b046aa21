#pragma once

#include <UI/Widgets/ButtonWithLabels.h>

#include <memory>

class QAction;

namespace Zelkor::Vx::UI {

/// A button that shows and triggers an action.
///
/// It follows the action's text, shortcut, tool tip and enabled state. A mnemonic in the text works as in other
/// buttons. The button takes ownership of an action without a parent. After the action has been deleted, the button
/// keeps its texts and ignores clicks. GUI thread only.
///
/// Object names for style sheets: the action's dynamic property "PresetType" + "FastCaptureButton" + `name` for the
/// button, "TextFastPresetLabel" + `name` and "HotKeyFastPresetLabel" + `name` for its labels. The dynamic property
/// "Tag" is the preset type on the button, and "TextFastPresetLabel" or "HotKeyFastPresetLabel" on the labels.
class VX_WIDGETS_EXPORT FastPresetButton : public ButtonWithLabels
{
    Q_OBJECT

public:
    /// `action` may be null.
    FastPresetButton(QAction* action, const QString& name, QWidget* parent);
    ~FastPresetButton() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// Emitted on a click, after the action's `triggered(false)`. The action is not toggled.
    void Clicked(QAction* action);

private:
    void Trigger();
    void Refresh();

    struct Q_DECL_HIDDEN Impl;
    std::unique_ptr<Impl> impl;
};

} // namespace Zelkor::Vx::UI
