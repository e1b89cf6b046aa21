#include <Catalogue/Catalogue.h>
#include <Catalogue/Code/FormFragment.h>
#include <Catalogue/Code/SampleCode.h>
#include <Designer/FormXml.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QRegularExpression>

using namespace Zelkor::Catalogue;

namespace {

QString folder;

void Write(const QString& name, const QString& text)
{
    QFile file(QDir(folder).filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0)
        qFatal("cannot write %s", qPrintable(file.fileName()));
}

/// A form of widgets, one below the other.
struct Form
{
    void Add(const QString& xml, const QString& name = {})
    {
        QString widget = "<widget" + xml.section("<widget", 1).section("<customwidgets>", 0, 0);
        if (!name.isEmpty())
            widget.replace(QRegularExpression("(<widget class=\"[^\"]+\" name=\")[a-z]\\w*?(?=(Page\\d+)?\")"),
                           "\\1" + name);
        widgets += "<item>" + widget + "</item>";
        classes += "<customwidget>" + xml.section("<customwidget>", 1).section("</customwidgets>", 0, 0);
    }

    void WriteTo(const QString& name) const
    {
        Write(name + ".ui", QString("<ui version=\"4.0\"><class>%1</class><widget class=\"QWidget\" name=\"%1\">"
                                    "<layout class=\"QVBoxLayout\">%2</layout></widget>"
                                    "<customwidgets>%3</customwidgets></ui>")
                                .arg(name, widgets, classes));
    }

    QString widgets;
    QString classes;
};

} // namespace

// Writes into a folder what tests compile: a form of every widget as Designer starts it, a form of all states, and the
// C++ code of all states.
int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    folder = application.arguments().value(1);
    Form all;
    Form states;
    QStringList includes{"<Catalogue/Samples.h>"};
    QString samples;
    QString table;
    for (const Entry& entry : Entries()) {
        if (entry.form.metaObject)
            all.Add(
                QString(Zelkor::Designer::FormXml(entry))
                    .replace("</customwidget>", QString("<header>%1</header></customwidget>").arg(entry.form.header)));
        for (int i = 0; i < entry.states.size(); ++i) {
            const QString name = QString("%1%2").arg(entry.className).arg(i);
            if (const QString form = FormOf(entry, entry.states[i]); !form.isEmpty())
                states.Add(form, name);
            const SampleCode code = CodeOf(entry, i);
            for (const QString& header : code.includes)
                includes.append('<' + header + '>');
            samples += QString("namespace %1 {\n%2struct Window : QWidget {\nWindow() {\n%3}\n};\n}\n")
                           .arg(name, code.declarations, code.statements);
            table += QString("{\"%1\", [] { return static_cast<QWidget*>(new %1::Window); }},\n").arg(name);
        }
    }
    all.WriteTo("FormOfAll");
    states.WriteTo("FormOfStates");
    includes.removeDuplicates();
    Write("Samples.cpp", "#include " + includes.join("\n#include ") + '\n' + samples +
                             "const std::map<QString, QWidget* (*)()> SAMPLES = {\n" + table + "};\n");
    return 0;
}
