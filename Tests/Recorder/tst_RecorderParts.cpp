#include <Gallery/AudioPanel.h>
#include <Gallery/FirstHint.h>
#include <Gallery/Snapshot.h>
#include <Gallery/StyleSheet.h>

#include <Support/TestCase.h>

#include <UI/Widgets/MaskedToolTip.h>
#include <UI/Widgets/VolumeSlider.h>

#include <Zelkor/StandIn/CaptureEngine.h>

#include <QPushButton>

#include <memory>

using namespace Zelkor;
using namespace Zelkor::Gallery;
using namespace std::chrono_literals;

class tst_RecorderParts : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QString error;
        ApplyStyleSheet(LoadStyleSheet("dark", error).value());
    }

    void levelsMoveWhileThePanelShows()
    {
        auto panel = std::make_unique<AudioPanel>();
        panel->show();
        const auto sliders = panel->findChildren<Vx::VolumeSlider*>();
        QCOMPARE(sliders.size(), 2);
        sliders[1]->setValue(30);
        const QImage silent = sliders[1]->grab().toImage();
        QTRY_VERIFY(sliders[1]->grab().toImage() != silent);
        // A level moves no handle.
        QCOMPARE(sliders[1]->value(), 30);
        panel->hide();
        QVERIFY(StandIn::WaitForEngineIdle(20s));
        QCOMPARE(sliders[1]->grab().toImage(), silent);
        panel->show();
        panel.reset();
        QVERIFY(StandIn::WaitForEngineIdle(20s));
    }

    void snapshotShowsTheMiddleInTheCorner()
    {
        QWidget window;
        window.resize(400, 300);
        QWidget source(&window);
        source.setGeometry(20, 10, 300, 200);
        source.setStyleSheet("background: red");
        Snapshot snapshot(&source);
        window.show();
        const auto colorIn = [&](const QPoint& point) { return window.grab().toImage().pixelColor(point); };
        QTRY_COMPARE(colorIn(snapshot.geometry().center()), QColor(Qt::red));
        QVERIFY(source.geometry().contains(snapshot.geometry()));
        source.setStyleSheet("background: blue");
        QTRY_COMPARE(colorIn(snapshot.geometry().center()), QColor(Qt::blue));
        source.resize(200, 150);
        QVERIFY(source.geometry().contains(snapshot.geometry()));
        QVERIFY(snapshot.geometry().left() > source.geometry().center().x());
    }

    void hintGoesWithTheButtonOrItsWindow()
    {
        auto window = std::make_unique<QWidget>();
        QPushButton button(window.get());
        window->show();
        ShowSourceHint(&button);
        const auto hint = [&] { return window->findChild<Vx::UI::MaskedToolTip*>(); };
        QVERIFY(hint() && hint()->isVisible() && !hint()->mask().isEmpty());
        QTest::mouseClick(&button, Qt::LeftButton);
        QTRY_VERIFY(!hint());
        ShowSourceHint(&button);
        QVERIFY(hint()->isVisible());
        button.setParent(nullptr);
        window.reset();
        button.click();
    }
};

VX_TEST_MAIN(tst_RecorderParts)
#include "tst_RecorderParts.moc"
