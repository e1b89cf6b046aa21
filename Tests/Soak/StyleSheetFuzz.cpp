// Mutates style sheets at random and compares the results of the style sheet editor with those of Qt.
// Usage: StyleSheetFuzz RUNS [SEED]

#include <UI/Kit/StyleSheetEditor/StyleSheetTextEdit.h>

#include <Support/TestCase.h>

#include <QFile>
#include <QLabel>
#include <QRandomGenerator>
#include <QRegularExpression>

#include <cstdio>
#include <cstdlib>

using namespace Zelkor::Vx::UI::Kit;

namespace {

bool isRejected = false;

bool IsAcceptedByQt(const QString& sheet, StyleSheetScope scope)
{
    isRejected = false;
    const QtMessageHandler before =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& message) {
            isRejected = isRejected || message.startsWith("Could not parse");
        });
    {
        QLabel label;
        scope == StyleSheetScope::APPLICATION ? qApp->setStyleSheet(sheet) : label.setStyleSheet(sheet);
        label.ensurePolished();
        qApp->setStyleSheet(QString());
    }
    qInstallMessageHandler(before);
    return !isRejected;
}

QStringList RulesOf(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(fileName));
    // Replaces the colour names of the template.
    QString text = QString::fromUtf8(file.readAll());
    text.replace(QRegularExpression("@[a-z-]+@", QRegularExpression::CaseInsensitiveOption), "#3567e0");
    return text.split(QRegularExpression("(?<=})\\n"), Qt::SkipEmptyParts);
}

class Mutator
{
public:
    Mutator(QStringList rules, quint32 seed) : rules(std::move(rules)), random(seed) {}

    QString next()
    {
        QString sheet;
        for (int i = random.bounded(3); i >= 0; --i)
            sheet += rules[random.bounded(rules.size())] + '\n';
        if (random.bounded(4) == 0) // declarations only
            sheet = sheet.section('{', 1, 1).section('}', 0, 0);
        for (int i = random.bounded(5); i > 0; --i)
            mutate(sheet);
        return sheet;
    }

private:
    void mutate(QString& sheet)
    {
        static const QStringList PIECES =
            QString::fromUtf8(
                "@import~\"a\";~@media screen {~@media {~@page~@charset \"a\";~@x~<!--~-->~/*~*/~url(~f(~)~"
                "!important~!~#~#ggg~#fff~\"~'~\\~\\7b~\\\n~{~}~[~]~=~^~|~:~::~;~,~, ,~/~+~-~--~1px~5%~.5~"
                "1e3~\u00a0~\u00e9~\u20ac~\u2028~\t~\r~\n~\x01~\x7f~*~>~ ~")
                .split('~');
        const int at = random.bounded(sheet.size() + 1);
        const int length = random.bounded(random.bounded(2) ? 3 : 40);
        const int kind = random.bounded(4);
        if (kind == 0)
            sheet.remove(at, length);
        else if (kind == 1)
            sheet.insert(at, sheet.mid(random.bounded(sheet.size() + 1), length));
        else
            sheet.insert(at, PIECES[random.bounded(PIECES.size())]);
    }

    const QStringList rules;
    QRandomGenerator random;
};

} // namespace

int main(int argc, char* argv[])
{
    Support::PrepareProcess(argv[0]);
    QApplication application(argc, argv);
    const int runs = argc > 1 ? std::atoi(argv[1]) : 1000;
    const quint32 seed = argc > 2 ? std::strtoul(argv[2], nullptr, 10) : 1;
    Mutator mutator(RulesOf(VX_STYLE_SHEET), seed);
    StyleSheetTextEdit editor(nullptr);
    int rejected = 0;
    for (int i = 0; i < runs; ++i) {
        const StyleSheetScope scope = i % 2 ? StyleSheetScope::WIDGET : StyleSheetScope::APPLICATION;
        const QString sheet = mutator.next();
        editor.loadText(sheet);
        editor.setScope(scope);
        const bool isAccepted = IsAcceptedByQt(sheet, scope);
        rejected += !isAccepted;
        if (editor.isAccepted() != isAccepted || (!isAccepted && editor.marks().isEmpty())) {
            std::printf("run %d: Qt %s, the editor %s with %d marks:\n%s\n", i, isAccepted ? "accepts" : "rejects",
                        editor.isAccepted() ? "accepts" : "rejects", int(editor.marks().size()), qPrintable(sheet));
            return EXIT_FAILURE;
        }
    }
    std::printf("%d sheets, %d rejected by Qt and by the editor\n", runs, rejected);
    // Both results must occur.
    return rejected > 0 && rejected < runs ? EXIT_SUCCESS : EXIT_FAILURE;
}
