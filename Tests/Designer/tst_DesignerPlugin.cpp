#include <Catalogue/Contrast.h>
#include <Catalogue/EntryWindow.h>
#include <Catalogue/OtherValue.h>

#include <Support/TestCase.h>

#include <QBuffer>
#include <QFileInfo>
#include <QFormBuilder>
#include <QPainter>
#include <QPluginLoader>
#include <QStackedWidget>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

#include <algorithm>
#include <memory>

using namespace Zelkor::Catalogue;

namespace {

bool IsForForms(const Entry& entry)
{
    return entry.form.metaObject != nullptr;
}

/// Saves the given properties of a widget, without its parts, which belong to the library.
class PropertySaver : public QFormBuilder
{
public:
    explicit PropertySaver(const QStringList& names) : names(names) {}

private:
    using QFormBuilder::createDom;
    DomWidget* createDom(QWidget* widget, DomWidget* parent, bool) override
    {
        return QFormBuilder::createDom(widget, parent, false);
    }

    bool checkProperty(QObject*, const QString& name) const override { return names.contains(name); }

    const QStringList names;
};

// The highest contrast of any pixel to the first one.
double HighestContrast(const QImage& image)
{
    double highest = 0;
    for (int i = 0; i < image.width() * image.height(); ++i) {
        const QColor color = image.pixelColor(i % image.width(), i / image.width());
        highest = std::max(highest, Contrast(color, image.pixelColor(0, 0)));
    }
    return highest;
}

std::unique_ptr<QWidget> LoadForm(QByteArray text)
{
    QBuffer file(&text);
    file.open(QIODevice::ReadOnly);
    QFormBuilder builder;
    builder.setPluginPath({QFileInfo(VX_PLUGIN).path()});
    return std::unique_ptr<QWidget>(builder.load(&file));
}

} // namespace

class tst_DesignerPlugin : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QPluginLoader loader(VX_PLUGIN);
        const auto* collection = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(loader.instance());
        QVERIFY2(collection, qPrintable(loader.errorString()));
        for (QDesignerCustomWidgetInterface* widget : collection->customWidgets())
            widgets.insert(widget->name(), widget);
        QCOMPARE(widgets.size(), int(std::count_if(Entries().begin(), Entries().end(), IsForForms)));
    }

    void everyClassIsInTheWidgetBoxOrHasAReason_data() { AddRowsOfEntries(); }

    void everyClassIsInTheWidgetBoxOrHasAReason()
    {
        const Entry& entry = EntryOfRow();
        QCOMPARE(entry.form.metaObject == nullptr, !entry.form.reasonAgainst.isEmpty());
        if (!entry.form.metaObject)
            return;
        const QDesignerCustomWidgetInterface* description = widgets.value(entry.form.metaObject->className());
        QVERIFY(description);
        QVERIFY(QFileInfo::exists(VX_HEADERS "/" + description->includeFile()));
        QVERIFY(!description->icon().pixmap(24).isNull());
    }

    // In the colours of either palette, on its background.
    void iconsDifferAndCanBeSeen()
    {
        for (const QColor& background : {QColor(Qt::white), QColor(0x2a, 0x2c, 0x30)}) {
            QPalette palette;
            palette.setColor(QPalette::Window, background);
            QGuiApplication::setPalette(palette);
            QVector<QImage> icons;
            for (const auto* widget : std::as_const(widgets)) {
                QImage icon(24, 24, QImage::Format_RGB32);
                icon.fill(background);
                QPainter painter(&icon);
                painter.drawPixmap(0, 0, widget->icon().pixmap(24));
                painter.end();
                QVERIFY2(HighestContrast(icon) >= 4.5, qPrintable(widget->name()));
                QVERIFY2(!icons.contains(icon), qPrintable(widget->name()));
                icons.append(icon);
            }
        }
        QGuiApplication::setPalette(QPalette());
    }

    void formRestoresProperties_data() { AddRowsOfEntries(IsForForms); }

    void formRestoresProperties()
    {
        const QString fullName = EntryOfRow().form.metaObject->className();
        const auto widget = LoadForm(widgets[fullName]->domXml().toUtf8());
        QVERIFY(widget);
        QCOMPARE(QString(widget->metaObject()->className()), fullName);
        QVERIFY(!widget->size().isEmpty());
        const bool hasPages = widget->inherits("QTabWidget") || widget->inherits("QStackedWidget");
        QCOMPARE(widget->property("count").toInt(), hasPages ? 2 : 0);
        QVERIFY(widgets[fullName]->isContainer() || !hasPages);

        const QMetaObject* meta = widget->metaObject();
        QStringList written;
        for (int i = 0; i < meta->propertyCount(); ++i) {
            const QMetaProperty property = meta->property(i);
            // QFormBuilder does not save flags, and since Qt 6 no enumerations.
            const bool isSaved = QT_VERSION_MAJOR < 6 ? !property.isFlagType() : !property.isEnumType();
            if (!IsOurs(property) || !property.isDesignable() || !isSaved)
                continue;
            const QVariant other = OtherValue(property, property.read(widget.get()));
            if (other.isValid() && property.write(widget.get(), other))
                written += property.name();
        }
        QBuffer file;
        file.open(QIODevice::WriteOnly);
        PropertySaver(written).save(&file, widget.get());
        const auto restored = LoadForm(file.data());
        QVERIFY(restored);
        for (const QString& name : written)
            QCOMPARE(restored->property(name.toLatin1()), widget->property(name.toLatin1()));
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

private:
    QMap<QString, QDesignerCustomWidgetInterface*> widgets;
};

VX_TEST_MAIN(tst_DesignerPlugin)
#include "tst_DesignerPlugin.moc"
