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
#include <QScrollBar>
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
    void mistakesAreFound()
    {
        struct Row
        {
            const char* sheet;
            int line = 0, column = 0;
            Problem problem = Problem::OPEN_COMMENT;
        };
        const Row rows[] = {
            {""},
            {"*, .A > B#c[d=\"e\"][f]:g:!h::i C--D { ; a: b;; }"},
            {"A { a: -6px 1.5em #abc \"x;}\" , url(:/a;b.png) f(x:0, (y), stop:1 #fff) !important }"},
            {"@import \"a\"; /* { \n */ @media screen { A { b: c } } @page { d: e }"},
            {"A {}\n /* b {", 2, 2, Problem::OPEN_COMMENT},
            {"A { b: \"c\n; d: e }", 1, 8, Problem::OPEN_STRING},
            {"A {\n b: c;", 1, 3, Problem::OPEN_BLOCK},
            {"A {\n b: c;\nD:e { f: g }", 1, 3, Problem::OPEN_BLOCK},
            {"A { b: rgb(1, 2;\n }", 1, 11, Problem::OPEN_PARENTHESIS},
            {"A[b { c: d }", 1, 2, Problem::OPEN_BRACKET},
            {"A { b: c }\n} D { e: f }", 2, 1, Problem::EXTRA_BRACE},
            {"A, { b: c }", 1, 4, Problem::NO_SELECTOR},
            {"A { } B", 1, 8, Problem::NO_BLOCK},
            {"A: b { c: d }", 1, 4, Problem::BAD_SELECTOR},
            {"A 1 { c: d }", 1, 3, Problem::BAD_SELECTOR},
            {"A { : b }", 1, 5, Problem::NO_PROPERTY},
            {"A {\n  b c;\n}", 2, 4, Problem::NO_COLON},
            {"A { b: ; }", 1, 7, Problem::NO_VALUE},
            {"A {\n  b: c d\n  e: f;\n}", 2, 9, Problem::NO_SEMICOLON},
            {"A { b: c | d }", 1, 10, Problem::BAD_VALUE},
            {"A { b: #ggg }", 1, 8, Problem::BAD_COLOR},
            {"a: b; /* c */", 1, 4, Problem::BAD_SELECTOR},
        };
        for (const Row& row : rows) {
            InRow(row.sheet);
            const auto found = StyleSheetChecker::Check(row.sheet);
            QCOMPARE(found.size(), row.line > 0 ? 1 : 0);
            for (const auto& mistake : found) {
                QCOMPARE(QPoint(mistake.column, mistake.line), QPoint(row.column, row.line));
                QVERIFY(mistake.problem == row.problem && !StyleSheetChecker::Describe(mistake.problem).isEmpty());
            }
        }
        QCOMPARE(StyleSheetChecker::Check("A { b c; d }").size(), 2);
        QVERIFY(StyleSheetChecker::Check("a: b; c: d", StyleSheetScope::WIDGET).isEmpty());
    }

    void refusesWhatQtRefuses_data()
    {
        QTest::addColumn<QString>("sheet");
        for (const char* sheet : {u8"A { b: \u00e9 }", u8"A {\u00a0b: c }", "A { b: a,,b }", "A { b: 1px / / 2px }",
                                  "A { b: c !important d }", "A { } @import \"a\";", "@media { A { } }",
                                  "@media 5 { A { } }", "A[a~^=\"b\"] { }", "A { b: rgb(#) }", "A { b: \x01 }"})
            QTest::newRow(sheet) << QString::fromUtf8(sheet);
    }

    void refusesWhatQtRefuses()
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

    void refusedPartIsFound()
    {
        const auto inRule = StyleSheetChecker::Check("A { b: c }\nB { c: d;\n  d: e,,f; }\nC { }");
        QCOMPARE(inRule.size(), 1);
        QCOMPARE(QPoint(inRule[0].column, inRule[0].line), QPoint(3, 3));
        const auto atRule = StyleSheetChecker::Check("A { }\n@media 5 { B { } }\nC { }");
        QCOMPARE(atRule.size(), 1);
        QCOMPARE(QPoint(atRule[0].column, atRule[0].line), QPoint(1, 2));
    }

    void saysWhatQtDrops()
    {
        QLabel label;
        ZRuntimeStylesheetEditor editor;
        editor.setTarget(&label);
        editor.setText("QLabel { b c; color: #ff0000 }");
        QVERIFY(editor.apply());
        QVERIFY2(editor.message().endsWith("colon is missing."), qPrintable(editor.message()));
    }

    void askingQtHasNoEffects()
    {
        // Qt warns of images that it cannot load and of properties that it cannot set.
        const QString sheet = "* { qproperty-no: 1; image: url(:/no) } *::close-button { background-image: url(:/no) }";
        QVERIFY(StyleSheetChecker::Check(sheet, StyleSheetScope::WIDGET).isEmpty());
        QVERIFY(!StyleSheetChecker::Check("A {{ }", StyleSheetScope::WIDGET).isEmpty());
        ExpectWarning("heard again");
        qWarning("heard again");
    }

    void appliesAndReverts()
    {
        for (const bool toApplication : {true, false}) {
            InRow(toApplication ? "application" : "widget");
            auto label = std::make_unique<QLabel>();
            const QString before = "QLabel { color: #0000ff; }";
            toApplication ? qApp->setStyleSheet(before) : label->setStyleSheet(before);
            auto editor = std::make_unique<ZRuntimeStylesheetEditor>();
            editor->setTarget(toApplication ? nullptr : label.get());
            QCOMPARE(editor->text(), before);
            QVERIFY(!editor->isModified());
            QSignalSpy reverted(editor.get(), &ZRuntimeStylesheetEditor::reverted);
            editor->revert();
            QCOMPARE(reverted.size(), 0);
            for (const QString color : {"#ff0000", "#00ff00"}) {
                editor->setText("QLabel { color: " + color + "; }");
                QVERIFY(editor->apply());
                QCOMPARE(ColorOf(*label), QColor(color));
            }
            // A broken sheet changes nothing, and the reason is said.
            editor->setText(BROKEN);
            QVERIFY(!editor->apply());
            QVERIFY2(editor->message().contains("Line 1, column 8"), qPrintable(editor->message()));
            QCOMPARE(ColorOf(*label), QColor("#00ff00"));
            editor->revert();
            QCOMPARE(ColorOf(*label), QColor("#0000ff"));
            QCOMPARE(editor->text(), BROKEN);
            editor->readFromTarget();
            QCOMPARE(editor->text(), before);
            if (!toApplication) {
                editor->setText(RED);
                label.reset();
                QVERIFY(!editor->hasTarget() && !editor->target());
                QVERIFY(!editor->message().isEmpty());
                QVERIFY(!editor->apply());
                editor->revert();
                editor->readFromTarget();
                QCOMPARE(editor->text(), RED);
                QCOMPARE(editor->findChild<QComboBox*>()->currentIndex(), -1);
            }
            qApp->setStyleSheet(QString());
            // One that goes before its target, which is a part of it, does not follow it any more.
            auto* part = new QLabel(editor.get());
            editor->setTarget(part);
            editor.reset();
        }
    }

    void followsTyping()
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
        QVERIFY(code->marks().isEmpty() && applied.size() == 1);
        // Reverted, it does not come back; what another editor sets later would come after it.
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

    void picksWithTheMouse()
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
        QVERIFY(!picker->isRunning() && !pick->isChecked() && !QApplication::overrideCursor());
        QCOMPARE(clicked.size(), 0);
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(clicked.size(), 1);
        pick->setChecked(true);
        // Its own parts are left out, those in windows of their own as well.
        QWidget part(&editor, Qt::Tool);
        part.show();
        QTest::mouseClick(&part, Qt::LeftButton);
        QVERIFY(picker->isRunning() && editor.target() == button);
        QTest::keyClick(&window, Qt::Key_Escape);
        QVERIFY(!picker->isRunning() && !pick->isChecked());
    }

    void pickedWidgetStillLives()
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

    void findsAndReplaces()
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
        QVERIFY(!bar.findNext() && bar.replaceAll() == 0);
        QCOMPARE(bar.message(), QString("Nothing was found."));
    }

    void indents()
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

    void loadsAndSaves()
    {
        QTemporaryDir folder;
        const QString name = folder.filePath("a.qss");
        ZRuntimeStylesheetEditor editor;
        editor.show();
        const QString text = QString::fromUtf8("/* Größe */\nA { b: c }\n");
        editor.setText(text);
        QVERIFY(editor.isModified() && editor.save(name) && !editor.isModified());
        QVERIFY(editor.windowTitle().startsWith("a.qss"));
        // Closing asks in the window.
        for (const QString answer : {"Cancel", "Discard", "Save"}) {
            editor.setText(RED);
            editor.show();
            QVERIFY(!editor.close());
            QTest::mouseClick(ButtonOf(editor, answer), Qt::LeftButton);
            QCOMPARE(editor.isVisible(), answer == "Cancel");
            QVERIFY(!editor.load("none") && editor.load(name));
            QCOMPARE(editor.message(), QString());
            QCOMPARE(editor.text(), answer == "Save" ? RED : text);
        }
        WriteFile(name, "A { b: \xff }");
        editor.setText(RED);
        for (const QString& bad : {name, folder.path(), folder.filePath("none.qss")})
            QVERIFY(!editor.load(bad) && editor.message().contains(bad));
        QVERIFY(!editor.save(folder.filePath("none/a.qss")));
        QVERIFY(editor.message().contains("none") && editor.text() == RED && editor.isModified());
        editor.setText(text);
        QCOMPARE(editor.message(), QString());
    }

    void undoEndsAtWhatWasRead()
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

    void discardedTextStaysUntilAnotherIsOpened()
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

    void savesWhatWasNotEditedAsItWas_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("byte-order mark") << QByteArray("\xEF\xBB\xBFQLabel {}\n");
        QTest::newRow("carriage returns") << QByteArray("QLabel {}\r\n\r\nA {}\r\n");
        QTest::newRow("mixed line ends") << QByteArray("A {}\r\nB {}\nC {}\rD {}");
        QTest::newRow("no-break space") << QByteArray("A { b: \"c\xC2\xA0 d\" }");
        QTest::newRow("Unicode line ends") << QByteArray("A {}\xE2\x80\xA8 B {}\xE2\x80\xA9 C {}");
    }

    void savesWhatWasNotEditedAsItWas()
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
    void specialFilesAreNotRead_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("pipe") << QString();
        QTest::newRow("device") << QString("/dev/null");
        QTest::newRow("read error") << QString("/proc/self/mem");
    }

    void specialFilesAreNotRead()
    {
        QFETCH(QString, name);
        QTemporaryDir folder;
        if (name.isEmpty()) {
            name = folder.filePath("pipe");
            QCOMPARE(mkfifo(QFile::encodeName(name).constData(), 0600), 0);
        }
        ZRuntimeStylesheetEditor editor;
        QVERIFY(!editor.load(name));
        QVERIFY2(editor.message().contains(name), qPrintable(editor.message()));
    }

    void fileInLockedFolderIsNotCut()
    {
        QTemporaryDir folder;
        const QString name = folder.filePath("a.qss");
        WriteFile(name, "old");
        QVERIFY(QFile::setPermissions(name, QFile::Permissions(0x6666)));
        QVERIFY(QFile::setPermissions(folder.path(), QFile::Permissions(0x5555)));
        ZRuntimeStylesheetEditor editor;
        editor.setText(RED);
        const uid_t user = geteuid();
        QVERIFY(user != 0 || seteuid(65534) == 0); // root may write anywhere
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

    void aKeyLooksAtItsRuleAlone()
    {
        class Counter : public StyleSheetHighlighter
        {
        public:
            using StyleSheetHighlighter::StyleSheetHighlighter;
            int count = 0;

        protected:
            void highlightBlock(const QString& text) override
            {
                ++count;
                StyleSheetHighlighter::highlightBlock(text);
            }
        };
        QPlainTextEdit code;
        Counter highlighter(code.document());
        StyleSheetCompleter completer(&code, nullptr);
        const QString rule = "QLabel {\n    color: red;\n}\n";
        code.setPlainText(rule.repeated(1000) + "QLabel {\n    co");
        QTRY_VERIFY(highlighter.count >= code.blockCount());
        QVERIFY(highlighter.count < 2 * code.blockCount());
        highlighter.count = 0;
        code.moveCursor(QTextCursor::End);
        QTest::keyClick(&code, 'l');
        QCOMPARE(highlighter.count, 1);
        QCOMPARE(completer.context(), QString("QLabel {\n    col"));
    }

    void markUnderlinesNoMoreThanCanBeSeen()
    {
        ZCodeEditor editor;
        editor.setPlainText("A { b: " + QString(40000, 'x') + " }");
        editor.setMarks({{8, "c"}});
        QVERIFY(editor.extraSelections().last().cursor.selectedText().size() < 200);
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

    void scrollBarsDependOnTheSizeAlone()
    {
        ZCodeEditor resized;
        resized.setPlainText(QString("A { color: red; background-color: blue }\n").repeated(8));
        resized.show();
        for (int height = 130; height < 220; height += 4) {
            ZCodeEditor fresh;
            fresh.setPlainText(resized.toPlainText());
            fresh.resize(390, height);
            fresh.show();
            resized.resize(60, 60);
            resized.resize(390, height);
            QCOMPARE(resized.verticalScrollBar()->isVisible(), fresh.verticalScrollBar()->isVisible());
        }
    }

    void offersNames()
    {
        QPushButton known;
        known.setObjectName("knownObject");
        ZRuntimeStylesheetEditor editor;
        editor.show();
        QVERIFY(QTest::qWaitForWindowActive(&editor));
        auto* code = editor.findChild<ZCodeEditor*>();
        auto* completer = editor.findChild<StyleSheetCompleter*>();
        const auto offered = [&](const QString& text) {
            code->setPlainText(text);
            code->moveCursor(QTextCursor::End);
            completer->open();
            return completer->completions();
        };
        QCOMPARE(offered("QLabel, #known"), QStringList("knownObject"));
        const QPair<QString, QString> rows[] = {
            {"QPush", "QPushButton"},
            {"QPushButton { qproperty-te", "qproperty-text"},
            {"QPushButton { border-ra", "border-radius"},
            {"QPushButton:pre", "pressed"},
            {"QPushButton::i", "indicator"},
            {"A { color: ora", "orange"},
        };
        for (const auto& row : rows)
            QVERIFY2(offered(row.first).contains(row.second), qPrintable(row.first));
        QVERIFY(!offered("QPushButton { qproperty-").contains("qproperty-readOnly"));
        QVERIFY(offered("A { } /* QPush").isEmpty());

        // Two letters bring it up by themselves; Return takes what is chosen.
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

    void coloursGoOnOverLines()
    {
        QTextDocument document("A /* b\nc */ d {\ncolor: \"x\"");
        StyleSheetHighlighter highlighter(&document);
        highlighter.rehighlight();
        QVector<QColor> first;
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
            first.append(block.layout()->formats().value(0).format.foreground().color());
        const auto comment = document.begin().layout()->formats().value(1).format.foreground().color();
        QVERIFY(comment.isValid() && first[1] == comment);
        QVERIFY(first[0] != comment && first[2] != comment && first[2] != first[0]);
        highlighter.setOnDark(true);
        QVERIFY(document.begin().layout()->formats().value(0).format.foreground().color().lightness() >
                first[0].lightness());
    }
};

VX_TEST_MAIN(tst_ZRuntimeStylesheetEditor)
#include "tst_ZRuntimeStylesheetEditor.moc"
