#include <UI/Kit/StyleSheetEditor/SearchBar.h>
#include <UI/Kit/StyleSheetEditor/StyleSheetChecker.h>
#include <UI/Kit/StyleSheetEditor/StyleSheetCompleter.h>
#include <UI/Kit/StyleSheetEditor/StyleSheetHighlighter.h>
#include <UI/Kit/StyleSheetEditor/WidgetPicker.h>
#include <UI/Kit/ZCodeEditor.h>
#include <UI/Kit/ZRuntimeStylesheetEditor.h>

#include <Support/TestCase.h>

#include <QAction>
#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QToolButton>
#include <QWindow>

#include <memory>

#ifdef Q_OS_LINUX
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#endif

using namespace Zelkor::Vx::UI::Kit;
using StyleSheetChecker::Problem;

Q_DECLARE_METATYPE(Problem)

namespace {

const QString RED = "QLabel { color: #ff0000; }";
const QString BROKEN = "QLabel {\n    color: red;\n";

QColor ColorOf(QLabel& label)
{
    label.ensurePolished();
    return label.palette().color(QPalette::WindowText);
}

QByteArray BytesOf(const QString& fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
}

void WriteFile(const QString& fileName, const QByteArray& bytes)
{
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

QPushButton* ButtonOf(QWidget& widget, const QString& text)
{
    for (auto* button : widget.findChildren<QPushButton*>()) {
        if (button->text().remove('&') == text && button->isVisible())
            return button;
    }
    return nullptr;
}

} // namespace

class tst_ZRuntimeStylesheetEditor : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void checkerFindsMistakes_data()
    {
        QTest::addColumn<QString>("sheet");
        QTest::addColumn<int>("line");
        QTest::addColumn<int>("column");
        QTest::addColumn<Problem>("problem");
        const auto row = [](const char* sheet, int line = 0, int column = 0, Problem problem = Problem::REFUSED) {
            QTest::newRow(sheet) << sheet << line << column << problem;
        };
        row("");
        row("*, .A > B#c[d=\"e\"][f]:g:!h::i C--D { ; a: b;; }");
        row("A { a: -6px 1.5em #abc \"x;}\" , url(:/a;b.png) f(x:0, (y), stop:1 #fff) !important }");
        row("@import \"a\"; /* { \n */ @media screen { A { b: c } } @page { d: e }");
        row("A {}\n /* b {", 2, 2, Problem::OPEN_COMMENT);
        row("A { b: \"c\n; d: e }", 1, 8, Problem::OPEN_STRING);
        row("A {\n b: c;", 1, 3, Problem::OPEN_BLOCK);
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
        row("a: b; /* c */", 1, 4, Problem::BAD_SELECTOR);
        row("A { b: c }\nB { c: d;\n  d: e,,f; }\nC { }", 3, 3, Problem::REFUSED);
        row("A { }\n@media 5 { B { } }\nC { }", 2, 1, Problem::REFUSED);
    }

    void checkerFindsMistakes()
    {
        QFETCH(QString, sheet);
        QFETCH(int, line);
        const auto found = StyleSheetChecker::Check(sheet);
        QCOMPARE(found.size(), line > 0 ? 1 : 0);
        if (line == 0)
            return;
        QCOMPARE(found[0].line, line);
        QTEST(found[0].column, "column");
        QTEST(found[0].problem, "problem");
        QVERIFY(!StyleSheetChecker::Describe(found[0].problem).isEmpty());
    }

    void widgetSheetMayBeDeclarationsOnly()
    {
        QVERIFY(StyleSheetChecker::Check("a: b; c: d", StyleSheetScope::WIDGET).isEmpty());
        QCOMPARE(StyleSheetChecker::Check("b c; d", StyleSheetScope::WIDGET).size(), 2);
    }

