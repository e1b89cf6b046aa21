#include "Legibility.h"

#include <Catalogue/QtWidgets.h>
#include <Examples/Support/BuiltInStyleSheets.h>

#include <Support/TestCase.h>

#include <QFile>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QTextStream>
#include <QVBoxLayout>

#include <memory>

using namespace Zelkor::Catalogue;

namespace {

using Measure = Findings (*)(QWidget&);

const QMap<QString, Measure> MEASURES{
    {"text", TextContrasts}, {"edge", EdgeContrasts}, {"focus", FocusContrasts}, {"hover", HoverContrasts}};

std::unique_ptr<QWidget> OpenGroup(const State& group)
{
    auto window = std::make_unique<QWidget>();
    window->setFocusPolicy(Qt::ClickFocus);
    auto* layout = new QVBoxLayout(window.get());
    layout->addWidget(CreateInState(QtWidgetsEntry(), group, window.get()));
    window->show();
    window->findChild<QWidget*>()->show();
    QApplication::processEvents();
    window->resize(window->sizeHint());
    QApplication::processEvents();
    window->setFocus();
    // File dialogs list their folder on a thread.
    for (const auto* dialog : window->findChildren<QFileDialog*>()) {
        const auto* files = dialog->findChild<QFileSystemModel*>();
        const auto isListed = [=] { return files->rowCount(files->index(dialog->directory().path())) > 0; };
        if (!QTest::qWaitFor(isListed))
            qWarning("A file dialog lists no files");
    }
    return window;
}

QStringList WeakOnes(const Findings& findings)
{
    QStringList weak;
    for (const Finding& finding : findings) {
        if (finding.contrast < finding.least)
            weak += QString("%1: %2").arg(finding.what).arg(finding.contrast, 0, 'f', 2);
    }
    return weak;
}

} // namespace

/// Measures the contrast of all widgets of Qt in pictures of them.
class tst_Contrast : public Support::TestCase
{
    Q_OBJECT

    /// The lowest contrast by class and what is measured, and by style sheet.
    QMap<QString, QMap<QString, double>> lowest;

private Q_SLOTS:
    void initTestCase_data()
    {
        QTest::addColumn<QString>("sheet");
        for (const char* sheet : {"dark", "light", "high-contrast"})
            QTest::newRow(sheet) << sheet;
    }

    void contrastIsSufficient_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<int>("group");
        const QVector<State>& groups = QtWidgetsEntry().states;
        for (const QString& kind : MEASURES.keys()) {
            for (int i = 0; i < groups.size(); ++i)
                QTest::addRow("%s: %s", qPrintable(kind), qPrintable(groups[i].name)) << kind << i;
        }
    }

    void contrastIsSufficient()
    {
        QFETCH_GLOBAL(QString, sheet);
        QFETCH(QString, kind);
        QFETCH(int, group);
        Zelkor::Examples::LoadStyleSheet(sheet)->apply();
        const auto window = OpenGroup(QtWidgetsEntry().states[group]);
        const Findings findings = MEASURES[kind](*window);
        for (const Finding& finding : findings) {
            auto& row = lowest[QString("%1 | %2 | %3").arg(finding.what.section(' ', 0, 0), kind).arg(finding.least)];
            row[sheet] = qMin(row.value(sheet, 21), finding.contrast);
        }
        QVERIFY(kind != "text" || !findings.isEmpty());
        const QString weak = WeakOnes(findings).join("; ");
        QVERIFY2(weak.isEmpty(), qPrintable(weak));
    }

    /// Writes the table of the contrasts to the file that VX_CONTRAST_TABLE names.
    void cleanupTestCase()
    {
        QFile file(qEnvironmentVariable("VX_CONTRAST_TABLE"));
        if (file.fileName().isEmpty())
            return;
        QVERIFY(file.open(QIODevice::WriteOnly));
        const QStringList sheets{"dark", "light", "high-contrast"};
        QTextStream table(&file);
        table << "# Contrast of the style sheets\n\n"
                 "The lowest contrast ratio of each class of Qt Widgets in pictures of its states, with the least that "
                 "is required.\n"
                 "Disabled texts require 3. `cmake --build build/release --target contrast-table` generates this "
                 "file.\n\n";
        table << "| class | what | least | " << sheets.join(" | ") << " |\n|---|---|---|---|---|---|\n";
        for (auto row = lowest.cbegin(); row != lowest.cend(); ++row) {
            table << "| " << row.key();
            for (const QString& sheet : sheets)
                table << " | " << QString::number(row.value().value(sheet), 'f', 1);
            table << " |\n";
        }
    }

    void badColoursAreFound_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("rule");
        const auto row = [](const char* kind, const QString& rule) { QTest::newRow(kind) << kind << rule; };
        row("text", "QPushButton { color: %1; background: %1; }");
        row("edge", "QPushButton { background: transparent; border: none; /* %1 */ }");
        row("focus", "QPushButton, QPushButton:focus { border: 1px solid %1; padding: 5px 11px; }");
        row("hover", "QPushButton, QPushButton:hover { background: %1; }");
    }

    void badColoursAreFound()
    {
        QFETCH_GLOBAL(QString, sheet);
        QFETCH(QString, kind);
        QFETCH(QString, rule);
        ZStyleSheet bad = *Zelkor::Examples::LoadStyleSheet(sheet);
        bad.text += rule.arg("#777777");
        bad.apply();
        const auto window = OpenGroup(QtWidgetsEntry().states[0]);
        QVERIFY(!WeakOnes(MEASURES[kind](*window)).filter("QPushButton").isEmpty());
    }
};

VX_TEST_MAIN(tst_Contrast)
#include "tst_Contrast.moc"
