#include <Catalogue/Catalogue.h>
#include <Examples/Support/BuiltInStyleSheets.h>

#include <Support/TestCase.h>

#include <QColor>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QMetaProperty>
#include <QPointF>
#include <QRegularExpression>
#include <QSet>

#include <memory>

using namespace Zelkor::Catalogue;
using Zelkor::Examples::LoadStyleSheet;

namespace {

using Rows = QVector<QStringList>;

/// What the reference says about one class.
struct Part
{
    QMap<QString, Rows> tables; ///< by the heading of their first column
    QString text;
};

QStringList Cells(const QString& line)
{
    static const QRegularExpression BAR(R"((?<!\\)\|)");
    QStringList cells = line.split(BAR);
    for (QString& cell : cells)
        cell = cell.trimmed().replace("\\|", "|");
    return cells.mid(1, cells.size() - 2);
}

/// The parts of the document by class, with its namespace.
QMap<QString, Part> ReadReference(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    static const QRegularExpression HEADING("^### `(.+)`$");
    QMap<QString, Part> parts;
    QString className;
    QString table;
    for (const QString& line : QString::fromUtf8(file.readAll()).split('\n')) {
        const QString heading = HEADING.match(line).captured(1);
        if (line.startsWith("## ") || !heading.isEmpty())
            className = heading;
        if (className.isEmpty())
            continue;
        Part& part = parts[className];
        part.text += line + '\n';
        if (!line.startsWith("| "))
            table = line.startsWith("|--") ? table : QString();
        else if (table.isEmpty())
            table = Cells(line).constFirst();
        else
            part.tables[table].append(Cells(line));
    }
    return parts;
}

/// The names in a cell, as patterns: `name` stands for itself, *name* for anything.
QStringList Patterns(const QString& cell)
{
    static const QRegularExpression PLACEHOLDER(R"(\*[a-z]+\*)");
    QStringList patterns;
    for (QString name : cell.split(", "))
        patterns.append('^' + name.remove('`').replace(PLACEHOLDER, ".*") + '$');
    return patterns;
}

bool IsOf(const QObject* object, QString className)
{
    return object->inherits(className.remove('`').replace("--", "::").toLatin1());
}

bool HasType(const QMetaProperty& property, const QString& type)
{
    static const QMap<QString, int> TYPES = {
        {"bool", QMetaType::Bool},       {"int", QMetaType::Int},        {"int64", QMetaType::LongLong},
        {"number", QMetaType::Double},   {"string", QMetaType::QString}, {"string list", QMetaType::QStringList},
        {"colour", QMetaType::QColor},   {"image", QMetaType::QImage},   {"picture", QMetaType::QPixmap},
        {"rectangle", QMetaType::QRect}, {"point", QMetaType::QPointF},
    };
    if (type == "enumeration" || type == "flags")
        return property.isEnumType() && property.isFlagType() == (type == "flags");
    return !property.isEnumType() && TYPES.value(type, QMetaType::UnknownType) == property.userType();
}

bool HasDefault(const QMetaProperty& property, QObject* object, QString text)
{
    text.remove('`').remove('"');
    const QVariant value = property.read(object);
    if (property.isEnumType()) {
        bool known = false;
        return property.enumerator().keysToValue(text.toLatin1(), &known) == value.toInt() && known;
    }
    switch (property.userType()) {
    case QMetaType::QColor:
        return QColor::isValidColor(text) && QColor(text) == value.value<QColor>();
    case QMetaType::QImage:
        return text == "none" && value.value<QImage>().isNull();
    case QMetaType::QPixmap:
        return text == "none" && value.value<QPixmap>().isNull();
    case QMetaType::QPointF:
        return text == "0, 0" && value.toPointF().isNull();
    case QMetaType::QRect: {
        // There is no rectangle that is the same for all sizes.
        auto* widget = qobject_cast<QWidget*>(object);
        widget->resize(widget->size() + QSize(100, 100));
        widget->grab();
        return text == "by the size" && property.read(object) != value;
    }
    default: {
        const bool isList = property.userType() == QMetaType::QStringList;
        return (text == "empty" ? QString() : text) == (isList ? value.toStringList().join(',') : value.toString());
    }
    }
}

/// An object of a class that has no entry of its own because it is a piece of others; null when there is none.
QObject* FindPiece(const QString& className, QWidget* parent)
{
    for (const Entry& entry : Entries()) {
        for (const State& state : entry.states) {
            QWidget* widget = CreateInState(entry, state, parent);
            for (QObject* object : widget->findChildren<QObject*>()) {
                if (IsOf(object, className))
                    return object;
            }
            delete widget;
        }
    }
    return nullptr;
}

} // namespace

