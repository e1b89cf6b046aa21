#include <UI/Widgets/StyledAboutBoxDialog.h>

#include <Support/TestCase.h>

#include <QLabel>

using Zelkor::Vx::UI::StyledAboutBoxDialog;

class tst_StyledAboutBoxDialog : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void shownDialogStylesItsFirstLinks()
    {
        QWidget window;
        StyledAboutBoxDialog::ShowAbout("Product", "1.2", "(c) Somebody", &window);
        const QPointer<StyledAboutBoxDialog> dialog = window.findChild<StyledAboutBoxDialog*>();
        QVERIFY(dialog->isVisible() && !dialog->isModal());
        auto* home = dialog->findChild<QLabel*>("homePageLabel");
        const QString bare = home->text();
        const auto styled = [&](const QString& style) {
            return QString(bare).replace("\">", "\" style=\"" + style + "\">");
        };
        auto* custom = dialog->findChild<QLabel*>("customURL");
        custom->setText("<a href=\"A\">a</a> <a href=\"B\">b</a>");
        for (const char* style : {"color: red", "", "x: %1 %2 %%", "font: \"A B\"", "color: blue"}) {
            QVERIFY(dialog->setProperty("linkStyle", style));
            QCOMPARE(dialog->property("linkStyle").toString(), QString(style));
            QCOMPARE(home->text(), styled(style));
            QCOMPARE(custom->text(), QString("<a href=\"A\" style=\"%1\">a</a> <a href=\"B\">b</a>").arg(style));
        }
        // The base writes its links anew in another language.
        QEvent change(QEvent::LanguageChange);
        QCoreApplication::sendEvent(dialog, &change);
        QCOMPARE(home->text(), styled("color: blue"));
        for (const char* text : {"", "no link", "<a href='A'>a</a>"}) {
            custom->setText(text);
            dialog->setProperty("linkStyle", "color: green");
            QCOMPARE(custom->text(), QString(text));
        }
        dialog->close();
        QTRY_VERIFY(!dialog);
    }
};

VX_TEST_MAIN(tst_StyledAboutBoxDialog)
#include "tst_StyledAboutBoxDialog.moc"
