#include <Catalogue/Catalogue.h>
#include <Examples/Support/WidgetTexts.h>
#include <UI/Kit/ZStyleSheet.h>
#include <UI/Widgets/ButtonWithPopUpList.h>
#include <UI/Widgets/ClickSoundComboBox.h>
#include <UI/Widgets/ColorButton.h>

using Zelkor::Vx::ButtonWithPopUpList;
using Zelkor::Vx::ColorButton;
using Zelkor::Vx::UI::ClickSoundComboBox;

namespace Zelkor::Catalogue {

using namespace Examples;

namespace {

constexpr int COMBO_WIDTH = 184;
constexpr int NARROW_COMBO_WIDTH = 80;
constexpr int MANY = 60;
constexpr int BAR_BUTTON_WIDTH = 160;
constexpr QRect BAR(12, 10, 135, 11);
constexpr double HIGHEST_ALPHA = 0.6;

// Shows the chosen item on the button, as applications do.
ButtonWithPopUpList* CreateEmptyList(QWidget* parent)
{
    auto* button = new ButtonWithPopUpList(parent);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setIcon(ZStyleSheet::icon("list"));
    SetTextBesideIcon(button, EntryText::tr("Nothing to choose"));
    QObject::connect(button, &ButtonWithPopUpList::CurrentIndexChanged, button, [button] {
        const QString text = button->CurrentData().toString();
        SetTextBesideIcon(button, text.isEmpty() ? EntryText::tr("Format") : text);
    });
    return button;
}

QWidget* CreateList(const QStringList& texts, QWidget* parent)
{
    ButtonWithPopUpList* button = CreateEmptyList(parent);
    for (const QString& text : texts)
        button->AppendItem(text, text);
    return button;
}

QWidget* CreateFormats(QWidget* parent)
{
    return CreateList({EntryText::tr("Video"), EntryText::tr("Animated picture"), EntryText::tr("Sound only")}, parent);
}

QWidget* CreateLongList(QWidget* parent)
{
    ButtonWithPopUpList* button = CreateEmptyList(parent);
    for (int i = 1; i <= MANY; ++i)
        button->AppendItem(EntryText::tr("Take %1").arg(i), EntryText::tr("Take %1").arg(i));
    return button;
}

QWidget* CreateColorButton(QWidget* parent)
{
    auto* button = new ColorButton(parent);
    button->setText(EntryText::tr("Drawing colour"));
    button->SetColor(QColor(0x2f, 0x9e, 0x6b));
    return button;
}

void MakeTranslucent(ColorButton& button)
{
    button.SetAlphaEnabled(true);
    button.SetMaximumAlpha(HIGHEST_ALPHA);
    button.SetColor(QColor(0x35, 0x67, 0xe0, 0x66));
}

void PlaceSquareElsewhere(ColorButton& button)
{
    button.setText(QString());
    button.setAccessibleName(EntryText::tr("Drawing colour"));
    button.setFixedWidth(BAR_BUTTON_WIDTH);
    button.SetColorRect(BAR);
}

QWidget* CreateSoundBox(QWidget* parent)
{
    auto* combo = new ClickSoundComboBox(parent);
    StyleItems(combo);
    combo->setAccessibleName(EntryText::tr("Click sound"));
    combo->addItems({EntryText::tr("No sound"), EntryText::tr("Soft click"), EntryText::tr("Mechanical keyboard"),
                     EntryText::tr("Typewriter")});
    combo->setCurrentIndex(1);
    combo->setFixedWidth(COMBO_WIDTH);
    return combo;
}

void AddLongText(ClickSoundComboBox& combo)
{
    combo.addItem(EntryText::tr("Mechanical keyboard of the office next door, recorded twice"));
    combo.setCurrentIndex(combo.count() - 1);
}

void ShowRightToLeft(ClickSoundComboBox& combo)
{
    combo.setLayoutDirection(Qt::RightToLeft);
    combo.addItem(QString::fromUtf8("הקשה רכה על מקלדת ישנה"));
    combo.setCurrentIndex(combo.count() - 1);
}

Entry ButtonWithPopUpListEntry()
{
    using Button = ButtonWithPopUpList;
    return {
        "ButtonWithPopUpList",
        EntryText::tr("Buttons"),
        EntryText::tr("A tool button with a menu of choices, of which one is current."),
        "ButtonWithPopUpList",
        "list",
        CreateFormats,
        {
            MakeState<Button>(EntryText::tr("Typical"), [](Button&) {}),
            MadeState(EntryText::tr("Empty"), CreateEmptyList),
            MadeState(EntryText::tr("Many items"), CreateLongList),
            MadeState(EntryText::tr("Long texts"),
                      [](QWidget* parent) {
                          return CreateList({EntryText::tr("Video for people who see it on a telephone"),
                                             EntryText::tr("Video for a lecture hall with a large screen")},
                                            parent);
                      }),
            MakeState<Button>(EntryText::tr("Nothing checked"),
                              [](Button& button) { button.SetCurrentIndex(button.Count()); }),
            DisabledState(),
        },
    };
}

Entry ColorButtonEntry()
{
    return {
        "ColorButton",
        EntryText::tr("Buttons"),
        EntryText::tr("Shows a colour, and opens a dialog that chooses another one."),
        "ColorButton",
        "palette",
        CreateColorButton,
        {
            MakeState<ColorButton>(EntryText::tr("Opaque"), [](ColorButton&) {}),
            MakeState<ColorButton>(EntryText::tr("Translucent, up to 60 %"), MakeTranslucent),
            MakeState<ColorButton>(EntryText::tr("Square placed elsewhere"), PlaceSquareElsewhere),
            DisabledState(),
        },
    };
}

Entry ClickSoundEntry()
{
    using Combo = ClickSoundComboBox;
    return {
        "ClickSoundComboBox",
        EntryText::tr("Choices"),
        EntryText::tr("A combo box that elides texts too long for it instead of growing with them."),
        "ClickSoundComboBox",
        "sound",
        CreateSoundBox,
        {
            MakeState<Combo>(EntryText::tr("Typical"), [](Combo&) {}),
            MakeState<Combo>(EntryText::tr("Long text"), AddLongText),
            MakeState<Combo>(EntryText::tr("With icons"),
                             [](Combo& combo) {
                                 for (int i = 0; i < combo.count(); ++i)
                                     combo.setItemIcon(i, ZStyleSheet::icon("sound"));
                             }),
            MakeState<Combo>(EntryText::tr("Editable"), [](Combo& combo) { combo.setEditable(true); }),
            MakeState<Combo>(EntryText::tr("Narrow"), [](Combo& combo) { combo.setFixedWidth(NARROW_COMBO_WIDTH); }),
            MakeState<Combo>(EntryText::tr("Right-to-left"), ShowRightToLeft),
            DisabledState(),
        },
    };
}

} // namespace

QVector<Entry> ChoiceEntries()
{
    return {InForms<ButtonWithPopUpList>(ButtonWithPopUpListEntry(), {{"text", "ButtonWithPopUpList"}}),
            InForms<ColorButton>(ColorButtonEntry(), {{"text", "ColorButton"}}),
            InForms<ClickSoundComboBox>(ClickSoundEntry())};
}

} // namespace Zelkor::Catalogue
