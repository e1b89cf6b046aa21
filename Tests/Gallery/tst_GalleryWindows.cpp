#include <Catalogue/Catalogue.h>
#include <Examples/Support/Appearance.h>
#include <Examples/Support/BuiltInStyleSheets.h>
#include <Examples/Support/ScreenFit.h>
#include <Gallery/Browser/GalleryWindow.h>
#include <Gallery/Browser/StartPage.h>
#include <Gallery/Browser/StateCard.h>
#include <Gallery/Browser/WidgetPage.h>

#include <Support/FocusWalk.h>
#include <Support/TestCase.h>

#include <QAbstractButton>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPointer>
#include <QScreen>
#include <QSignalSpy>
#include <QToolButton>

using namespace Zelkor;
using namespace Zelkor::Gallery;
using Zelkor::Examples::LoadStyleSheet;

namespace {

/// The gallery, shown.
struct Browser
{
    Browser() { gallery.show(); }

    WidgetPage* Page() const { return gallery.findChild<WidgetPage*>(); }

    Examples::Appearance appearance{"VxGallery"};
    GalleryWindow gallery{&appearance};
    QListWidget* list = gallery.findChild<QListWidget*>("pageList");
};

} // namespace

class tst_GalleryWindows : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { LoadStyleSheet("dark")->apply(); }

    void tabReachesWhatShiftTabReaches_data()
    {
        QTest::addColumn<QString>("page");
        for (const char* page : {"Start", "ZSlider", "ColorButton"})
            QTest::newRow(page) << page;
    }

    void tabReachesWhatShiftTabReaches()
    {
        QFETCH(QString, page);
        Browser browser;
        browser.gallery.OpenPage(page);
        QVERIFY(QTest::qWaitForWindowActive(&browser.gallery));
        const QStringList forwards = Support::NamesOnTheWay(browser.gallery, Qt::Key_Tab);
        QVERIFY2(!forwards.contains(QString()), qPrintable(forwards.join(", ")));
        QVERIFY2(forwards.contains("Search"), qPrintable(forwards.join(", ")));
        QStringList backwards = Support::NamesOnTheWay(browser.gallery, Qt::Key_Backtab);
        // Enabled only after a property had the focus, that is on the way back.
        backwards.removeAll("Copy");
        QCOMPARE(forwards.join(", "), backwards.join(", "));
    }

    void galleryHasOnePageAtATime()
    {
        Browser browser;
        GalleryWindow& gallery = browser.gallery;
        gallery.OpenPage("NoWidget");
        QVERIFY(!browser.Page());
        for (const QString& name : PageNames()) {
            gallery.OpenPage(name);
            QCOMPARE(gallery.findChildren<WidgetPage*>().size(), Catalogue::FindEntry(name) ? 1 : 0);
            QCOMPARE(gallery.findChildren<StartPage*>().size(), name == StartPageName() ? 1 : 0);
            // A page without room scrolls.
            QCoreApplication::processEvents();
            gallery.resize(500, 250);
            QCOMPARE(gallery.size(), QSize(500, 250));
        }

        // The arrow keys walk over the headings of groups.
        QListWidget* list = browser.list;
        const QString last = PageNames().constLast();
        gallery.resize(900, 600);
        gallery.OpenPage(StartPageName());
        for (int i = 1; i < PageNames().size(); ++i)
            QTest::keyClick(list, Qt::Key_Down);
        QCOMPARE(list->currentItem()->text(), last);

        // In a narrow window the list leaves the room to the page, and its names to tool tips.
        const int fullWidth = list->width();
        gallery.resize(500, 600);
        QVERIFY(list->width() < fullWidth / 2);
        QCOMPARE(list->currentItem()->text() + list->currentItem()->toolTip(), last);
        gallery.resize(900, 600);
        QCOMPARE(list->width(), fullWidth);
        QCOMPARE(list->currentItem()->text(), last);
    }

    void searchLeavesTheHitsUnderTheirHeadings()
    {
        Browser browser;
        GalleryWindow& gallery = browser.gallery;
        QVERIFY(QTest::qWaitForWindowActive(&gallery));
        auto* search = gallery.findChild<QLineEdit*>("pageSearch");
        const auto shown = [&] {
            QStringList texts;
            for (int row = 0; row < browser.list->count(); ++row)
                texts +=
                    browser.list->item(row)->isHidden() ? QStringList() : QStringList(browser.list->item(row)->text());
            return texts;
        };
        const QStringList all = shown();
        // In a narrow window a search needs the names.
        for (const int width : {900, 500}) {
            gallery.resize(width, 600);
            QCOMPARE(search->isVisible(), width == 900);
            QTest::keyClick(&gallery, Qt::Key_F, Qt::ControlModifier);
            QTRY_VERIFY(search->hasFocus());
            QTest::keyClicks(search, "colorb");
            QCOMPARE(shown(), QStringList({"Buttons", "ColorButton"}));
            QTest::keyClick(search, Qt::Key_Return);
            QCOMPARE(browser.list->currentItem()->data(Qt::UserRole), QVariant("ColorButton"));
            QTest::keyClick(search, Qt::Key_Escape);
            if (width == 900)
                QCOMPARE(shown(), all);
        }
        QVERIFY(!search->isVisible());
    }

    void sceneChangesWhileAPageIsOpen()
    {
        Browser browser;
        GalleryWindow& gallery = browser.gallery;
        gallery.OpenPage("ColorButton");
        const auto caption = [&] { return browser.Page()->findChildren<StateCard*>().last()->accessibleName(); };
        browser.Page()->SelectState(2);
        connect(&browser.appearance, &Examples::Appearance::LanguageChanged, &gallery,
                [] { Catalogue::RetranslateEntries(); });
        for (QAction* action : gallery.findChild<QToolButton*>("languageButton")->menu()->actions()) {
            if (action->text() == "Deutsch")
                action->trigger();
        }
        QTRY_COMPARE(caption(), QString("Deaktiviert"));
        QCOMPARE(browser.Page()->SelectedState(), 2);
        browser.appearance.SetLanguage("en");
        QTRY_COMPARE(caption(), QString("Disabled"));

        QSignalSpy restarts(&gallery, &GalleryWindow::RestartRequested);
        const auto scales = gallery.findChild<QToolButton*>("scaleButton")->menu()->actions();
        scales.first()->trigger();
        scales.last()->trigger();
        QCOMPARE(restarts, QList<QVariantList>({{2.0, "ColorButton"}}));

        const QPointer<WidgetPage> old = browser.Page();
        QApplication::setLayoutDirection(Qt::RightToLeft);
        QTRY_VERIFY(!old && browser.Page());
        QCOMPARE(browser.Page()->SelectedState(), 2);
        QApplication::setLayoutDirection(Qt::LeftToRight);
        QTRY_COMPARE(browser.Page()->layoutDirection(), Qt::LeftToRight);
    }

    void startPageOpensTheRecorder()
    {
        Browser browser;
        browser.gallery.OpenPage(StartPageName());
        QSignalSpy requests(&browser.gallery, &GalleryWindow::RecorderRequested);
        browser.gallery.findChild<QAbstractButton*>("recorderButton")->click();
        QCOMPARE(requests.size(), 1);
    }

    void windowsFitTheScreen()
    {
        QWidget window;
        const QRect screen = window.screen()->availableGeometry();
        window.resize(200, 2 * screen.height());
        Examples::FitToScreen(&window);
        QCOMPARE(window.width(), 200);
        QVERIFY(window.height() < screen.height() && window.height() > screen.height() / 2);
    }
};

VX_TEST_MAIN(tst_GalleryWindows)
#include "tst_GalleryWindows.moc"