    void sheetThatQtRejectsIsNotApplied_data()
    {
        QTest::addColumn<QString>("sheet");
        for (const char* sheet : {u8"A { b: \u00e9 }", u8"A {\u00a0b: c }", "A { b: a,,b }", "A { b: 1px / / 2px }",
                                  "A { b: c !important d }", "A { } @import \"a\";", "@media { A { } }",
                                  "@media 5 { A { } }", "A[a~^=\"b\"] { }", "A { b: rgb(#) }", "A { b: \x01 }"})
            QTest::newRow(sheet) << QString::fromUtf8(sheet);
    }

    void sheetThatQtRejectsIsNotApplied()
    {
        QFETCH(QString, sheet);
        const QString before = "A { }";
        qApp->setStyleSheet(before);
        ZRuntimeStylesheetEditor editor;
        editor.setText(sheet);
        QVERIFY(!editor.apply());
        QCOMPARE(qApp->styleSheet(), before);
        QVERIFY(!editor.findChild<ZCodeEditor*>()->marks().isEmpty());
        qApp->setStyleSheet(QString());
    }

    void ignoredDeclarationsAreReported()
    {
        QLabel label;
        ZRuntimeStylesheetEditor editor;
        editor.setTarget(&label);
        editor.setText("QLabel { b c; color: #ff0000 }");
        QVERIFY(editor.apply());
        QVERIFY2(editor.message().endsWith("colon is missing."), qPrintable(editor.message()));
    }

    void checkHasNoSideEffects()
    {
        // Qt would warn about images that it cannot load and properties that it cannot set.
        const QString sheet = "* { qproperty-no: 1; image: url(:/no) } *::close-button { background-image: url(:/no) }";
        QVERIFY(StyleSheetChecker::Check(sheet, StyleSheetScope::WIDGET).isEmpty());
        QVERIFY(!StyleSheetChecker::Check("A {{ }", StyleSheetScope::WIDGET).isEmpty());
        ExpectWarning("not suppressed");
        qWarning("not suppressed");
    }

    void revertRestoresTheOriginalSheet_data()
    {
        QTest::addColumn<bool>("toApplication");
        QTest::newRow("application") << true;
        QTest::newRow("widget") << false;
    }

    void revertRestoresTheOriginalSheet()
    {
        QFETCH(bool, toApplication);
        QLabel label;
        const QString before = "QLabel { color: #0000ff; }";
        toApplication ? qApp->setStyleSheet(before) : label.setStyleSheet(before);
        ZRuntimeStylesheetEditor editor;
        editor.setTarget(toApplication ? nullptr : &label);
        QCOMPARE(editor.text(), before);
        QVERIFY(!editor.isModified());
        QSignalSpy reverted(&editor, &ZRuntimeStylesheetEditor::reverted);
        editor.revert();
        QCOMPARE(reverted.size(), 0);
        for (const QString color : {"#ff0000", "#00ff00"}) {
            editor.setText("QLabel { color: " + color + "; }");
            QVERIFY(editor.apply());
            QCOMPARE(ColorOf(label), QColor(color));
        }
        // A broken sheet is not applied.
        editor.setText(BROKEN);
        QVERIFY(!editor.apply());
        QVERIFY2(editor.message().contains("Line 1, column 8"), qPrintable(editor.message()));
        QCOMPARE(ColorOf(label), QColor("#00ff00"));
        editor.revert();
        QCOMPARE(ColorOf(label), QColor("#0000ff"));
        QCOMPARE(editor.text(), BROKEN);
        editor.readFromTarget();
        QCOMPARE(editor.text(), before);
        qApp->setStyleSheet(QString());
    }

    void targetMayBeDestroyed()
    {
        auto label = std::make_unique<QLabel>();
        auto editor = std::make_unique<ZRuntimeStylesheetEditor>();
        editor->setTarget(label.get());
        editor->setText(RED);
        label.reset();
        QVERIFY(!editor->hasTarget());
        QVERIFY(!editor->target());
        QVERIFY(!editor->message().isEmpty());
        QVERIFY(!editor->apply());
        editor->revert();
        editor->readFromTarget();
        QCOMPARE(editor->text(), RED);
        QCOMPARE(editor->findChild<QComboBox*>()->currentIndex(), -1);
        editor->setTarget(new QLabel(editor.get()));
        editor.reset();
    }

