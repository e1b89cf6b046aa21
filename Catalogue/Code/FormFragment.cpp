#include "FormFragment.h"

#include <Catalogue/Catalogue.h>

#include <QColor>
#include <QComboBox>
#include <QMetaProperty>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTime>

#include <memory>

namespace Zelkor::Catalogue {

namespace {

QString Element(const QString& tag, const QString& content)
{
    return QString("<%1>%2</%3>").arg(tag, content, tag.section(' ', 0, 0));
}

QString Line(const QString& element)
{
    return "    " + element + '\n';
}

QString Number(const char* tag, int value)
{
    return Element(tag, QString::number(value));
}

QString TextElement(const QString& text)
{
    return Element("string", text.toHtmlEscaped());
}

// Returns a value in the format of forms; empty for types that need further files.
QString ValueElement(const QVariant& value)
{
    switch (value.userType()) {
    case QMetaType::Bool:
        return Element("bool", value.toString());
    case QMetaType::Int:
        return Number("number", value.toInt());
    case QMetaType::LongLong:
        return Element("longLong", value.toString());
    case QMetaType::Double:
        return Element("double", value.toString());
    case QMetaType::QString:
        return TextElement(value.toString());
    case QMetaType::QStringList: {
        QString items;
        for (const QString& text : value.toStringList())
            items += TextElement(text);
        return Element("stringlist", items);
    }
    case QMetaType::QSize:
        return Element("size", Number("width", value.toSize().width()) + Number("height", value.toSize().height()));
    case QMetaType::QRect: {
        const QRect rect = value.toRect();
        return Element("rect", Number("x", rect.x()) + Number("y", rect.y()) + Number("width", rect.width()) +
                                   Number("height", rect.height()));
    }
    case QMetaType::QTime: {
        const QTime time = value.toTime();
        return Element("time",
                       Number("hour", time.hour()) + Number("minute", time.minute()) + Number("second", time.second()));
    }
    case QMetaType::QColor: {
        const auto color = value.value<QColor>();
        return Element(QString("color alpha=\"%1\"").arg(color.alpha()),
                       Number("red", color.red()) + Number("green", color.green()) + Number("blue", color.blue()));
    }
    default:
        return QString();
    }
}

QString EnumElement(const QMetaProperty& property, int value)
{
    const QMetaEnum enumeration = property.enumerator();
    QStringList keys;
    for (const QByteArray& key : enumeration.valueToKeys(value).split('|'))
        keys.append(QString("%1::%2").arg(enumeration.scope(), QString(key)));
    return Element(property.isFlagType() ? "set" : "enum", keys.join('|'));
}

bool IsOfQt(const QString& className)
{
    return className.startsWith('Q') && !FindEntry(className);
}

// Without `stdset`, uic calls a setter "set...", which may not exist.
QString PropertyElement(const QString& name, const QString& value, bool isOfQt)
{
    return Line(Element(QString("property name=\"%1\"%2").arg(name, isOfQt ? "" : " stdset=\"0\""), value));
}

// Returns the properties whose values differ from those of `bare`.
QString PropertyElements(const QObject& object, const QObject& bare)
{
    // The position of a slider is its value.
    static const QStringList SKIPPED{"geometry", "sliderPosition"};
    QString elements;
    const QMetaObject* meta = object.metaObject();
    for (int i = 0; i < meta->propertyCount(); ++i) {
        const QMetaProperty property = meta->property(i);
        // Reading values of types that are unknown to Qt causes warnings.
        if (property.userType() == QMetaType::UnknownType)
            continue;
        const QVariant value = property.read(&object);
        if (!property.isWritable() || !property.isDesignable() || !property.isStored() ||
            value == property.read(&bare) || SKIPPED.contains(property.name()))
            continue;
        // The text is the original one, or what is left of it.
        if (qstrcmp(property.name(), "text") == 0 && meta->indexOfProperty("originalText") >= 0)
            continue;
        const QString owner = QString(property.enclosingMetaObject()->className()).section("::", -1);
        const QString text = property.isEnumType() ? EnumElement(property, value.toInt()) : ValueElement(value);
        if (!text.isEmpty())
            elements += PropertyElement(property.name(), text, IsOfQt(owner));
    }
    for (const QByteArray& name : object.dynamicPropertyNames()) {
        const QString text = ValueElement(object.property(name));
        if (!name.startsWith('_') && !text.isEmpty())
            elements += PropertyElement(name, text, false);
    }
    return elements;
}

// Returns the items of a combo box, or empty pages.
QString ContentElements(const QWidget& widget, const QString& name)
{
    QString elements;
    if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) {
        for (int i = 0; i < combo->count(); ++i)
            elements += Line(Element("item", Element("property name=\"text\"", TextElement(combo->itemText(i)))));
    }
    const auto* tabs = qobject_cast<const QTabWidget*>(&widget);
    const auto* stack = qobject_cast<const QStackedWidget*>(&widget);
    const int pages = tabs ? tabs->count() : stack ? stack->count() : 0;
    for (int i = 0; i < pages; ++i) {
        const QString title = tabs ? Element("attribute name=\"title\"", TextElement(tabs->tabText(i))) : QString();
        const QString tag = QString("widget class=\"QWidget\" name=\"%1Page%2\"").arg(name).arg(i + 1);
        elements += Line(Element(tag, title));
    }
    return elements;
}

} // namespace

QString FormOf(const Entry& entry, const State& state)
{
    QWidget parent;
    QWidget* widget = CreateInState(entry, state, &parent);
    QObject* bare = CreateBare(entry, &parent);
    const QMetaObject* meta = bare->metaObject();
    if (!entry.form.reasonAgainst.isEmpty() || widget->metaObject() != meta)
        return QString();
    // What the style sheet sets is no difference.
    for (const QByteArray& name : widget->dynamicPropertyNames())
        bare->setProperty(name, widget->property(name));
    widget->ensurePolished();
    static_cast<QWidget*>(bare)->ensurePolished();
    const QMetaObject* base = meta;
    while (!IsOfQt(base->className()))
        base = base->superClass();
    const QString className = meta->className();
    const QString name = entry.className[0].toLower() + entry.className.mid(1);
    return QString("<ui version=\"4.0\">\n  <widget class=\"%1\" name=\"%2\">\n%3%4  </widget>\n"
                   "  <customwidgets>\n    <customwidget>\n      <class>%1</class>\n      <extends>%5</extends>\n"
                   "      <header>%6</header>\n    </customwidget>\n  </customwidgets>\n</ui>\n")
        .arg(className, name, PropertyElements(*widget, *bare), ContentElements(*widget, name), base->className(),
             entry.form.header);
}

} // namespace Zelkor::Catalogue
