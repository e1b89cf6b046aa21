#include <Gallery/GalleryWindow.h>
#include <Gallery/Languages.h>
#include <Gallery/Preferences.h>
#include <Gallery/RecorderModel.h>
#include <Gallery/RecorderWindow.h>
#include <Gallery/Recording.h>
#include <Gallery/SettingsDialog.h>
#include <Gallery/StyleSheet.h>

#include <Support/FocusWalk.h>
#include <Support/TestCase.h>

#include <UI/Widgets/CountdownIndicatorWidget.h>
#include <UI/Widgets/HorizontalTabBar.h>
#include <UI/Widgets/ResizableStackedWidget.h>
#include <UI/Widgets/SliderWithTickLabels.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QSignalSpy>

#include <memory>

using namespace Zelkor;
using namespace Zelkor::Gallery;
using namespace std::chrono_literals;

namespace {

QAbstractButton* Button(const QWidget& window, const QString& name)
{
    for (auto* button : window.findChildren<QAbstractButton*>()) {
        if (button->accessibleName() == name)
            return button;
    }
    return nullptr;
}

} // namespace

class tst_RecorderWindow : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QString error;
        ApplyStyleSheet(LoadStyleSheet("dark", error).value());
        model.SetDevices({StandIn::CreateTestPictureDevice()});
    }

    void countdownRunsBeforeTheRecording()
    {
        Recording recording(nullptr, 10ms);
        QStringList course;
        connect(&recording, &Recording::Changed, [&] {
            const char* state = recording.GetState() == Recording::State::CountingDown ? "-" : "+";
            course +=
                recording.GetState() == Recording::State::Idle ? "idle" : state + QString::number(recording.Seconds());
        });
        recording.Start(2);
        recording.Start(7);
        QTRY_VERIFY(course.size() >= 4);
        recording.Stop();
        recording.Stop();
        QCOMPARE(course.mid(0, 4), QStringList({"-2", "-1", "+0", "+1"}));
        QCOMPARE(course.last(), QString("idle"));
        course.clear();
        recording.Start(0);
        QCOMPARE(course, QStringList("+0"));
    }

    void recordButtonCountsDownOverThePicture()
    {
        RecorderWindow window(&model, &preferences);
        window.show();
        auto* countdown = window.findChild<Vx::CountdownIndicatorWidget*>();
        QVERIFY(!countdown->isVisible());
        Button(window, "Record")->click();
        QVERIFY(countdown->isVisible());
        QCOMPARE(countdown->GetSeconds(), 3ULL);
        // Without a picture there is nothing to record.
        model.Stop();
        QVERIFY(!countdown->isVisible());
        QVERIFY(!Button(window, "Record")->isEnabled());
        model.Start();
        preferences.countdownSeconds = 0;
        Button(window, "Record")->click();
        QVERIFY(!countdown->isVisible());
        QVERIFY(window.findChild<QLabel*>("statusText")->property("originalText").toString().startsWith("Recording"));
        window.hide();
        QVERIFY(Button(window, "Record"));
    }

    void windowLeadsToEverythingElse()
    {
        RecorderWindow window(&model, &preferences);
        window.show();
        QVERIFY(window.windowFlags().testFlag(Qt::FramelessWindowHint));
        QSignalSpy widgets(&window, &RecorderWindow::WidgetsRequested);
        Button(window, "All widgets")->click();
        QCOMPARE(widgets.size(), 1);
        QPointer<QDialog> about;
        Button(window, "About")->click();
        QVERIFY(about = window.findChild<QDialog*>());
        QVERIFY(about->isVisible() && !about->isModal());
        about->close();
        QTRY_VERIFY(!about);
        // The settings open once.
        Button(window, "Settings")->click();
        Button(window, "Settings")->click();
        QCOMPARE(window.findChildren<SettingsDialog*>().size(), 1);
        auto* minimize = window.findChild<QAbstractButton*>("minimizeButton");
        QVERIFY(minimize->isVisible());
        window.findChild<QAbstractButton*>("closeButton")->click();
        QVERIFY(!window.isVisible());
    }

    void tabReachesEverythingInTheWindow()
    {
        RecorderWindow window(&model, &preferences);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        const QStringList forwards = Support::NamesOnTheWay(window, Qt::Key_Tab);
        QCOMPARE(forwards.join(", "),
                 QString("About, All widgets, Audio, Click sound, Close, Drawing colour, Edit the style sheet (F12), "
                         "Full screen, Minimise, Pointer, Record, Settings, Settings of the device, Source, Stop"));
        QCOMPARE(forwards, Support::NamesOnTheWay(window, Qt::Key_Backtab));
    }

    void settingsHaveTheSizeOfTheirPageAndCountAtOnce()
    {
        SettingsDialog dialog(&preferences);
        dialog.show();
        auto* tabs = dialog.findChild<Vx::HorizontalTabBar*>();
        const auto* pages = dialog.findChild<ResizableStackedWidget*>();
        QTest::keyClick(tabs, Qt::Key_Tab);
        QCOMPARE(dialog.focusWidget(), dialog.findChild<QComboBox*>("languageCombo"));
        for (int i = 0; i < tabs->count(); ++i) {
            tabs->setCurrentIndex(i);
            QTRY_COMPARE(dialog.height(), dialog.minimumSizeHint().height());
            QCOMPARE(pages->currentIndex(), i);
            QCOMPARE(pages->size(), pages->currentWidget()->size());
            QVERIFY(pages->currentWidget()->height() >= pages->currentWidget()->sizeHint().height());
        }
        dialog.findChild<Vx::SliderWithTickLabels*>("countdown")->SetCurrentIndex(3);
        QCOMPARE(preferences.countdownSeconds, 10);
        dialog.findChild<Vx::SliderWithTickLabels*>("quality")->SetCurrentIndex(0);
        QCOMPARE(preferences.quality, 0);
        QSignalSpy style(&preferences, &Preferences::StyleNameChanged);
        auto* combo = dialog.findChild<QComboBox*>("styleCombo");
        combo->setCurrentIndex(combo->findData("light"));
        Q_EMIT combo->activated(combo->currentIndex());
        QCOMPARE(style.takeFirst(), QVariantList({"light"}));
    }

    void everyLanguageIsSpokenAtOnce()
    {
        const QStringList languages[] = {{"de", "Aufnehmen", "Testbild", "Std Min Sek"},
                                         {"fr", "Enregistrer", "Mire", "h min s"},
                                         {"ja", "録画", "テスト映像", "時 分 秒"},
                                         {"en", "Record", "Test picture", "hr min sec"}};
        Translations translations;
        RecorderWindow window(&model, &preferences);
        window.show();
        Button(window, "Settings")->click();
        for (const QStringList& texts : languages) {
            QVERIFY(translations.Use(texts[0]));
            QTRY_VERIFY(Button(window, texts[1]));
            QCOMPARE(window.findChild<QComboBox*>("deviceCombo")->currentText(), texts[2]);
            QStringList captions;
            for (const char* name : {"caption1Label", "caption2Label", "caption3Label"})
                captions += window.findChild<QLabel*>(name)->text();
            QCOMPARE(captions.join(' '), texts[3]);
        }
        // One without texts is English, whatever was spoken before.
        auto* quality = window.findChild<Vx::SliderWithTickLabels*>("quality");
        quality->SetCurrentIndex(1);
        QVERIFY(translations.Use("de"));
        QTRY_COMPARE(quality->CurrentText(), QString("Mittel"));
        QVERIFY(!translations.Use("xx"));
        QCOMPARE(GalleryWindow::tr("Recorder"), QString("Recorder"));
    }

private:
    RecorderModel model;
    Preferences preferences;
};

VX_TEST_MAIN(tst_RecorderWindow)
#include "tst_RecorderWindow.moc"
