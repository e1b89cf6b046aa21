#include <Host/SessionRecorder.h>
#include <Support/LogCapture.h>
#include <Support/TestCase.h>

#include <Zelkor/StandIn/CaptureEngine.h>

#include <QCheckBox>
#include <QDialog>
#include <QElapsedTimer>
#include <QSlider>

#include <set>

using namespace Zelkor;
using namespace Zelkor::StandIn;
using Support::CreateSession;
using Support::ImageOf;
using Support::ReadFrame;
using Support::SessionRecorder;

namespace {

/// A session of the test picture that runs.
struct Running
{
    Running(const boost::intrusive_ptr<CaptureDevice>& device, int modeIndex)
        : session(CreateSession(device, device->GetModes()[std::size_t(modeIndex)]))
    {
        session->Start(recorder);
        if (recorder->WaitFor({"started"}))
            output = recorder->CreateOutput();
    }
    ~Running() { session->Stop(); }

    const std::shared_ptr<SessionRecorder> recorder = std::make_shared<SessionRecorder>();
    const boost::intrusive_ptr<Acquis::ICaptureSession> session;
    boost::intrusive_ptr<Acquis::ICaptureOutput> output;
};

QDialog* OpenDialog()
{
    QDialog* found = nullptr;
    const auto widgets = QApplication::topLevelWidgets();
    for (auto* widget : widgets) {
        auto* dialog = qobject_cast<QDialog*>(widget);
        if (dialog && dialog->isVisible())
            found = dialog;
    }
    return found;
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
        const Running running(device, index);
        QVERIFY(running.output);

        // The rate is kept on the whole: the times of the frames show it, whoever reads late.
        const auto first = ReadFrame(*running.output);
        std::set<std::int64_t> times;
        QElapsedTimer timer;
        timer.start();
        SessionRecorder::Frame last;
        while (timer.elapsed() < 1000) {
            last = ReadFrame(*running.output);
            times.insert(last->GetTime());
            QTest::qWait(4);
        }
        QVERIFY2(times.size() >= 10 && times.size() <= 28, qPrintable(QString::number(times.size())));

        QVERIFY(last->IsReadable());
        QCOMPARE(last->GetPixelFormat(), mode->GetFormat().pixFmt);
        QCOMPARE(last->GetFormat().width, mode->GetFormat().width);
        QCOMPARE(last->GetFormat().height, mode->GetFormat().height);
        QCOMPARE(running.recorder->StartTime(), *times.begin() < first->GetTime() ? *times.begin() : first->GetTime());

        // The sky is light and the ground dark in every format, and the picture moves.
        const QImage before = ImageOf(first);
        const QImage after = ImageOf(last);
        QCOMPARE(after.size(), QSize(mode->GetFormat().width, mode->GetFormat().height));
        const QColor ground = after.pixelColor(after.width() / 2, after.height() - 2);
        const QColor horizon = after.pixelColor(after.width() * 3 / 4, after.height() / 2);
        QVERIFY(ground.blue() > ground.red() && ground.lightness() < 100);
        QVERIFY(horizon.red() > horizon.blue() && horizon.lightness() > 120);
        int moved = 0;
        for (int y = 0; y < after.height(); y += 8) {
            for (int x = 0; x < after.width(); x += 8)
                moved += before.pixel(x, y) != after.pixel(x, y);
        }
        QVERIFY(moved > after.width() / 8 * (after.height() / 8) / 50);
    }

    void ratesAreExact()
    {
        const auto device = CreateTestPictureDevice();
        std::vector<Acquis::Rational> rates;
        device->GetModes()[0]->GetFrameRates(rates);
        const auto isNtsc = [](const auto& rate) { return rate.numerator == 30000 && rate.denominator == 1001; };
        QVERIFY(std::any_of(rates.begin(), rates.end(), isNtsc));
        QCOMPARE(device->GetModes()[0]->GetFrameRate().numerator, rates.back().numerator);
        QCOMPARE(QString::fromStdString(device->GetModes()[0]->GetName()), QString::fromUtf8("1280×720"));
    }

    void dialogChangesThePicture()
    {
        const auto device = CreateTestPictureDevice();
        const Running running(device, device->GetModes().size() - 1);
        std::vector<boost::intrusive_ptr<Acquis::IDeviceSettings>> handles;
        running.session->GetDeviceSettings(handles);
        QCOMPARE(handles.size(), std::size_t(1));

        handles[0]->ShowSettingsDialog();
        QPointer<QDialog> dialog = OpenDialog();
        QVERIFY(dialog);
        QVERIFY(!dialog->isModal());
        dialog->showMinimized();
        handles[0]->ShowSettingsDialog();
        QVERIFY(!dialog->isMinimized());
        QCOMPARE(OpenDialog(), dialog.data());

        // At no speed the picture stands still, and without the counter nothing is left that changes.
        dialog->findChild<QSlider*>()->setValue(0);
        dialog->findChild<QCheckBox*>()->setChecked(false);
        QTRY_VERIFY_WITH_TIMEOUT(StandsStill(*running.output), 10000);
        dialog->findChild<QSlider*>()->setValue(400);
        QTRY_VERIFY_WITH_TIMEOUT(!StandsStill(*running.output), 10000);

        dialog->close();
        QTRY_VERIFY(!dialog);
        handles[0]->ShowSettingsDialog();
        QCOMPARE(OpenDialog()->findChild<QSlider*>()->value(), 400);
        delete OpenDialog();
    }

    void dialogIsForTheGuiThread()
    {
        const auto settings = CreateTestPictureDevice()->GetDeviceSettings();
        Support::LogCapture log;
        std::thread([&] { settings->ShowSettingsDialog(); }).join();
        QCOMPARE(log.Take().size(), 1);
        QVERIFY(!OpenDialog());
    }

private:
    static bool StandsStill(Acquis::ICaptureOutput& output)
    {
        const auto first = ReadFrame(output);
        auto second = first;
        while (second->GetTime() - first->GetTime() < 200'000'000) {
            QTest::qWait(10);
            second = ReadFrame(output);
        }
        return ImageOf(first) == ImageOf(second);
    }
};

VX_TEST_MAIN(tst_TestPicture)
#include "tst_TestPicture.moc"
