#include <UI/Widgets/StyledAboutBoxDialog.h>

#include <Support/TestCase.h>

#include <QLabel>

using Zelkor::Vx::UI::StyledAboutBoxDialog;

class tst_StyledAboutBoxDialog : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void firstLinkIsStyled()
    {
        QWidget window;
        StyledAboutBoxDialog::ShowAbout("Product", "1.2", "(c) Company", &window);
        const QPointer<StyledAboutBoxDialog> dialog = window.findChild<StyledAboutBoxDialog*>();
        QVERIFY(dialog->isVisible());
        QVERIFY(!dialog->isModal());
        auto* label = dialog->findChild<QLabel*>("customURL");
        label->setText("<a href=\"A\">a</a> <a href=\"B\">b</a>");
        for (const char* style : {"color: red", "", "x: %1 %2 %%", "font: \"A B\""}) {
            dialog->setProperty("linkStyle", style);
            QCOMPARE(label->text(), QString("<a href=\"A\" style=\"%1\">a</a> <a href=\"B\">b</a>").arg(style));
        }
        const QString home = dialog->findChild<QLabel*>("homePageLabel")->text();
        QEvent change(QEvent::LanguageChange); // the base class rewrites its links
        QCoreApplication::sendEvent(dialog, &change);
        QCOMPARE(dialog->findChild<QLabel*>("homePageLabel")->text(), home);
        label->setText("no link");
        dialog->setProperty("linkStyle", "color: green");
        QCOMPARE(label->text(), QString("no link"));
        dialog->close();
        QTRY_VERIFY(!dialog);
    }
};

VX_TEST_MAIN(tst_StyledAboutBoxDialog)
#include "tst_StyledAboutBoxDialog.moc"
