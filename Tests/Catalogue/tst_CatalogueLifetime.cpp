#include <Catalogue/Scene.h>
#include <Examples/Support/BuiltInStyleSheets.h>

#include <Support/LeakCheck.h>
#include <Support/ModalWatcher.h>
#include <Support/TestCase.h>

#include <QPixmapCache>

#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__)
#include <malloc.h>
#endif

using namespace Zelkor::Catalogue;
using Zelkor::Examples::LoadStyleSheet;

namespace {

#if defined(__SANITIZE_ADDRESS__)
// The sanitizer tells of the leak of a single life, and a thousand of them would take it many minutes.
constexpr int LIVES = 60;
constexpr int WARM_UP = 20;
#else
constexpr int LIVES = 1020;
constexpr int WARM_UP = 200; ///< lives after which caches have what they want
#endif
constexpr double LARGEST_GROWTH = 200; ///< bytes a life

// What is allocated; nothing where it cannot be known, and under the address sanitizer, which looks for leaks itself.
double BytesInUse()
{
#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__)
    return double(mallinfo2().uordblks) + double(mallinfo2().hblkhd);
#else
    return 0;
#endif
}

} // namespace

class tst_CatalogueLifetime : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    // Without a sheet: most of the time would go into applying it to each of the many widgets.
    void initTestCase()
    {
        // What pictures it holds, and when it lets go of them, is Qt's matter.
        QPixmapCache::setCacheLimit(0);
        ZStyleSheet{QString(), LoadStyleSheet("dark")->iconFolder}.apply();
    }

    void comesAndGoes_data()
    {
        QTest::addColumn<QString>("className");
        QTest::addColumn<bool>("shown");
        for (const Entry& entry : Entries()) {
            QTest::addRow("%s", qPrintable(entry.className)) << entry.className << false;
            QTest::addRow("%s, shown", qPrintable(entry.className)) << entry.className << true;
        }
    }

    void comesAndGoes()
    {
        const Support::LeakCheck census;
        QFETCH(QString, className);
        QFETCH(bool, shown);
        const Entry& entry = *FindEntry(className);
        // Whole rounds through the states, so that what one of them leaves behind is there both times or not at all.
        const int states = entry.states.size();
        const int lives = LIVES / states * states;
        const int warmUp = WARM_UP / states * states;
        double bytes = 0;
        for (int i = 0; i < lives; ++i) {
            if (i == warmUp)
                bytes = BytesInUse();
            const std::unique_ptr<QWidget> widget(CreateInState(entry, entry.states[i % states], nullptr));
            widget->setVisible(shown);
            Settle();
        }
        const double growth = (BytesInUse() - bytes) / (lives - warmUp);
        QVERIFY2(growth < LARGEST_GROWTH, qPrintable(QStringLiteral("%1 bytes more with each").arg(growth)));
    }

    void goesWithWhatIsOpen_data() { AddRowsOfAllStates(); }

    // Dialogs and menus that run an event loop lose the widget in the middle of it; other pop-ups stay open with it.
    void goesWithWhatIsOpen()
    {
        const Support::LeakCheck census;
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Down, Qt::Key_F4}) {
            const auto scene = SceneOfThisRow();
            scene->Show();
            const Support::ModalWatcher loops([&scene](QWidget*) { delete scene->window; });
            for (const QPointer<QWidget>& part : scene->KeyboardParts()) {
                if (!part)
                    continue;
                part->setFocus(Qt::TabFocusReason);
                scene->Type(key);
                Settle();
            }
        }
    }
};

VX_TEST_MAIN(tst_CatalogueLifetime)
#include "tst_CatalogueLifetime.moc"
