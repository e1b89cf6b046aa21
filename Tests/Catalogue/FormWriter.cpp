#include <Catalogue/Catalogue.h>
#include <Designer/FormXml.h>

#include <QApplication>
#include <QFile>

// Writes the form that tst_CatalogueParents compiles: every widget as Designer starts it, one below the other.
int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QString widgets;
    QString classes;
    for (const Zelkor::Catalogue::Entry& entry : Zelkor::Catalogue::Entries()) {
        if (!entry.form.metaObject)
            continue;
        const QString xml = Zelkor::Designer::FormXml(entry);
        widgets += "<item><widget" + xml.section("<widget", 1).section("<customwidgets>", 0, 0) + "</item>";
        classes += xml.section("<customwidgets>", 1).section("</customwidget>", 0, 0) +
                   QStringLiteral("<header>%1</header></customwidget>").arg(entry.form.header);
    }
    QFile file(application.arguments().value(1));
    if (!file.open(QIODevice::WriteOnly))
        return 1;
    file.write(QStringLiteral("<ui version=\"4.0\"><class>FormOfAll</class><widget class=\"QWidget\" "
                              "name=\"FormOfAll\"><layout class=\"QVBoxLayout\">%1</layout></widget>"
                              "<customwidgets>%2</customwidgets></ui>")
                   .arg(widgets, classes)
                   .toUtf8());
    return 0;
}
