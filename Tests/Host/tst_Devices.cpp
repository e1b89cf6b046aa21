#include <Support/CaptureMocks.h>
#include <Support/EventSpy.h>
#include <Support/TestCase.h>

#include <Zelkor/StandIn/AudioLevelSource.h>
#include <Zelkor/StandIn/CaptureEngine.h>
#include <Zelkor/StandIn/DeviceList.h>

#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QSignalSpy>

#include <algorithm>
#include <set>

using namespace Zelkor;
using namespace Zelkor::StandIn;
using namespace Support;

class tst_Devices : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyModeDeliversThePicture_data()
    {
        QTest::addColumn<int>("index");
        const auto device = CreateTestPictureDevice();
        for (std::size_t i = 0; i < device->GetModes().size(); ++i)
            QTest::addRow("%s", device->GetModes()[i]->GetName().c_str()) << int(i);
    }

    void everyModeDeliversThePicture()
    {
        QFETCH(int, index);
        const auto device = CreateTestPictureDevice();
        const auto mode = device->GetModes()[std::size_t(index)];
        mode->SetFrameRate({25, 1});
        const auto session = CreateSession(device, std::size_t(index));
        const auto observer = Start(session);
        QVERIFY(observer->WaitFor({"started"}));
        const auto output = observer->CreateOutput();

        // On a busy machine frames are late, but never early.
        QElapsedTimer timer;
        timer.start();
        std::set<std::int64_t> times;
        QTRY_VERIFY((times.insert(ReadFrame(*output)->GetTime()), times.size() > 10));
        QVERIFY2(timer.elapsed() > 300, qPrintable(QString::number(timer.elapsed())));
        const auto frame = ReadFrame(*output);
        QCOMPARE(frame->GetPixelFormat(), mode->GetFormat().pixFmt);

        // A light sky above dark hills.
        const QImage image = ImageOf(frame);
        QCOMPARE(image.size(), QSize(mode->GetFormat().width, mode->GetFormat().height));
        const QColor hills = image.pixelColor(image.width() / 2, image.height() - 2);
        const QColor sky = image.pixelColor(image.width() * 3 / 4, image.height() / 2);
        QVERIFY(sky.lightness() > hills.lightness() + 20);
    }

    void deviceListIsUsableDuringItsSearch()
    {
        DeviceList list;
        QVERIFY(!list.IsComplete());
        QCOMPARE(list.GetDevices().size(), 1);
        const auto testPicture = list.GetDevices()[0];
        QCOMPARE(testPicture->GetKind(), CaptureDevice::Kind::TestPicture);

        const EventSwallower swallower;
        QSignalSpy changed(&list, &DeviceList::Changed);
        QTRY_VERIFY_WITH_TIMEOUT(list.IsComplete(), 60000);
        QCOMPARE(changed.size(), 1);
        QVERIFY(!list.FindDevice("no such device"));
        QCOMPARE(list.GetDevices().back(), testPicture);
        for (const auto& device : list.GetDevices()) {
            QVERIFY(!device->GetModes().empty());
            QCOMPARE(list.FindDevice(QString::fromStdString(device->GetId())), device);
        }
    }

    void deviceListMayBeDeletedDuringItsSearch()
    {
        for (int i = 0; i < 50; ++i) {
            auto list = std::make_unique<DeviceList>();
            QTest::qWait(i % 10);
            const QDeadlineTimer deadline(200);
            list.reset();
            QVERIFY(!deadline.hasExpired());
        }
    }

    void testSignalVariesUntilItIsStopped()
    {
        AudioLevelSource source(AudioLevelSource::Input::TestSignal);
        const Support::EventSwallower swallower;
        QSignalSpy spy(&source, &AudioLevelSource::PeakMeasured);
        source.Start();
        source.Start();
        QTRY_VERIFY(spy.size() >= 40);
        QVERIFY(source.IsTestSignal());
        QVector<double> peaks;
        for (const QVariantList& arguments : spy)
            peaks.append(arguments.first().toDouble());
        const auto [lowest, highest] = std::minmax_element(peaks.begin(), peaks.end());
        QVERIFY(*lowest >= AudioLevelSource::SILENCE_DB);
        QVERIFY(*highest <= 0);
        QVERIFY(*highest - *lowest > 20);

        QTest::qSleep(200); // the next peaks are pending when the source is stopped
        source.Stop();
        source.Stop();
        const int count = spy.size();
        QVERIFY(WaitForEngineIdle(std::chrono::seconds(10)));
        QCoreApplication::processEvents();
        QCOMPARE(spy.size(), count);
        source.Start();
        QTRY_VERIFY(spy.size() > count);
    }
};

VX_TEST_MAIN(tst_Devices)
#include "tst_Devices.moc"
