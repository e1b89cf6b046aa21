#include <Catalogue/Catalogue.h>
#include <Examples/Support/WidgetTexts.h>
#include <UI/Kit/ZStyleSheet.h>
#include <UI/Widgets/ButtonWithPopUpContainer.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>

using Zelkor::Vx::UI::ButtonWithPopUpContainer;

namespace Zelkor::Catalogue {

using namespace Examples;

namespace {

void FillPanel(ButtonWithPopUpContainer& button)
{
    auto* quality = new QComboBox;
    quality->addItems({EntryText::tr("High quality"), EntryText::tr("Balanced"), EntryText::tr("Small file")});
    quality->setAccessibleName(EntryText::tr("Quality"));
    button.AppendWidget(new QLabel(EntryText::tr("Quality")));
    button.AppendWidget(quality);
    button.AppendWidget(new QCheckBox(EntryText::tr("Record the pointer")));
    button.AppendWidget(new QCheckBox(EntryText::tr("Record clicks")));
}

void ShowIconAndText(ButtonWithPopUpContainer& button, const QString& text)
{
    button.setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button.setIcon(ZStyleSheet::icon("panel"));
    SetTextBesideIcon(&button, text);
    FillPanel(button);
}

QWidget* CreateButton(QWidget* parent)
{
    auto* button = new ButtonWithPopUpContainer(parent);
    button->setText(EntryText::tr("Quality"));
    return button;
}

Entry ButtonWithPopUpEntry()
{
    using Button = ButtonWithPopUpContainer;
    return {
        "ButtonWithPopUpContainer",
        EntryText::tr("Buttons"),
        EntryText::tr("Opens a floating panel of the application's widgets beside itself."),
        "ButtonWithPopUpContainer",
        "panel",
        CreateButton,
        {
            MakeState<Button>(EntryText::tr("Typical"), FillPanel),
            MakeState<Button>(EntryText::tr("Icon and text"),
                              [](Button& button) { ShowIconAndText(button, EntryText::tr("Quality")); }),
            MakeState<Button>(EntryText::tr("Icon only"),
                              [](Button& button) {
                                  ShowIconAndText(button, EntryText::tr("Quality"));
                                  button.setToolButtonStyle(Qt::ToolButtonIconOnly);
                              }),
            MakeState<Button>(EntryText::tr("Long text"),
                              [](Button& button) {
                                  ShowIconAndText(button,
                                                  EntryText::tr("Quality, pointer and clicks of this recording"));
                              }),
            MakeState<Button>(EntryText::tr("Checked"),
                              [](Button& button) {
                                  ShowIconAndText(button, EntryText::tr("Quality"));
                                  button.setChecked(true);
                              }),
            MakeState<Button>(EntryText::tr("Opens upwards"),
                              [](Button& button) {
                                  ShowIconAndText(button, EntryText::tr("Quality"));
                                  button.SetPreferredPopupAnchor(Button::ANCHOR_TOP_CENTER);
                                  button.SetPreferredPopupDirection(Button::DIRECTION_UP_CENTER);
                              }),
            MakeState<Button>(EntryText::tr("Empty panel"),
                              [](Button& button) { button.setText(EntryText::tr("Nothing")); }),
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

} // namespace Zelkor::Catalogue