    void sheetIsAppliedWhileTyping()
    {
        QLabel label;
        ZRuntimeStylesheetEditor editor;
        editor.setTarget(&label);
        editor.setApplyingWhileTyping(true);
        editor.show();
        QSignalSpy applied(&editor, &ZRuntimeStylesheetEditor::applied);
        auto* code = editor.findChild<ZCodeEditor*>();
        QTest::keyClicks(code, "QLabel { color: #00ff0");
        QTRY_COMPARE(code->marks().size(), 2);
        QCOMPARE(label.styleSheet(), QString());
        QTest::keyClicks(code, "0 }");
        QTRY_COMPARE(ColorOf(label), QColor("#00ff00"));
        QVERIFY(code->marks().isEmpty());
        QCOMPARE(applied.size(), 1);
        // A pending check does not apply the reverted sheet again. The other editor waits at least as long.
        QTest::keyClick(code, Qt::Key_Space);
        editor.revert();
        ZRuntimeStylesheetEditor later;
        later.setTarget(&later);
        later.setApplyingWhileTyping(true);
        QTest::keyClicks(later.findChild<ZCodeEditor*>(), RED);
        QTRY_COMPARE(later.styleSheet(), RED);
        QCOMPARE(label.styleSheet(), QString());
        QCOMPARE(applied.size(), 1);
        editor.setText(RED);
        QTRY_COMPARE(label.styleSheet(), RED);
    }

