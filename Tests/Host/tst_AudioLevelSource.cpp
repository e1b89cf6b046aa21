#include <Zelkor/StandIn/AudioLevelSource.h>
#include <Zelkor/StandIn/CaptureEngine.h>

#include <Support/EventSwallower.h>
#include <Support/TestCase.h>

#include <QSignalSpy>

#include <algorithm>
#include <memory>

using Zelkor::StandIn::AudioLevelSource;
using namespace std::chrono_literals;

class tst_AudioLevelSource : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void testSignalMovesUntilItIsStopped()
    {
        AudioLevelSource source(AudioLevelSource::Input::TestSignal);
        const Support::EventSwallower swallower;
        QSignalSpy peaks(&source, &AudioLevelSource::PeakMeasured);
        source.Start();
        source.Start();
        QTRY_VERIFY(peaks.size() >= 40);
        QVERIFY(source.IsTestSignal());
        double lowest = 0;
        double highest = AudioLevelSource::SILENCE_DB;
        for (const auto& peak : qAsConst(peaks)) {
            lowest = std::min(lowest, peak[0].toDouble());
            highest = std::max(highest, peak[0].toDouble());
        }
        QVERIFY(lowest >= AudioLevelSource::SILENCE_DB && highest <= 0);
        QVERIFY2(highest - lowest > 20, "a meter would stand still");

        source.Stop();
        source.Stop();
        const int count = peaks.size();
        QVERIFY(Zelkor::StandIn::WaitForEngineIdle(10s));
        QCoreApplication::processEvents();
        QCOMPARE(peaks.size(), count);
        source.Start();
        QTRY_VERIFY(peaks.size() > count);
    }

    // With a microphone or without: there is a level, and whoever listens may take the source away.
    void endsAtAnyMoment()
    {
        auto source = std::make_unique<AudioLevelSource>(AudioLevelSource::Input::Microphone);
        source->Start();
        source = std::make_unique<AudioLevelSource>(AudioLevelSource::Input::Microphone);
        connect(source.get(), &AudioLevelSource::PeakMeasured, this, [&source] { source.reset(); });
        source->Start();
        QTRY_VERIFY_WITH_TIMEOUT(!source, 20000);
        QVERIFY(Zelkor::StandIn::WaitForEngineIdle(20s));
    }
};

VX_TEST_MAIN(tst_AudioLevelSource)
#include "tst_AudioLevelSource.moc"
