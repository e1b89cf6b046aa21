#include "PropertyEditor.h"
#include "ColorField.h"
#include "EditorSpinBox.h"
#include "MetaTypes.h"
#include "PartsEditor.h"
#include "PictureEditor.h"
#include "StyleSheetLine.h"

#include <Examples/Support/WidgetTexts.h>
#include <UI/Kit/ZComboBox.h>
#include <UI/Kit/ZDoubleSpinBox.h>
#include <UI/Kit/ZLineEdit.h>
#include <UI/Kit/ZSpinBox.h>
#include <UI/Kit/ZTimeEdit.h>

#include <QAction>
#include <QCheckBox>
#include <QFocusEvent>
#include <QMenu>
#include <QMetaEnum>
#include <QPlainTextEdit>
#include <QToolButton>

#include <limits>

namespace Zelkor::Gallery {

using namespace Examples;

namespace {

constexpr int LIST_LINES = 3;
constexpr double EXACT_NUMBER = 9.0e15;   ///< a double represents all integers up to this
constexpr double LARGEST_NUMBER = 1.0e12; ///< a spin box keeps its decimals up to this

PropertyControl CreateBoolEditor(QWidget* parent, const ValueListener& listener)
{
    auto* box = new QCheckBox(parent);
    QObject::connect(box, &QCheckBox::toggled, box, [listener](bool on) { listener(on, QString()); });
    return {box, [box](const QVariant& value) { box->setChecked(value.toBool()); }};
}

ZSpinBox* CreateIntBox(QWidget* parent)
{
    auto* box = CreateSpinBox<ZSpinBox>(parent, 0, 0);
    box->setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    return box;
}

PropertyControl CreateIntEditor(QWidget* parent, const ValueListener& listener)
{
    auto* box = CreateIntBox(parent);
    QObject::connect(box, QOverload<int>::of(&QSpinBox::valueChanged), box,
                     [listener](int number) { listener(number, QString()); });
    return {box, [box](const QVariant& value) { box->setValue(value.toInt()); }};
}

PropertyControl CreateNumberEditor(int type, QWidget* parent, const ValueListener& listener)
{
    const bool isWhole = type != QMetaType::Double && type != QMetaType::Float;
    const bool isUnsigned = type == QMetaType::UInt || type == QMetaType::ULongLong;
    const double largest = type == QMetaType::UInt ? std::numeric_limits<uint>::max()
                           : isWhole               ? EXACT_NUMBER
                                                   : LARGEST_NUMBER;
    auto* box = CreateSpinBox<ZDoubleSpinBox>(parent, isUnsigned ? 0 : -largest, largest);
    box->setDecimals(isWhole ? 0 : DECIMALS);
    box->setSingleStep(isWhole ? 1 : 0.1);
    QObject::connect(box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), box,
                     [listener, type](double number) { listener(Converted(number, type), QString()); });
    return {box, [box](const QVariant& value) { box->setValue(value.toDouble()); }};
}

PropertyControl CreateTextEditor(QWidget* parent, const ValueListener& listener)
{
    auto* edit = new ZLineEdit(parent);
    // Return commits the text as well; ZLineEdit commits when it loses the focus.
    QObject::connect(edit, &QLineEdit::returnPressed, edit, [edit, listener] { listener(edit->text(), QString()); });
    QObject::connect(edit, &ZLineEdit::originalTextChanged, edit,
                     [listener](const QString& text) { listener(text, QString()); });
    return {edit, [edit](const QVariant& value) { edit->setOriginalText(value.toString()); }};
}

// Commits the text when the editor loses the focus.
class LinesEdit : public QPlainTextEdit
{
public:
    LinesEdit(QWidget* parent, ValueListener listener) : QPlainTextEdit(parent), listener(std::move(listener))
    {
        setTabChangesFocus(true);
        setFixedHeight(fontMetrics().lineSpacing() * LIST_LINES + 2 * qRound(document()->documentMargin()) + 12);
        setPlaceholderText(Editors::tr("One text in each line"));
    }

