#include <Catalogue/EntryWindow.h>

#include <Support/TestCase.h>

#include <QPixmapCache>

#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__)
#include <malloc.h>
#endif

using namespace Zelkor::Catalogue;

namespace {

#if defined(__SANITIZE_ADDRESS__)
// The sanitizer detects leaks without a growth measurement, and is slow.
constexpr int LIVES = 60;
#else
constexpr int LIVES = 1020;
#endif
constexpr int WARM_UP = LIVES / 5;     ///< lives until caches are filled
constexpr double LARGEST_GROWTH = 200; ///< bytes per life

double AllocatedBytes()
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
    // Without a style sheet, which would take most of the time.
    void initTestCase()
    {
        QPixmapCache::setCacheLimit(0);
        ApplySheet("");
    }

    void memoryDoesNotGrow_data() { AddRowsOfEntries(); }

    void memoryDoesNotGrow()
    {
        const Support::LeakCheck leakCheck;
        const Entry& entry = EntryOfRow();
        // Whole rounds through the states, so that each state counts equally before and after the warm-up. Every
        // other round shows the widgets.
        const int states = entry.states.size();
        const int lives = LIVES / states * states;
        const int warmUp = WARM_UP / states * states;
        double bytes = 0;
        for (int i = 0; i < lives; ++i) {
            if (i == warmUp)
                bytes = AllocatedBytes();
            const std::unique_ptr<QWidget> widget(CreateInState(entry, entry.states[i % states], nullptr));
            widget->setVisible(i / states % 2);
            Settle();
        }
        const double growth = (AllocatedBytes() - bytes) / (lives - warmUp);
        QVERIFY2(growth < LARGEST_GROWTH, qPrintable(QStringLiteral("%1 bytes per life").arg(growth)));
    }
};

VX_TEST_MAIN(tst_CatalogueLifetime)
#include "tst_CatalogueLifetime.moc"
