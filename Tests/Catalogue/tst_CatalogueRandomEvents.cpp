#include <Catalogue/Catalogue.h>
#include <Catalogue/RandomEvents.h>
#include <Examples/Support/BuiltInStyleSheets.h>

#include <Support/LeakCheck.h>
#include <Support/TestCase.h>
#include <Support/UrlHandlerStub.h>

#include <functional>

using namespace Zelkor::Catalogue;
using Zelkor::Examples::LoadStyleSheet;

namespace {

constexpr int EVENTS_IN_ONE_STATE = 2000; ///< then a fresh widget, in any state
constexpr int SCENE_MARGIN = 20;

// Each widget has its own sequence, whichever of them run.
quint64 SeedOf(const QString& className, quint64 seed)
{
    quint64 hash = 14695981039346656037U ^ seed; // FNV-1a
    for (const QChar sign : className)
        hash = (hash ^ sign.unicode()) * 1099511628211U;
    return hash;
}

} // namespace

/// Seeded random events for every widget.
///
/// `--seed N` chooses the sequence, `--widget CLASS` one widget, `--events N` how many for each. What a failure prints
/// as its arguments brings it back.
class tst_CatalogueRandomEvents : public Support::TestCase
{
    Q_OBJECT

public:
    quint64 seed = 1;
    int eventCount = 20000;
    QString onlyWidget;

private Q_SLOTS:
    void survives_data()
    {
        QTest::addColumn<QString>("className");
        for (const Entry& entry : Entries()) {
            if (onlyWidget.isEmpty() || onlyWidget == entry.className)
                QTest::newRow(qPrintable(entry.className)) << entry.className;
        }
    }

    void survives()
    {
        QFETCH(QString, className);
        // Said beforehand: after a crash nobody says anything.
        qInfo("--seed %llu --events %d --widget %s", seed, eventCount, qPrintable(className));
        const Entry& entry = *FindEntry(className);
        std::mt19937_64 random(SeedOf(className, seed));
        const Support::LeakCheck census;
        for (int sent = 0; sent < eventCount && !QTest::currentTestFailed(); sent += EVENTS_IN_ONE_STATE) {
            const State& state = entry.states[int(random() % quint64(entry.states.size()))];
            InRow(QStringLiteral("%1, events from %2").arg(state.name).arg(sent));
            SendTo(entry, state, random(), qMin(EVENTS_IN_ONE_STATE, eventCount - sent));
        }
    }

private:
    void SendTo(const Entry& entry, const State& state, quint64 stateSeed, int count)
    {
        LoadStyleSheet("dark")->apply();
        QWidget host;
        const QPointer<QWidget> widget = CreateInState(entry, state, &host);
        widget->adjustSize();
        widget->move(SCENE_MARGIN, SCENE_MARGIN);
        host.resize(widget->size() + QSize(2 * SCENE_MARGIN, 2 * SCENE_MARGIN));
        host.show();
        QApplication::setActiveWindow(&host);
        {
            RandomEvents events(&host, widget, stateSeed);
            for (int i = 0; i < count; ++i)
                events.Next();
        }
        QVERIFY2(widget, "the widget deleted itself");
        // Whatever it has gone through, it can still be shown, painted and taken away.
        widget->resize(widget->sizeHint());
        host.setUpdatesEnabled(true);
        host.show();
        QCoreApplication::processEvents();
        QVERIFY(!host.grab().isNull());
    }
};

int main(int argc, char* argv[])
{
    Support::PrepareProcess(argv[0]);
    QApplication application(argc, argv);
    const Support::UrlHandlerStub links;
    tst_CatalogueRandomEvents test;
    const QHash<QString, std::function<void(const QString&)>> options{
        {"--seed", [&test](const QString& value) { test.seed = value.toULongLong(); }},
        {"--events", [&test](const QString& value) { test.eventCount = value.toInt(); }},
        {"--widget", [&test](const QString& value) { test.onlyWidget = value; }}};
    // The arguments that are not ours are the test framework's.
    QStringList rest = application.arguments();
    for (auto option = options.begin(); option != options.end(); ++option) {
        const int place = rest.indexOf(option.key());
        if (place >= 0 && place + 1 < rest.size()) {
            option.value()(rest.takeAt(place + 1));
            rest.removeAt(place);
        }
    }
    return QTest::qExec(&test, rest);
}

#include "tst_CatalogueRandomEvents.moc"
