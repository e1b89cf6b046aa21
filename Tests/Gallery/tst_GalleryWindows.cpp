#include <Gallery/Catalogue.h>
#include <Gallery/GalleryWindow.h>
#include <Gallery/RecorderModel.h>
#include <Gallery/RecorderView.h>
#include <Gallery/StyleSheet.h>
#include <Gallery/WidgetPage.h>

#include <Support/TestCase.h>

#include <UI/Widgets/ButtonWithPopUpContainer.h>
#include <UI/Widgets/VideoPreviewWidget.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QListWidget>
#include <QSignalSpy>

using namespace Zelkor;
using namespace Zelkor::Gallery;

namespace {

constexpr int LONG_TIME = 10000; ///< milliseconds; the stream gives a device seven tries, 200 ms apart

/// A camera that is always in use by somebody else.
class BusyCamera : public StandIn::CaptureDevice
{
public:
    BusyCamera() : CaptureDevice(Kind::Camera, "busy", "Busy camera", {MakeMode()}) {}
    std::unique_ptr<StandIn::CaptureSource> CreateSource(const StandIn::VideoMode&) const override { return nullptr; }

private:
    static boost::intrusive_ptr<StandIn::VideoMode> MakeMode()
    {
        StandIn::FrameFormat format;
        format.width = 640;
        format.height = 480;
        return new StandIn::VideoMode("640×480", format, {{30, 1}});
    }
};

QImage PictureOf(RecorderView& view)
{
    return view.findChild<Vx::UI::VideoPreviewWidget*>()->grab().toImage();
}

} // namespace

