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
    using CaptureDevice::CaptureDevice;
    std::unique_ptr<StandIn::CaptureSource> CreateSource(const StandIn::VideoMode&) const override { return nullptr; }
};

boost::intrusive_ptr<StandIn::VideoMode> MakeMode(const char* name, int width, int height,
                                                  std::vector<Acquis::Rational> rates)
{
    StandIn::FrameFormat format;
    format.width = width;
    format.height = height;
    return new StandIn::VideoMode(name, format, std::move(rates));
}

RecorderModel::Device MakeDevice(Kind kind, const char* id, StandIn::CaptureDevice::Modes modes = {})
{
    if (modes.empty())
        modes = {MakeMode("640×480", 640, 480, {{15, 1}, {30, 1}, {60, 1}})};
    return new Device(kind, id, std::string("Name of ") + id, std::move(modes));
}

RecorderModel::Device MakeCamera()
{
    return MakeDevice(Kind::Camera, "camera",
                      {MakeMode("3840×2160", 3840, 2160, {{30, 1}}), MakeMode("1920×1080", 1920, 1080, {{5, 1}}),
                       MakeMode("Broken", 1280, 960, {{30, 0}, {1, 2}}),
                       MakeMode("1280×720", 1280, 720, {{60, 1}, {30000, 1001}, {30, 1}, {30, 1}}),
                       MakeMode("1280×720", 1280, 720, {{25, 1}})});
}

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
        QCOMPARE(model.CurrentDeviceId(), QString());
        QVERIFY(model.Modes().isEmpty() && model.FrameRates().isEmpty());

        const auto screen = MakeDevice(Kind::Screen, "screen");
        const auto test = MakeDevice(Kind::TestPicture, "test");
        const auto camera = MakeCamera();
        model.SetDevices({screen, test});
        QCOMPARE(model.CurrentDeviceId(), QString("test"));
        model.SetDevices({camera, screen, test});
        QCOMPARE(model.CurrentDeviceId(), QString("camera"));
        restart.clear();
        model.ChooseDevice("test");
        QCOMPARE(restart.size(), 1);
        model.SetDevices({MakeDevice(Kind::Camera, "other camera"), camera, screen, test});
        QCOMPARE(model.CurrentDeviceId(), QString("test"));
        QCOMPARE(restart.size(), 1);
    }

    void offersWhatIsUsableAndBeginsWithTheBest()
    {
        RecorderModel model;
        model.SetDevices({MakeCamera()});
        QCOMPARE(model.Modes(), QStringList({"3840×2160", "1920×1080", "1280×720"}));
        QCOMPARE(model.CurrentMode(), QString("1280×720"));
        QCOMPARE(model.FrameRates(), QVector<double>({30000.0 / 1001.0, 30, 60}));
        QCOMPARE(model.CurrentFrameRate(), 30.0);
        model.ChooseMode("1920×1080");
        QCOMPARE(model.CurrentFrameRate(), 5.0);
    }

    void choicesRestartThePictureOnce()
    {
        RecorderModel model;
        model.SetDevices({MakeCamera()});
        QSignalSpy restart(&model, &RecorderModel::RestartNeeded);
        QSignalSpy offer(&model, &RecorderModel::OfferChanged);
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
        model.ChooseMode("3840×2160");
        QCOMPARE(restart.size(), 1);
        QCOMPARE(offer.size(), 2);
        QCOMPARE(model.GetStatus(), Status::Stopped);
        model.Start();
        model.Start();
        QCOMPARE(restart.size(), 2);
    }

    void unpluggedDeviceStaysChosenAndComesBack()
    {
        RecorderModel model;
        const auto test = MakeDevice(Kind::TestPicture, "test");
        model.SetDevices({MakeCamera(), test});
        model.ChooseFrameRate(60);
        QSignalSpy restart(&model, &RecorderModel::RestartNeeded);
        QSignalSpy status(&model, &RecorderModel::StatusChanged);

        model.SetDevices({test});
        QCOMPARE(model.CurrentDeviceId(), QString("camera"));
        QCOMPARE(model.Devices().size(), 2);
        QVERIFY(!model.Devices()[0].isPresent && model.Devices()[1].isPresent);
        QCOMPARE(restart.size(), 0);
        model.ReportFailure();
        model.ReportFailure();
        QCOMPARE(model.GetStatus(), Status::Failed);
        QCOMPARE(status.size(), 1);

        const auto again = MakeCamera();
        model.SetDevices({again, test});
        QCOMPARE(model.CurrentDevice(), again);
        QCOMPARE(model.CurrentFrameRate(), 60.0);
        QCOMPARE(model.GetStatus(), Status::Running);
        QCOMPARE(restart.size(), 1);
    }

    void failureNeedsARunningPicture()
    {
        RecorderModel model;
        model.SetDevices({MakeCamera()});
        model.Stop();
        model.ReportFailure();
        QCOMPARE(model.GetStatus(), Status::Stopped);
        model.Start();
        model.ReportFailure();
        model.Start();
        QCOMPARE(model.GetStatus(), Status::Running);
    }

    void deviceWithoutUsableModeFailsAtOnce()
    {
        RecorderModel model;
        QSignalSpy restart(&model, &RecorderModel::RestartNeeded);
        const auto broken = MakeDevice(Kind::Camera, "camera", {MakeMode("Broken", 640, 480, {{30, 0}})});
        model.SetDevices({broken, MakeDevice(Kind::TestPicture, "test")});
        QCOMPARE(model.CurrentDeviceId(), QString("camera"));
        QCOMPARE(model.GetStatus(), Status::Failed);
        QCOMPARE(restart.size(), 0);
        model.ChooseDevice("test");
        QCOMPARE(model.GetStatus(), Status::Running);
        QCOMPARE(restart.size(), 1);
    }
};

VX_TEST_MAIN(tst_RecorderModel)
#include "tst_RecorderModel.moc"
