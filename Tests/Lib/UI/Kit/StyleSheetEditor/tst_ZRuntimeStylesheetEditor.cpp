#include <UI/Kit/StyleSheetEditor/SearchBar.h>
#include <UI/Kit/StyleSheetEditor/StyleSheetCompleter.h>
#include <UI/Kit/StyleSheetEditor/StyleSheetHighlighter.h>
#include <UI/Kit/StyleSheetEditor/WidgetPicker.h>
#include <UI/Kit/ZCodeEditor.h>
#include <UI/Kit/ZRuntimeStylesheetEditor.h>

#include <Support/Input.h>
#include <Support/TestCase.h>

#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTextBlock>
#include <QToolButton>
#include <QWindow>

#include <memory>

using namespace Zelkor::Vx::UI::Kit;

namespace {

const QString RED = "QLabel { color: #ff0000; }";

// Waits at least as long as other editors wait after the last key.
void WaitForTypingPause()
{
    ZRuntimeStylesheetEditor editor;
    editor.setTarget(&editor);
    editor.setApplyingWhileTyping(true);
    QTest::keyClicks(editor.findChild<ZCodeEditor*>(), RED);
    QTRY_COMPARE(editor.styleSheet(), RED);
}

QColor ColorOf(QLabel& label)
{
    label.ensurePolished();
    return label.palette().color(QPalette::WindowText);
}

} // namespace

class tst_ZRuntimeStylesheetEditor : public Support::TestCase
{
    Q_OBJECT

