#include "PropertyPanel.h"
#include "PropertyValue.h"
#include "StyleSheetLine.h"

#include <Examples/Support/WidgetTexts.h>
#include <UI/Kit/ZStyleSheet.h>

#include <QApplication>
#include <QClipboard>
#include <QEvent>
#include <QFontMetrics>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

namespace Zelkor::Gallery {

using namespace Examples;

namespace {

constexpr int MARGIN = 12;
constexpr int SPACING = 8;
constexpr int ROW_SPACING = 4;
constexpr int REFRESH_MS = 500; ///< many properties have no change signal
constexpr int NAME_WIDTH = 148; ///< of a name beside its value
constexpr int VALUE_WIDTH = 120;
const char* const ROW_PROPERTY = "rowOfPanel";

bool HasWritable(const QMetaObject& meta)
{
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        if (meta.property(i).isWritable())
            return true;
    }
    return false;
}

// A redeclared property belongs to the most derived class.
bool IsDeclaredBy(const QMetaObject& whole, const QMetaProperty& property, int index)
{
    return whole.indexOfProperty(property.name()) == index;
}

void SetDynamic(QWidget* widget, const char* name, bool value)
{
    if (widget->property(name) == QVariant(value))
        return;
    widget->setProperty(name, value);
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
}

// Returns whether the value takes one short field, which fits beside a short name.
bool IsShort(int type)
{
    switch (type) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
    case QMetaType::Float:
    case QMetaType::QColor:
        return true;
    default:
        return false;
    }
}

int BoldWidth(const QLabel& label)
{
    QFont font = label.font();
    font.setBold(true);
    return QFontMetrics(font).horizontalAdvance(label.text());
}

// Adds a name with its controls in one line, or the value below where it needs the width. Names that are changed become
// bold.
void Place(QGridLayout& grid, QLabel* name, QWidget* control, QWidget* reset, const QMetaProperty& property)
{
    int line = grid.rowCount();
    name->ensurePolished();
    const bool fits = BoldWidth(*name) <= NAME_WIDTH;
    const bool isCheckBox = property.userType() == QMetaType::Bool;
    const bool isBeside = isCheckBox || (fits && !property.isEnumType() && IsShort(property.userType()));
    grid.addWidget(name, line, 0, 1, isBeside && fits ? 1 : 2);
    if (isCheckBox) {
        grid.addWidget(control, line, 1, Qt::AlignTrailing);
    } else if (isBeside) {
        control->setFixedWidth(VALUE_WIDTH);
        grid.addWidget(control, line, 1);
    } else {
        name->setContentsMargins(0, SPACING, 0, 0);
        grid.addWidget(control, ++line, 0, 1, 2);
    }
    grid.addWidget(reset, line, 2);
}

bool HasFocusWithin(const QWidget* control)
{
    const QWidget* focused = QApplication::focusWidget();
    return focused && (focused == control || control->isAncestorOf(focused));
}

} // namespace

QVariantMap PropertyValues(const QObject& object)
{
    QVariantMap values;
    const QMetaObject* meta = object.metaObject();
    for (int i = 0; i < meta->propertyCount(); ++i) {
        if (meta->property(i).isWritable())
            values.insert(meta->property(i).name(), ReadProperty(meta->property(i), &object));
    }
    return values;
}

