#include <Gallery/Catalogue.h>
#include <Gallery/GalleryWindow.h>
#include <Gallery/Languages.h>
#include <Gallery/Preferences.h>
#include <Gallery/RecorderModel.h>
#include <Gallery/RecorderView.h>
#include <Gallery/Scrolled.h>
#include <Gallery/StateCard.h>
#include <Gallery/StyleSheet.h>
#include <Gallery/WidgetPage.h>

#include <Support/FocusWalk.h>
#include <Support/TestCase.h>

#include <UI/Widgets/ButtonWithPopUpList.h>
#include <UI/Widgets/ColorButton.h>
#include <UI/Widgets/FastPresetButton.h>
#include <UI/Widgets/VideoPreviewWidget.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPointer>
#include <QScreen>
#include <QToolButton>

using namespace Zelkor;
using namespace Zelkor::Gallery;

namespace {

constexpr int LONG_TIME = 10000; ///< milliseconds; the stream gives a device seven tries, 200 ms apart

/// A camera that is always in use by somebody else.
class BusyCamera : public StandIn::CaptureDevice
{
public:
    explicit BusyCamera(const Modes& modes) : CaptureDevice(Kind::Camera, "busy", "Busy camera", modes) {}
    std::unique_ptr<StandIn::CaptureSource> CreateSource(const StandIn::VideoMode&) const override { return nullptr; }
};

/// A recorder that shows itself, with its devices.
class Recorder
{
public:
    explicit Recorder(const QList<RecorderModel::Device>& devices = {StandIn::CreateTestPictureDevice()})
    {
        model.SetDevices(devices);
        view.resize(900, 640);
        view.show();
    }

    Vx::UI::VideoPreviewWidget* Preview() const { return view.findChild<Vx::UI::VideoPreviewWidget*>(); }
    QImage Picture() const { return Preview()->grab().toImage(); }

    RecorderModel model;
    Preferences preferences;
    RecorderView view{&model, &preferences};
};

/// The gallery, shown.
struct Browser
{
    Browser() { gallery.show(); }

    WidgetPage* Page() const { return gallery.findChild<WidgetPage*>(); }

    RecorderModel model;
    Preferences preferences;
    GalleryWindow gallery{&model, &preferences};
    QListWidget* list = gallery.findChild<QListWidget*>("pageList");
};

void ChooseLikeAPerson(QComboBox* combo, int index)
{
    combo->setCurrentIndex(index);
    Q_EMIT combo->activated(index);
}

} // namespace

