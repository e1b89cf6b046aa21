#include <Catalogue/Catalogue.h>
#include <UI/Kit/ZComboBox.h>
#include <UI/Kit/ZDoubleSlider.h>
#include <UI/Kit/ZDoubleSpinBox.h>
#include <UI/Kit/ZFrame.h>
#include <UI/Kit/ZLineEdit.h>
#include <UI/Kit/ZSpinBox.h>
#include <UI/Kit/ZStyleSheet.h>

#include <QCheckBox>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>
#include <QVariant>

namespace Zelkor::Catalogue {

namespace {

constexpr int FIELD_WIDTH = 200;
constexpr int NARROW_WIDTH = 96;
constexpr int NUMBER_WIDTH = 128;
constexpr int TALL = 140;

QString LongName()
{
    return EntryText::tr("Built-in camera of the laptop in the lecture hall");
}

QWidget* CreateCombo(QWidget* parent)
{
    auto* combo = new ZComboBox(parent);
    combo->setAccessibleName(EntryText::tr("Camera"));
    combo->addItems({EntryText::tr("No camera"), LongName(), EntryText::tr("Document camera")});
    combo->setCurrentIndex(2);
    combo->setFixedWidth(FIELD_WIDTH);
    return combo;
}

// A pop-up with check boxes; the combo box shows the number of checked ones.
void OpenCheckBoxes(ZComboBox& combo)
{
    // Not a child of the combo box: style sheets would style the frame as its list.
    auto* window = new ZFrame(combo.parentWidget(), Qt::Popup);
    QObject::connect(&combo, &QObject::destroyed, window, [window] { delete window; });
    auto* layout = new QVBoxLayout(window);
    window->setProperty("role", QStringLiteral("card"));
    combo.setAccessibleName(EntryText::tr("Sound sources"));
    const auto tell = [&combo, window] {
        int count = 0;
        for (const auto* box : window->findChildren<QCheckBox*>())
            count += box->isChecked();
        combo.setDisplayText(EntryText::tr("Sources: %1").arg(count));
    };
    for (const auto& text :
         {EntryText::tr("Microphone"), EntryText::tr("System sound"), EntryText::tr("Click sounds")}) {
        auto* box = new QCheckBox(text);
        layout->addWidget(box);
        box->setChecked(layout->count() < 3);
        QObject::connect(box, &QCheckBox::toggled, &combo, tell);
    }
    combo.setPopupWidget(window);
    tell();
}

Entry ComboEntry()
{
    using Combo = ZComboBox;
    return {
        "ZComboBox",
        EntryText::tr("Kit"),
        EntryText::tr(
            "A combo box that elides its text, opens a list as wide as its items or a widget of yours, and can leave "
            "the "
            "wheel to its panel."),
        "ZComboBox",
        "combo",
        CreateCombo,
        {
            MakeState<Combo>(EntryText::tr("Typical"), [](Combo&) {}),
            MakeState<Combo>(EntryText::tr("Elided, wide list"), [](Combo& combo) { combo.setCurrentIndex(1); }),
            MakeState<Combo>(EntryText::tr("Narrow list"),
                             [](Combo& combo) {
                                 combo.setCurrentIndex(1);
                                 combo.setWidePopupEnabled(false);
                             }),
            MakeState<Combo>(EntryText::tr("Cut, not elided"),
                             [](Combo& combo) {
                                 combo.setCurrentIndex(1);
                                 combo.setEliding(false);
                             }),
            MakeState<Combo>(EntryText::tr("Display text"),
                             [](Combo& combo) { combo.setDisplayText(EntryText::tr("Choose a camera…")); }),
            MakeState<Combo>(EntryText::tr("Opens a widget"), OpenCheckBoxes),
            MakeState<Combo>(EntryText::tr("With icons, elided"),
                             [](Combo& combo) {
                                 for (int i = 0; i < combo.count(); ++i)
                                     combo.setItemIcon(i, ZStyleSheet::icon("camera"));
                                 combo.setCurrentIndex(1);
                             }),
            MakeState<Combo>(EntryText::tr("Narrow"), [](Combo& combo) { combo.setFixedWidth(NARROW_WIDTH); }),
            MakeState<Combo>(EntryText::tr("Editable"), [](Combo& combo) { combo.setEditable(true); }),
            MakeState<Combo>(EntryText::tr("Wheel left to the panel"),
                             [](Combo& combo) { combo.setMouseWheelEnabled(false); }),
            DisabledState(),
        },
    };
}

QWidget* CreateLineEdit(QWidget* parent)
{
    auto* edit = new ZLineEdit(parent);
    edit->setAccessibleName(EntryText::tr("Name"));
    edit->setOriginalText(EntryText::tr("Document camera"));
    edit->setPlaceholderText(EntryText::tr("Name of the camera"));
    edit->setFixedWidth(FIELD_WIDTH);
    return edit;
}

State EditState(
    const QString& name, const QString& text, void (*apply)(ZLineEdit&) = [](ZLineEdit&) {})
{
    return MakeState<ZLineEdit>(name, [text, apply](ZLineEdit& edit) {
        // Takes effect with the next text.
        apply(edit);
        edit.setOriginalText(text);
    });
}

void AcceptLettersOnly(ZLineEdit& edit)
{
    edit.setValidator(new QRegularExpressionValidator(QRegularExpression("[\\w\\s-]*"), &edit));
}

Entry LineEditEntry()
{
    using Edit = ZLineEdit;
    return {
        "ZLineEdit",
        EntryText::tr("Kit"),
        EntryText::tr(
            "A line edit that elides its text until it gets the focus, and reports an edit when the focus leaves."),
        "ZLineEdit",
        "field",
        CreateLineEdit,
        {
            MakeState<Edit>(EntryText::tr("Fits"), [](Edit&) {}),
            EditState(EntryText::tr("Elided"), LongName()),
            EditState(EntryText::tr("Right-to-left text"),
                      QString::fromUtf8("המצלמה המובנית של המחשב הנייד באולם ההרצאות")),
            EditState(EntryText::tr("Cut, not elided"), LongName(), [](Edit& edit) { edit.setEliding(false); }),
            EditState(EntryText::tr("Read-only"), LongName(), [](Edit& edit) { edit.setReadOnly(true); }),
            EditState(EntryText::tr("Clear button"), LongName(), [](Edit& edit) { edit.setClearButtonEnabled(true); }),
            EditState(EntryText::tr("Validated"), LongName(), AcceptLettersOnly),
            EditState(EntryText::tr("Password"), EntryText::tr("Secret"),
                      [](Edit& edit) { edit.setEchoMode(QLineEdit::Password); }),
            EditState(EntryText::tr("Empty"), QString()),
            EditState(EntryText::tr("Narrow"), LongName(), [](Edit& edit) { edit.setFixedWidth(NARROW_WIDTH); }),
            DisabledState(),
        },
        MakeBare<ZLineEdit>,
    };
}

template<class Slider>
QWidget* CreateSlider(QWidget* parent)
{
    auto* slider = new Slider(parent);
    slider->setOrientation(Qt::Horizontal);
    slider->setAccessibleName(EntryText::tr("Zoom"));
    slider->setValue(40);
    slider->setFixedWidth(FIELD_WIDTH);
    return slider;
}

template<class Field>
State FocusedWheelState()
{
    return MakeState<Field>(EntryText::tr("Wheel in focus only"), [](Field& field) { field.setEditableInFocus(true); });
}

void MakeVertical(QSlider& slider)
{
    slider.setOrientation(Qt::Vertical);
    slider.setMinimumWidth(0);
    slider.setMaximumWidth(QWIDGETSIZE_MAX);
    slider.setFixedHeight(TALL);
}

Entry CustomSliderEntry()
{
    return {
        "ZCustomSlider",
        EntryText::tr("Kit"),
        EntryText::tr("A slider that can leave the wheel to its panel until it has the focus."),
        "ZCustomSlider",
        "slide",
        CreateSlider<ZCustomSlider>,
        {
            MakeState<ZCustomSlider>(EntryText::tr("Typical"), [](ZCustomSlider&) {}),
            FocusedWheelState<ZCustomSlider>(),
            MakeState<ZCustomSlider>(EntryText::tr("At its end"), [](ZCustomSlider& slider) { slider.setValue(99); }),
            MakeState<ZCustomSlider>(EntryText::tr("Vertical"), [](ZCustomSlider& slider) { MakeVertical(slider); }),
            DisabledState(),
        },
    };
}

Entry DoubleSliderEntry()
{
    return {
        "ZDoubleSlider",
        EntryText::tr("Kit"),
        EntryText::tr("A slider for a floating-point value: its position times a multiplier."),
        "ZDoubleSlider",
        "slide-number",
        CreateSlider<ZDoubleSlider>,
        {
            MakeState<ZDoubleSlider>(EntryText::tr("Tenths"), [](ZDoubleSlider& slider) { slider.setMultiplier(0.1); }),
            MakeState<ZDoubleSlider>(EntryText::tr("Around zero, in quarters"),
                                     [](ZDoubleSlider& slider) {
                                         slider.setMultiplier(0.25);
                                         slider.setRange(-20, 20);
                                         slider.setDoubleValue(-1.5);
                                     }),
            FocusedWheelState<ZDoubleSlider>(),
            DisabledState(),
        },
    };
}

QWidget* CreateSpinBox(QWidget* parent)
{
    auto* field = new ZSpinBox(parent);
    field->setAccessibleName(EntryText::tr("Frame rate"));
    field->setRange(1, 240);
    field->setValue(30);
    field->setFixedWidth(NUMBER_WIDTH);
    return field;
}

Entry SpinBoxEntry()
{
    return {
        "ZSpinBox",
        EntryText::tr("Kit"),
        EntryText::tr("A field for a whole number that can leave the wheel to its panel until it has the focus."),
        "ZSpinBox",
        "step",
        CreateSpinBox,
        {
            MakeState<ZSpinBox>(EntryText::tr("Typical"), [](ZSpinBox&) {}),
            FocusedWheelState<ZSpinBox>(),
            MakeState<ZSpinBox>(EntryText::tr("With a unit"),
                                [](ZSpinBox& field) { field.setSuffix(EntryText::tr(" fps")); }),
            MakeState<ZSpinBox>(EntryText::tr("At its end"), [](ZSpinBox& field) { field.setValue(field.maximum()); }),
            MakeState<ZSpinBox>(EntryText::tr("Read-only"), [](ZSpinBox& field) { field.setReadOnly(true); }),
            DisabledState(),
        },
    };
}

QWidget* CreateDoubleSpinBox(QWidget* parent)
{
    auto* field = new ZDoubleSpinBox(parent);
    field->setAccessibleName(EntryText::tr("Delay"));
    field->setRange(0.5, 60);
    field->setSingleStep(0.25);
    field->setValue(2.5);
    field->setSuffix(EntryText::tr(" s"));
    field->setFixedWidth(NUMBER_WIDTH);
    return field;
}

Entry DoubleSpinBoxEntry()
{
    using Field = ZDoubleSpinBox;
    return {
        "ZDoubleSpinBox",
        EntryText::tr("Kit"),
        EntryText::tr("A field for a floating-point number that can keep what is typed to whole steps."),
        "ZDoubleSpinBox",
        "step-number",
        CreateDoubleSpinBox,
        {
            MakeState<Field>(EntryText::tr("Typical"), [](Field&) {}),
            MakeState<Field>(EntryText::tr("Typed numbers in whole steps"),
                             [](Field& field) { field.setFixupWithStep(true); }),
            FocusedWheelState<Field>(),
            MakeState<Field>(EntryText::tr("At its end"), [](Field& field) { field.setValue(field.minimum()); }),
            DisabledState(),
        },
    };
}

} // namespace

QVector<Entry> FieldEntries()
{
    const QVariantMap horizontal{{"orientation", "Horizontal"}};
    return {KitInForms<ZComboBox>(ComboEntry()),
            KitInForms<ZLineEdit>(LineEditEntry()),
            KitInForms<ZCustomSlider>(CustomSliderEntry(), horizontal),
            KitInForms<ZDoubleSlider>(DoubleSliderEntry(), horizontal),
            KitInForms<ZSpinBox>(SpinBoxEntry()),
            KitInForms<ZDoubleSpinBox>(DoubleSpinBoxEntry())};
}

} // namespace Zelkor::Catalogue
