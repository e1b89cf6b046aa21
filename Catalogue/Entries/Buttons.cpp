#include "Catalogue.h"
#include "StyleSheet.h"
#include "Texts.h"

#include <UI/Widgets/ButtonWithPopUpContainer.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>

using Zelkor::Vx::UI::ButtonWithPopUpContainer;

namespace Zelkor::Gallery {

namespace {

void FillPanel(ButtonWithPopUpContainer& button)
{
    auto* quality = new QComboBox;
    quality->addItems({Catalogue::tr("High quality"), Catalogue::tr("Balanced"), Catalogue::tr("Small file")});
    quality->setAccessibleName(Catalogue::tr("Quality"));
    button.AppendWidget(new QLabel(Catalogue::tr("Quality")));
    button.AppendWidget(quality);
    button.AppendWidget(new QCheckBox(Catalogue::tr("Record the pointer")));
    button.AppendWidget(new QCheckBox(Catalogue::tr("Record clicks")));
}

void ShowIconAndText(ButtonWithPopUpContainer& button, const QString& text)
{
    button.setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button.setIcon(StyleIcon("panel"));
    SetTextBesideIcon(&button, text);
    FillPanel(button);
}

QWidget* CreateButton(QWidget* parent)
{
    auto* button = new ButtonWithPopUpContainer(parent);
    button->setText(Catalogue::tr("Quality"));
    return button;
}

Entry ButtonWithPopUpEntry()
{
    using Button = ButtonWithPopUpContainer;
    return {
        "ButtonWithPopUpContainer",
        Catalogue::tr("Buttons"),
        Catalogue::tr("Opens a floating panel of the application's widgets beside itself."),
        "ButtonWithPopUpContainer",
        "panel",
        CreateButton,
        {
            MakeState<Button>(Catalogue::tr("Typical"), FillPanel),
            MakeState<Button>(Catalogue::tr("Icon and text"),
                              [](Button& button) { ShowIconAndText(button, Catalogue::tr("Quality")); }),
            MakeState<Button>(Catalogue::tr("Icon only"),
                              [](Button& button) {
                                  ShowIconAndText(button, Catalogue::tr("Quality"));
                                  button.setToolButtonStyle(Qt::ToolButtonIconOnly);
                              }),
            MakeState<Button>(Catalogue::tr("Long text"),
                              [](Button& button) {
                                  ShowIconAndText(button,
                                                  Catalogue::tr("Quality, pointer and clicks of this recording"));
                              }),
            MakeState<Button>(Catalogue::tr("Checked"),
                              [](Button& button) {
                                  ShowIconAndText(button, Catalogue::tr("Quality"));
                                  button.setChecked(true);
                              }),
            MakeState<Button>(Catalogue::tr("Opens upwards"),
                              [](Button& button) {
                                  ShowIconAndText(button, Catalogue::tr("Quality"));
                                  button.SetPreferredPopupAnchor(Button::ANCHOR_TOP_CENTER);
                                  button.SetPreferredPopupDirection(Button::DIRECTION_UP_CENTER);
                              }),
            MakeState<Button>(Catalogue::tr("Empty panel"),
                              [](Button& button) { button.setText(Catalogue::tr("Nothing")); }),
            DisabledState(),
        },
        nullptr,
        1,
    };
}

} // namespace

QVector<Entry> ButtonEntries()
{
    return {InForms<ButtonWithPopUpContainer>(ButtonWithPopUpEntry(), {{"text", "ButtonWithPopUpContainer"}})};
}

} // namespace Zelkor::Gallery