    void Show(const QStringList& lines)
    {
        shown = lines;
        setPlainText(lines.join('\n'));
    }

protected:
    void focusOutEvent(QFocusEvent* event) override
    {
        QPlainTextEdit::focusOutEvent(event);
        const QString text = toPlainText();
        const QStringList lines = text.isEmpty() ? QStringList() : text.split('\n');
        if (event->reason() != Qt::PopupFocusReason && lines.join('\n') != shown.join('\n'))
            listener(lines, QString());
    }

private:
    const ValueListener listener;
    QStringList shown;
};

PropertyControl CreateLinesEditor(QWidget* parent, const ValueListener& listener)
{
    auto* edit = new LinesEdit(parent, listener);
    return {edit, [edit](const QVariant& value) { edit->Show(value.toStringList()); }};
}

PropertyControl CreateColorEditor(QWidget* parent, const ValueListener& listener)
{
    auto* field = new ColorField(parent);
    QObject::connect(field, &ColorField::ColorChanged, field,
                     [listener](const QColor& color) { listener(color, QString()); });
    return {field, [field](const QVariant& value) { field->SetColor(value.value<QColor>()); }};
}

PropertyControl CreateEnumEditor(const QMetaEnum& type, QWidget* parent, const ValueListener& listener)
{
    auto* combo = new ZComboBox(parent);
    combo->setMouseWheelEnabled(false);
    combo->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    for (int i = 0; i < type.keyCount(); ++i)
        combo->addItem(type.key(i), type.value(i));
    StyleItems(combo);
    QObject::connect(combo, QOverload<int>::of(&QComboBox::currentIndexChanged), combo, [combo, listener](int index) {
        if (index >= 0)
            listener(combo->itemData(index), QString());
    });
    return {combo, [combo](const QVariant& value) { combo->setCurrentIndex(combo->findData(EnumNumber(value))); }};
}

PropertyControl CreateFlagsEditor(const QMetaEnum& type, QWidget* parent, const ValueListener& listener)
{
    auto* button = new QToolButton(parent);
    auto* menu = new QMenu(button);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setPopupMode(QToolButton::InstantPopup);
    button->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    button->setMenu(menu);
    const auto show = [button, menu, type](const QVariant& value) {
        const int number = EnumNumber(value);
        const QString keys = type.valueToKeys(number);
        button->setText(keys.isEmpty() ? QString::number(number) : keys);
        for (QAction* action : menu->actions()) {
            const int flag = action->data().toInt();
            action->setChecked(flag == 0 ? number == 0 : (number & flag) == flag);
        }
        button->setProperty("number", number);
    };
    for (int i = 0; i < type.keyCount(); ++i) {
        QAction* action = menu->addAction(type.key(i));
        action->setData(type.value(i));
        action->setCheckable(true);
        QObject::connect(action, &QAction::triggered, button, [=](bool on) {
            const int flag = action->data().toInt();
            const int number = button->property("number").toInt();
            const int changed = flag == 0 ? 0 : on ? number | flag : number & ~flag;
            show(changed);
            listener(changed, QString());
        });
    }
    return {button, show};
}

PropertyControl CreateTimeEditor(QWidget* parent, const ValueListener& listener)
{
    auto* edit = new ZTimeEdit(parent);
    edit->setDisplayFormat("HH:mm:ss.zzz");
    edit->setKeyboardTracking(false);
    QObject::connect(edit, &QTimeEdit::timeChanged, edit, [listener](const QTime& time) { listener(time, QString()); });
    return {edit, [edit](const QVariant& value) { edit->setTime(value.toTime()); }};
}

PropertyControl CreateEditorOfType(int type, QWidget* parent, const ValueListener& listener)
{
    switch (type) {
    case QMetaType::Bool:
        return CreateBoolEditor(parent, listener);
    case QMetaType::Int:
        return CreateIntEditor(parent, listener);
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
    case QMetaType::Float:
        return CreateNumberEditor(type, parent, listener);
    case QMetaType::QString:
        return CreateTextEditor(parent, listener);
    case QMetaType::QStringList:
        return CreateLinesEditor(parent, listener);
    case QMetaType::QColor:
        return CreateColorEditor(parent, listener);
    case QMetaType::QPoint:
    case QMetaType::QPointF:
    case QMetaType::QSize:
    case QMetaType::QSizeF:
    case QMetaType::QRect:
    case QMetaType::QRectF:
        return CreatePartsEditor(type, parent, listener);
    case QMetaType::QImage:
    case QMetaType::QPixmap:
        return CreatePictureEditor(type, parent, listener);
    case QMetaType::QTime:
        return CreateTimeEditor(parent, listener);
    default:
        return {};
    }
}

} // namespace

PropertyControl CreatePropertyEditor(const QMetaProperty& property, QWidget* parent, const ValueListener& listener)
{
    if (!property.isWritable())
        return {};
    if (property.isFlagType())
        return CreateFlagsEditor(property.enumerator(), parent, listener);
    if (property.isEnumType())
        return CreateEnumEditor(property.enumerator(), parent, listener);
    return CreateEditorOfType(property.userType(), parent, listener);
}

} // namespace Zelkor::Gallery
