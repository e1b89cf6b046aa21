#include "WidgetPage.h"

#include <Catalogue/Catalogue.h>
#include <Catalogue/Code/FormFragment.h>
#include <Catalogue/Code/SampleCode.h>

#include <QAccessible>
#include <QDir>
#include <QFile>
#include <QMetaMethod>
#include <QRegularExpression>
#include <QWidget>

namespace Zelkor::Documents {

using Catalogue::Entry;

namespace {

constexpr int LONGEST_CELL = 60;

QString ReadFile(const QString& name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// Returns text in which Doxygen finds no commands, links and HTML.
QString Escaped(QString text)
{
    text.replace(QRegularExpression("([\\\\@#%<>&\"|])"), "\\\\1");
    text.replace("--", "\\--");
    // A leading :: is a link, one inside of a class name is none.
    return text.replace(QRegularExpression("(?<!\\w)::"), "\\::");
}

QString Code(const QString& text)
{
    return "<code>" + Escaped(text) + "</code>";
}

// Returns a link to the page of a class, or to the documents of Qt.
QString ClassLink(const QString& className)
{
    return Catalogue::FindEntry(className)
               ? QString("\\ref widget_%1 \"%1\"").arg(className)
               : QString("[%1](https://doc.qt.io/qt-6/%2.html)").arg(className, className.toLower());
}

QString Heading(const QString& text)
{
    return "\n## " + text + "\n\n";
}

QString CodeBlock(const QString& language, const QString& code)
{
    return "\n~~~{." + language + "}\n" + code.trimmed() + "\n~~~\n";
}

// Returns the paragraphs of the comment before a class.
QStringList CommentOf(const QString& header, const QString& className)
{
    const QRegularExpression comment("((?:^///[^\\n]*\\n)+)(?:template[^\\n]*\\n)?class (?:\\w+ )?" + className + "\\b",
                                     QRegularExpression::MultilineOption);
    QString text = comment.match(header).captured(1);
    text.remove(QRegularExpression("^///[ ]?", QRegularExpression::MultilineOption));
    return text.split("\n\n", Qt::SkipEmptyParts);
}

QString FormText(const Entry& entry)
{
    const QString form = FormOf(entry, entry.states[entry.pictured]);
    if (form.isEmpty())
        return "Forms cannot contain it: " + entry.form.reasonAgainst + ".\n";
    return "In a form:\n" + CodeBlock("xml", form);
}

QString StatesOf(const Entry& entry)
{
    QString text;
    for (int i = 0; i < entry.states.size(); ++i) {
        if (i == entry.pictured)
            continue;
        const QString name = entry.states[i].name;
        text += QString("\n### %1\n\n![%1](%2)\n").arg(name, PictureName(entry, QString::number(i)));
        if (!entry.example)
            text += CodeBlock("cpp", CodeOf(entry, i).statements);
    }
    return text;
}

QString PicturesOf(const Entry& entry, const QStringList& interactions)
{
    QString text;
    for (const QString& name : interactions)
        text += QString("\n### %1\n\n![%1](%2)\n").arg(name, PictureName(entry, name.toLower()));
    return text;
}

// Whether our tree declares a class, and not Qt.
bool IsOurs(const QMetaObject* meta)
{
    return *meta->className() != 'Q' || Catalogue::FindEntry(meta->className());
}

QString NameOf(const QMetaObject* meta)
{
    return QString(meta->className()).section("::", -1);
}

// Returns what a signal means: its comment in the header, or the property whose change it reports.
QString MeaningOf(const QMetaMethod& signal, const QMetaObject* meta, const QString& header)
{
    const QString name = signal.name();
    if (header.contains(QRegularExpression(QString("(///[^\n]*\n[^\n]*\\b%1\\(|\\b%1\\([^\n]*///<)").arg(name))))
        return QString("\\copybrief %1::%2").arg(meta->className(), name);
    for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i) {
        if (meta->property(i).notifySignal() == signal)
            return "Reports a change of " + Code(meta->property(i).name()) + '.';
    }
    return QString();
}

QString SignalsOf(const QMetaObject* meta, const Sources& sources)
{
    QString text;
    for (; IsOurs(meta); meta = meta->superClass()) {
        const Entry* entry = Catalogue::FindEntry(NameOf(meta));
        const QString header = entry ? ReadFile(sources.folder + "/Lib/" + HeaderOf(*entry)) : QString();
        for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
            const QMetaMethod method = meta->method(i);
            if (method.methodType() == QMetaMethod::Signal && !(method.attributes() & QMetaMethod::Cloned))
                text += QString("- %1 %2\n").arg(Code(method.methodSignature()), MeaningOf(method, meta, header));
        }
    }
    return text + (text.isEmpty() ? "Those of " : "\nAnd those of ") + ClassLink(meta->className()) + ".\n";
}

// Adds a row for the object and for each of its parts that can have the focus.
void AddAccessibleRows(QAccessibleInterface* object, bool isRoot, QString& rows)
{
    if (!object || !object->isValid())
        return;
    if (isRoot || object->state().focusable) {
        const QString role = QMetaEnum::fromType<QAccessible::Role>().valueToKey(object->role());
        QStringList cells{role};
        for (const auto part : {QAccessible::Name, QAccessible::Value, QAccessible::Description})
            cells.append(object->text(part).simplified());
        if (cells[2].isEmpty() && object->valueInterface())
            cells[2] = object->valueInterface()->currentValue().toString();
        for (QString& cell : cells)
            cell = Escaped(cell.left(LONGEST_CELL));
        rows += "| " + cells.join(" | ") + " |\n";
    }
    for (int i = 0; i < object->childCount(); ++i)
        AddAccessibleRows(object->child(i), false, rows);
}

// Returns the nearest base class with a page, or of Qt.
const QMetaObject* KeyOwnerOf(const QMetaObject* meta)
{
    do
        meta = meta->superClass();
    while (IsOurs(meta) && !Catalogue::FindEntry(NameOf(meta)));
    return meta;
}

QString AccessibilityOf(const Entry& entry)
{
    QWidget window;
    QWidget* widget = CreateInState(entry, entry.states[entry.pictured], &window);
    window.show();
    QString rows;
    AddAccessibleRows(QAccessible::queryAccessibleInterface(widget), true, rows);
    return "What assistive technology reads in the state \"" + entry.states[entry.pictured].name +
           "\":\n\n| role | name | value | description |\n|---|---|---|---|\n" + rows;
}

// Returns the section of the style sheet reference without its heading and picture, and with links that resolve.
QString StylingOf(QString section)
{
    section = section.section('\n', 1);
    section.remove(QRegularExpression("^!\\[[^\\n]*\\n", QRegularExpression::MultilineOption));
    section.replace(QRegularExpression("\\[([^\\]]+)\\]\\([^)]+\\)"), "\\1");
    // Not in blocks of code.
    QStringList parts = section.split("\n```");
    for (int i = 0; i < parts.size(); i += 2) {
        static const QRegularExpression SPAN("`([^`]+)`");
        for (auto match = SPAN.match(parts[i]); match.hasMatch(); match = SPAN.match(parts[i]))
            parts[i].replace(match.capturedStart(), match.capturedLength(),
                             Code(match.captured(1).replace("\\|", "|")));
    }
    section = parts.join("\n```");
    return section.trimmed() + '\n';
}

} // namespace

