#pragma once

#include <UI/Widgets/ButtonWithLabels.h>

#include <memory>

class QAction;

namespace Zelkor::Vx::UI {

/// A labelled button for an action: it shows the action's text, shortcut and tool tip, is enabled with it, follows
/// changes of these and triggers the action when clicked. A mnemonic in the text works as in other buttons.
///
/// The button owns an action that has no parent, no other. When the action dies first, the button keeps its texts and
/// does nothing any more. GUI thread only.
///
/// Object names for style sheets: the action's dynamic property "PresetType", "FastCaptureButton" and the given name,
/// joined, for the button; "TextFastPresetLabel" and "HotKeyFastPresetLabel" with the name for the labels. The dynamic
/// property "Tag" is the preset type on the button, and on the labels their object name without the given one.
class VX_WIDGETS_EXPORT FastPresetButton : public ButtonWithLabels
{
    Q_OBJECT

public:
    FastPresetButton(QAction* action, const QString& name, QWidget* parent);
    ~FastPresetButton() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// The button was clicked; comes after the action's `triggered(false)`. The action's checked state is left alone.
    void Clicked(QAction* action);

private:
    void Trigger();
    void Refresh();

    struct Q_DECL_HIDDEN Impl;
    std::unique_ptr<Impl> impl;
};

} // namespace Zelkor::Vx::UI
