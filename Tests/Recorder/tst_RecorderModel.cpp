#include <Gallery/RecorderModel.h>

#include <Support/TestCase.h>

#include <QSignalSpy>

using namespace Zelkor;
using namespace Zelkor::Gallery;

namespace {

using Kind = StandIn::CaptureDevice::Kind;
using Status = RecorderModel::Status;

/// A device that is only looked at.
class Device : public StandIn::CaptureDevice
{
public:
    Device(Kind kind, const char* id, Modes modes) : CaptureDevice(kind, id, id, std::move(modes)) {}
    std::unique_ptr<StandIn::CaptureSource> CreateSource(const StandIn::VideoMode&) const override { return nullptr; }
};

auto MakeMode(const char* name, int width, int height, std::vector<Acquis::Rational> rates)
{
    return boost::intrusive_ptr(new StandIn::VideoMode(name, {Proc::PixFmt::BGRA, width, height}, std::move(rates)));
}

RecorderModel::Device MakeCamera()
{
    return new Device(Kind::Camera, "camera",
                      {MakeMode("3840×2160", 3840, 2160, {{30, 1}}), MakeMode("1920×1080", 1920, 1080, {{5, 1}}),
                       MakeMode("Broken", 1280, 960, {{30, 0}, {1, 2}}),
                       MakeMode("1280×720", 1280, 720, {{60, 1}, {30000, 1001}, {30, 1}, {30, 1}}),
                       MakeMode("1280×720", 1280, 720, {{25, 1}})});
}

const RecorderModel::Device SCREEN = new Device(Kind::Screen, "screen", {MakeMode("VGA", 640, 480, {{30, 1}})});
const RecorderModel::Device TEST = new Device(Kind::TestPicture, "test", {MakeMode("VGA", 640, 480, {{30, 1}})});

} // namespace

class tst_RecorderModel : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void takesACameraUntilAPersonChooses()
    {
        RecorderModel model;
        QSignalSpy restart(&model, &RecorderModel::RestartNeeded);
        model.SetDevices({});
        QVERIFY(model.CurrentDeviceId().isEmpty() && model.Modes().isEmpty() && model.FrameRates().isEmpty());

        model.SetDevices({SCREEN, TEST});
        QCOMPARE(model.CurrentDeviceId(), QString("test"));
        QCOMPARE(model.Devices().first().name, QString("Screen"));
        const RecorderModel::Device broken = new Device(Kind::Camera, "broken", {MakeMode("VGA", 640, 480, {{30, 0}})});
        // A camera without a usable mode fails at once: nobody else would tell.
        model.SetDevices({broken, SCREEN, TEST});
        QCOMPARE(model.CurrentDeviceId(), QString("broken"));
        QCOMPARE(model.GetStatus(), Status::Failed);
        QCOMPARE(restart.size(), 1);
        model.ChooseDevice("test");
        QCOMPARE(model.GetStatus(), Status::Running);
        QCOMPARE(restart.size(), 2);
        model.SetDevices({MakeCamera(), broken, SCREEN, TEST});
        QCOMPARE(model.CurrentDeviceId(), QString("test"));
        QCOMPARE(restart.size(), 2);
    }

    void offersWhatIsUsableAndRestartsOncePerChoice()
    {
        RecorderModel model;
        model.SetDevices({MakeCamera()});
        QSignalSpy restart(&model, &RecorderModel::RestartNeeded);
        QSignalSpy offer(&model, &RecorderModel::OfferChanged);
        QCOMPARE(model.Modes(), QStringList({"3840×2160", "1920×1080", "1280×720"}));
        QCOMPARE(model.CurrentMode(), QString("1280×720"));
        QCOMPARE(model.FrameRates(), QVector<double>({30000.0 / 1001.0, 30, 60}));
        QCOMPARE(model.CurrentFrameRate(), 30.0);
        model.ChooseFrameRate(60);
        QCOMPARE(model.CurrentFrameRate(), 60.0);
        QCOMPARE(restart.size(), 1);
        QCOMPARE(offer.size(), 1);

        // The same again, and what is not on offer.
        model.ChooseFrameRate(60);
        model.ChooseFrameRate(61);
        model.ChooseMode("1280×720");
        model.ChooseMode("Broken");
        model.ChooseDevice("camera");
        model.ChooseDevice("no such device");
        QCOMPARE(restart.size(), 1);
        QCOMPARE(offer.size(), 1);

        model.Stop();
        model.ReportFailure();
        model.ChooseMode("1920×1080");
        QCOMPARE(model.CurrentFrameRate(), 5.0);
        QCOMPARE(restart.size(), 1);
        QCOMPARE(offer.size(), 2);
        QCOMPARE(model.GetStatus(), Status::Stopped);
        model.Start();
        model.Start();
        QCOMPARE(restart.size(), 2);
        model.ReportFailure();
        model.Start();
        QCOMPARE(model.GetStatus(), Status::Running);
    }

    void unpluggedDeviceStaysChosenAndComesBack()
    {
        RecorderModel model;
        model.SetDevices({MakeCamera(), TEST});
        model.ChooseFrameRate(60);
        QSignalSpy restart(&model, &RecorderModel::RestartNeeded);
        QSignalSpy status(&model, &RecorderModel::StatusChanged);

        model.SetDevices({TEST});
        QCOMPARE(model.CurrentDeviceId(), QString("camera"));
        QCOMPARE(model.Devices().size(), 2);
        QVERIFY(!model.Devices()[0].isPresent && model.Devices()[1].isPresent);
        QCOMPARE(restart.size(), 0);
        model.ReportFailure();
        model.ReportFailure();
        QCOMPARE(model.GetStatus(), Status::Failed);
        QCOMPARE(status.size(), 1);

        const auto again = MakeCamera();
        model.SetDevices({again, TEST});
        QCOMPARE(model.CurrentDevice(), again);
        QCOMPARE(model.CurrentFrameRate(), 60.0);
        QCOMPARE(model.GetStatus(), Status::Running);
        QCOMPARE(restart.size(), 1);
    }
};

VX_TEST_MAIN(tst_RecorderModel)
#include "tst_RecorderModel.moc"
