// Mutates style sheets at random and compares what the style sheet editor says of them with what Qt does.
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

bool isRefused = false;

void HandleMessage(QtMsgType, const QMessageLogContext&, const QString& message)
{
    isRefused = isRefused || message.startsWith("Could not parse");
}

bool IsTakenByQt(const QString& sheet, StyleSheetScope scope)
{
    isRefused = false;
    const QtMessageHandler before = qInstallMessageHandler(HandleMessage);
    {
        QLabel label;
        scope == StyleSheetScope::APPLICATION ? qApp->setStyleSheet(sheet) : label.setStyleSheet(sheet);
        label.ensurePolished();
        qApp->setStyleSheet(QString());
    }
    qInstallMessageHandler(before);
    return !isRefused;
}

QStringList RulesOf(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(fileName));
    // The template of the sheets, with a colour for each name of the palette.
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
        if (random.bounded(4) == 0) // declarations alone
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
        switch (random.bounded(4)) {
        case 0:
            sheet.remove(at, length);
            break;
        case 1:
            sheet.insert(at, sheet.mid(random.bounded(sheet.size() + 1), length));
            break;
        default:
            sheet.insert(at, PIECES[random.bounded(PIECES.size())]);
            break;
        }
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
    int refused = 0;
    for (int i = 0; i < runs; ++i) {
        const StyleSheetScope scope = i % 2 ? StyleSheetScope::WIDGET : StyleSheetScope::APPLICATION;
        const QString sheet = mutator.next();
        editor.loadText(sheet);
        editor.setScope(scope);
        const bool isTaken = IsTakenByQt(sheet, scope);
        refused += !isTaken;
        const bool isMarked = !editor.marks().isEmpty();
        if (editor.isAccepted() != isTaken || (!isTaken && !isMarked)) {
            std::printf("run %d, %s: Qt %s, the editor %s, %s:\n%s\n", i, i % 2 ? "widget" : "application",
                        isTaken ? "accepts" : "refuses", editor.isAccepted() ? "accepts" : "refuses",
                        isMarked ? "with a mark" : "without a mark", qPrintable(sheet));
            return EXIT_FAILURE;
        }
    }
    std::printf("%d sheets, %d refused by Qt and by the editor\n", runs, refused);
    // Both answers have to come, or nothing is compared.
    return refused > 0 && refused < runs ? EXIT_SUCCESS : EXIT_FAILURE;
}