    std::unique_ptr<QLabel> label;
    std::unique_ptr<ZRuntimeStylesheetEditor> editor;
    ZCodeEditor* code = nullptr;

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        label = std::make_unique<QLabel>();
        editor = std::make_unique<ZRuntimeStylesheetEditor>();
        code = editor->findChild<ZCodeEditor*>();
    }

    void cleanup()
    {
        editor.reset();
        label.reset();
        qApp->setStyleSheet(QString());
        TestCase::cleanup();
    }

    void revertRestoresTheOriginalSheet()
    {
        const QString before = "QLabel { color: #0000ff; }";
        const QString broken = "QLabel {\n    color: red;\n";
        qApp->setStyleSheet(before);
        editor->setTarget(nullptr);
        editor->readFromTarget();
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
        // A broken sheet is not applied.
        editor->setText(broken);
        QVERIFY(!editor->apply());
        QVERIFY2(editor->message().contains("Line 1, column 8"), qPrintable(editor->message()));
        QCOMPARE(ColorOf(*label), QColor("#00ff00"));
        editor->revert();
        QCOMPARE(ColorOf(*label), QColor("#0000ff"));
        QCOMPARE(editor->text(), broken);
        editor->readFromTarget();
        QCOMPARE(editor->text(), before);
    }

    void ignoredDeclarationsAreReported()
    {
        editor->setTarget(label.get());
        editor->setText("QLabel { b c; color: #ff0000 }");
        QVERIFY(editor->apply());
        QVERIFY2(editor->message().endsWith("colon is missing."), qPrintable(editor->message()));
    }

    void undoKeepsTheSheetOfTheTarget()
    {
        qApp->setStyleSheet(RED);
        editor->setTarget(label.get());
        QVERIFY(!editor->isWindowModified());
        editor->setTarget(nullptr);
        code->undo();
        QCOMPARE(editor->text(), RED);
    }

    void menuUndoesRedoesAndCopies()
    {
        const auto action = [this](const QString& text) {
            for (QAction* candidate : editor->actions()) {
                if (candidate->text().remove('&') == text)
                    return candidate;
            }
            return static_cast<QAction*>(nullptr);
        };
        QVERIFY(!action("Undo")->isEnabled());
        QVERIFY(!action("Copy")->isEnabled());
        QTest::keyClicks(code, "A");
        action("Undo")->trigger();
        QCOMPARE(code->toPlainText(), QString());
        QVERIFY(!action("Undo")->isEnabled());
        action("Redo")->trigger();
        QVERIFY(!action("Redo")->isEnabled());
        code->selectAll();
        action("Copy")->trigger();
        QCOMPARE(QApplication::clipboard()->text(), QString("A"));
    }

    void targetMayBeDestroyed()
    {
        editor->setTarget(label.get());
        editor->setText(RED);
        label.reset();
        QVERIFY(!editor->hasTarget());
        QVERIFY(!editor->message().isEmpty());
        QVERIFY(!editor->apply());
        editor->revert();
        editor->readFromTarget();
        QCOMPARE(editor->text(), RED);
        QCOMPARE(editor->findChild<QComboBox*>()->currentIndex(), -1);
    }

    void sheetIsAppliedWhileTyping()
    {
        editor->setTarget(label.get());
        editor->setApplyingWhileTyping(true);
        editor->show();
        QSignalSpy applied(editor.get(), &ZRuntimeStylesheetEditor::applied);
        QTest::keyClicks(code, "QLabel { color: #00ff0");
        QTRY_COMPARE(code->marks().size(), 2);
        QCOMPARE(label->styleSheet(), QString());
        QTest::keyClicks(code, "0 }");
        QTRY_COMPARE(ColorOf(*label), QColor("#00ff00"));
        QVERIFY(code->marks().isEmpty());
        QCOMPARE(applied.size(), 1);
        // A pending check does not apply the reverted sheet again.
        QTest::keyClick(code, Qt::Key_Space);
        editor->revert();
        WaitForTypingPause();
        QCOMPARE(label->styleSheet(), QString());
        QCOMPARE(applied.size(), 1);
        editor->setText(RED);
        QTRY_COMPARE(label->styleSheet(), RED);
    }

    void changeOfColorsIsNoEdit()
    {
        editor->setTarget(label.get());
        editor->setText(RED);
        editor->show();
        QVERIFY(editor->apply());
        const auto setTextColor = [this](const QColor& color) {
            QPalette palette;
            palette.setColor(QPalette::Text, color);
            editor->setPalette(palette);
            WaitForTypingPause();
        };
        setTextColor(Qt::white);
        QVERIFY2(editor->message().startsWith("Applied"), qPrintable(editor->message()));
        editor->setApplyingWhileTyping(true);
        WaitForTypingPause();
        label->setStyleSheet(QString());
        setTextColor(Qt::black);
        QCOMPARE(label->styleSheet(), QString());
    }

    void clickPicksTheTarget()
    {
        QWidget window;
        window.resize(300, 200);
        auto* field = new QLineEdit(&window);
        auto* button = new QPushButton("A", &window);
        button->move(0, 50);
        window.show();
        field->setFocus();
        Support::ShowActive(*editor);
        QSignalSpy clicked(button, &QPushButton::clicked);
        auto* pick = editor->findChild<QToolButton*>();
        auto* picker = editor->findChild<WidgetPicker*>();
        QTest::mouseClick(pick, Qt::LeftButton);
        QVERIFY(picker->isRunning());
        const QPoint corner = button->geometry().bottomRight();
        const QImage plain = window.grab().toImage();
        QTest::mouseMove(window.windowHandle(), button->geometry().center());
        QVERIFY(window.grab().toImage().pixel(corner) != plain.pixel(corner));
        QTest::mouseMove(window.windowHandle(), button->geometry().topRight() + QPoint(5, 0));
        QCOMPARE(window.grab().toImage().pixel(corner), plain.pixel(corner));
        window.activateWindow();
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, button->geometry().center());
        QCOMPARE(editor->target(), button);
        QCOMPARE(window.focusWidget(), field);
        QTRY_COMPARE(QApplication::focusWidget(), code);
        QVERIFY(!pick->isChecked());
        QVERIFY(!QApplication::overrideCursor());
        QCOMPARE(window.findChildren<QWidget*>().size(), 2);
        QCOMPARE(clicked.size(), 0);
        pick->setChecked(true);
        // Parts of the editor are not picked, even in another window.
        QWidget part(editor.get(), Qt::Tool);
        part.show();
        QTest::mouseClick(&part, Qt::LeftButton);
        QVERIFY(picker->isRunning());
        QCOMPARE(editor->target(), button);
        QTest::keyClick(&window, Qt::Key_Escape);
        QVERIFY(!picker->isRunning());
        QVERIFY(!pick->isChecked());
    }

    void deletedWidgetIsNotPicked()
    {
        WidgetPicker picker(nullptr);
        QSignalSpy picked(&picker, &WidgetPicker::picked);
        connect(&picker, &WidgetPicker::stopped, this, [this] { label.reset(); });
        picker.start();
        QTest::mousePress(label.get(), Qt::LeftButton);
        QVERIFY(!label);
        QVERIFY(picked.isEmpty());
    }

    void searchWrapsAroundAndReplaces()
    {
        SearchBar bar(code);
        code->setPlainText("red Red\nredder red");
        bar.setSearchedText("red");
        QVector<int> places;
        for (int i = 0; i < 5; ++i) {
            QVERIFY(bar.findNext());
            places.append(code->textCursor().selectionStart());
        }
        QCOMPARE(places, QVector<int>({0, 4, 8, 15, 0}));
        QVERIFY(!bar.message().isEmpty());
        bar.setCaseSensitive(true);
        bar.setWholeWords(true);
        QVERIFY(bar.findPrevious());
        QCOMPARE(code->textCursor().selectionStart(), 15);
        QVERIFY(bar.message().contains("end"));
        bar.setReplacement("red red");
        QCOMPARE(bar.replaceAll(), 2);
        QCOMPARE(code->toPlainText(), QString("red red Red\nredder red red"));
        code->undo();
        QCOMPARE(code->toPlainText(), QString("red Red\nredder red"));
        code->moveCursor(QTextCursor::Start);
        bar.setReplacement("a");
        bar.replace();
        bar.replace();
        QCOMPARE(code->toPlainText(), QString("a Red\nredder red"));
    }

    void returnAndTabIndent()
    {
        QTest::keyClicks(code, "A {\rb:\tc\r}");
        QCOMPARE(code->toPlainText(), QString("A {\n    b:  c\n}"));
        code->selectAll();
        QTest::keyClick(code, Qt::Key_Tab);
        QTest::keyClick(code, Qt::Key_Backtab, Qt::ShiftModifier);
        QTest::keyClick(code, Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(code->toPlainText(), QString("A {\nb:  c\n}"));
        code->undo();
        QCOMPARE(code->toPlainText(), QString("A {\n    b:  c\n}"));
    }

    void codeFollowsTheFontOfTheApplication()
    {
        const QFont before = QApplication::font();
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
        editor->show();
        auto* completer = editor->findChild<StyleSheetCompleter*>();
        const auto offered = [&](const QString& text) {
            code->setPlainText(text);
            code->moveCursor(QTextCursor::End);
            completer->open();
            return completer->completions().value(0);
        };
        QCOMPARE(offered("QLabel, #known"), QString("knownObject"));
        QCOMPARE(offered("QPush"), QString("QPushButton"));
        QCOMPARE(offered("A { b: c }\nQPushButton {\n qproperty-tex"), QString("qproperty-text"));
        QCOMPARE(offered("QPushButton { qproperty-readO"), QString()); // of another class
        QCOMPARE(offered("QPushButton { border-ra"), QString("border-radius"));
        QCOMPARE(offered("QPushButton:pre"), QString("pressed"));
        QCOMPARE(offered("QPushButton::indi"), QString("indicator"));
        QCOMPARE(offered("A { color: ora"), QString("orange"));
        QCOMPARE(offered("A { } /* QPush"), QString());
    }

    void completionIsInserted()
    {
        const QPushButton known;
        Support::ShowActive(*editor);
        auto* completer = editor->findChild<StyleSheetCompleter*>();
        // Two typed characters open the list, Return inserts the selected name.
        code->setFocus();
        QTest::keyClick(code, 'Q');
        QVERIFY(!completer->isOpen());
        QTest::keyClick(code, 'P');
        QVERIFY(completer->isOpen());
        QWidget* popup = QApplication::activePopupWidget();
        QTest::keyClicks(popup, "ushB");
        QTest::keyClick(popup, Qt::Key_Return);
        QCOMPARE(editor->text(), QString("QPushButton"));
        QVERIFY(!completer->isOpen());
    }

    void commentIsHighlightedOverLines()
    {
        QTextDocument document("A /* b\nc */ d {\ncolor: \"x\"");
        StyleSheetHighlighter highlighter(&document);
        const auto colorAt = [&](int line, int range) {
            highlighter.rehighlight();
            const auto formats = document.findBlockByNumber(line).layout()->formats();
            return formats.value(range).format.foreground().color();
        };
        const QColor comment = colorAt(0, 1);
        QVERIFY(comment.isValid());
        QCOMPARE(colorAt(1, 0), comment);
        QVERIFY(colorAt(0, 0) != comment);
        QVERIFY(colorAt(2, 0) != comment);
    }
};

VX_TEST_MAIN(tst_ZRuntimeStylesheetEditor)
#include "tst_ZRuntimeStylesheetEditor.moc"
