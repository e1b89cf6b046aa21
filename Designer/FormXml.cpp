#include "FormXml.h"

#include <Catalogue/Catalogue.h>

#include <QMetaProperty>
#include <QStackedWidget>
#include <QTabWidget>
#include <QWidget>
#include <QXmlStreamWriter>

#include <memory>

namespace Zelkor::Designer {

namespace {

constexpr int FIRST_PAGES = 2;
constexpr QSize SIZE_WITH_PAGES(240, 160);
constexpr QSize SIZE_WHILE_EMPTY(160, 32);
constexpr int SMALLEST_LENGTH = 12; ///< smaller widgets are hard to see and select

// "Zelkor::Vx::ColorButton" becomes "colorButton".
QString ObjectName(const QMetaObject& metaObject)
{
    QString name = QString::fromLatin1(metaObject.className()).section(QStringLiteral("::"), -1);
    name[0] = name[0].toLower();
    return name;
}

// Returns the nearest Qt base class, whose children form tools can handle.
QString ExtendedClass(const QMetaObject& metaObject)
{
    const QMetaObject* base = metaObject.superClass();
    while (*base->className() != 'Q')
        base = base->superClass();
    return QString::fromLatin1(base->className());
}

QSize FirstSize(const Catalogue::Entry& entry)
{
    if (HasPages(*entry.form.metaObject))
        return SIZE_WITH_PAGES;
    const std::unique_ptr<QObject> object(CreateBare(entry, nullptr));
    auto* widget = static_cast<QWidget*>(object.get());
    for (auto it = entry.form.properties.begin(); it != entry.form.properties.end(); ++it)
        widget->setProperty(it.key().toLatin1(), it.value());
    const QSize hint = widget->sizeHint();
    if (IsBlank(*entry.form.metaObject))
        return hint.expandedTo(SIZE_WHILE_EMPTY);
    const bool isSmall = hint.width() < SMALLEST_LENGTH || hint.height() < SMALLEST_LENGTH;
    return isSmall ? SIZE_WHILE_EMPTY : hint;
}

void WriteProperty(QXmlStreamWriter& xml, const QMetaProperty& property, const QVariant& value)
{
    xml.writeStartElement("property");
    xml.writeAttribute("name", property.name());
    // Otherwise uic calls a setter "set...".
    if (!property.hasStdCppSet())
        xml.writeAttribute("stdset", "0");
    if (property.isEnumType()) {
        xml.writeTextElement("enum", QStringLiteral("%1::%2").arg(property.enumerator().scope(), value.toString()));
    } else {
        xml.writeTextElement(value.userType() == QMetaType::Int ? "number" : "string", value.toString());
    }
    xml.writeEndElement();
}

void WriteGeometry(QXmlStreamWriter& xml, const QSize& size)
{
    xml.writeStartElement("property");
    xml.writeAttribute("name", "geometry");
    xml.writeStartElement("rect");
    xml.writeTextElement("x", "0");
    xml.writeTextElement("y", "0");
    xml.writeTextElement("width", QString::number(size.width()));
    xml.writeTextElement("height", QString::number(size.height()));
    xml.writeEndElement();
    xml.writeEndElement();
}

void WritePage(QXmlStreamWriter& xml, const QString& stack, int number, bool hasTab)
{
    xml.writeStartElement("widget");
    xml.writeAttribute("class", "QWidget");
    xml.writeAttribute("name", QStringLiteral("%1Page%2").arg(stack).arg(number));
    if (hasTab) {
        xml.writeStartElement("attribute");
        xml.writeAttribute("name", "title");
        xml.writeTextElement("string", QStringLiteral("Tab %1").arg(number));
        xml.writeEndElement();
    }
    xml.writeEndElement();
}

} // namespace

bool HasPages(const QMetaObject& metaObject)
{
    return metaObject.inherits(&QTabWidget::staticMetaObject) || metaObject.inherits(&QStackedWidget::staticMetaObject);
}

bool IsBlank(const QMetaObject& metaObject)
{
    const QString name = QString::fromLatin1(metaObject.className()).section(QStringLiteral("::"), -1);
    return QStringList{"ButtonWithLabels", "HorizontalTabBar", "PixmapWidget", "ScrollablePanelWithItem",
                       "VideoPreviewWidget"}
        .contains(name);
}

QString FormXml(const Catalogue::Entry& entry)
{
    const QString className = QString::fromLatin1(entry.form.metaObject->className());
    QString text;
    QXmlStreamWriter xml(&text);
    xml.writeStartElement("ui");
    xml.writeAttribute("language", "c++");
    xml.writeAttribute("displayname", entry.className);
    xml.writeStartElement("widget");
    xml.writeAttribute("class", className);
    xml.writeAttribute("name", ObjectName(*entry.form.metaObject));
    WriteGeometry(xml, FirstSize(entry));
    const QMetaObject& meta = *entry.form.metaObject;
    for (auto it = entry.form.properties.begin(); it != entry.form.properties.end(); ++it)
        WriteProperty(xml, meta.property(meta.indexOfProperty(it.key().toLatin1())), it.value());
    if (HasPages(meta)) {
        for (int i = 1; i <= FIRST_PAGES; ++i)
            WritePage(xml, ObjectName(*entry.form.metaObject), i, meta.inherits(&QTabWidget::staticMetaObject));
    }
    xml.writeEndElement();
    xml.writeStartElement("customwidgets");
    xml.writeStartElement("customwidget");
    xml.writeTextElement("class", className);
    xml.writeTextElement("extends", ExtendedClass(*entry.form.metaObject));
    xml.writeEndElement();
    xml.writeEndElement();
    xml.writeEndElement();
    return text;
}

} // namespace Zelkor::Designer
