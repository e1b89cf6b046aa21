#include "Catalogue.h"
#include "Texts.h"

#include <UI/Widgets/ButtonWithLabels.h>
#include <UI/Widgets/FastPresetButton.h>

#include <QAction>
#include <QCoreApplication>

using Zelkor::Vx::UI::ButtonWithLabels;
using Zelkor::Vx::UI::FastPresetButton;

namespace Zelkor::Gallery {

namespace {

constexpr int NARROW_WIDTH = 192;

QString Tr(const char* text)
{
    return QCoreApplication::translate("Catalogue", text);
}

QWidget* CreateLabelled(Qt::Orientation orientation, QWidget* parent)
{
    auto* button = new ButtonWithLabels(orientation, parent);
    button->SetLabelText(Tr("Take a picture"));
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
    // Without a parent, the action becomes the button's.
    auto* action = new QAction(text);
    action->setProperty("PresetType", type);
    action->setShortcut(shortcut);
    action->setToolTip(Tr("Starts a recording with these settings"));
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
        Tr("Buttons"),
        Tr("A push button with an icon, a text and a hot key, each with a look of its own."),
        "ButtonWithLabels",
        "key",
        CreateHorizontal,
        {
            MadeState(Tr("Horizontal"), CreateHorizontal),
            MadeState(Tr("Vertical"), CreateVertical),
            MakeState<ButtonWithLabels>(Tr("Long text"),
                                        [](ButtonWithLabels& button) {
                                            button.SetLabelText(Tr("Take a picture of everything on the screen"));
                                            button.setFixedWidth(NARROW_WIDTH);
                                        }),
            MakeState<ButtonWithLabels>(Tr("No hot key"),
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
    const QString twoLines = Tr("Region around \nthe pointer");
    const auto createTypical = [](QWidget* parent) {
        return CreatePreset("FullScreen", Tr("Full screen"), QKeySequence("Ctrl+1"), parent);
    };
    return {
        "FastPresetButton",
        Tr("Buttons"),
        Tr("Shows an action with its shortcut, and triggers it."),
        "FastPresetButton",
        "preset",
        createTypical,
        {
            MadeState(Tr("Typical"), createTypical),
            PresetState(Tr("Preset type \"User\""), "User", Tr("My lecture"), QKeySequence("Ctrl+Shift+L")),
            PresetState(Tr("Line feed, no word wrap"), "Region", twoLines, QKeySequence("Ctrl+3")),
            PresetState(Tr("Line feed, word wrap by style"), "TwoLines", twoLines, QKeySequence("Ctrl+3")),
            PresetState(Tr("No shortcut"), "Window", Tr("Window"), QKeySequence()),
            DisabledState(),
        },
    };
}

} // namespace

QVector<Entry> LabelledButtonEntries()
{
    return {ButtonWithLabelsEntry(), FastPresetEntry()};
}

} // namespace Zelkor::Gallery
