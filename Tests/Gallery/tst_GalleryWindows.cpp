#include <Catalogue/Catalogue.h>
#include <Examples/Support/Appearance.h>
#include <Examples/Support/BuiltInStyleSheets.h>
#include <Examples/Support/ScreenFit.h>
#include <Gallery/Browser/GalleryWindow.h>
#include <Gallery/Browser/StateCard.h>
#include <Gallery/Browser/WidgetPage.h>

#include <Support/FocusWalk.h>
#include <Support/TestCase.h>

#include <QAbstractButton>
#include <QLineEdit>
#include <QListWidget>
#include <QScreen>
#include <QSignalSpy>

#include <memory>

using namespace Zelkor;
using namespace Zelkor::Gallery;

class tst_GalleryWindows : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        Examples::LoadStyleSheet("dark")->apply();
        gallery = std::make_unique<GalleryWindow>(&appearance);
        gallery->show();
        list = gallery->findChild<QListWidget*>("pageList");
    }

    void cleanup()
    {
        gallery.reset();
        TestCase::cleanup();
    }

    void tabReachesWhatBacktabReaches_data()
    {
        QTest::addColumn<QString>("page");
        for (const char* page : {"Start", "ColorButton"})
            QTest::newRow(page) << page;
    }

    void tabReachesWhatBacktabReaches()
    {
        QFETCH(QString, page);
        gallery->OpenPage(page);
        QVERIFY(QTest::qWaitForWindowActive(gallery.get()));
        const QStringList forwards = Support::NamesOnTheWay(*gallery, Qt::Key_Tab);
        QVERIFY2(!forwards.contains(QString()), qPrintable(forwards.join(", ")));
        QVERIFY2(forwards.contains("Search"), qPrintable(forwards.join(", ")));
        QStringList backwards = Support::NamesOnTheWay(*gallery, Qt::Key_Backtab);
        // Enabled after a property had the focus, which is on the way back.
        backwards.removeAll("Copy");
        QCOMPARE(forwards.join(", "), backwards.join(", "));
    }

    void everyPageScrollsInASmallWindow_data()
    {
        QTest::addColumn<QString>("page");
        for (const QString& page : PageNames())
            QTest::newRow(qPrintable(page)) << page;
    }

    void everyPageScrollsInASmallWindow()
    {
        QFETCH(QString, page);
        gallery->OpenPage(page);
        QCOMPARE(gallery->findChildren<WidgetPage*>().size(), Catalogue::FindEntry(page) ? 1 : 0);
        QCoreApplication::processEvents();
        gallery->resize(500, 250);
        QCOMPARE(gallery->size(), QSize(500, 250));
    }

    void narrowWindowShowsTheListAsIcons()
    {
        gallery->resize(900, 600);
        const int fullWidth = list->width();
        gallery->resize(500, 600);
        QVERIFY(list->width() < fullWidth / 2);
        gallery->resize(900, 600);
        QCOMPARE(list->width(), fullWidth);
    }

    void searchShowsMatchesUnderTheirHeadings()
    {
        QVERIFY(QTest::qWaitForWindowActive(gallery.get()));
        auto* search = gallery->findChild<QLineEdit*>("pageSearch");
        const int pages = VisiblePages().size();
        QTest::keyClick(gallery.get(), Qt::Key_F, Qt::ControlModifier);
        QTRY_VERIFY(search->hasFocus());
        QTest::keyClicks(search, "colorb");
        QCOMPARE(VisiblePages(), QStringList({"Buttons", "ColorButton"}));
        QTest::keyClick(search, Qt::Key_Return);
        QCOMPARE(list->currentItem()->text(), QString("ColorButton"));
        QTest::keyClick(search, Qt::Key_Escape);
        QCOMPARE(VisiblePages().size(), pages);
    }

    void languageChangesWhileAPageIsOpen()
    {
        connect(&appearance, &Examples::Appearance::LanguageChanged, gallery.get(),
                [] { Catalogue::RetranslateEntries(); });
        gallery->OpenPage("ColorButton");
        Page()->SelectState(2);
        QVERIFY(appearance.SetLanguage("de"));
        QTRY_COMPARE(Page()->findChildren<StateCard*>().last()->accessibleName(), QString("Deaktiviert"));
        QCOMPARE(Page()->SelectedState(), 2);
        appearance.SetLanguage("en");
        QTRY_COMPARE(Page()->findChildren<StateCard*>().last()->accessibleName(), QString("Disabled"));
    }

    void directionChangesWhileAPageIsOpen()
    {
        gallery->OpenPage("ColorButton");
        QApplication::setLayoutDirection(Qt::RightToLeft);
        QTRY_COMPARE(Page()->layoutDirection(), Qt::RightToLeft);
        QApplication::setLayoutDirection(Qt::LeftToRight);
        QTRY_COMPARE(Page()->layoutDirection(), Qt::LeftToRight);
    }

    void startPageOpensTheRecorder()
    {
        gallery->OpenPage(StartPageName());
        const QSignalSpy requests(gallery.get(), &GalleryWindow::RecorderRequested);
        gallery->findChild<QAbstractButton*>("recorderButton")->click();
        QCOMPARE(requests.size(), 1);
    }

    void windowShrinksToFitTheScreen()
    {
        QWidget window;
        const QRect screen = window.screen()->availableGeometry();
        window.resize(200, 2 * screen.height());
        Examples::FitToScreen(&window);
        QCOMPARE(window.width(), 200);
        QVERIFY(window.height() < screen.height());
        QVERIFY(window.height() > screen.height() / 2);
    }

private:
    WidgetPage* Page() const { return gallery->findChild<WidgetPage*>(); }

    QStringList VisiblePages() const
    {
        QStringList names;
        for (int row = 0; row < list->count(); ++row) {
            if (!list->item(row)->isHidden())
                names.append(list->item(row)->text());
        }
        return names;
    }

    Examples::Appearance appearance{"VxGallery"};
    std::unique_ptr<GalleryWindow> gallery;
    QListWidget* list = nullptr;
};

VX_TEST_MAIN(tst_GalleryWindows)
#include "tst_GalleryWindows.moc"