    void clickPicksTheTarget()
    {
        QWidget window;
        auto* field = new QLineEdit(&window);
        auto* button = new QPushButton("A", &window);
        button->move(0, 50);
        window.show();
        field->setFocus();
        ZRuntimeStylesheetEditor editor;
        editor.show();
        QSignalSpy clicked(button, &QPushButton::clicked);
        auto* pick = editor.findChild<QToolButton*>();
        auto* picker = editor.findChild<WidgetPicker*>();
        QTest::mouseClick(pick, Qt::LeftButton);
        QVERIFY(picker->isRunning());
        window.activateWindow();
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, button->geometry().center());
        QCOMPARE(editor.target(), button);
        QCOMPARE(window.focusWidget(), field);
        QTRY_COMPARE(QApplication::focusWidget(), editor.findChild<ZCodeEditor*>());
        QVERIFY(!pick->isChecked());
        QVERIFY(!QApplication::overrideCursor());
        QCOMPARE(clicked.size(), 0);
        pick->setChecked(true);
        // Parts of the editor are not picked, even in another window.
        QWidget part(&editor, Qt::Tool);
        part.show();
        QTest::mouseClick(&part, Qt::LeftButton);
        QVERIFY(picker->isRunning());
        QCOMPARE(editor.target(), button);
        QTest::keyClick(&window, Qt::Key_Escape);
        QVERIFY(!picker->isRunning());
        QVERIFY(!pick->isChecked());
    }

    void deletedWidgetIsNotPicked()
    {
        WidgetPicker picker(nullptr);
        QSignalSpy picked(&picker, &WidgetPicker::picked);
        QPointer<QWidget> widget = new QWidget;
        connect(&picker, &WidgetPicker::stopped, widget, [widget] { delete widget; });
        picker.start();
        QTest::mousePress(widget, Qt::LeftButton);
        QVERIFY(!widget);
        QVERIFY(picked.isEmpty());
    }

    void searchWrapsAroundAndReplaces()
    {
        ZCodeEditor editor;
        SearchBar bar(&editor);
        editor.setPlainText("red Red\nredder red");
        bar.setSearchedText("red");
        QVector<int> places;
        for (int i = 0; i < 5; ++i) {
            QVERIFY(bar.findNext());
            places.append(editor.textCursor().selectionStart());
        }
        QCOMPARE(places, QVector<int>({0, 4, 8, 15, 0}));
        QVERIFY(!bar.message().isEmpty());
        bar.setCaseSensitive(true);
        bar.setWholeWords(true);
        QVERIFY(bar.findPrevious());
        QCOMPARE(editor.textCursor().selectionStart(), 15);
        QVERIFY(bar.message().contains("end"));
        bar.setReplacement("red red");
        QCOMPARE(bar.replaceAll(), 2);
        QCOMPARE(editor.toPlainText(), QString("red red Red\nredder red red"));
        editor.undo();
        QCOMPARE(editor.toPlainText(), QString("red Red\nredder red"));
        editor.moveCursor(QTextCursor::Start);
        bar.setReplacement("a");
        bar.replace();
        bar.replace();
        QCOMPARE(editor.toPlainText(), QString("a Red\nredder red"));
        bar.setSearchedText("blue");
        QVERIFY(!bar.findNext());
        QCOMPARE(bar.replaceAll(), 0);
        QCOMPARE(bar.message(), QString("Nothing was found."));
    }

    void returnAndTabIndent()
    {
        ZCodeEditor editor;
        QTest::keyClicks(&editor, "A {");
        QTest::keyClick(&editor, Qt::Key_Return);
        QTest::keyClicks(&editor, "b:");
        QTest::keyClick(&editor, Qt::Key_Tab);
        QTest::keyClicks(&editor, "c");
        QTest::keyClick(&editor, Qt::Key_Return);
        QTest::keyClicks(&editor, "}");
        QCOMPARE(editor.toPlainText(), QString("A {\n    b:  c\n}"));
        editor.selectAll();
        QTest::keyClick(&editor, Qt::Key_Tab);
        QTest::keyClick(&editor, Qt::Key_Backtab, Qt::ShiftModifier);
        QTest::keyClick(&editor, Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(editor.toPlainText(), QString("A {\nb:  c\n}"));
        editor.undo();
        QCOMPARE(editor.toPlainText(), QString("A {\n    b:  c\n}"));
    }

    void closeAsksWhetherToSave()
    {
        QTemporaryDir folder;
        const QString name = folder.filePath("a.qss");
        ZRuntimeStylesheetEditor editor;
        editor.show();
        const QString text = QString::fromUtf8("/* Größe */\nA { b: c }\n");
        editor.setText(text);
        QVERIFY(editor.isModified());
        QVERIFY(editor.save(name));
        QVERIFY(!editor.isModified());
        QVERIFY(editor.windowTitle().startsWith("a.qss"));
        for (const QString answer : {"Cancel", "Discard", "Save"}) {
            editor.setText(RED);
            editor.show();
            QVERIFY(!editor.close());
            QTest::mouseClick(ButtonOf(editor, answer), Qt::LeftButton);
            QCOMPARE(editor.isVisible(), answer == "Cancel");
            QVERIFY(editor.load(name));
            QCOMPARE(editor.text(), answer == "Save" ? RED : text);
        }
    }

    void failedLoadKeepsTheText()
    {
        QTemporaryDir folder;
        const QString name = folder.filePath("a.qss");
        WriteFile(name, "A { b: \xff }");
        ZRuntimeStylesheetEditor editor;
        editor.setText(RED);
        for (const QString& bad : {name, folder.path(), folder.filePath("none.qss")}) {
            QVERIFY(!editor.load(bad));
            QVERIFY2(editor.message().contains(bad), qPrintable(editor.message()));
        }
        QVERIFY(!editor.save(folder.filePath("none/a.qss")));
        QVERIFY(editor.message().contains("none"));
        QCOMPARE(editor.text(), RED);
        QVERIFY(editor.isModified());
        editor.setText("A { b: c }");
        QCOMPARE(editor.message(), QString());
    }

    void undoKeepsTheSheetOfTheTarget()
    {
        qApp->setStyleSheet(RED);
        ZRuntimeStylesheetEditor editor;
        editor.findChild<ZCodeEditor*>()->undo();
        QCOMPARE(editor.text(), RED);
        QLabel label;
        editor.setTarget(&label);
        QVERIFY(!editor.isWindowModified());
        qApp->setStyleSheet(QString());
    }

    void discardedTextIsKeptUntilAFileIsOpened()
    {
        QTemporaryDir folder;
        ZRuntimeStylesheetEditor editor;
        editor.show();
        QVERIFY(editor.save(folder.filePath("a.qss")));
        editor.setText(RED);
        for (QAction* action : editor.actions()) {
            if (action->shortcut() == QKeySequence(QKeySequence::Open))
                action->trigger();
        }
        QTest::mouseClick(ButtonOf(editor, "Discard"), Qt::LeftButton);
        editor.findChild<QFileDialog*>()->reject();
        QCOMPARE(editor.focusWidget(), editor.findChild<ZCodeEditor*>());
        QVERIFY(editor.isModified());
        QCOMPARE(editor.fileName(), folder.filePath("a.qss"));
    }

    void saveKeepsBytesOfUneditedLines_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("byte-order mark") << QByteArray("\xEF\xBB\xBFQLabel {}\n");
        QTest::newRow("carriage returns") << QByteArray("QLabel {}\r\n\r\nA {}\r\n");
        QTest::newRow("mixed line endings") << QByteArray("A {}\r\nB {}\nC {}\rD {}");
        QTest::newRow("no-break space") << QByteArray("A { b: \"c\xC2\xA0 d\" }");
        QTest::newRow("Unicode line separators") << QByteArray("A {}\xE2\x80\xA8 B {}\xE2\x80\xA9 C {}");
    }

    void saveKeepsBytesOfUneditedLines()
    {
        QFETCH(QByteArray, bytes);
        QTemporaryDir folder;
        const QString name = folder.filePath("a.qss");
        WriteFile(name, bytes);
        ZRuntimeStylesheetEditor editor;
        QVERIFY(editor.load(name));
        QVERIFY(editor.save(name));
        QCOMPARE(BytesOf(name), bytes);
        auto* code = editor.findChild<ZCodeEditor*>();
        code->moveCursor(QTextCursor::End);
        code->insertPlainText("E");
        QVERIFY(editor.save(name));
        QCOMPARE(BytesOf(name), bytes + 'E');
    }

