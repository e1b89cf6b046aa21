#include <Catalogue/Catalogue.h>

#include <Support/TestCase.h>

#include <QBuffer>
#include <QDomDocument>
#include <QFileInfo>
#include <QFormBuilder>
#include <QMetaProperty>
#include <QPluginLoader>
#include <QStackedWidget>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

#include <algorithm>
#include <memory>

using namespace Zelkor::Catalogue;

namespace {

using Values = QMap<QString, QVariant>;

/// Returns the index of the first property that the library declares, not Qt.
int FirstOwnProperty(const QMetaObject* metaObject)
{
    while (*metaObject->className() != 'Q')
        metaObject = metaObject->superClass();
    return metaObject->propertyCount();
}

/// A value and its XML in a form.
struct Written
{
    QVariant value;
    QString xml;
};

/// Returns a value other than `old`; invalid for types that forms do not support.
Written Other(const QMetaProperty& property, const QVariant& old)
{
    const int number = old.toInt();
    if (property.isEnumType()) {
        const QMetaEnum keys = property.enumerator();
        const int i = keys.value(0) == number ? keys.keyCount() - 1 : 0;
        const QString xml = property.isFlagType() ? "<set>%1::%2</set>" : "<enum>%1::%2</enum>";
        return {keys.value(i), xml.arg(keys.scope(), keys.key(i))};
    }
    switch (old.userType()) {
    case QMetaType::Bool:
        return {!old.toBool(), old.toBool() ? "<bool>false</bool>" : "<bool>true</bool>"};
    case QMetaType::Int:
        return {number + 3, QString("<number>%1</number>").arg(number + 3)};
    case QMetaType::QString:
        return {"a.png,b.png", "<string>a.png,b.png</string>"};
    case QMetaType::QColor:
        return {QColor(53, 103, 17), "<color><red>53</red><green>103</green><blue>17</blue></color>"};
    case QMetaType::QRect:
        return {QRect(5, 6, 7, 8), "<rect><x>5</x><y>6</y><width>7</width><height>8</height></rect>"};
    default:
        return {};
    }
}

QDomDocument Parsed(const QString& xml)
{
    QDomDocument document;
    document.setContent(xml);
    return document;
}

void Append(QDomNode parent, const QDomNode& piece)
{
    parent.appendChild(parent.ownerDocument().importNode(piece, true));
}

} // namespace

class tst_DesignerPlugin : public Support::TestCase
{
    Q_OBJECT

private:
    QHash<QString, QDesignerCustomWidgetInterface*> widgets;

    /// Returns a form with every widget, whose own properties differ from their defaults. Sets `expected` to the values
    /// that each widget makes of them.
    QByteArray FormOfAll(QHash<QString, Values>& expected)
    {
        const QDomDocument document = Parsed("<ui version=\"4.0\"><class>Form</class><widget class=\"QWidget\" "
                                             "name=\"Form\"/><customwidgets/></ui>");
        const QDomElement form = document.documentElement();
        for (QDesignerCustomWidgetInterface* description : qAsConst(widgets)) {
            const QDomDocument start = Parsed(description->domXml());
            QDomElement node = start.documentElement().firstChildElement("widget");
            node.setAttribute("name", QString(description->name()).remove(':'));
            const QDomElement custom = start.documentElement().lastChildElement().firstChildElement();
            Append(custom, Parsed("<header>" + description->includeFile() + "</header>").documentElement());

            const std::unique_ptr<QWidget> widget(description->createWidget(nullptr));
            const QMetaObject* metaObject = widget->metaObject();
            QVector<QMetaProperty> written;
            for (int i = FirstOwnProperty(metaObject); i < metaObject->propertyCount(); ++i) {
                const QMetaProperty property = metaObject->property(i);
                const Written other = Other(property, property.read(widget.get()));
                if (!other.value.isValid() || !property.isDesignable(widget.get()) ||
                    !property.write(widget.get(), other.value))
                    continue;
                written.append(property);
                const QString xml =
                    QString("<property name=\"%1\" stdset=\"0\">%2</property>").arg(property.name(), other.xml);
                Append(node, Parsed(xml).documentElement());
            }
            for (const QMetaProperty& property : written)
                expected[description->name()][property.name()] = property.read(widget.get());
            Append(form.firstChildElement("widget"), node);
            Append(form.lastChildElement(), custom);
        }
        return document.toByteArray();
    }

private Q_SLOTS:
    void initTestCase()
    {
        QPluginLoader loader(VX_PLUGIN);
        const auto* collection = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(loader.instance());
        QVERIFY2(collection, qPrintable(loader.errorString()));
        for (QDesignerCustomWidgetInterface* widget : collection->customWidgets())
            widgets.insert(widget->name(), widget);
    }

