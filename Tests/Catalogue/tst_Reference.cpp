#include <Catalogue/EntryWindow.h>

#include <Support/TestCase.h>

#include <QColor>
#include <QFile>
#include <QImage>
#include <QRegularExpression>

#include <algorithm>

using namespace Zelkor::Catalogue;

namespace {

/// Returns the cells of the table that starts with a heading, without backticks and quotation marks.
QVector<QStringList> RowsOf(const QString& section, const QString& heading)
{
    const QString table = section.section("\n| " + heading + " |", 1, 1).section("\n\n", 0, 0);
    QVector<QStringList> rows;
    for (QString line : table.split('\n').mid(2)) {
        // Bars in a cell are escaped.
        QStringList cells = line.remove('`').remove('"').replace("\\|", "/").split('|').mid(1);
        for (QString& cell : cells)
            cell = cell.trimmed();
        rows.append(cells);
    }
    return rows;
}

QRegularExpression AnyOf(const QStringList& patterns)
{
    return QRegularExpression(QRegularExpression::anchoredPattern(patterns.join('|')));
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

/// Returns the value of a property as the reference writes it.
QString TextOf(const QMetaProperty& property, const QObject* object)
{
    const QVariant value = property.read(object);
    if (property.isEnumType()) {
        const QString keys = property.enumerator().valueToKeys(value.toInt());
        return QString(keys).replace("AlignLeading", "AlignLeft").replace('|', '/');
    }
    switch (property.userType()) {
    case QMetaType::QColor:
        return value.value<QColor>().name(QColor::HexArgb);
    case QMetaType::QImage:
    case QMetaType::QPixmap:
        return value.value<QImage>().isNull() ? "none" : "a picture";
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

/// Returns an object of a class without an entry, which is a part of other widgets, or null.
QObject* FindPart(const QString& className, QWidget* parent)
{
    for (const Entry& entry : Entries()) {
        for (const State& state : entry.states) {
            for (QObject* object : CreateInState(entry, state, parent)->findChildren<QObject*>()) {
                if (object->inherits(className.toLatin1()))
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

    QMap<QString, QString> sections; ///< by qualified class name

private Q_SLOTS:
    void initTestCase()
    {
        QFile file(VX_DOCS "/StyleSheets.md");
        QVERIFY(file.open(QIODevice::ReadOnly));
        for (const QString& section : QString::fromUtf8(file.readAll()).split("\n### `").mid(1))
            sections.insert(section.section('`', 0, 0), section.section("\n## ", 0, 0));
        ApplySheet("");
    }

    void entryHasPictureAndExample_data() { AddRowsOfEntries(); }

    void entryHasPictureAndExample()
    {
        const Entry& entry = EntryOfRow();
        QWidget parent;
        const QString section = sections[CreateBare(entry, &parent)->metaObject()->className()];
        const QString picture = "pictures/" + entry.className + ".png";
        QVERIFY2(section.contains("](" + picture + ')'), "shows no picture");
        QVERIFY2(!QImage(VX_DOCS "/" + picture).isNull(), "the picture is missing; run tools/make-pictures");
        QVERIFY2(section.contains(QRegularExpression("\n```(css|cpp)\n")), "has no example");
    }

    void propertiesHaveTypeAndDefault_data()
    {
        QTest::addColumn<QString>("fullName");
        for (const QString& fullName : sections.keys())
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
        for (QStringList row : RowsOf(sections[fullName], "property")) {
            const QColor color(row[2]);
            if (row[1] == "colour" && color.isValid())
                row[2] = color.name(QColor::HexArgb);
            written += QStringList{row[0], row[1], entry ? row[2] : ""}.join(" | ");
        }
        expected.sort();
        written.sort();
        QCOMPARE(written.join('\n'), expected.join('\n'));
    }

    void namesMatchTheWidget_data() { AddRowsOfEntries(); }

    // Every name in the tables exists in a state, and every name of a new widget is in the tables.
    void namesMatchTheWidget()
    {
        const Entry& entry = EntryOfRow();
        QWidget backdrop;
        backdrop.show();
        QObject* bare = CreateBare(entry, &backdrop);
        const QObjectList own = QObjectList{bare} + bare->findChildren<QObject*>();
        for (const State& state : entry.states)
            CreateInState(entry, state, &backdrop)->show();
        const auto all = backdrop.findChildren<QObject*>();
        const QString section = sections[bare->metaObject()->className()];

        // Names that Qt sets are not listed.
        QStringList names{"", "qt_.*", "Scroll(Left|Right)Button"};
        for (const QStringList& row : RowsOf(section, "object name")) {
            const QByteArray className = QString(row[2]).replace("--", "::").toLatin1();
            // A part in italics is a placeholder.
            for (const QString& name : QString(row[0]).replace(QRegularExpression("\\*[a-z]+\\*"), ".*").split(", ")) {
                const auto matches = [name = AnyOf({name}), className](const QObject* object) {
                    return name.match(object->objectName()).hasMatch() && object->inherits(className);
                };
                QVERIFY2(std::any_of(all.begin(), all.end(), matches), qPrintable(name + " does not exist"));
                names.append(name);
            }
        }
        QStringList marks{"_.*"};
        for (const QStringList& row : RowsOf(section, "dynamic property"))
            marks.append(row[0]);
        for (const QObject* object : own) {
            QVERIFY2(AnyOf(names).match(object->objectName()).hasMatch(), qPrintable(object->objectName()));
            for (const QByteArray& mark : object->dynamicPropertyNames())
                QVERIFY2(AnyOf(marks).match(mark).hasMatch(), mark);
        }
    }
};

VX_TEST_MAIN(tst_Reference)
#include "tst_Reference.moc"
