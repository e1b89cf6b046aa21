#include <UI/Kit/StyleSheetEditor/StyleSheetChecker.h>

#include <Support/TestCase.h>

using namespace Zelkor::Vx::UI::Kit;
using StyleSheetChecker::Check;
using StyleSheetChecker::Problem;

Q_DECLARE_METATYPE(Problem)

class tst_StyleSheetChecker : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
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

    void widgetSheetMayBeDeclarationsOnly()
    {
        QVERIFY(Check("a: b; c: d", StyleSheetScope::WIDGET).isEmpty());
        QCOMPARE(Check("b c; d", StyleSheetScope::WIDGET).size(), 2);
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
};

VX_TEST_MAIN(tst_StyleSheetChecker)
#include "tst_StyleSheetChecker.moc"
