#include "Catalogue.h"
#include "StyleSheet.h"

#include <UI/Kit/ZComboBox.h>
#include <UI/Kit/ZDoubleSlider.h>
#include <UI/Kit/ZDoubleSpinBox.h>
#include <UI/Kit/ZFrame.h>
#include <UI/Kit/ZLineEdit.h>
#include <UI/Kit/ZSpinBox.h>

#include <QCheckBox>
#include <QCoreApplication>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>
#include <QVariant>

namespace Zelkor::Gallery {

namespace {

constexpr int FIELD_WIDTH = 200;
constexpr int NARROW_WIDTH = 96;
constexpr int NUMBER_WIDTH = 128;
constexpr int TALL = 140;

QString Tr(const char* text)
{
    return QCoreApplication::translate("Catalogue", text);
}

QString LongName()
{
    return Tr("Built-in camera of the laptop in the lecture hall");
}

QWidget* CreateCombo(QWidget* parent)
{
    auto* combo = new ZComboBox(parent);
    combo->setAccessibleName(Tr("Camera"));
    combo->addItems({Tr("No camera"), LongName(), Tr("Document camera")});
    combo->setCurrentIndex(2);
    combo->setFixedWidth(FIELD_WIDTH);
    return combo;
}

// What is chosen stands in check boxes, and the combo box says how much it is.
void OpenCheckBoxes(ZComboBox& combo)
{
    auto* window = new ZFrame(&combo, Qt::Popup);
    auto* layout = new QVBoxLayout(window);
    window->setProperty("role", QStringLiteral("card"));
    combo.setAccessibleName(Tr("Sound sources"));
    const auto tell = [&combo, window] {
        int count = 0;
        for (const auto* box : window->findChildren<QCheckBox*>())
            count += box->isChecked();
        combo.setDisplayText(Tr("Sources: %1").arg(count));
    };
    for (const QString& text : {Tr("Microphone"), Tr("System sound"), Tr("Click sounds")}) {
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
        Tr("Kit"),
        Tr("A combo box that elides its text, opens a list as wide as its items or a widget of yours, and can leave "
           "the "
           "wheel to its panel."),
        "ZComboBox",
        "combo",
        CreateCombo,
        {
            MakeState<Combo>(Tr("Typical"), [](Combo&) {}),
            MakeState<Combo>(Tr("Elided, wide list"), [](Combo& combo) { combo.setCurrentIndex(1); }),
            MakeState<Combo>(Tr("Narrow list"),
                             [](Combo& combo) {
                                 combo.setCurrentIndex(1);
                                 combo.setWidePopupEnabled(false);
                             }),
            MakeState<Combo>(Tr("Cut, not elided"),
                             [](Combo& combo) {
                                 combo.setCurrentIndex(1);
                                 combo.setEliding(false);
                             }),
            MakeState<Combo>(Tr("Display text"), [](Combo& combo) { combo.setDisplayText(Tr("Choose a camera…")); }),
            MakeState<Combo>(Tr("Opens a widget"), OpenCheckBoxes),
            MakeState<Combo>(Tr("With icons, elided"),
                             [](Combo& combo) {
                                 for (int i = 0; i < combo.count(); ++i)
                                     combo.setItemIcon(i, StyleIcon("camera"));
                                 combo.setCurrentIndex(1);
                             }),
            MakeState<Combo>(Tr("Narrow"), [](Combo& combo) { combo.setFixedWidth(NARROW_WIDTH); }),
            MakeState<Combo>(Tr("Editable"), [](Combo& combo) { combo.setEditable(true); }),
            MakeState<Combo>(Tr("Wheel left to the panel"), [](Combo& combo) { combo.setMouseWheelEnabled(false); }),
            DisabledState(),
        },
    };
}

QWidget* CreateLineEdit(QWidget* parent)
{
    auto* edit = new ZLineEdit(parent);
    edit->setAccessibleName(Tr("Name"));
    edit->setOriginalText(Tr("Document camera"));
    edit->setPlaceholderText(Tr("Name of the camera"));
    edit->setFixedWidth(FIELD_WIDTH);
    return edit;
}

State EditState(
    const QString& name, const QString& text, void (*apply)(ZLineEdit&) = [](ZLineEdit&) {})
{
    return MakeState<ZLineEdit>(name, [text, apply](ZLineEdit& edit) {
        edit.setOriginalText(text);
        apply(edit);
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
        Tr("Kit"),
        Tr("A line edit that elides its text until it gets the focus, and reports an edit when the focus leaves."),
        "ZLineEdit",
        "field",
        CreateLineEdit,
        {
            MakeState<Edit>(Tr("Fits"), [](Edit&) {}),
            EditState(Tr("Elided"), LongName()),
            EditState(Tr("Right-to-left text"), QString::fromUtf8("המצלמה המובנית של המחשב הנייד באולם ההרצאות")),
            EditState(Tr("Cut, not elided"), LongName(), [](Edit& edit) { edit.setEliding(false); }),
            EditState(Tr("Read-only"), LongName(), [](Edit& edit) { edit.setReadOnly(true); }),
            EditState(Tr("Clear button"), LongName(), [](Edit& edit) { edit.setClearButtonEnabled(true); }),
            EditState(Tr("Validated"), LongName(), AcceptLettersOnly),
            EditState(Tr("Password"), Tr("Secret"), [](Edit& edit) { edit.setEchoMode(QLineEdit::Password); }),
            EditState(Tr("Empty"), QString()),
            EditState(Tr("Narrow"), LongName(), [](Edit& edit) { edit.setFixedWidth(NARROW_WIDTH); }),
            DisabledState(),
        },
    };
}

template<class Slider>
QWidget* CreateSlider(QWidget* parent)
{
    auto* slider = new Slider(parent);
    slider->setOrientation(Qt::Horizontal);
    slider->setAccessibleName(Tr("Zoom"));
    slider->setValue(40);
    slider->setFixedWidth(FIELD_WIDTH);
    return slider;
}

template<class Field>
State FocusedWheelState()
{
    return MakeState<Field>(Tr("Wheel in focus only"), [](Field& field) { field.setEditableInFocus(true); });
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
        Tr("Kit"),
        Tr("A slider that can leave the wheel to its panel until it has the focus."),
        "ZCustomSlider",
        "slide",
        CreateSlider<ZCustomSlider>,
        {
            MakeState<ZCustomSlider>(Tr("Typical"), [](ZCustomSlider&) {}),
            FocusedWheelState<ZCustomSlider>(),
            MakeState<ZCustomSlider>(Tr("At its end"), [](ZCustomSlider& slider) { slider.setValue(99); }),
            MakeState<ZCustomSlider>(Tr("Vertical"), [](ZCustomSlider& slider) { MakeVertical(slider); }),
            DisabledState(),
        },
    };
}

Entry DoubleSliderEntry()
{
    return {
        "ZDoubleSlider",
        Tr("Kit"),
        Tr("A slider for a floating-point value: its position times a multiplier."),
        "ZDoubleSlider",
        "slide",
        CreateSlider<ZDoubleSlider>,
        {
            MakeState<ZDoubleSlider>(Tr("Tenths"), [](ZDoubleSlider& slider) { slider.setMultiplier(0.1); }),
            MakeState<ZDoubleSlider>(Tr("Around zero, in quarters"),
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
    field->setAccessibleName(Tr("Frame rate"));
    field->setRange(1, 240);
    field->setValue(30);
    field->setFixedWidth(NUMBER_WIDTH);
    return field;
}

Entry SpinBoxEntry()
{
    return {
        "ZSpinBox",
        Tr("Kit"),
        Tr("A field for a whole number that can leave the wheel to its panel until it has the focus."),
        "ZSpinBox",
        "step",
        CreateSpinBox,
        {
            MakeState<ZSpinBox>(Tr("Typical"), [](ZSpinBox&) {}),
            FocusedWheelState<ZSpinBox>(),
            MakeState<ZSpinBox>(Tr("With a unit"), [](ZSpinBox& field) { field.setSuffix(Tr(" fps")); }),
            MakeState<ZSpinBox>(Tr("At its end"), [](ZSpinBox& field) { field.setValue(field.maximum()); }),
            MakeState<ZSpinBox>(Tr("Read-only"), [](ZSpinBox& field) { field.setReadOnly(true); }),
            DisabledState(),
        },
    };
}

QWidget* CreateDoubleSpinBox(QWidget* parent)
{
    auto* field = new ZDoubleSpinBox(parent);
    field->setAccessibleName(Tr("Delay"));
    field->setRange(0.5, 60);
    field->setSingleStep(0.25);
    field->setValue(2.5);
    field->setSuffix(Tr(" s"));
    field->setFixedWidth(NUMBER_WIDTH);
    return field;
}

Entry DoubleSpinBoxEntry()
{
    using Field = ZDoubleSpinBox;
    return {
        "ZDoubleSpinBox",
        Tr("Kit"),
        Tr("A field for a floating-point number that can keep what is typed to whole steps."),
        "ZDoubleSpinBox",
        "step",
        CreateDoubleSpinBox,
        {
            MakeState<Field>(Tr("Typical"), [](Field&) {}),
            MakeState<Field>(Tr("Typed numbers in whole steps"), [](Field& field) { field.setFixupWithStep(true); }),
            FocusedWheelState<Field>(),
            MakeState<Field>(Tr("At its end"), [](Field& field) { field.setValue(field.minimum()); }),
            DisabledState(),
        },
    };
}

} // namespace

QVector<Entry> FieldEntries()
{
    return {ComboEntry(),        LineEditEntry(), CustomSliderEntry(),
            DoubleSliderEntry(), SpinBoxEntry(),  DoubleSpinBoxEntry()};
}

} // namespace Zelkor::Gallery