Sources ReadSources(const QString& folder)
{
    Sources sources{folder, {}};
    for (const QString& section : ReadFile(folder + "/Docs/StyleSheets.md").split("\n### `").mid(1))
        sources.styleSheets.insert(section.section('`', 0, 0), section.section("\n## ", 0, 0));
    return sources;
}

QString PictureName(const Entry& entry, const QString& what)
{
    return QString("%1-%2.png").arg(entry.className, what);
}

QString PageOf(const Entry& entry, const Sources& sources, const QStringList& interactions)
{
    QWidget parent;
    const QMetaObject* meta = CreateBare(entry, &parent)->metaObject();
    const QString fullName = meta->className();
    const QString header = HeaderOf(entry);
    QString comment;
    QString keys;
    for (const QString& paragraph : CommentOf(ReadFile(sources.folder + "/Lib/" + header), entry.className)) {
        // The styling has them in a table.
        if (paragraph.startsWith("Object names for style sheets"))
            continue;
        (paragraph.startsWith("Keys: ") ? keys : comment) += paragraph.trimmed() + "\n\n";
    }
    const QString library = header.startsWith("UI/Kit/") ? "VxUiWidgets::Kit" : "VxUiWidgets::VxUiWidgets";
    const QString state = entry.states[entry.pictured].name;
    QString text = QString("# %1 {#widget_%1}\n\n%2![%3](%4)\n\n")
                       .arg(entry.className, comment.isEmpty() ? entry.description + "\n\n" : comment, state,
                            PictureName(entry, QString::number(entry.pictured)));
    text +=
        QString("| class | header | library |\n|---|---|---|\n| %1 | `%2` | `%3` |\n").arg(fullName, header, library);
    text += Heading("Code to copy") + CodeBlock("cpp", CodeOf(entry, entry.pictured).Text()) + '\n' + FormText(entry);
    text += Heading("States") + StatesOf(entry) + PicturesOf(entry, interactions);
    text += Heading("Properties, parts and styling") + StylingOf(sources.styleSheets.value(fullName));
    text += Heading("Signals") + SignalsOf(meta, sources);
    text +=
        Heading("Keys") + (keys.isEmpty() ? "Those of " + ClassLink(NameOf(KeyOwnerOf(meta))) + ".\n" : keys.mid(6));
    text += Heading("Accessibility") + AccessibilityOf(entry);
    return text;
}

QString MainPage()
{
    QString text =
        "# VxUiWidgets\n\nEach widget has a page with its states in the dark and the light style sheet, code to "
        "copy, properties, signals and keys. The [class list](annotated.html) has every function.\n";
    QString group;
    for (const Entry& entry : Catalogue::Entries()) {
        if (entry.group != group)
            text += Heading(entry.group) + "| widget | what it does | dark and light |\n|---|---|---|\n";
        group = entry.group;
        text +=
            QString(
                "| \\subpage widget_%1 \"%1\" | %2 | <img src=\"%3\" style=\"max-height: 72px; max-width: 360px\"> |\n")
                .arg(entry.className, Escaped(entry.description), PictureName(entry, QString::number(entry.pictured)));
    }
    return text;
}

} // namespace Zelkor::Documents
