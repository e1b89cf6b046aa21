#include <UI/Kit/ZLineEdit.h>

#include <UI/Common/TextMarks.h>

#include <Support/Input.h>
#include <Support/TestCase.h>

#include <QAccessible>
#include <QClipboard>
#include <QMimeData>
#include <QRegularExpressionValidator>
#include <QStyleOptionFrame>

#include <functional>

using Zelkor::Vx::UI::Common::Embed;

const QString LONG_TEXT = QStringLiteral("A text that is far too long for this place");

class tst_ZLineEdit : public Support::TestCase
{
    Q_OBJECT

private:
    struct Fixture
    {
        QWidget window;
        ZLineEdit edit{&window};
        QLineEdit other{&window};
        QSignalSpy changed{&edit, &ZLineEdit::originalTextChanged};

        Fixture()
        {
            edit.setGeometry(0, 0, 60, 30);
            other.setGeometry(0, 40, 60, 30);
            edit.setOriginalText(LONG_TEXT);
            changed.clear();
            other.setFocus();
            Support::ShowActive(window);
        }
        QString elided() const { return edit.fontMetrics().elidedText(Embed(LONG_TEXT), Qt::ElideRight, 60); }
        void sendFocus(QEvent::Type type, Qt::FocusReason reason)
        {
            QFocusEvent event(type, reason);
            QApplication::sendEvent(&edit, &event);
        }
    };

private Q_SLOTS:
    void textIsElidedWithoutFocusAndWholeWithIt()
    {
        Fixture fixture;
        ZLineEdit& edit = fixture.edit;
        QTRY_COMPARE(edit.text(), fixture.elided());
        QCOMPARE(edit.toolTip(), Embed(LONG_TEXT));
        edit.setFocus();
        QCOMPARE(edit.text(), LONG_TEXT);
        QCOMPARE(edit.toolTip(), QString());
        QCOMPARE(edit.cursorPosition(), 0);
        fixture.other.setFocus();
        QCOMPARE(edit.text(), LONG_TEXT);
        QTRY_COMPARE(edit.text(), fixture.elided());
        edit.setEliding(false);
        QCOMPARE(edit.text(), fixture.elided());
        edit.resize(61, 30);
        QCOMPARE(edit.text(), Embed(LONG_TEXT));
        QCOMPARE(edit.toolTip(), QString());
        edit.setOriginalText("abc");
        edit.setOriginalText("abc");
        QCOMPARE(fixture.changed, QList<QVariantList>{{"abc"}});
        // An empty text has no control characters, which would hide the placeholder.
        edit.setOriginalText(QString());
        QCOMPARE(edit.text(), QString());
    }