PropertyPanel::PropertyPanel(QWidget* parent)
    : QWidget(parent), area(new QScrollArea), lineLabel(new QLabel(tr("In a style sheet"))), line(new QLineEdit),
      copyButton(new QToolButton)
{
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setFocusPolicy(Qt::NoFocus);
    lineLabel->setObjectName("caption");
    AlignAtStart(lineLabel);
    line->setObjectName("styleSheetLine");
    line->setReadOnly(true);
    line->setAccessibleName(lineLabel->text());
    line->setLayoutDirection(Qt::LeftToRight);
    copyButton->setObjectName("copyLine");
    copyButton->setText(tr("Copy"));
    copyButton->setToolTip(tr("Copies the line of the style sheet"));
    copyButton->setFocusPolicy(Qt::StrongFocus);
    connect(copyButton, &QToolButton::clicked, this, [this] { QApplication::clipboard()->setText(line->text()); });
    connect(&timer, &QTimer::timeout, this, &PropertyPanel::Refresh);

    auto* bottom = new QGridLayout;
    bottom->setContentsMargins(MARGIN, 0, MARGIN, MARGIN);
    bottom->setSpacing(ROW_SPACING);
    bottom->addWidget(lineLabel, 0, 0, 1, 2);
    bottom->addWidget(line, 1, 0);
    bottom->addWidget(copyButton, 1, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(SPACING);
    layout->addWidget(area, 1);
    layout->addLayout(bottom);
    SetObject(nullptr, {});
}

void PropertyPanel::SetObject(QObject* newObject, const QVariantMap& newDefaults)
{
    // Commits pending input to the old object.
    if (HasFocusWithin(area))
        QApplication::focusWidget()->clearFocus();
    ++generation;
    if (object)
        disconnect(object, nullptr, this, nullptr);
    object = newObject;
    defaults = newDefaults;
    rows.clear();
    groups.clear();
    auto* content = new QWidget;
    list = new QVBoxLayout(content);
    list->setContentsMargins(MARGIN, MARGIN, MARGIN, 0);
    list->setSpacing(ROW_SPACING);
    // Deletes the old content later, because one of its controls may be the sender.
    if (QWidget* old = area->takeWidget()) {
        old->setParent(nullptr);
        old->deleteLater();
    }
    area->setWidget(content);
    content->setAutoFillBackground(false);
    ShowLine(-1);
    if (!object)
        return;
    connect(object, &QObject::destroyed, this, [this] { SetObject(nullptr, {}); });
    for (const QMetaObject* meta = object->metaObject(); meta; meta = meta->superClass()) {
        if (HasWritable(*meta))
            AddGroup(meta);
    }
    list->addStretch();
    if (!groups.empty())
        groups.front().heading->setChecked(true);
}

void PropertyPanel::AddGroup(const QMetaObject* declaring)
{
    auto* heading = new QToolButton;
    const QString name = declaring->className();
    heading->setObjectName("group:" + name);
    heading->setProperty("role", QStringLiteral("groupHeading"));
    heading->setText(name.section("::", -1));
    heading->setToolTip(name);
    heading->setCheckable(true);
    heading->setAutoRaise(true);
    heading->setFocusPolicy(Qt::StrongFocus);
    heading->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    heading->setIcon(ZStyleSheet::icon(isRightToLeft() ? "chevron-left" : "chevron-right"));
    auto* body = new QWidget;
    body->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    body->hide();
    list->addWidget(heading);
    list->addWidget(body);
    const int index = int(groups.size());
    groups.push_back({declaring, heading, body, false});
    connect(heading, &QToolButton::toggled, body, [this, index](bool on) { Unfold(index, on); });
}

void PropertyPanel::Unfold(int index, bool on)
{
    Group& group = groups[index];
    const char* folded = isRightToLeft() ? "chevron-left" : "chevron-right";
    group.heading->setIcon(ZStyleSheet::icon(on ? "chevron-down" : folded));
    if (on && !group.filled && object) {
        group.filled = true;
        auto* grid = new QGridLayout(group.body);
        grid->setContentsMargins(0, 0, 0, SPACING);
        grid->setHorizontalSpacing(SPACING);
        grid->setVerticalSpacing(ROW_SPACING);
        grid->setColumnStretch(0, 1);
        grid->setColumnMinimumWidth(1, VALUE_WIDTH);
        const QMetaObject& meta = *group.declaring;
        for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
            const QMetaProperty property = meta.property(i);
            if (property.isWritable() && IsDeclaredBy(*object->metaObject(), property, i))
                AddRow(property, grid);
        }
    }
    group.body->setVisible(on);
}

