#include <UI/Widgets/FastPresetButton.h>

#include <UI/Common/ObjectNames.h>
#include <UI/Kit/ZLabel.h>

#include <QAction>
#include <QEvent>
#include <QPointer>

namespace Zelkor::Vx::UI {

namespace {

constexpr char PRESET_TYPE[] = "PresetType";
constexpr char TAG[] = "Tag";

// Returns the action's text, with line feeds only if the label wraps words.
QString ButtonText(const QAction& action, const ZLabel& label)
{
    QString text = action.text();
    if (!label.wordWrap())
        text.remove(QLatin1Char('\n'));
    return text;
}

} // namespace

struct FastPresetButton::Impl
{
    QPointer<QAction> action;
    bool isActionEnabled = true;
};

FastPresetButton::FastPresetButton(QAction* action, const QString& name, QWidget* parent)
    : ButtonWithLabels(Qt::Horizontal, parent), impl(new Impl{action, true})
{
    const QString presetType = action ? action->property(PRESET_TYPE).toString() : QString();
    setObjectName(presetType + Common::FAST_CAPTURE_BUTTON + name);
    TextLabel()->setObjectName(Common::TEXT_FAST_PRESET_LABEL + name);
    HotKeyLabel()->setObjectName(Common::HOT_KEY_FAST_PRESET_LABEL + name);
    setProperty(TAG, presetType);
    TextLabel()->setProperty(TAG, Common::TEXT_FAST_PRESET_LABEL);
    HotKeyLabel()->setProperty(TAG, Common::HOT_KEY_FAST_PRESET_LABEL);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);

    connect(this, &QAbstractButton::clicked, this, &FastPresetButton::Trigger);
    if (action) {
        if (!action->parent())
            action->setParent(this);
        connect(action, &QAction::changed, this, &FastPresetButton::Refresh);
    }
    // Makes mnemonics in the label press the button.
    TextLabel()->setBuddy(this);
    TextLabel()->installEventFilter(this);
    TextLabel()->ensurePolished();
    Refresh();
}

FastPresetButton::~FastPresetButton() = default;

bool FastPresetButton::eventFilter(QObject* watched, QEvent* event)
{
    // A style sheet may change the label's word wrap, and with it the line feeds. Refreshing only then keeps a name or
    // a tool tip that the application has set.
    const bool isStyle = event->type() == QEvent::Polish || event->type() == QEvent::StyleChange;
    if (isStyle && impl->action && TextLabel()->originalText() != ButtonText(*impl->action, *TextLabel()))
        Refresh();
    return ButtonWithLabels::eventFilter(watched, event);
}

// Emits the signal, since QAction::trigger() would toggle a checkable action.
void FastPresetButton::Trigger()
{
    const QPointer<FastPresetButton> self(this);
    const QPointer<QAction> action = impl->action;
    if (action)
        Q_EMIT action->triggered(false);
    if (self && action)
        Q_EMIT Clicked(action);
}

void FastPresetButton::Refresh()
{
    const QAction* action = impl->action;
    if (!action)
        return;
    SetLabelText(ButtonText(*action, *TextLabel()));
    SetHotkeyText(action->shortcut().toString(QKeySequence::PortableText));
    setToolTip(action->toolTip());
    // Keeps the button disabled if the application disabled it, until the action changes its state.
    if (impl->isActionEnabled != action->isEnabled()) {
        impl->isActionEnabled = action->isEnabled();
        setEnabled(impl->isActionEnabled);
    }
}

} // namespace Zelkor::Vx::UI
