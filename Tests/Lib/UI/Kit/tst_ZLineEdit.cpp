#include <UI/Kit/ZLineEdit.h>

#include <UI/Common/TextMarks.h>

#include <Support/TestCase.h>

#include <QAccessible>
#include <QClipboard>
#include <QMimeData>
#include <QRegularExpressionValidator>
#include <QSignalSpy>
#include <QStyleOptionFrame>

#include <functional>

using Zelkor::Vx::UI::Common::Embed;

const QString LONG_TEXT = QStringLiteral("A text that is far too long for this place");

class tst_ZLineEdit : public Support::TestCase
{
    Q_OBJECT

private:
    struct Scene
    {
        QWidget window;
        ZLineEdit edit{&window};
        QLineEdit other{&window};
        QSignalSpy changed{&edit, &ZLineEdit::originalTextChanged};

        Scene()
        {
            edit.setGeometry(0, 0, 60, 30);
            other.setGeometry(0, 40, 60, 30);
            edit.setOriginalText(LONG_TEXT);
            changed.clear();
            other.setFocus();
            window.show();
            window.activateWindow();
            [&] { QVERIFY(QTest::qWaitForWindowActive(&window)); }();
        }
        QString elided() const { return edit.fontMetrics().elidedText(Embed(LONG_TEXT), Qt::ElideRight, 60); }
        void sendFocus(QEvent::Type type, Qt::FocusReason reason)
        {
            QFocusEvent event(type, reason);
            QApplication::sendEvent(&edit, &event);
        }
    };

private Q_SLOTS:
    void elidedWithoutFocusWholeWithIt()
    {
        Scene scene;
        ZLineEdit& edit = scene.edit;
        for (int round = 0; round < 2; ++round) {
            QTRY_COMPARE(edit.text(), scene.elided());
            QCOMPARE(edit.toolTip(), Embed(LONG_TEXT));
            edit.setFocus();
            QVERIFY(edit.text() == LONG_TEXT && edit.toolTip().isEmpty() && edit.cursorPosition() == 0);
            scene.other.setFocus();
            QCOMPARE(edit.text(), LONG_TEXT);
        }
        QTRY_COMPARE(edit.text(), scene.elided());
        edit.setEliding(false);
        QCOMPARE(edit.text(), scene.elided());
        edit.resize(61, 30);
        QVERIFY(edit.text() == Embed(LONG_TEXT) && edit.toolTip().isEmpty());
        edit.setOriginalText("abc");
        edit.setOriginalText("abc");
        QCOMPARE(scene.changed, QList<QVariantList>{{"abc"}});
        // Nothing is nothing, without marks: the placeholder shows.
        edit.setOriginalText(QString());
        QCOMPARE(edit.text(), QString());
    }