    void everyExportedClassIsInTheWidgetBoxOrHasAReason_data()
    {
        QTest::addColumn<QString>("className");
        for (const Entry& entry : Entries())
            QTest::newRow(qPrintable(entry.className)) << entry.className;
    }

    void everyExportedClassIsInTheWidgetBoxOrHasAReason()
    {
        QFETCH(QString, className);
        const Entry& entry = *FindEntry(className);
        const bool isExported = QFileInfo::exists(VX_HEADERS "/UI/Widgets/" + className + ".h");
        QCOMPARE(entry.form.metaObject != nullptr || !entry.form.reasonAgainst.isEmpty(), isExported);
        if (!entry.form.metaObject)
            return;
        const QDesignerCustomWidgetInterface* widget = widgets.value(entry.form.metaObject->className());
        QVERIFY(widget);
        QVERIFY(QFileInfo::exists(VX_HEADERS "/" + widget->includeFile()));
        QCOMPARE(widget->toolTip(), entry.description);
        QVERIFY(widget->whatsThis().startsWith(entry.description));
        QImage blank = widget->icon().pixmap(24).toImage();
        QVERIFY(!blank.isNull());
        blank.fill(Qt::transparent);
        QVERIFY(widget->icon().pixmap(24).toImage() != blank);
    }

    void widgetBoxHasNoOtherClasses()
    {
        const auto isForForms = [](const Entry& entry) { return entry.form.metaObject != nullptr; };
        QCOMPARE(widgets.size(), int(std::count_if(Entries().begin(), Entries().end(), isForForms)));
    }

    void formRestoresProperties()
    {
        QHash<QString, Values> expected;
        QByteArray text = FormOfAll(expected);
        QBuffer file(&text);
        file.open(QIODevice::ReadOnly);
        QFormBuilder builder;
        builder.setPluginPath({QFileInfo(VX_PLUGIN).path()});
        const std::unique_ptr<QWidget> form(builder.load(&file));
        QVERIFY(form);
        for (QDesignerCustomWidgetInterface* description : qAsConst(widgets)) {
            const auto* widget = form->findChild<QWidget*>(QString(description->name()).remove(':'));
            QVERIFY2(widget, qPrintable(description->name()));
            QCOMPARE(QString(widget->metaObject()->className()), description->name());
            QVERIFY(!widget->size().isEmpty());
            QCOMPARE(description->isContainer() ? 2 : 0, widget->property("count").toInt());
            const Values& values = expected[description->name()];
            for (auto it = values.begin(); it != values.end(); ++it)
                QVERIFY2(widget->property(it.key().toLatin1()) == it.value(), qPrintable(it.key()));
        }
    }

    void stackAdaptsToItsPageExceptInDesigner()
    {
        QDesignerCustomWidgetInterface* description = widgets.value("ResizableStackedWidget");
        for (const bool isInEditor : {false, true}) {
            if (isInEditor)
                description->initialize(nullptr);
            const std::unique_ptr<QWidget> widget(description->createWidget(nullptr));
            qobject_cast<QStackedWidget*>(widget.get())->addWidget(new QWidget);
            QCOMPARE(widget->maximumWidth() == QWIDGETSIZE_MAX, isInEditor);
        }
    }
};

VX_TEST_MAIN(tst_DesignerPlugin)
#include "tst_DesignerPlugin.moc"