#ifdef Q_OS_LINUX
    void specialFilesAreNotRead()
    {
        QTemporaryDir folder;
        const QString pipe = folder.filePath("pipe");
        QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        ZRuntimeStylesheetEditor editor;
        for (const QString& name : {pipe, QString("/dev/null"), QString("/proc/self/mem")}) {
            QVERIFY2(!editor.load(name), qPrintable(name));
            QVERIFY2(editor.message().contains(name), qPrintable(editor.message()));
        }
    }

    void fileInReadOnlyFolderIsNotTruncated()
    {
        QTemporaryDir folder;
        const QString name = folder.filePath("a.qss");
        WriteFile(name, "old");
        QVERIFY(QFile::setPermissions(name, QFile::Permissions(0x6666)));
        QVERIFY(QFile::setPermissions(folder.path(), QFile::Permissions(0x5555)));
        ZRuntimeStylesheetEditor editor;
        editor.setText(RED);
        const uid_t user = geteuid();
        QVERIFY(user != 0 || seteuid(65534) == 0); // root ignores permissions
        const bool isSaved = editor.save(name);
        QCOMPARE(seteuid(user), 0);
        QVERIFY(QFile::setPermissions(folder.path(), QFile::Permissions(0x7777)));
        QVERIFY(!isSaved);
        QCOMPARE(BytesOf(name), QByteArray("old"));
    }

    void fullDiskLeavesTheOldFile()
    {
        QTemporaryDir folder;
        const QString name = folder.filePath("a.qss");
        WriteFile(name, "old");
        ZRuntimeStylesheetEditor editor;
        editor.setText(RED);
        // The largest size of a file stands for the size of the disk.
        const auto handler = std::signal(SIGXFSZ, SIG_IGN);
        rlimit usual;
        QCOMPARE(getrlimit(RLIMIT_FSIZE, &usual), 0);
        const rlimit low{10, usual.rlim_max};
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &low), 0);
        const bool isSaved = editor.save(name);
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &usual), 0);
        std::signal(SIGXFSZ, handler);
        QVERIFY(!isSaved);
        QCOMPARE(BytesOf(name), QByteArray("old"));
        QVERIFY2(editor.message().contains(qt_error_string(EFBIG)), qPrintable(editor.message()));
    }