class tst_GalleryWindows : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QString error;
        const auto sheet = LoadStyleSheet("dark", error);
        QVERIFY2(sheet, qPrintable(error));
        ApplyStyleSheet(*sheet);
    }

    void busyCameraGivesTheMessageAndAnotherDeviceTakesItAway()
    {
        RecorderModel model;
        const auto test = StandIn::CreateTestPictureDevice();
        model.SetDevices({RecorderModel::Device(new BusyCamera), test});
        Embedded<RecorderView> view(&model, RecorderView::Role::Window);
        auto* banner = view->findChild<QWidget*>("errorBanner");
        auto* runButton = view->findChild<QAbstractButton*>("runButton");
        QVERIFY(!banner->isVisible());
        QCOMPARE(runButton->accessibleName(), QString("Stop"));
        QTRY_VERIFY_WITH_TIMEOUT(banner->isVisible(), LONG_TIME);
        QCOMPARE(runButton->accessibleName(), QString("Start"));
        const QImage idle = PictureOf(*view);

        auto* devices = view->findChild<QComboBox*>("deviceCombo");
        QCOMPARE(devices->currentText(), QString("Busy camera"));
        devices->setCurrentIndex(1);
        Q_EMIT devices->activated(1);
        QVERIFY(!banner->isVisible());
        QCOMPARE(runButton->accessibleName(), QString("Stop"));
        QTRY_VERIFY_WITH_TIMEOUT(PictureOf(*view) != idle, LONG_TIME);

        runButton->click();
        QCOMPARE(model.GetStatus(), RecorderModel::Status::Stopped);
        QCOMPARE(PictureOf(*view), idle);
    }

    void choicesTakeEffectWhileThePictureRuns()
    {
        RecorderModel model;
        model.SetDevices({StandIn::CreateTestPictureDevice()});
        Embedded<RecorderView> view(&model, RecorderView::Role::Page);
        const QImage before = PictureOf(*view);
        QTRY_VERIFY_WITH_TIMEOUT(PictureOf(*view) != before, LONG_TIME);
        for (const char* name : {"modeCombo", "frameRateCombo"}) {
            auto* combo = view->findChild<QComboBox*>(name);
            QVERIFY2(combo->count() > 1, name);
            const int other = combo->currentIndex() == 0 ? 1 : 0;
            combo->setCurrentIndex(other);
            Q_EMIT combo->activated(other);
            QCOMPARE(combo->currentIndex(), other);
            const QImage frame = PictureOf(*view);
            QTRY_VERIFY_WITH_TIMEOUT(PictureOf(*view) != frame, LONG_TIME);
        }
        QCOMPARE(model.GetStatus(), RecorderModel::Status::Running);

        model.SetDevices({});
        QVERIFY(view->findChild<QComboBox*>("deviceCombo")->currentText().contains("not connected"));
    }

    void pictureKeepsItsShapeAtAnySize()
    {
        RecorderModel model;
        model.Stop();
        model.SetDevices({StandIn::CreateTestPictureDevice()});
        Embedded<RecorderView> view(&model, RecorderView::Role::Page);
        auto* preview = view->findChild<Vx::UI::VideoPreviewWidget*>();
        for (const QSize& size : {QSize(400, 700), QSize(1600, 500), QSize(900, 640)}) {
            view->resize(size);
            QCoreApplication::processEvents();
            QVERIFY(qAbs(preview->width() * 9 - preview->height() * 16) <= 16 * 9);
            const QRect stage = preview->parentWidget()->contentsRect();
            QVERIFY(stage.contains(preview->geometry()));
            QVERIFY(preview->width() == stage.width() || preview->height() == stage.height());
            // What says that there is no picture is in the middle of the place as it is now.
            QCOMPARE(preview->GetDefaultImage().size(), preview->size());
        }
    }

    void keyboardReachesEverythingThatHasAName()
    {
        RecorderModel model;
        model.SetDevices({StandIn::CreateTestPictureDevice()});
        Embedded<RecorderView> view(&model, RecorderView::Role::Window);
        QStringList names;
        QWidget* start = view->findChild<QWidget*>("runButton");
        QWidget* widget = start;
        do {
            if ((widget->focusPolicy() & Qt::TabFocus) && widget->isVisible()) {
                QVERIFY2(!widget->accessibleName().isEmpty(), widget->metaObject()->className());
                names.append(widget->accessibleName());
            }
            widget = widget->nextInFocusChain();
        } while (widget != start);
        QCOMPARE(names, QStringList({"Stop", "Widgets…", "Source", "Settings of the device"}));

        QSignalSpy widgets(view.operator->(), &RecorderView::WidgetsRequested);
        for (auto* button : view->findChildren<QAbstractButton*>()) {
            if (button->accessibleName() == "Widgets…")
                QTest::keyClick(button, Qt::Key_Space);
        }
        QCOMPARE(widgets.size(), 1);
    }

    void hiddenRecorderLetsGoOfTheDevice()
    {
        RecorderModel model;
        model.SetDevices({StandIn::CreateTestPictureDevice()});
        Embedded<RecorderView> view(&model, RecorderView::Role::Page);
        const QImage before = PictureOf(*view);
        QTRY_VERIFY_WITH_TIMEOUT(PictureOf(*view) != before, LONG_TIME);
        view->hide();
        QCOMPARE(PictureOf(*view), before);
        model.ChooseFrameRate(model.FrameRates().constFirst());
        QCOMPARE(PictureOf(*view), before);
        QCOMPARE(model.GetStatus(), RecorderModel::Status::Running);
        view->show();
        QTRY_VERIFY_WITH_TIMEOUT(PictureOf(*view) != before, LONG_TIME);
    }

    void galleryHasOnePageAtATime()
    {
        RecorderModel model;
        model.SetDevices({StandIn::CreateTestPictureDevice()});
        Embedded<GalleryWindow> gallery(&model);
        gallery->OpenPage("NoWidget");
        QVERIFY(!gallery->findChild<WidgetPage*>());
        for (const QString& name : PageNames()) {
            gallery->OpenPage(name);
            const bool isRecorder = name == RecorderPageName();
            QCOMPARE(gallery->findChildren<WidgetPage*>().size(), isRecorder ? 0 : 1);
            QCOMPARE(gallery->findChildren<RecorderView*>().size(), isRecorder ? 1 : 0);
        }

        // The arrow keys walk over the headings of groups.
        auto* list = gallery->findChild<QListWidget*>();
        gallery->OpenPage(RecorderPageName());
        for (int i = 1; i < PageNames().size(); ++i)
            QTest::keyClick(list, Qt::Key_Down);
        QCOMPARE(list->currentItem()->text(), PageNames().constLast());

        // In a narrow window the list leaves the room to the page, and its names to tool tips.
        const int fullWidth = list->width();
        gallery->resize(500, 600);
        QCoreApplication::processEvents();
        QVERIFY(list->width() < fullWidth / 2);
        QCOMPARE(list->currentItem()->toolTip(), PageNames().constLast());
        gallery->resize(900, 600);
        QCoreApplication::processEvents();
        QCOMPARE(list->width(), fullWidth);
        QCOMPARE(list->currentItem()->text(), PageNames().constLast());
    }

private:
    /// A window under test as the child of a plain one, which makes no demands on the window system.
    template<class Widget>
    class Embedded
    {
    public:
        template<class... Arguments>
        explicit Embedded(Arguments... arguments) : widget(new Widget(arguments..., &window))
        {
            widget->resize(widget->sizeHint().expandedTo({900, 600}));
            window.resize(widget->size());
            window.show();
        }

        Widget* operator->() const { return widget; }
        Widget& operator*() const { return *widget; }

    private:
        QWidget window;
        Widget* widget;
    };
};

VX_TEST_MAIN(tst_GalleryWindows)
#include "tst_GalleryWindows.moc"