class tst_Reference : public Support::TestCase
{
    Q_OBJECT

    QMap<QString, Part> parts;

    void AddRows(bool withPieces)
    {
        QTest::addColumn<QString>("className");
        for (const QString& className : parts.keys()) {
            if (withPieces || FindEntry(className.section("::", -1)))
                QTest::newRow(qPrintable(className)) << className;
        }
    }

private Q_SLOTS:
    void initTestCase()
    {
        parts = ReadReference(VX_DOCS "/StyleSheets.md");
        QVERIFY(!parts.isEmpty());
        // The icons that states ask for, without the look around them.
        QString error;
        std::optional<ZStyleSheet> sheet = LoadStyleSheet("dark");
        QVERIFY2(sheet, qPrintable(error));
        sheet->text.clear();
        sheet->apply();
    }

    void everyEntryHasItsPart()
    {
        for (const Entry& entry : Entries()) {
            InRow(entry.className);
            const std::unique_ptr<QWidget> parent(new QWidget);
            const QObject* object = CreateBare(entry, parent.get());
            const QString className = object->metaObject()->className();
            QCOMPARE(className.section("::", -1), entry.className);
            QVERIFY2(parts.contains(className), qPrintable(className));
            const QString text = parts[className].text;
            const QString picture = QString("pictures/%1.png").arg(entry.className);
            QVERIFY2(text.contains("](" + picture + ')'), "the part does not show its picture");
            QVERIFY2(!QImage(VX_DOCS "/" + picture).isNull(), "the picture is missing; tools/make-pictures makes it");
            QVERIFY2(text.contains("\n```css\n") || text.contains("\n```cpp\n"), "the part has no example");
        }
    }

    void properties_data() { AddRows(true); }

    void properties()
    {
        QFETCH(QString, className);
        const std::unique_ptr<QWidget> parent(new QWidget);
        const Entry* entry = FindEntry(className.section("::", -1));
        QObject* object = entry ? CreateBare(*entry, parent.get()) : FindPiece(className, parent.get());
        QVERIFY2(object, "no entry shows such an object");
        const QMetaObject* meta = object->metaObject();
        while (meta && className != meta->className())
            meta = meta->superClass();
        QVERIFY2(meta, object->metaObject()->className());
        QSet<QString> declared;
        for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i)
            declared.insert(meta->property(i).name());
        for (const QStringList& row : parts[className].tables["property"]) {
            const QString name = QString(row[0]).remove('`');
            InRow(name);
            QVERIFY2(declared.remove(name), "the class declares no such property");
            const QMetaProperty property = meta->property(meta->indexOfProperty(name.toLatin1()));
            QVERIFY2(HasType(property, row[1]), property.typeName());
            // The values of a piece are those that the widget around it gave it.
            if (entry)
                QVERIFY2(HasDefault(property, object, row[2]), qPrintable(property.read(object).toString()));
        }
        QVERIFY2(declared.isEmpty(), qPrintable("without a row: " + declared.values().join(' ')));
    }

    void names_data() { AddRows(false); }

    // What is in the tables exists in some state, and what the widget names and marks is in the tables.
    void names()
    {
        QFETCH(QString, className);
        const Entry& entry = *FindEntry(className.section("::", -1));
        QWidget backdrop;
        backdrop.show();
        QObject* bare = CreateBare(entry, &backdrop);
        QObjectList own = bare->findChildren<QObject*>();
        own.append(bare);
        for (const State& state : entry.states)
            CreateInState(entry, state, &backdrop)->show();
        const auto all = backdrop.findChildren<QObject*>();

        QStringList listed;
        for (const QStringList& row : parts[className].tables["object name"]) {
            for (const QString& pattern : Patterns(row[0])) {
                InRow(pattern);
                QVERIFY2(std::any_of(all.begin(), all.end(),
                                     [&](const QObject* object) {
                                         return QRegularExpression(pattern).match(object->objectName()).hasMatch() &&
                                                IsOf(object, row[2]);
                                     }),
                         "no object of this class has such a name");
                listed.append(pattern);
            }
        }
        QStringList marks;
        for (const QStringList& row : parts[className].tables["dynamic property"])
            marks.append(QString(row[0]).remove('`'));
        const QRegularExpression pattern(listed.join('|') + "|^$|^qt_");
        for (const QObject* object : own) {
            QVERIFY2(pattern.match(object->objectName()).hasMatch(), qPrintable(object->objectName()));
            for (const QByteArray& mark : object->dynamicPropertyNames())
                QVERIFY2(mark.startsWith('_') || marks.contains(mark), mark);
        }
    }
};

VX_TEST_MAIN(tst_Reference)
#include "tst_Reference.moc"