#endif

    void completerReadsTheCurrentRuleOnly()
    {
        QPlainTextEdit code;
        StyleSheetHighlighter highlighter(code.document());
        StyleSheetCompleter completer(&code, nullptr);
        code.setPlainText("QLabel { color: red; }\nQLabel {\n    co");
        highlighter.rehighlight();
        code.moveCursor(QTextCursor::End);
        QCOMPARE(completer.context(), QString("QLabel {\n    co"));
    }

    void codeFollowsTheFontOfTheApplication()
    {
        const QFont before = QApplication::font();
        ZRuntimeStylesheetEditor editor;
        auto* code = editor.findChild<ZCodeEditor*>();
        const int width = code->marginWidth();
        QFont large = before;
        large.setPointSizeF(2 * before.pointSizeF());
        QApplication::setFont(large);
        QTRY_COMPARE(code->font().pointSizeF(), large.pointSizeF());
        QTRY_VERIFY(code->marginWidth() > width);
        QApplication::setFont(before);
    }

    void completerOffersNames()
    {
        QPushButton known;
        known.setObjectName("knownObject");
        ZRuntimeStylesheetEditor editor;
        editor.show();
        QVERIFY(QTest::qWaitForWindowActive(&editor));
        auto* code = editor.findChild<ZCodeEditor*>();
        auto* completer = editor.findChild<StyleSheetCompleter*>();
        const auto completionsOf = [&](const QString& text) {
            code->setPlainText(text);
            code->moveCursor(QTextCursor::End);
            completer->open();
            return completer->completions();
        };
        QCOMPARE(completionsOf("QLabel, #known"), QStringList("knownObject"));
        const QPair<QString, QString> rows[] = {
            {"QPush", "QPushButton"},
            {"QPushButton { qproperty-te", "qproperty-text"},
            {"QPushButton { border-ra", "border-radius"},
            {"QPushButton:pre", "pressed"},
            {"QPushButton::i", "indicator"},
            {"A { color: ora", "orange"},
        };
        for (const auto& row : rows)
            QVERIFY2(completionsOf(row.first).contains(row.second), qPrintable(row.first));
        QVERIFY(!completionsOf("QPushButton { qproperty-").contains("qproperty-readOnly"));
        QVERIFY(completionsOf("A { } /* QPush").isEmpty());

        // Two typed characters open the list, Return inserts the selected name.
        code->clear();
        code->setFocus();
        QTest::keyClick(code, 'Q');
        QVERIFY(!completer->isOpen());
        QTest::keyClick(code, 'P');
        QVERIFY(completer->isOpen());
        QWidget* popup = QApplication::activePopupWidget();
        QTest::keyClicks(popup, "ushB");
        QTest::keyClick(popup, Qt::Key_Return);
        QCOMPARE(editor.text(), QString("QPushButton"));
        QVERIFY(!completer->isOpen());
    }

    void commentIsHighlightedOverLines()
    {
        QTextDocument document("A /* b\nc */ d {\ncolor: \"x\"");
        StyleSheetHighlighter highlighter(&document);
        highlighter.rehighlight();
        QVector<QColor> first;
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
            first.append(block.layout()->formats().value(0).format.foreground().color());
        const auto comment = document.begin().layout()->formats().value(1).format.foreground().color();
        QVERIFY(comment.isValid());
        QCOMPARE(first[1], comment);
        QCOMPARE(QSet<QRgb>({first[0].rgb(), first[2].rgb(), comment.rgb()}).size(), 3);
        highlighter.setOnDark(true);
        QVERIFY(document.begin().layout()->formats().value(0).format.foreground().color().lightness() >
                first[0].lightness());
    }
};

VX_TEST_MAIN(tst_ZRuntimeStylesheetEditor)
#include "tst_ZRuntimeStylesheetEditor.moc"
