#include <Examples/Recorder/Preferences.h>
#include <Examples/Recorder/RecorderModel.h>
#include <Examples/Recorder/RecorderWindow.h>
#include <Examples/Recorder/TrimPage.h>
#include <Examples/Recorder/TrimWindow.h>
#include <Examples/Support/Appearance.h>
#include <UI/Kit/ZSliderThumb.h>
#include <UI/Kit/ZTimeEdit.h>
#include <UI/Kit/ZTimelineSlider.h>
#include <UI/Widgets/CountdownIndicatorWidget.h>
#include <UI/Widgets/VideoPreviewWidget.h>

#include <Support/CaptureMocks.h>
#include <Support/TestCase.h>

#include <Zelkor/StandIn/CaptureEngine.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>

#include <memory>

using namespace Zelkor;
using namespace Zelkor::Recorder;
using namespace std::chrono_literals;

namespace {

constexpr int CAMERA_TIMEOUT_MS = 10000; ///< the stream tries a device seven times, 200 ms apart

void Choose(QComboBox* combo, int index)
{
    combo->setCurrentIndex(index);
    Q_EMIT combo->activated(index);
}

} // namespace

class tst_Recorder : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        appearance = std::make_unique<Examples::Appearance>("VxRecorder");
        QVERIFY(appearance->SetStyle("dark"));
        preferences = {};
        model = std::make_unique<RecorderModel>();
        model->SetDevices({StandIn::CreateTestPictureDevice()});
        window = std::make_unique<RecorderWindow>(model.get(), &preferences, appearance.get());
        window->resize(1400, 640);
        window->show();
    }

    void cleanup()
    {
        window.reset();
        QVERIFY(StandIn::WaitForEngineIdle(20s));
        TestCase::cleanup();
    }

    void pictureAndLevelsRunWhileTheWindowIsVisible()
    {
        const QImage idle = Picture();
        QTRY_VERIFY_WITH_TIMEOUT(Picture() != idle, CAMERA_TIMEOUT_MS);
        Choose(Child<QComboBox>("modeCombo"), 1);
        QTRY_VERIFY_WITH_TIMEOUT(Picture() != idle, CAMERA_TIMEOUT_MS);
        Button("Audio")->click(); // opens the panel of the levels
        window->hide();
        QTRY_COMPARE(Picture(), idle);
        QVERIFY(StandIn::WaitForEngineIdle(20s));
        QCOMPARE(model->GetStatus(), RecorderModel::Status::Running);
    }

    void failedDeviceResumesWhenItReturns()
    {
        const QImage idle = Picture();
        const auto test = StandIn::CreateTestPictureDevice();
        const boost::intrusive_ptr<StandIn::CaptureDevice> busy(new Support::CallbackDevice(nullptr));
        model->SetDevices({busy, test});
        model->ChooseDevice("callback");
        model->ChooseFrameRate(15);
        auto* banner = Child<QWidget>("errorBanner");
        QTRY_VERIFY_WITH_TIMEOUT(banner->isVisible(), CAMERA_TIMEOUT_MS);
        QCOMPARE(Child<QAbstractButton>("runButton")->accessibleName(), QString("Start"));

        auto* devices = Child<QComboBox>("deviceCombo");
        model->SetDevices({test});
        QVERIFY(devices->currentText().contains("not connected"));
        QSignalSpy restart(model.get(), &RecorderModel::RestartNeeded);
        model->SetDevices({busy, test});
        QCOMPARE(restart.size(), 1);
        QCOMPARE(model->CurrentFrameRate(), 15.0);
        QCOMPARE(model->GetStatus(), RecorderModel::Status::Running);

        Choose(devices, devices->findText("Test picture"));
        QVERIFY(!banner->isVisible());
        QTRY_VERIFY_WITH_TIMEOUT(Picture() != idle, CAMERA_TIMEOUT_MS);
    }

    void recordingCountsDownAndNeedsAPicture()
    {
        auto* countdown = window->findChild<Vx::CountdownIndicatorWidget*>();
        Button("Record")->click();
        QVERIFY(countdown->isVisible());
        QCOMPARE(countdown->GetSeconds(), 3ULL);
        model->Stop();
        QVERIFY(!countdown->isVisible());
        QVERIFY(!Button("Record")->isEnabled());
        model->Start();
        preferences.countdownSeconds = 0;
        Button("Record")->click();
        QVERIFY(Child<QLabel>("statusText")->property("originalText").toString().startsWith("Recording"));
    }

    void windowsHaveTheCustomTitleBar()
    {
        TrimWindow trimmer;
        trimmer.show();
        Button("Settings")->click();
        Button("About")->click();
        QStringList titles;
        for (const QWidget* each : QApplication::topLevelWidgets()) {
            if (each->isVisible() && each->findChild<QWidget*>("CustomTitleBar") &&
                each->findChild<QWidget*>("resizeBorder"))
                titles += each->windowTitle();
        }
        titles.sort();
        QCOMPARE(titles.join(", "), QString("About Vx Recorder, Settings, Trimmer, Vx Recorder"));
    }

    void keyboardTrimsCutsAndUndoes()
    {
        TrimPage page;
        page.resize(900, 500);
        page.show();
        QVERIFY(QTest::qWaitForWindowActive(&page));
        auto* timeline = page.findChild<ZTimelineSlider*>("timeline");
        auto* field = page.findChild<ZTimeEdit*>("startField");
        field->setFocus();
        field->findChild<QLineEdit*>()->setCursorPosition(1);
        QTest::keyClick(field, Qt::Key_1);
        QCOMPARE(timeline->thumb("left")->value(), timeline->valueOf(60000));

        timeline->setFocus();
        for (const int time : {150000, 300000}) {
            timeline->setTime(time);
            QTest::keyClick(timeline, Qt::Key_X);
        }
        QCOMPARE(timeline->segments().size(), 1);
        QCOMPARE(timeline->segments().constFirst().to, timeline->valueOf(150000));
        QTest::keySequence(&page, QKeySequence::Undo);
        QTest::keySequence(&page, QKeySequence::Undo);
        QCOMPARE(timeline->thumb("left")->value(), 0);
    }

private:
    template<class Widget>
    Widget* Child(const char* name) const
    {
        return window->findChild<Widget*>(name);
    }

    QAbstractButton* Button(const QString& name) const
    {
        for (auto* button : window->findChildren<QAbstractButton*>()) {
            if (button->accessibleName() == name)
                return button;
        }
        return nullptr;
    }

    QImage Picture() const { return window->findChild<Vx::UI::VideoPreviewWidget*>()->grab().toImage(); }

    std::unique_ptr<Examples::Appearance> appearance;
    Preferences preferences;
    std::unique_ptr<RecorderModel> model;
    std::unique_ptr<RecorderWindow> window;
};

VX_TEST_MAIN(tst_Recorder)
#include "tst_Recorder.moc"
