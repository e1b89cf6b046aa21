#include "PropertyEditor.h"
#include "StyleSheetLine.h"
#include "Texts.h"

#include <UI/Kit/ZComboBox.h>
#include <UI/Kit/ZDoubleSpinBox.h>
#include <UI/Kit/ZLineEdit.h>
#include <UI/Kit/ZSpinBox.h>
#include <UI/Kit/ZTimeEdit.h>
#include <UI/Widgets/ColorButton.h>

#include <QAction>
#include <QCheckBox>
#include <QCoreApplication>
#include <QDebug>
#include <QFileDialog>
#include <QFocusEvent>
#include <QGridLayout>
#include <QImage>
#include <QMenu>
#include <QMetaEnum>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QToolButton>

#include <limits>

namespace Zelkor::Gallery {

namespace {

class Editors
{
    Q_DECLARE_TR_FUNCTIONS(Editors)
};

constexpr int LIST_LINES = 3;
constexpr int LONGEST_TEXT = 80;          ///< characters of a value shown
constexpr double EXACT_NUMBER = 9.0e15;   ///< up to here, a double counts in ones
constexpr double LARGEST_NUMBER = 1.0e12; ///< up to here, a spin box keeps its decimals
constexpr int DECIMALS = 4;
constexpr QChar LEFT_TO_RIGHT_MARK(0x200e);

PropertyEditor CreateBoolEditor(QWidget* parent, const ValueListener& listener)
{
    auto* box = new QCheckBox(parent);
    QObject::connect(box, &QCheckBox::toggled, box, [listener](bool on) { listener(on, QString()); });
    return {box, [box](const QVariant& value) { box->setChecked(value.toBool()); }};
}

template<class SpinBox>
SpinBox* CreateSpinBox(QWidget* parent, double smallest, double largest)
{
    auto* box = new SpinBox(parent);
    box->setRange(smallest, largest);
    // In a list that scrolls, the wheel is for the list; and half a number is no value.
    box->setEditableInFocus(true);
    box->setKeyboardTracking(false);
    // Numbers of any length are shorter than the range.
    box->setMinimumWidth(0);
    box->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    return box;
}

ZSpinBox* CreateIntBox(QWidget* parent)
{
    auto* box = CreateSpinBox<ZSpinBox>(parent, 0, 0);
    box->setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    return box;
}

PropertyEditor CreateIntEditor(QWidget* parent, const ValueListener& listener)
{
    auto* box = CreateIntBox(parent);
    QObject::connect(box, QOverload<int>::of(&QSpinBox::valueChanged), box,
                     [listener](int number) { listener(number, QString()); });
    return {box, [box](const QVariant& value) { box->setValue(value.toInt()); }};
}

PropertyEditor CreateNumberEditor(int type, QWidget* parent, const ValueListener& listener)
{
    const bool isWhole = type != QMetaType::Double && type != QMetaType::Float;
    const bool isUnsigned = type == QMetaType::UInt || type == QMetaType::ULongLong;
    const double largest = type == QMetaType::UInt ? std::numeric_limits<uint>::max()
                           : isWhole               ? EXACT_NUMBER
                                                   : LARGEST_NUMBER;
    auto* box = CreateSpinBox<ZDoubleSpinBox>(parent, isUnsigned ? 0 : -largest, largest);
    box->setDecimals(isWhole ? 0 : DECIMALS);
    box->setSingleStep(isWhole ? 1 : 0.1);
    QObject::connect(box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), box, [listener, type](double number) {
        QVariant value(number);
        value.convert(type);
        listener(value, QString());
    });
    return {box, [box](const QVariant& value) { box->setValue(value.toDouble()); }};
}

PropertyEditor CreateTextEditor(QWidget* parent, const ValueListener& listener)
{
    auto* edit = new ZLineEdit(parent);
    // Return tells the text as well, where a line edit of the kit waits for the focus to leave.
    QObject::connect(edit, &QLineEdit::returnPressed, edit, [edit, listener] { listener(edit->text(), QString()); });
    QObject::connect(edit, &ZLineEdit::originalTextChanged, edit,
                     [listener](const QString& text) { listener(text, QString()); });
    return {edit, [edit](const QVariant& value) { edit->setOriginalText(value.toString()); }};
}

// Tells the lines when the focus leaves.
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

PropertyEditor CreateLinesEditor(QWidget* parent, const ValueListener& listener)
{
    auto* edit = new LinesEdit(parent, listener);
    return {edit, [edit](const QVariant& value) { edit->Show(value.toStringList()); }};
}

// The number sign stays before the digits, whichever way the texts around run.
QString ColorText(const QColor& color)
{
    return LEFT_TO_RIGHT_MARK + color.name(QColor::HexArgb);
}

PropertyEditor CreateColorEditor(QWidget* parent, const ValueListener& listener)
{
    auto* button = new Vx::ColorButton(parent);
    button->SetAlphaEnabled(true);
    QObject::connect(button, &Vx::ColorButton::ColorChanged, button, [button, listener](const QColor& color) {
        button->setText(ColorText(color));
        listener(color, QString());
    });
    return {button, [button](const QVariant& value) {
                const auto color = value.value<QColor>();
                button->SetColor(color.isValid() ? color : QColor(Qt::transparent));
                button->setText(color.isValid() ? ColorText(color) : Editors::tr("No colour"));
            }};
}

PropertyEditor CreateEnumEditor(const QMetaEnum& type, QWidget* parent, const ValueListener& listener)
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

PropertyEditor CreateFlagsEditor(const QMetaEnum& type, QWidget* parent, const ValueListener& listener)
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

// The numbers of points, sizes and rectangles, one spin box each.
struct Parts
{
    QStringList names;
    std::function<QVector<double>(const QVariant& value)> split;
    std::function<QVariant(const QVector<double>& numbers)> join;
};

Parts PartsOf(int type)
{
    const QStringList place = {"x", "y"};
    const QStringList extent = {Editors::tr("w", "short for width"), Editors::tr("h", "short for height")};
    const auto point = [](const QPointF& p) { return QVector<double>{p.x(), p.y()}; };
    const auto size = [](const QSizeF& s) { return QVector<double>{s.width(), s.height()}; };
    switch (type) {
    case QMetaType::QPoint:
    case QMetaType::QPointF:
        return {place, [=](const QVariant& value) { return point(value.toPointF()); },
                [](const QVector<double>& n) { return QPointF(n[0], n[1]); }};
    case QMetaType::QSize:
    case QMetaType::QSizeF:
        return {extent, [=](const QVariant& value) { return size(value.toSizeF()); },
                [](const QVector<double>& n) { return QSizeF(n[0], n[1]); }};
    default:
        return {place + extent,
                [=](const QVariant& value) {
                    const QRectF rect = value.toRectF();
                    return point(rect.topLeft()) + size(rect.size());
                },
                [](const QVector<double>& n) { return QRectF(n[0], n[1], n[2], n[3]); }};
    }
}

PropertyEditor CreatePartsEditor(int type, QWidget* parent, const ValueListener& listener)
{
    auto* control = new QWidget(parent);
    auto* grid = new QGridLayout(control);
    grid->setContentsMargins(0, 0, 0, 0);
    const Parts parts = PartsOf(type);
    const bool isWhole = type == QMetaType::QPoint || type == QMetaType::QSize || type == QMetaType::QRect;
    QVector<ZDoubleSpinBox*> boxes;
    for (const QString& name : parts.names) {
        auto* box =
            CreateSpinBox<ZDoubleSpinBox>(control, std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
        box->setDecimals(isWhole ? 0 : DECIMALS);
        box->setPrefix(name + ' ');
        // Two in a row have no room for arrows; the arrow keys do the same.
        box->setButtonSymbols(QAbstractSpinBox::NoButtons);
        box->setAccessibleName(name);
        grid->addWidget(box, boxes.size() / 2, boxes.size() % 2);
        boxes.append(box);
    }
    control->setFocusProxy(boxes.first());
    for (ZDoubleSpinBox* box : boxes) {
        QObject::connect(box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), control, [=] {
            QVector<double> numbers;
            for (const ZDoubleSpinBox* other : boxes)
                numbers.append(other->value());
            QVariant value = parts.join(numbers);
            value.convert(type);
            listener(value, QString());
        });
    }
    return {control, [boxes, parts](const QVariant& value) {
                const QVector<double> numbers = parts.split(value);
                for (int i = 0; i < boxes.size(); ++i) {
                    // Nobody entered the numbers that come one after the other.
                    const QSignalBlocker blocker(boxes[i]);
                    boxes[i]->setValue(numbers[i]);
                }
            }};
}

PropertyEditor CreatePictureEditor(int type, QWidget* parent, const ValueListener& listener)
{
    auto* control = new QWidget(parent);
    auto* layout = new QHBoxLayout(control);
    auto* path = new ZLineEdit(control);
    auto* browse = new QToolButton(control);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(path, 1);
    layout->addWidget(browse);
    browse->setText(QChar(0x2026));
    browse->setFocusPolicy(Qt::StrongFocus);
    browse->setAccessibleName(Editors::tr("Choose a file"));
    control->setFocusProxy(path);
    const auto take = [=](const QString& file) {
        const QImage image(file);
        path->setToolTip(image.isNull() && !file.isEmpty() ? Editors::tr("This file is no picture") : QString());
        if (file.isEmpty() || image.isNull())
            return;
        listener(type == QMetaType::QPixmap ? QVariant(QPixmap::fromImage(image)) : QVariant(image), file);
    };
    QObject::connect(path, &ZLineEdit::originalTextChanged, control, take);
    QObject::connect(path, &QLineEdit::returnPressed, control, [=] { take(path->text()); });
    QObject::connect(browse, &QToolButton::clicked, control, [=] {
        auto* dialog = new QFileDialog(control, Editors::tr("Picture"), QString(),
                                       Editors::tr("Pictures") + " (*.png *.jpg *.jpeg *.svg *.bmp)");
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        QObject::connect(dialog, &QFileDialog::fileSelected, path, &ZLineEdit::setOriginalText);
        dialog->open();
    });
    // Where the picture came from stays; what it is shows while there is no such place.
    return {control, [path, type](const QVariant& value) {
                const QSize size =
                    type == QMetaType::QPixmap ? value.value<QPixmap>().size() : value.value<QImage>().size();
                path->setPlaceholderText(size.isEmpty()
                                             ? Editors::tr("No picture")
                                             : QString::fromUtf8("%1 × %2").arg(size.width()).arg(size.height()));
            }};
}

PropertyEditor CreateTimeEditor(QWidget* parent, const ValueListener& listener)
{
    auto* edit = new ZTimeEdit(parent);
    edit->setDisplayFormat("HH:mm:ss.zzz");
    edit->setKeyboardTracking(false);
    QObject::connect(edit, &QTimeEdit::timeChanged, edit, [listener](const QTime& time) { listener(time, QString()); });
    return {edit, [edit](const QVariant& value) { edit->setTime(value.toTime()); }};
}

PropertyEditor CreateEditorOfType(int type, QWidget* parent, const ValueListener& listener)
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

PropertyEditor CreatePropertyEditor(const QMetaProperty& property, QWidget* parent, const ValueListener& listener)
{
    if (!property.isWritable())
        return {};
    if (property.isFlagType())
        return CreateFlagsEditor(property.enumerator(), parent, listener);
    if (property.isEnumType())
        return CreateEnumEditor(property.enumerator(), parent, listener);
    return CreateEditorOfType(property.userType(), parent, listener);
}

QVariant ReadProperty(const QMetaProperty& property, const QObject* object)
{
    return property.userType() == QMetaType::UnknownType ? QVariant() : property.read(object);
}

QString PropertyText(const QMetaProperty& property, const QVariant& value)
{
    QString text;
    if (!value.isValid())
        text = QChar(0x2014);
    else if (property.isFlagType())
        text = property.enumerator().valueToKeys(EnumNumber(value));
    else if (property.isEnumType())
        text = property.enumerator().valueToKey(EnumNumber(value));
    else if (value.userType() == QMetaType::QColor)
        text = value.value<QColor>().isValid() ? value.value<QColor>().name(QColor::HexArgb) : QString();
    else if (value.canConvert<QString>())
        text = value.toString();
    else
        QDebug(&text).nospace().noquote() << value;
    // Qt names the type before the value, and the type is told elsewhere.
    if (text.startsWith("QVariant("))
        text = text.section(", ", 1).chopped(1);
    text = text.simplified();
    return text.size() > LONGEST_TEXT ? text.left(LONGEST_TEXT) + QChar(0x2026) : text;
}

bool AreSame(const QMetaProperty& property, const QVariant& a, const QVariant& b)
{
    if (property.isEnumType())
        return EnumNumber(a) == EnumNumber(b);
    if (a.userType() == QMetaType::QPixmap && b.userType() == QMetaType::QPixmap)
        return a.value<QPixmap>().toImage() == b.value<QPixmap>().toImage();
    return a == b;
}

} // namespace Zelkor::Gallery
