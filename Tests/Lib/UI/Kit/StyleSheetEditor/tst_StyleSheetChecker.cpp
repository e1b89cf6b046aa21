#include <UI/Kit/StyleSheetEditor/StyleSheetChecker.h>
#include <UI/Kit/StyleSheetEditor/StyleSheetTextEdit.h>

#include <Support/TestCase.h>

#include <QFile>
#include <QLabel>
#include <QRandomGenerator>
#include <QRegularExpression>

using namespace Zelkor::Vx::UI::Kit;
using StyleSheetChecker::Check;
using StyleSheetChecker::Problem;

Q_DECLARE_METATYPE(Problem)

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

} // namespace

class tst_StyleSheetChecker : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QFile file(VX_STYLE_SHEET);
        QVERIFY(file.open(QIODevice::ReadOnly));
        // Replaces the colour names of the template.
        QString text = QString::fromUtf8(file.readAll());
        text.replace(QRegularExpression("@[a-z-]+@", QRegularExpression::CaseInsensitiveOption), "#3567e0");
        rules = text.split(QRegularExpression("(?<=})\\n"), Qt::SkipEmptyParts);
    }

    void validSheetHasNoProblem()
    {
        for (const char* sheet :
             {"", "*, .A > B#c[d=\"e\"][f]:g:!h::i C--D { ; a: b;; }",
              "A { a: -6px 1.5em #abc \"x;}\" , url(:/a;b.png) f(x:0, (y), stop:1 #fff) !important }",
              "@import \"a\"; /* { \n */ @media screen { A { b: c } } @page { d: e }"})
            QVERIFY2(Check(sheet).isEmpty(), sheet);
    }

    void mistakeIsLocated_data()
    {
        QTest::addColumn<int>("line");
        QTest::addColumn<int>("column");
        QTest::addColumn<Problem>("problem");
        const auto row = [](const char* sheet, int line, int column, Problem problem) {
            QTest::newRow(sheet) << line << column << problem;
        };
        row("A {}\n /* b {", 2, 2, Problem::OPEN_COMMENT);
        row("a: b; /* c */", 1, 4, Problem::BAD_SELECTOR);
        row("A { b: \"c\n; d: e }", 1, 8, Problem::OPEN_STRING);
        row("A {\n b: c;\nD:e { f: g }", 1, 3, Problem::OPEN_BLOCK);
        row("A { b: rgb(1, 2;\n }", 1, 11, Problem::OPEN_PARENTHESIS);
        row("A[b { c: d }", 1, 2, Problem::OPEN_BRACKET);
        row("A { b: c }\n} D { e: f }", 2, 1, Problem::EXTRA_BRACE);
        row("A, { b: c }", 1, 4, Problem::NO_SELECTOR);
        row("A { } B", 1, 8, Problem::NO_BLOCK);
        row("A: b { c: d }", 1, 4, Problem::BAD_SELECTOR);
        row("A { : b }", 1, 5, Problem::NO_PROPERTY);
        row("A {\n  b c;\n}", 2, 4, Problem::NO_COLON);
        row("A { b: ; }", 1, 7, Problem::NO_VALUE);
        row("A {\n  b: c d\n  e: f;\n}", 2, 9, Problem::NO_SEMICOLON);
        row("A { b: c | d }", 1, 10, Problem::BAD_VALUE);
        row("A { b: #ggg }", 1, 8, Problem::BAD_COLOR);
        row("A { b: c }\nB { c: d;\n  d: e,,f; }\nC { }", 3, 3, Problem::REFUSED);
        row("A { }\n@media 5 { B { } }\nC { }", 2, 1, Problem::REFUSED);
    }

    void mistakeIsLocated()
    {
        const auto found = Check(QTest::currentDataTag());
        QCOMPARE(found.size(), 1);
        QTEST(found[0].line, "line");
        QTEST(found[0].column, "column");
        QTEST(found[0].problem, "problem");
        QVERIFY(!StyleSheetChecker::Describe(found[0].problem).isEmpty());
    }

    void checkHasNoSideEffects()
    {
        // Qt would warn about images that it cannot load and properties that it cannot set.
        const QString sheet = "* { qproperty-no: 1; image: url(:/no) } *::close-button { background-image: url(:/no) }";
        QVERIFY(Check(sheet, StyleSheetScope::WIDGET).isEmpty());
        QVERIFY(!Check("A {{ }", StyleSheetScope::WIDGET).isEmpty());
        ExpectWarning("not suppressed");
        qWarning("not suppressed");
    }

    // Random sheets. The environment variables VX_SEED and VX_EVENTS set the sequence and its length.
    void editorAcceptsWhatQtAccepts()
    {
        const int runs = qEnvironmentVariable("VX_EVENTS", "3000").toInt();
        StyleSheetTextEdit editor(nullptr);
        int rejected = 0;
        for (int i = 0; i < runs; ++i) {
            const StyleSheetScope scope = i % 2 ? StyleSheetScope::WIDGET : StyleSheetScope::APPLICATION;
            const QString sheet = NextSheet();
            editor.loadText(sheet);
            editor.setScope(scope);
            const bool isAccepted = IsAcceptedByQt(sheet, scope);
            rejected += !isAccepted;
            QVERIFY2(editor.isAccepted() == isAccepted, qPrintable(sheet));
            QVERIFY2(isAccepted || !editor.marks().isEmpty(), qPrintable(sheet));
        }
        // Both results must occur.
        QVERIFY(rejected > 0);
        QVERIFY(rejected < runs);
    }

private:
    QString NextSheet()
    {
        static const QStringList PIECES =
            QString::fromUtf8(
                "@import~\"a\";~@media screen {~@media {~@page~@charset \"a\";~@x~<!--~-->~/*~*/~url(~f(~)~"
                "!important~!~#~#ggg~#fff~\"~'~\\~\\7b~\\\n~{~}~[~]~=~^~|~:~::~;~,~, ,~/~+~-~--~1px~5%~.5~"
                "1e3~\u00a0~\u00e9~\u20ac~\u2028~\t~\r~\n~\x01~\x7f~*~>~ ~")
                .split('~');
        QString sheet;
        for (int i = random.bounded(3); i >= 0; --i)
            sheet += rules[random.bounded(rules.size())] + '\n';
        if (random.bounded(4) == 0) // declarations only
            sheet = sheet.section('{', 1, 1).section('}', 0, 0);
        for (int i = random.bounded(5); i > 0; --i) {
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
        return sheet;
    }

    QStringList rules;
    QRandomGenerator random{qEnvironmentVariable("VX_SEED", "1").toUInt()};
};

VX_TEST_MAIN(tst_StyleSheetChecker)
#include "tst_StyleSheetChecker.moc"