class tst_GalleryWindows : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QString error;
        ApplyStyleSheet(LoadStyleSheet("dark", error).value());
    }

    void busyCameraGivesTheMessageAndAnotherDeviceTakesItAway()
    {
        const auto test = StandIn::CreateTestPictureDevice();
        Recorder recorder({new BusyCamera(test->GetModes()), test});
        auto* banner = recorder.view.findChild<QWidget*>("errorBanner");
        auto* runButton = recorder.view.findChild<QAbstractButton*>("runButton");
        QVERIFY(!banner->isVisible());
        QCOMPARE(runButton->accessibleName(), QString("Stop"));
        QTRY_VERIFY_WITH_TIMEOUT(banner->isVisible(), LONG_TIME);
        QCOMPARE(runButton->accessibleName(), QString("Start"));
        const QImage idle = recorder.Picture();

        auto* devices = recorder.view.findChild<QComboBox*>("deviceCombo");
        QCOMPARE(devices->currentText(), QString("Busy camera"));
        ChooseLikeAPerson(devices, 1);
        QVERIFY(!banner->isVisible());
        QCOMPARE(runButton->accessibleName(), QString("Stop"));
        QTRY_VERIFY_WITH_TIMEOUT(recorder.Picture() != idle, LONG_TIME);

        runButton->click();
        QCOMPARE(recorder.model.GetStatus(), RecorderModel::Status::Stopped);
        QCOMPARE(recorder.Picture(), idle);
    }

    void pictureRunsAsChosenWhileItCanBeSeen()
    {
        Recorder recorder;
        const QImage idle = recorder.Picture();
        QTRY_VERIFY_WITH_TIMEOUT(recorder.Picture() != idle, LONG_TIME);
        for (const char* name : {"modeCombo", "frameRateCombo"}) {
            auto* combo = recorder.view.findChild<QComboBox*>(name);
            QVERIFY2(combo->count() > 1, name);
            const int other = combo->currentIndex() == 0 ? 1 : 0;
            ChooseLikeAPerson(combo, other);
            QCOMPARE(combo->currentIndex(), other);
            const QImage frame = recorder.Picture();
            QTRY_VERIFY_WITH_TIMEOUT(recorder.Picture() != frame, LONG_TIME);
        }

        recorder.view.hide();
        recorder.model.ChooseFrameRate(recorder.model.FrameRates().constLast());
        QCOMPARE(recorder.Picture(), idle);
        QCOMPARE(recorder.model.GetStatus(), RecorderModel::Status::Running);
        recorder.view.show();
        QTRY_VERIFY_WITH_TIMEOUT(recorder.Picture() != idle, LONG_TIME);

        recorder.model.SetDevices({});
        QVERIFY(recorder.view.findChild<QComboBox*>("deviceCombo")->currentText().contains("not connected"));
    }

    void pictureKeepsItsShapeAtAnySize()
    {
        Recorder recorder;
        recorder.model.Stop();
        const auto* preview = recorder.Preview();
        // Of odd sides the shadow would leave out the middle.
        for (const QSize& size : {QSize(400, 700), QSize(401, 701), QSize(1600, 500), QSize(1600, 501),
                                  QSize(1600, 503), QSize(900, 640)}) {
            recorder.view.resize(size);
            QCOMPARE(preview->width() % 2, 0);
            QCOMPARE(preview->height() % 2, 0);
            QVERIFY(qAbs(preview->width() * 9 - preview->height() * 16) <= 16 * 9);
            const QRect stage = preview->parentWidget()->contentsRect();
            QVERIFY(stage.contains(preview->geometry()));
            QVERIFY(stage.width() - preview->width() < 2 || stage.height() - preview->height() < 2);
            // What says that there is no picture is in the middle of the place as it is now.
            QCOMPARE(preview->GetDefaultImage().size(), preview->size());
        }
    }

    void recordingModeIsTheSameEverywhere()
    {
        Recorder recorder;
        auto* modes = recorder.view.findChild<Vx::ButtonWithPopUpList*>("recordingModes");
        const auto presets = recorder.view.findChildren<Vx::UI::FastPresetButton*>();
        const auto checkedPresets = [&] {
            QStringList names;
            for (const auto* preset : presets)
                names += preset->isChecked() ? QStringList(preset->accessibleName()) : QStringList();
            return names.join(',');
        };
        QCOMPARE(checkedPresets(), QString("Full screen"));
        QVERIFY(QTest::qWaitForWindowActive(&recorder.view));
        // The shortcuts work without the presets too, for which a narrow window has no room.
        QVERIFY(!presets[0]->isVisible());
        QTest::keyClick(&recorder.view, Qt::Key_2, Qt::ControlModifier);
        QCOMPARE(recorder.model.CurrentRecordingMode(), RecorderModel::RecordingMode::Window);
        QCOMPARE(modes->CurrentIndex(), 1);
        QCOMPARE(checkedPresets(), QString("Window"));
        recorder.view.resize(1400, 640);
        for (int i = 0; i < 2; ++i) {
            QTest::mouseClick(presets[2], Qt::LeftButton);
            QCOMPARE(modes->accessibleName(), QString("Region"));
            QCOMPARE(checkedPresets(), QString("Region"));
        }
        modes->SetCurrentIndex(modes->Count() - 1);
        QCOMPARE(recorder.model.CurrentRecordingMode(), RecorderModel::RecordingMode::SoundOnly);
        QCOMPARE(checkedPresets(), QString());

        auto* color = recorder.view.findChild<Vx::ColorButton*>();
        color->SetColor(Qt::green);
        QCOMPARE(recorder.model.CurrentDrawingColor(), color->GetColor());
        auto* sound = recorder.view.findChild<QComboBox*>("clickSound");
        ChooseLikeAPerson(sound, 0);
        QCOMPARE(recorder.model.CurrentClickSound(), RecorderModel::ClickSound::None);
    }

    void tabReachesWhatShiftTabReaches_data()
    {
        QTest::addColumn<QString>("page");
        for (const char* page : {"Recorder", "Trimmer", "ZSlider", "ColorButton"})
            QTest::newRow(page) << page;
    }

    void tabReachesWhatShiftTabReaches()
    {
        QFETCH(QString, page);
        Browser browser;
        browser.gallery.OpenPage(page);
        QVERIFY(QTest::qWaitForWindowActive(&browser.gallery));
        const QStringList forwards = Support::NamesOnTheWay(browser.gallery, Qt::Key_Tab);
        QVERIFY2(!forwards.contains(QString()), qPrintable(forwards.join(", ")));
        QVERIFY2(forwards.contains("Search"), qPrintable(forwards.join(", ")));
        QStringList backwards = Support::NamesOnTheWay(browser.gallery, Qt::Key_Backtab);
        // Enabled only after a property had the focus, that is on the way back.
        backwards.removeAll("Copy");
        QCOMPARE(forwards.join(", "), backwards.join(", "));
    }

    void galleryHasOnePageAtATime()
    {
        Browser browser;
        GalleryWindow& gallery = browser.gallery;
        gallery.OpenPage("NoWidget");
        QVERIFY(!browser.Page());
        for (const QString& name : PageNames()) {
            gallery.OpenPage(name);
            QCOMPARE(gallery.findChildren<WidgetPage*>().size(), FindEntry(name) ? 1 : 0);
            QCOMPARE(gallery.findChildren<RecorderView*>().size(), name == RecorderPageName() ? 1 : 0);
            // A page without room scrolls.
            QCoreApplication::processEvents();
            gallery.resize(500, 250);
            QCOMPARE(gallery.size(), QSize(500, 250));
        }

        // The arrow keys walk over the headings of groups.
        QListWidget* list = browser.list;
        const QString last = PageNames().constLast();
        gallery.resize(900, 600);
        gallery.OpenPage(RecorderPageName());
        for (int i = 1; i < PageNames().size(); ++i)
            QTest::keyClick(list, Qt::Key_Down);
        QCOMPARE(list->currentItem()->text(), last);

        // In a narrow window the list leaves the room to the page, and its names to tool tips.
        const int fullWidth = list->width();
        gallery.resize(500, 600);
        QVERIFY(list->width() < fullWidth / 2);
        QCOMPARE(list->currentItem()->text() + list->currentItem()->toolTip(), last);
        gallery.resize(900, 600);
        QCOMPARE(list->width(), fullWidth);
        QCOMPARE(list->currentItem()->text(), last);
    }

    void searchLeavesTheHitsUnderTheirHeadings()
    {
        Browser browser;
        GalleryWindow& gallery = browser.gallery;
        QVERIFY(QTest::qWaitForWindowActive(&gallery));
        auto* search = gallery.findChild<QLineEdit*>("pageSearch");
        const auto shown = [&] {
            QStringList texts;
            for (int row = 0; row < browser.list->count(); ++row)
                texts +=
                    browser.list->item(row)->isHidden() ? QStringList() : QStringList(browser.list->item(row)->text());
            return texts;
        };
        const QStringList all = shown();
        // In a narrow window a search needs the names.
        for (const int width : {900, 500}) {
            gallery.resize(width, 600);
            QCOMPARE(search->isVisible(), width == 900);
            QTest::keyClick(&gallery, Qt::Key_F, Qt::ControlModifier);
            QTRY_VERIFY(search->hasFocus());
            QTest::keyClicks(search, "colorb");
            QCOMPARE(shown(), QStringList({"Buttons", "ColorButton"}));
            QTest::keyClick(search, Qt::Key_Return);
            QCOMPARE(browser.list->currentItem()->data(Qt::UserRole), QVariant("ColorButton"));
            QTest::keyClick(search, Qt::Key_Escape);
            if (width == 900)
                QCOMPARE(shown(), all);
        }
        QVERIFY(!search->isVisible());
    }

    void sceneChangesWhileAPageIsOpen()
    {
        Browser browser;
        GalleryWindow& gallery = browser.gallery;
        Translations translations;
        gallery.OpenPage("ColorButton");
        const auto caption = [&] { return browser.Page()->findChildren<StateCard*>().last()->accessibleName(); };
        browser.Page()->SelectState(2);
        connect(&browser.preferences, &Preferences::LanguageChanged, &gallery,
                [&](const QString& code) { QVERIFY(translations.Use(code)); });
        for (QAction* action : gallery.findChild<QToolButton*>("languageButton")->menu()->actions()) {
            if (action->text() == "Deutsch")
                action->trigger();
        }
        QTRY_COMPARE(caption(), QString("Deaktiviert"));
        QCOMPARE(browser.Page()->SelectedState(), 2);
        browser.preferences.SetLanguage("en");
        QTRY_COMPARE(caption(), QString("Disabled"));

        QSignalSpy restarts(&gallery, &GalleryWindow::RestartRequested);
        const auto scales = gallery.findChild<QToolButton*>("scaleButton")->menu()->actions();
        scales.first()->trigger();
        scales.last()->trigger();
        QCOMPARE(restarts, QList<QVariantList>({{2.0, "ColorButton"}}));

        const QPointer<WidgetPage> old = browser.Page();
        QApplication::setLayoutDirection(Qt::RightToLeft);
        QTRY_VERIFY(!old && browser.Page());
        QCOMPARE(browser.Page()->SelectedState(), 2);
        QApplication::setLayoutDirection(Qt::LeftToRight);
        QTRY_COMPARE(browser.Page()->layoutDirection(), Qt::LeftToRight);
    }

    void windowsFitTheScreen()
    {
        QWidget window;
        const QRect screen = window.screen()->availableGeometry();
        window.resize(200, 2 * screen.height());
        FitScreen(&window);
        QCOMPARE(window.width(), 200);
        QVERIFY(window.height() < screen.height() && window.height() > screen.height() / 2);
    }
};

VX_TEST_MAIN(tst_GalleryWindows)
#include "tst_GalleryWindows.moc"