    void typingIsReportedOnceWhateverComesBetween()
    {
        Scene scene;
        ZLineEdit& edit = scene.edit;
        edit.setFocus();
        QTest::keyClicks(&edit, "xy");
        edit.resize(50, 30);
        edit.setEliding(false);
        edit.setEliding(true);
        edit.setFont(QFont(edit.font().family(), 20));
        scene.sendFocus(QEvent::FocusOut, Qt::PopupFocusReason);
        scene.sendFocus(QEvent::FocusIn, Qt::PopupFocusReason);
        QTest::keyClicks(&edit, "z");
        QVERIFY(scene.changed.isEmpty());
        // To another window and back: reported, and as it was.
        scene.sendFocus(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
        QCOMPARE(scene.changed.takeFirst(), QVariantList{"xyz" + LONG_TEXT});
        scene.sendFocus(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
        QCOMPARE(edit.cursorPosition(), 3);
        edit.undo();
        edit.undo();
        QCOMPARE(edit.text(), LONG_TEXT);
        edit.setText("typed");
        scene.other.setFocus();
        QCOMPARE(scene.changed, QList<QVariantList>{{"typed"}});
        QCOMPARE(edit.text(), edit.fontMetrics().elidedText(Embed("typed"), Qt::ElideRight, 50));
    }

    void wholeForWhateverTakesItApart()
    {
        const auto drop = [](ZLineEdit& edit) {
            const QSignalSpy edited(&edit, &QLineEdit::textEdited);
            QMimeData data;
            data.setText("x");
            QDragEnterEvent enter(QPoint(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(&edit, &enter);
            QDropEvent event(QPoint(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(&edit, &event);
            QCOMPARE(edited, QList<QVariantList>{{"x" + LONG_TEXT}});
        };
        const auto copy = [](ZLineEdit& edit) {
            edit.selectAll();
            edit.copy();
            QCOMPARE(QGuiApplication::clipboard()->text(), LONG_TEXT);
        };
        const auto visitShortened = [](ZLineEdit& edit) {
            edit.setMaxLength(5);
            edit.setFocus();
            QCOMPARE(edit.text(), LONG_TEXT.left(5));
            edit.clearFocus();
        };
        const QPair<QString, std::function<void(ZLineEdit&)>> rows[] = {
            {"other", [](ZLineEdit& edit) { edit.setText("other"); }},
            {"", [](ZLineEdit& edit) { edit.clear(); }},
            {LONG_TEXT + ".", [](ZLineEdit& edit) { edit.end(false), edit.insert("."); }},
            {"xy" + LONG_TEXT, [](ZLineEdit& edit) { QTest::keyClicks(&edit, "xy"); }},
            {"x" + LONG_TEXT, drop},
            {LONG_TEXT, copy},
            {LONG_TEXT, visitShortened},
            {LONG_TEXT, [](ZLineEdit& edit) { edit.setInputMask("00.00"); }},
        };
        for (int i = 0; i < 2 * int(std::size(rows)); ++i) {
            const auto& [text, act] = rows[i / 2];
            InRow(text);
            Scene scene;
            if (i % 2) { // it was left for another window
                scene.sendFocus(QEvent::FocusIn, Qt::OtherFocusReason);
                scene.sendFocus(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
            }
            act(scene.edit);
            scene.edit.resize(59, 30);
            QCOMPARE(scene.edit.originalText(), text);
            QCOMPARE(scene.changed.isEmpty(), text == LONG_TEXT);
            QVERIFY(text == LONG_TEXT || scene.changed.last() == QVariantList{text});
        }
    }

    void whatIsJudgedOrHiddenStaysWhole()
    {
        QRegularExpressionValidator validator(QRegularExpression("[A-Za-z ]+"));
        Scene scene;
        ZLineEdit& edit = scene.edit;
        const QImage elided = edit.grab().toImage();
        edit.setValidator(&validator);
        edit.resize(61, 30);
        edit.resize(60, 30);
        QVERIFY(edit.hasAcceptableInput() && edit.toolTip() == Embed(LONG_TEXT));
        // The same picture, which is that of a line edit whose text ends in time.
        QCOMPARE(edit.grab().toImage(), elided);
        QStyleOptionFrame option;
        option.initFrom(&edit);
        option.lineWidth = edit.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &edit);
        const int room = edit.style()->subElementRect(QStyle::SE_LineEditContents, &option, &edit).width() - 4;
        scene.other.clearFocus();
        scene.other.setText(edit.fontMetrics().elidedText(LONG_TEXT, Qt::ElideRight, room));
        QCOMPARE(scene.other.grab().toImage(), elided);

        edit.setValidator(nullptr);
        edit.setEchoMode(QLineEdit::Password);
        edit.resize(61, 30);
        QCOMPARE(edit.toolTip(), QString());
        edit.setEchoMode(QLineEdit::Normal);
        QAccessible::setActive(true);
        edit.setOriginalText("B" + LONG_TEXT);
        QCOMPARE(QAccessible::queryAccessibleInterface(&edit)->text(QAccessible::Value), "B" + LONG_TEXT);
        QAccessible::setActive(false);
    }

    void fixedUpOnceAndDeletedByTheReport()
    {
        struct Fixer : QValidator
        {
            State validate(QString& text, int&) const override { return text == "xx" ? Acceptable : Intermediate; }
            void fixup(QString& text) const override { text = "xx"; }
        } fixer;
        Scene scene;
        const QPointer<ZLineEdit> doomed = new ZLineEdit(&scene.window);
        doomed->setValidator(&fixer);
        QString told;
        connect(doomed, &ZLineEdit::originalTextChanged, [&](const QString& text) {
            told += text;
            delete doomed;
        });
        doomed->show();
        doomed->setFocus();
        QTest::keyClicks(doomed, "x");
        scene.other.setFocus();
        QVERIFY(!doomed && told == "xx");
    }
};

VX_TEST_MAIN(tst_ZLineEdit)
#include "tst_ZLineEdit.moc"
