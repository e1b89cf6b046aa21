#include <Catalogue/Catalogue.h>
#include <Examples/Support/BuiltInStyleSheets.h>

#include <Support/TestCase.h>

#include <QColor>
#include <QFile>
#include <QImage>
#include <QMetaProperty>
#include <QRegularExpression>

#include <algorithm>

using namespace Zelkor::Catalogue;
using Zelkor::Examples::LoadStyleSheet;

namespace {

using Rows = QVector<QStringList>;

/// The section of a class in the reference.
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

/// Returns the sections of the document by qualified class name.
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

/// Returns the names in a cell as regular expressions: `name` is literal, *name* a placeholder.
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

QString TypeOf(const QMetaProperty& property)
{
    static const QMap<int, QString> TYPES = {
        {QMetaType::Bool, "bool"},       {QMetaType::Int, "int"},        {QMetaType::LongLong, "int64"},
        {QMetaType::Double, "number"},   {QMetaType::QString, "string"}, {QMetaType::QStringList, "string list"},
        {QMetaType::QColor, "colour"},   {QMetaType::QImage, "image"},   {QMetaType::QPixmap, "picture"},
        {QMetaType::QRect, "rectangle"}, {QMetaType::QPointF, "point"},
    };
    if (property.isEnumType())
        return property.isFlagType() ? "flags" : "enumeration";
    return TYPES.value(property.userType(), property.typeName());
}

/// The value of a property as the reference writes it.
QString TextOf(const QMetaProperty& property, const QObject* object)
{
    const QVariant value = property.read(object);
    if (property.isEnumType())
        return QString(property.enumerator().valueToKeys(value.toInt())).replace("AlignLeading", "AlignLeft");
    switch (property.userType()) {
    case QMetaType::QColor:
        return value.value<QColor>().name(QColor::HexArgb);
    case QMetaType::QImage:
        return value.value<QImage>().isNull() ? "none" : "an image";
    case QMetaType::QPixmap:
        return value.value<QPixmap>().isNull() ? "none" : "a picture";
    case QMetaType::QPointF:
        return QString("%1, %2").arg(value.toPointF().x()).arg(value.toPointF().y());
    case QMetaType::QRect:
        return "by the size";
    case QMetaType::QStringList:
        return value.toStringList().isEmpty() ? "empty" : value.toStringList().join(',');
    default:
        return value.toString().isEmpty() ? "empty" : value.toString();
    }
}

/// An object of a class without an entry, which is a part of other widgets; null if there is none.
QObject* FindPart(const QString& className, QWidget* parent)
{
    for (const Entry& entry : Entries()) {
        for (const State& state : entry.states) {
            for (QObject* object : CreateInState(entry, state, parent)->findChildren<QObject*>()) {
                if (IsOf(object, className))
                    return object;
            }
        }
    }
    return nullptr;
}

} // namespace

class tst_Reference : public Support::TestCase
{
    Q_OBJECT

    QMap<QString, Part> parts; ///< by class

private Q_SLOTS:
    void initTestCase()
    {
        parts = ReadReference(VX_DOCS "/StyleSheets.md");
        QVERIFY(!parts.isEmpty());
        // The icons without the style.
        ZStyleSheet{QString(), LoadStyleSheet("dark")->iconFolder}.apply();
    }

    void everyEntryIsDescribed_data()
    {
        QTest::addColumn<QString>("className");
        for (const Entry& entry : Entries())
            QTest::newRow(qPrintable(entry.className)) << entry.className;
    }

    void everyEntryIsDescribed()
    {
        QFETCH(QString, className);
        QWidget parent;
        const QString fullName = CreateBare(*FindEntry(className), &parent)->metaObject()->className();
        QVERIFY2(parts.contains(fullName), qPrintable(fullName));
        const QString text = parts[fullName].text;
        const QString picture = QString("pictures/%1.png").arg(className);
        QVERIFY2(text.contains("](" + picture + ')'), "shows no picture");
        QVERIFY2(!QImage(VX_DOCS "/" + picture).isNull(), "the picture is missing; run tools/make-pictures");
        QVERIFY2(text.contains("\n```css\n") || text.contains("\n```cpp\n"), "has no example");
    }

    void propertiesHaveTypeAndDefault_data()
    {
        QTest::addColumn<QString>("fullName");
        for (const QString& fullName : parts.keys())
            QTest::newRow(qPrintable(fullName)) << fullName;
    }

    void propertiesHaveTypeAndDefault()
    {
        QFETCH(QString, fullName);
        QWidget parent;
        const Entry* entry = FindEntry(fullName.section("::", -1));
        const QObject* object = entry ? CreateBare(*entry, &parent) : FindPart(fullName, &parent);
        QVERIFY2(object, "no entry contains such an object");
        const QMetaObject* meta = object->metaObject();
        while (meta && fullName != meta->className())
            meta = meta->superClass();
        QVERIFY(meta);
        QStringList expected;
        for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i) {
            const QMetaProperty property = meta->property(i);
            // The owner of a part sets its values.
            expected +=
                QStringList{property.name(), TypeOf(property), entry ? TextOf(property, object) : ""}.join(" | ");
        }
        QStringList written;
        for (QStringList row : parts[fullName].tables["property"]) {
            row.replaceInStrings("`", "").replaceInStrings("\"", "");
            const QColor color(row[2]);
            if (row[1] == "colour" && color.isValid())
                row[2] = color.name(QColor::HexArgb);
            written += QStringList{row[0], row[1], entry ? row[2] : ""}.join(" | ");
        }
        expected.sort();
        written.sort();
        QCOMPARE(written.join('\n'), expected.join('\n'));
    }

    void namesMatchTheWidget_data() { everyEntryIsDescribed_data(); }

    // Every name in the tables exists in a state, and every name of a new widget is in the tables.
    void namesMatchTheWidget()
    {
        QFETCH(QString, className);
        const Entry& entry = *FindEntry(className);
        QWidget backdrop;
        backdrop.show();
        QObject* bare = CreateBare(entry, &backdrop);
        const QObjectList own = QObjectList{bare} + bare->findChildren<QObject*>();
        for (const State& state : entry.states)
            CreateInState(entry, state, &backdrop)->show();
        const auto all = backdrop.findChildren<QObject*>();
        const Part& part = parts[bare->metaObject()->className()];

        // Names that Qt sets are not listed.
        QStringList listed{"^$", "^qt_", "^Scroll(Left|Right)Button$"};
        for (const QStringList& row : part.tables["object name"]) {
            for (const QString& pattern : Patterns(row[0])) {
                const QRegularExpression expression(pattern);
                const auto matches = [&](const QObject* object) {
                    return expression.match(object->objectName()).hasMatch() && IsOf(object, row[2]);
                };
                QVERIFY2(std::any_of(all.begin(), all.end(), matches), qPrintable(pattern + " does not exist"));
                listed.append(pattern);
            }
        }
        QByteArrayList marks;
        for (const QStringList& row : part.tables["dynamic property"])
            marks.append(QString(row[0]).remove('`').toLatin1());
        for (const QObject* object : own) {
            QVERIFY2(QRegularExpression(listed.join('|')).match(object->objectName()).hasMatch(),
                     qPrintable(object->objectName()));
            for (const QByteArray& mark : object->dynamicPropertyNames())
                QVERIFY2(mark.startsWith('_') || marks.contains(mark), mark);
        }
    }
};

VX_TEST_MAIN(tst_Reference)
#include "tst_Reference.moc"