    void typedTextIsReportedOnce()
    {
        Fixture fixture;
        ZLineEdit& edit = fixture.edit;
        edit.setFocus();
        QTest::keyClicks(&edit, "xy");
        edit.resize(50, 30);
        edit.setEliding(false);
        edit.setEliding(true);
        edit.setFont(QFont(edit.font().family(), 20));
        fixture.sendFocus(QEvent::FocusOut, Qt::PopupFocusReason);
        fixture.sendFocus(QEvent::FocusIn, Qt::PopupFocusReason);
        QTest::keyClicks(&edit, "z");
        QVERIFY(fixture.changed.isEmpty());
        // Another window becomes active: reports the text and keeps the state.
        fixture.sendFocus(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
        QCOMPARE(fixture.changed.takeFirst(), QVariantList{"xyz" + LONG_TEXT});
        fixture.sendFocus(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
        QCOMPARE(edit.cursorPosition(), 3);
        edit.undo();
        edit.undo();
        QCOMPARE(edit.text(), LONG_TEXT);
        edit.setText("typed");
        fixture.other.setFocus();
        QCOMPARE(fixture.changed, QList<QVariantList>{{"typed"}});
        QCOMPARE(edit.text(), edit.fontMetrics().elidedText(Embed("typed"), Qt::ElideRight, 50));
    }

    void editsWithoutFocusApplyToTheWholeText()
    {
        const auto textAfter = [](const std::function<void(ZLineEdit&)>& apply) {
            QString text;
            for (const bool wasLeftForAnotherWindow : {false, true}) {
                Fixture fixture;
                if (wasLeftForAnotherWindow) {
                    fixture.sendFocus(QEvent::FocusIn, Qt::OtherFocusReason);
                    fixture.sendFocus(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
                }
                apply(fixture.edit);
                fixture.edit.resize(59, 30);
                [&] { QVERIFY(!wasLeftForAnotherWindow || text == fixture.edit.originalText()); }();
                text = fixture.edit.originalText();
                [&] { QCOMPARE(fixture.changed.isEmpty(), text == LONG_TEXT); }();
                [&] { QCOMPARE(fixture.changed.value(fixture.changed.size() - 1, {LONG_TEXT}), QVariantList{text}); }();
            }
            return text;
        };
        QCOMPARE(textAfter([](ZLineEdit& edit) { edit.setText("other"); }), QString("other"));
        QCOMPARE(textAfter(&QLineEdit::clear), QString());
        QCOMPARE(textAfter([](ZLineEdit& edit) { QTest::keyClicks(&edit, "xy"); }), QString("xy" + LONG_TEXT));
        QCOMPARE(textAfter([](ZLineEdit& edit) { edit.setInputMask("00.00"); }), LONG_TEXT);
        const auto append = [](ZLineEdit& edit) {
            edit.end(false);
            edit.insert(".");
        };
        QCOMPARE(textAfter(append), QString(LONG_TEXT + "."));
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
        QCOMPARE(textAfter(drop), QString("x" + LONG_TEXT));
        const auto copy = [](ZLineEdit& edit) {
            edit.selectAll();
            edit.copy();
            QCOMPARE(QGuiApplication::clipboard()->text(), LONG_TEXT);
        };
        QCOMPARE(textAfter(copy), LONG_TEXT);
        const auto truncate = [](ZLineEdit& edit) {
            edit.setMaxLength(5);
            edit.setFocus();
            QCOMPARE(edit.text(), LONG_TEXT.left(5));
            edit.clearFocus();
        };
        QCOMPARE(textAfter(truncate), LONG_TEXT);
    }

    void validatedOrHiddenTextIsNotElided()
    {
        QRegularExpressionValidator validator(QRegularExpression("[A-Za-z ]+"));
        Fixture fixture;
        ZLineEdit& edit = fixture.edit;
        QPalette palette;
        palette.setColor(QPalette::Text, Qt::red);
        fixture.window.setPalette(palette);
        const QImage elided = edit.grab().toImage();
        edit.setValidator(&validator);
        edit.resize(61, 30);
        edit.resize(60, 30);
        QVERIFY(edit.hasAcceptableInput());
        QCOMPARE(edit.toolTip(), Embed(LONG_TEXT));
        // Looks the same, like a QLineEdit with the elided text.
        QCOMPARE(edit.grab().toImage(), elided);
        QStyleOptionFrame option;
        option.initFrom(&edit);
        option.lineWidth = edit.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &edit);
        const int room = edit.style()->subElementRect(QStyle::SE_LineEditContents, &option, &edit).width() - 4;
        fixture.other.clearFocus();
        fixture.other.setText(edit.fontMetrics().elidedText(LONG_TEXT, Qt::ElideRight, room));
        QCOMPARE(fixture.other.grab().toImage(), elided);

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

    void slotMayDeleteTheLineEditAfterAFixup()
    {
        struct Fixer : QValidator
        {
            State validate(QString& text, int&) const override { return text == "xx" ? Acceptable : Intermediate; }
            void fixup(QString& text) const override { text = "xx"; }
        } fixer;
        Fixture fixture;
        const QPointer<ZLineEdit> doomed = new ZLineEdit(&fixture.window);
        doomed->setValidator(&fixer);
        QString reported;
        connect(doomed, &ZLineEdit::originalTextChanged, [&](const QString& text) {
            reported += text;
            delete doomed;
        });
        doomed->show();
        doomed->setFocus();
        QTest::keyClicks(doomed, "x");
        fixture.other.setFocus();
        QVERIFY(!doomed);
        QCOMPARE(reported, QString("xx"));
    }
};

VX_TEST_MAIN(tst_ZLineEdit)
#include "tst_ZLineEdit.moc"
