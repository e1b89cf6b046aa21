#include <Catalogue/Catalogue.h>
#include <Examples/Support/WidgetTexts.h>
#include <UI/Widgets/ButtonWithLabels.h>
#include <UI/Widgets/FastPresetButton.h>

#include <QAction>
#include <QLabel>
#include <QVariant>

using Zelkor::Vx::UI::ButtonWithLabels;
using Zelkor::Vx::UI::FastPresetButton;

namespace Zelkor::Catalogue {

namespace {

// The style sheets draw a key around the hot key, which would be empty.
void HideEmptyHotKey(QWidget* button)
{
    for (auto* label : button->findChildren<QLabel*>()) {
        if (label->objectName().startsWith("HotKey"))
            label->setHidden(label->property("originalText").toString().isEmpty());
    }
}

constexpr int NARROW_WIDTH = 192;

QWidget* CreateLabelled(Qt::Orientation orientation, QWidget* parent)
{
    auto* button = new ButtonWithLabels(orientation, parent);
    button->SetLabelText(EntryText::tr("Take a picture"));
    button->SetHotkeyText("Ctrl+P");
    return button;
}

QWidget* CreateHorizontal(QWidget* parent)
{
    return CreateLabelled(Qt::Horizontal, parent);
}

QWidget* CreateVertical(QWidget* parent)
{
    return CreateLabelled(Qt::Vertical, parent);
}

QWidget* CreatePreset(const QString& type, const QString& text, const QKeySequence& shortcut, QWidget* parent)
{
    // The button takes ownership of an action without a parent.
    auto* action = new QAction(text);
    action->setProperty("PresetType", type);
    action->setShortcut(shortcut);
    action->setToolTip(EntryText::tr("Starts a recording with these settings"));
    auto* button = new FastPresetButton(action, "1", parent);
    HideEmptyHotKey(button);
    return button;
}

State PresetState(const QString& name, const QString& type, const QString& text, const QKeySequence& shortcut)
{
    return MadeState(name, [=](QWidget* parent) { return CreatePreset(type, text, shortcut, parent); });
}

Entry ButtonWithLabelsEntry()
{
    return {
        "ButtonWithLabels",
        EntryText::tr("Buttons"),
        EntryText::tr("A push button with an icon, a text and a hot key, each with a look of its own."),
        "ButtonWithLabels",
        "key",
        CreateHorizontal,
        {
            MadeState(EntryText::tr("Horizontal"), CreateHorizontal),
            MadeState(EntryText::tr("Vertical"), CreateVertical),
            MakeState<ButtonWithLabels>(EntryText::tr("Long text"),
                                        [](ButtonWithLabels& button) {
                                            button.SetLabelText(
                                                EntryText::tr("Take a picture of everything on the screen"));
                                            button.setFixedWidth(NARROW_WIDTH);
                                        }),
            MakeState<ButtonWithLabels>(EntryText::tr("No hot key"),
                                        [](ButtonWithLabels& button) {
                                            button.SetHotkeyText(QString());
                                            HideEmptyHotKey(&button);
                                        }),
            DisabledState(),
        },
    };
}

Entry FastPresetEntry()
{
    const QString twoLines = EntryText::tr("Region around \nthe pointer");
    const auto createTypical = [](QWidget* parent) {
        return CreatePreset("FullScreen", EntryText::tr("Full screen"), QKeySequence("Ctrl+1"), parent);
    };
    return {
        "FastPresetButton",
        EntryText::tr("Buttons"),
        EntryText::tr("Shows an action with its shortcut, and triggers it."),
        "FastPresetButton",
        "preset",
        createTypical,
        {
            MadeState(EntryText::tr("Typical"), createTypical),
            PresetState(EntryText::tr("Preset type \"User\""), "User", EntryText::tr("My lecture"),
                        QKeySequence("Ctrl+Shift+L")),
            PresetState(EntryText::tr("Line feed, no word wrap"), "Region", twoLines, QKeySequence("Ctrl+3")),
            PresetState(EntryText::tr("Line feed, word wrap by style"), "TwoLines", twoLines, QKeySequence("Ctrl+3")),
            PresetState(EntryText::tr("No shortcut"), "Window", EntryText::tr("Window"), QKeySequence()),
            DisabledState(),
        },
        [](QWidget* parent) -> QObject* { return new FastPresetButton(new QAction(parent), "1", parent); },
    };
}

} // namespace

QVector<Entry> LabelledButtonEntries()
{
    return {InForms<ButtonWithLabels>(ButtonWithLabelsEntry()),
            NotInForms(FastPresetEntry(), "its action is given to the constructor and stays")};
}

} // namespace Zelkor::Catalogue
