#include <Zelkor/StandIn/AudioLevelSource.h>
#include <Zelkor/StandIn/CaptureEngine.h>

#include <Support/EventSwallower.h>
#include <Support/TestCase.h>

#include <QSignalSpy>

#include <algorithm>
#include <memory>

using Zelkor::StandIn::AudioLevelSource;
using Zelkor::StandIn::WaitForEngineIdle;
using namespace std::chrono_literals;

class tst_AudioLevelSource : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void testSignalVariesUntilItIsStopped()
    {
        AudioLevelSource source(AudioLevelSource::Input::TestSignal);
        const Support::EventSwallower swallower;
        QSignalSpy spy(&source, &AudioLevelSource::PeakMeasured);
        source.Start();
        source.Start();
        QTRY_VERIFY(spy.size() >= 40);
        QVERIFY(source.IsTestSignal());
        const auto [lowest, highest] = std::minmax_element(spy.begin(), spy.end());
        QVERIFY(lowest->value(0).toDouble() >= AudioLevelSource::SILENCE_DB);
        QVERIFY(highest->value(0).toDouble() <= 0);
        QVERIFY(highest->value(0).toDouble() - lowest->value(0).toDouble() > 20);

        QTest::qSleep(200); // the next peaks are pending when the source is stopped
        source.Stop();
        source.Stop();
        const int count = spy.size();
        QVERIFY(WaitForEngineIdle(10s));
        QCoreApplication::processEvents();
        QCOMPARE(spy.size(), count);
        source.Start();
        QTRY_VERIFY(spy.size() > count);
    }

    // Passes with and without a microphone.
    void microphoneSourceMayBeDeletedInItsSignal()
    {
        auto source = std::make_unique<AudioLevelSource>(AudioLevelSource::Input::Microphone);
        source->Start();
        source = std::make_unique<AudioLevelSource>(AudioLevelSource::Input::Microphone);
        connect(source.get(), &AudioLevelSource::PeakMeasured, this, [&source] { source.reset(); });
        source->Start();
        QTRY_VERIFY_WITH_TIMEOUT(!source, 20000);
        QVERIFY(WaitForEngineIdle(20s));
    }
};

VX_TEST_MAIN(tst_AudioLevelSource)
#include "tst_AudioLevelSource.moc"
