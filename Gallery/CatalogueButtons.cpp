#include "Catalogue.h"
#include "StyleSheet.h"
#include "Texts.h"

#include <UI/Widgets/ButtonWithPopUpContainer.h>

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QLabel>

using Zelkor::Vx::UI::ButtonWithPopUpContainer;

namespace Zelkor::Gallery {

namespace {

QString Tr(const char* text)
{
    return QCoreApplication::translate("Catalogue", text);
}

void FillPanel(ButtonWithPopUpContainer& button)
{
    auto* quality = new QComboBox;
    quality->addItems({Tr("High quality"), Tr("Balanced"), Tr("Small file")});
    quality->setAccessibleName(Tr("Quality"));
    button.AppendWidget(new QLabel(Tr("Quality")));
    button.AppendWidget(quality);
    button.AppendWidget(new QCheckBox(Tr("Record the pointer")));
    button.AppendWidget(new QCheckBox(Tr("Record clicks")));
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
    button->setText(Tr("Quality"));
    return button;
}

Entry ButtonWithPopUpEntry()
{
    using Button = ButtonWithPopUpContainer;
    return {
        "ButtonWithPopUpContainer",
        Tr("Buttons"),
        Tr("Opens a floating panel of the application's widgets beside itself."),
        "ButtonWithPopUpContainer",
        "panel",
        CreateButton,
        {
            MakeState<Button>(Tr("Typical"), FillPanel),
            MakeState<Button>(Tr("Icon and text"), [](Button& button) { ShowIconAndText(button, Tr("Quality")); }),
            MakeState<Button>(Tr("Icon only"),
                              [](Button& button) {
                                  ShowIconAndText(button, Tr("Quality"));
                                  button.setToolButtonStyle(Qt::ToolButtonIconOnly);
                              }),
            MakeState<Button>(
                Tr("Long text"),
                [](Button& button) { ShowIconAndText(button, Tr("Quality, pointer and clicks of this recording")); }),
            MakeState<Button>(Tr("Checked"),
                              [](Button& button) {
                                  ShowIconAndText(button, Tr("Quality"));
                                  button.setChecked(true);
                              }),
            MakeState<Button>(Tr("Opens upwards"),
                              [](Button& button) {
                                  ShowIconAndText(button, Tr("Quality"));
                                  button.SetPreferredPopupAnchor(Button::ANCHOR_TOP_CENTER);
                                  button.SetPreferredPopupDirection(Button::DIRECTION_UP_CENTER);
                              }),
            MakeState<Button>(Tr("Empty panel"), [](Button& button) { button.setText(Tr("Nothing")); }),
            DisabledState(),
        },
    };
}

} // namespace

QVector<Entry> ButtonEntries()
{
    return {ButtonWithPopUpEntry()};
}

} // namespace Zelkor::Gallery