void PropertyPanel::AddRow(const QMetaProperty& property, QGridLayout* grid)
{
    const QString name = property.name();
    const int index = int(rows.size());
    QWidget* parent = grid->parentWidget();
    PropertyControl editor = CreatePropertyEditor(
        property, parent, [this, index, made = generation](const QVariant& value, const QString& file) {
            if (made == generation)
                Write(index, value, file);
        });
    auto* label = new QLabel(name, parent);
    auto* reset = new QToolButton(parent);
    Row row{property, ReadProperty(property, object), QString(), std::move(editor), label, nullptr, reset};
    row.name->setMinimumWidth(1);
    AlignAtStart(row.name);
    QWidget* control = row.editor.widget;
    if (!control) {
        row.text = new QLineEdit(parent);
        row.text->setObjectName("value:" + name);
        row.text->setAccessibleName(name);
        row.text->setReadOnly(true);
        row.text->setProperty("role", QStringLiteral("shownOnly"));
        row.text->setToolTip(tr("Values of the type %1 are shown only").arg(property.typeName()));
        control = row.text;
    } else {
        control->setObjectName("edit:" + name);
        control->setAccessibleName(name);
        const QWidgetList parts = control->findChildren<QWidget*>() << control;
        for (QWidget* part : parts) {
            part->setProperty(ROW_PROPERTY, index);
            part->installEventFilter(this);
        }
    }
    control->setMinimumWidth(1);
    // Values are code, which always runs from left to right.
    control->setLayoutDirection(Qt::LeftToRight);
    QSizePolicy policy = row.reset->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    row.reset->setSizePolicy(policy);
    row.reset->setObjectName("reset:" + name);
    row.reset->setIcon(ZStyleSheet::icon("undo"));
    row.reset->setAutoRaise(true);
    row.reset->setFocusPolicy(Qt::StrongFocus);
    row.reset->setAccessibleName(tr("Default of %1").arg(name));
    row.reset->setProperty("role", QStringLiteral("reset"));
    connect(row.reset, &QToolButton::clicked, parent,
            [this, index, name] { Write(index, defaults.value(name), QString()); });
    Place(*grid, row.name, control, row.reset, property);
    rows.push_back(std::move(row));
    Show(rows.back());
}

void PropertyPanel::Write(int index, const QVariant& value, const QString& file)
{
    if (showing || !object)
        return;
    const QPointer<QObject> target = object;
    const int writtenFor = generation;
    const QMetaProperty property = rows[index].property;
    if (AreSame(property, ReadProperty(property, target), value) && file == rows[index].file)
        return ShowLine(index);
    property.write(target, value);
    // A receiver may delete the object and the rows.
    if (!target || writtenFor != generation)
        return;
    rows[index].file = file;
    rows[index].value = ReadProperty(property, object);
    Show(rows[index]);
    ShowLine(index);
    Refresh();
}

void PropertyPanel::Refresh()
{
    if (!object)
        return;
    for (int i = 0; i < int(rows.size()); ++i) {
        Row& row = rows[i];
        const QVariant value = ReadProperty(row.property, object);
        const bool isSame = AreSame(row.property, value, row.value);
        if (isSame || (row.editor.widget && HasFocusWithin(row.editor.widget)))
            continue;
        row.value = value;
        row.file.clear();
        Show(row);
        if (i == currentRow)
            ShowLine(i);
    }
}

void PropertyPanel::Show(Row& row)
{
    showing = true;
    const QString name = row.property.name();
    const QString text = PropertyText(row.property, row.value);
    if (row.editor.widget) {
        row.editor.show(row.value);
    } else {
        row.text->setText(text);
        row.text->setCursorPosition(0);
    }
    const bool isDefault = defaults.contains(name) && AreSame(row.property, row.value, defaults.value(name));
    const QString defaultText = PropertyText(row.property, defaults.value(name));
    row.name->setToolTip(defaults.contains(name)
                             ? tr("%1: %2\nDefault: %3").arg(name, row.property.typeName(), defaultText)
                             : tr("%1: %2").arg(name, row.property.typeName()));
    SetDynamic(row.name, "changed", !isDefault);
    row.reset->setToolTip(tr("Back to the default: %1").arg(defaultText));
    row.reset->setVisible(row.editor.widget && !isDefault && defaults.contains(name));
    showing = false;
}

void PropertyPanel::ShowLine(int index)
{
    currentRow = index;
    const bool isStyled = object && object->isWidgetType() && index >= 0;
    const QString text =
        isStyled ? StyleSheetLine(rows[index].property, rows[index].value, rows[index].file) : QString();
    line->setText(text);
    line->setCursorPosition(0);
    line->setPlaceholderText(index < 0 ? tr("Choose a property") : tr("Style sheets cannot say this"));
    copyButton->setEnabled(!text.isEmpty());
}

bool PropertyPanel::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn && area->isAncestorOf(static_cast<QWidget*>(watched))) {
        ShowLine(watched->property(ROW_PROPERTY).toInt());
    }
    return QWidget::eventFilter(watched, event);
}

void PropertyPanel::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    Refresh();
    timer.start(REFRESH_MS);
}

void PropertyPanel::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    timer.stop();
}

} // namespace Zelkor::Gallery
