#include <Host/SessionRecorder.h>
#include <Support/EventSwallower.h>
#include <Support/LogCapture.h>
#include <Support/TestCase.h>

#include <Zelkor/StandIn/DeviceList.h>

#include <QCheckBox>
#include <QDialog>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QSlider>

#include <set>
#include <thread>

using namespace Zelkor;
using namespace Zelkor::StandIn;
using Support::ImageOf;
using Support::ReadFrame;

namespace {

QDialog* OpenDialog()
{
    const auto widgets = QApplication::topLevelWidgets();
    const auto isOpen = [](const QWidget* widget) {
        return qobject_cast<const QDialog*>(widget) && widget->isVisible();
    };
    const auto found = std::find_if(widgets.begin(), widgets.end(), isOpen);
    return found == widgets.end() ? nullptr : static_cast<QDialog*>(*found);
}

bool StandsStill(Acquis::ICaptureOutput& output)
{
    const auto first = ReadFrame(output);
    auto second = first;
    while (second->GetTime() - first->GetTime() < 200'000'000) {
        QTest::qWait(10);
        second = ReadFrame(output);
    }
    return ImageOf(first) == ImageOf(second);
}

} // namespace

class tst_TestPicture : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyModeGivesItsPictures_data()
    {
        QTest::addColumn<int>("index");
        const auto device = CreateTestPictureDevice();
        for (std::size_t i = 0; i < device->GetModes().size(); ++i)
            QTest::addRow("%s", device->GetModes()[i]->GetName().c_str()) << int(i);
    }

    void everyModeGivesItsPictures()
    {
        QFETCH(int, index);
        const auto device = CreateTestPictureDevice();
        const auto mode = device->GetModes()[std::size_t(index)];
        mode->SetFrameRate({25, 1});
        const auto session = Support::CreateSession(device, std::size_t(index));
        const auto recorder = Support::Start(session);
        QVERIFY(recorder->WaitFor({"started"}));
        const auto output = recorder->CreateOutput();

        // The rate is kept on the whole: the times of the frames show it, whoever reads late.
        auto last = ReadFrame(*output);
        std::set<std::int64_t> times;
        QElapsedTimer timer;
        timer.start();
        while (timer.elapsed() < 1000) {
            last = ReadFrame(*output);
            times.insert(last->GetTime());
            QTest::qWait(4);
        }
        QVERIFY2(times.size() >= 10 && times.size() <= 28, qPrintable(QString::number(times.size())));
        QVERIFY(last->IsReadable());
        QCOMPARE(last->GetPixelFormat(), mode->GetFormat().pixFmt);

        // The sky is light and the ground dark in every format.
        const QImage image = ImageOf(last);
        QCOMPARE(image.size(), QSize(mode->GetFormat().width, mode->GetFormat().height));
        const QColor ground = image.pixelColor(image.width() / 2, image.height() - 2);
        const QColor horizon = image.pixelColor(image.width() * 3 / 4, image.height() / 2);
        QVERIFY(ground.blue() > ground.red() && ground.lightness() < 100);
        QVERIFY(horizon.red() > horizon.blue() && horizon.lightness() > 120);
    }

    void dialogChangesThePicture()
    {
        const auto device = CreateTestPictureDevice();
        const auto session = Support::CreateSession(device, device->GetModes().size() - 1);
        const auto recorder = Support::Start(session);
        QVERIFY(recorder->WaitFor({"started"}));
        const auto output = recorder->CreateOutput();
        std::vector<boost::intrusive_ptr<Acquis::IDeviceSettings>> handles;
        session->GetDeviceSettings(handles);
        QCOMPARE(handles.size(), std::size_t(1));

        Support::LogCapture log;
        std::thread([&] { handles[0]->ShowSettingsDialog(); }).join();
        QCOMPARE(log.Take().size(), 1);
        QVERIFY(!OpenDialog());

        handles[0]->ShowSettingsDialog();
        QPointer<QDialog> dialog = OpenDialog();
        QVERIFY(dialog && !dialog->isModal());
        dialog->showMinimized();
        handles[0]->ShowSettingsDialog();
        QVERIFY(!dialog->isMinimized() && OpenDialog() == dialog);

        // At no speed the picture stands still, and without the counter nothing is left that changes.
        dialog->findChild<QSlider*>()->setValue(0);
        dialog->findChild<QCheckBox*>()->setChecked(false);
        QTRY_VERIFY_WITH_TIMEOUT(StandsStill(*output), 10000);
        dialog->findChild<QSlider*>()->setValue(400);
        QTRY_VERIFY_WITH_TIMEOUT(!StandsStill(*output), 10000);

        dialog->close();
        QTRY_VERIFY(!dialog);
        handles[0]->ShowSettingsDialog();
        QCOMPARE(OpenDialog()->findChild<QSlider*>()->value(), 400);
        delete OpenDialog();
    }

    void deviceListIsUsableAtOnceAndCompleteLater()
    {
        QElapsedTimer timer;
        timer.start();
        DeviceList list;
        QVERIFY2(timer.elapsed() < 50, qPrintable(QString::number(timer.elapsed())));
        QVERIFY(!list.IsComplete());
        QCOMPARE(list.GetDevices().size(), 1);
        const auto testPicture = list.GetDevices()[0];
        QVERIFY(testPicture->GetKind() == CaptureDevice::Kind::TestPicture);

        const Support::EventSwallower swallower;
        QSignalSpy changed(&list, &DeviceList::Changed);
        QTRY_VERIFY_WITH_TIMEOUT(list.IsComplete(), 60000);
        QCOMPARE(changed.size(), 1);
        QVERIFY(!list.FindDevice("no such device"));
        const auto devices = list.GetDevices();
        QCOMPARE(devices.back(), testPicture);
        for (const auto& device : devices) {
            QVERIFY(!device->GetModes().empty());
            QCOMPARE(list.FindDevice(QString::fromStdString(device->GetId())), device);
        }
    }

    void deviceListMayDieWhileItSearches()
    {
        for (int i = 0; i < 50; ++i) {
            auto list = std::make_unique<DeviceList>();
            if (i % 2)
                QTest::qWait(i / 5);
            QElapsedTimer timer;
            timer.start();
            list.reset();
            QVERIFY(timer.elapsed() < 200);
        }
    }
};

VX_TEST_MAIN(tst_TestPicture)
#include "tst_TestPicture.moc"
