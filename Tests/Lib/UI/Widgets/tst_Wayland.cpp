#include <UI/Kit/ZComboBox.h>
#include <UI/Kit/ZSliderButton.h>
#include <UI/Kit/ZWindowChrome.h>
#include <UI/Widgets/ButtonWithPopUpContainer.h>
#include <UI/Widgets/ButtonWithPopUpList.h>
#include <UI/Widgets/ColorButton.h>
#include <UI/Widgets/MaskedToolTip.h>
#include <UI/Widgets/VolumeSlider.h>

#include <Support/ModalWatcher.h>
#include <Support/Sway.h>
#include <Support/TestCase.h>

#include <QAbstractItemView>
#include <QLibraryInfo>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QVersionNumber>
#include <QWindow>

namespace Sway = Support::Sway;
using Zelkor::Vx::UI::ButtonWithPopUpContainer;
using Zelkor::Vx::UI::MaskedToolTip;

namespace {

const QColor POPUP(255, 0, 255);
const QColor WINDOW(0, 255, 0);
constexpr QSize PANEL_SIZE(151, 91);

/// A window with a widget that opens a pop-up, both in plain colours.
template<class Button>
struct Scene
{
    explicit Scene(const QPoint& position = QPoint(500, 400)) : position(position)
    {
        window.setWindowTitle("Scene");
        window.setStyleSheet(
            "#window { background: #00ff00 }"
            "#sliderFrame, #sliderFrame QSlider { background: #ff00ff; border: 0 } QSlider::handle { background: "
            "#ff00ff }"
            "QMenu, QMenu::item, QAbstractItemView { background: #ff00ff; color: #ff00ff; border: 0; padding: 20px }");
        window.resize(300, 200);
        window.setObjectName("window");
        button.setGeometry(100, 80, 60, 30);
        Show();
    }

    void Show()
    {
        window.show();
        QTRY_VERIFY(window.isActiveWindow());
        Sway::MoveWindow(window, position);
        QTRY_COMPARE(Find(WINDOW).center(), QRect(position, window.size()).center());
    }

    QPoint Center() const { return position + QPoint(130, 95); }

    QRect Find(const QColor& color) const
    {
        constexpr int AROUND = 130;
        return Sway::Find(color, QRect(position, window.size()).adjusted(-AROUND, -AROUND, AROUND, AROUND));
    }

    // An edge on a fraction of a device pixel is found one pixel away.
    bool Shows(const QRect& popUp) const
    {
        const QRect found = Find(POPUP);
        return found.contains(popUp.adjusted(2, 2, -2, -2)) && popUp.adjusted(-2, -2, 2, 2).contains(found);
    }

    QPoint position;
    QWidget window;
    Button button{&window};
};

struct PanelScene : Scene<ButtonWithPopUpContainer>
{
    explicit PanelScene(const QPoint& position = QPoint(500, 400)) : Scene(position)
    {
        content->setFixedSize(PANEL_SIZE);
        content->setStyleSheet("background: #ff00ff");
        button.AppendWidget(content);
    }

    QWidget* content = new QWidget;
};

void SetPlacement(ButtonWithPopUpContainer& button, int anchor, int direction)
{
    button.SetPreferredPopupAnchor(ButtonWithPopUpContainer::PreferredPopupAnchor(anchor));
    button.SetPreferredPopupDirection(ButtonWithPopUpContainer::PreferredPopupDirection(direction));
}

/// A hint in the colour of pop-ups.
void ShowHint(MaskedToolTip& hint, const QPoint& global)
{
    hint.setStyleSheet("#MaskedToolTip { background: #ff00ff }");
    hint.setFixedSize(80, 40);
    hint.Show(global);
}

} // namespace

/// Needs the compositor of tools/with-wayland.
class tst_Wayland : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void panelOpensAtItsPlacement_data()
    {
        QTest::addColumn<int>("anchor");
        QTest::addColumn<int>("direction");
        QTest::addColumn<QRect>("expected");
        const int x[] = {600, 630, 660};
        const int y[] = {480, 510};
        for (int anchor = 0; anchor < 6; ++anchor) {
            for (int direction = 0; direction < 6; ++direction) {
                const int left = direction % 3 == 0 ? 0 : direction % 3 == 1 ? 75 : 151;
                QTest::addRow("anchor %d, direction %d", anchor, direction)
                    << anchor << direction
                    << QRect(QPoint(x[anchor % 3] - left, y[anchor / 3] - (direction < 3 ? 0 : 91)), PANEL_SIZE);
            }
        }
    }
    void panelOpensAtItsPlacement()
    {
        QFETCH(const int, anchor);
        QFETCH(const int, direction);
        QFETCH(const QRect, expected);
        PanelScene scene;
        SetPlacement(scene.button, anchor, direction);
        Sway::Click(scene.Center());
        QTRY_COMPARE(scene.Find(POPUP), expected);
        QVERIFY(scene.button.isChecked());
    }

    void panelWithoutRoomFlipsOrSlides_data()
    {
        if (QLibraryInfo::version() < QVersionNumber(6, 8))
            QSKIP("This version of Qt does not pass on where a pop-up may move");
        using Button = ButtonWithPopUpContainer;
        QTest::addColumn<int>("anchor");
        QTest::addColumn<int>("direction");
        QTest::addColumn<bool>("canOverlap");
        QTest::addColumn<QPoint>("window");
        QTest::addColumn<QPoint>("panel");
        const auto row = [](const char* name, int anchor, int direction, bool canOverlap, QPoint window, QPoint panel) {
            QTest::newRow(name) << anchor << direction << canOverlap << window << panel;
        };
        row("flips up", Button::ANCHOR_BOTTOM_LEFT, Button::DIRECTION_DOWN_RIGHT, false, {500, 800}, {600, 789});
        row("flips left", Button::ANCHOR_TOP_RIGHT, Button::DIRECTION_DOWN_RIGHT, false, {1050, 400}, {999, 480});
        row("slides left below", Button::ANCHOR_BOTTOM_LEFT, Button::DIRECTION_DOWN_RIGHT, false, {1100, 400},
            {1129, 510});
        row("slides over the button", Button::ANCHOR_BOTTOM_LEFT, Button::DIRECTION_DOWN_RIGHT, true, {500, 800},
            {600, 909});
    }
    void panelWithoutRoomFlipsOrSlides()
    {
        QFETCH(const int, anchor);
        QFETCH(const int, direction);
        QFETCH(const bool, canOverlap);
        QFETCH(const QPoint, window);
        QFETCH(const QPoint, panel);
        PanelScene scene(window);
        SetPlacement(scene.button, anchor, direction);
        scene.button.SetPopupCanOverlapButton(canOverlap);
        Sway::Click(scene.Center());
        QTRY_COMPARE(scene.Find(POPUP), QRect(panel, PANEL_SIZE));
    }

    void panelThatGrowsKeepsOffTheButton()
    {
        PanelScene scene;
        SetPlacement(scene.button, ButtonWithPopUpContainer::ANCHOR_TOP_LEFT,
                     ButtonWithPopUpContainer::DIRECTION_UP_RIGHT);
        Sway::Click(scene.Center());
        QTRY_COMPARE(scene.Find(POPUP), QRect(600, 389, 151, 91));
        scene.content->setFixedSize(160, 120);
        QTRY_COMPARE(scene.Find(POPUP), QRect(600, 360, 160, 120));
        QVERIFY(scene.button.isChecked());
    }

    void panelOpensAndClosesByMouseAndKeys()
    {
        PanelScene scene;
        const QPoint center = scene.Center();
        const auto opens = [&](const char* how, bool isOpen) {
            QTRY_VERIFY2(scene.Find(POPUP).isValid() == isOpen, how);
            QVERIFY2(scene.button.isChecked() == isOpen, how);
        };
        Sway::Click(center);
        opens("click on the button", true);
        Sway::Click(center);
        opens("second click", false);
        Sway::Click(center);
        opens("third click", true);
        Sway::Click(QPoint(510, 410));
        opens("click into the window", false);
        scene.button.setFocus();
        Sway::Key("F4");
        opens("F4", true);
        Sway::Key("Escape");
        opens("Escape", false);
    }

    void hintFollowsItsWindowAndLeavesItActive()
    {
        Scene<QPushButton> scene;
        MaskedToolTip hint(&scene.window);
        ShowHint(hint, scene.button.mapToGlobal(QPoint(0, -50)));
        QTRY_COMPARE(scene.Find(POPUP), QRect(600, 430, 80, 40));
        QVERIFY(scene.window.isActiveWindow());
        scene.position = QPoint(20, 30);
        Sway::MoveWindow(scene.window, scene.position);
        QTRY_COMPARE(scene.Find(POPUP), QRect(120, 60, 80, 40));
        QWidget other;
        other.show();
        QTRY_VERIFY(other.isActiveWindow());
        QTRY_VERIFY(!hint.isVisible());
    }

    void hintTakesTheShapeOfItsImage()
    {
        Scene<QPushButton> scene;
        MaskedToolTip hint(&scene.window);
        QImage shape(80, 40, QImage::Format_ARGB32);
        shape.fill(0);
        QPainter(&shape).fillRect(10, 5, 60, 30, Qt::white);
        hint.SetMask(shape);
        ShowHint(hint, scene.button.mapToGlobal(QPoint(0, -50)));
        QTRY_COMPARE(scene.Find(POPUP), QRect(610, 435, 60, 30));
    }

    void dragMovesOrResizesTheWindow_data()
    {
        QTest::addColumn<QPoint>("from");
        QTest::addColumn<QRect>("change");
        QTest::newRow("left") << QPoint(2, 100) << QRect(20, 0, -20, 0);
        QTest::newRow("right") << QPoint(297, 100) << QRect(0, 0, 20, 0);
        QTest::newRow("top") << QPoint(150, 2) << QRect(0, 10, 0, -10);
        QTest::newRow("bottom") << QPoint(150, 197) << QRect(0, 0, 0, 10);
        QTest::newRow("top left") << QPoint(2, 2) << QRect(20, 10, -20, -10);
        QTest::newRow("top right") << QPoint(297, 2) << QRect(0, 10, 20, -10);
        QTest::newRow("bottom left") << QPoint(2, 197) << QRect(20, 0, -20, 10);
        QTest::newRow("bottom right") << QPoint(297, 197) << QRect(0, 0, 20, 10);
        QTest::newRow("title bar") << QPoint(150, 20) << QRect(20, 10, 0, 0);
    }

    void dragMovesOrResizesTheWindow()
    {
        QFETCH(QPoint, from);
        QFETCH(QRect, change);
        Scene<QPushButton> scene;
        scene.window.setWindowFlag(Qt::FramelessWindowHint);
        QWidget bar(&scene.window);
        bar.setGeometry(0, 0, 300, 40);
        (new ZWindowChrome(&scene.window))->setTitleBar(&bar);
        scene.Show();
        Sway::MovePointer(scene.position + from);
        const QWidget* handle = scene.window.childAt(from);
        QTRY_VERIFY(handle->underMouse());
        Sway::SetPressed(true);
        // A move begins with the first motion; then the compositor takes the pointer.
        Sway::MovePointerBy(handle == &bar ? QPoint(1, 0) : QPoint());
        QTRY_VERIFY(!scene.window.underMouse());
        Sway::MovePointerBy(QPoint(20, 10));
        const QRect expected(scene.position + change.topLeft(), QSize(300, 200) + change.size());
        QTRY_COMPARE(scene.Find(WINDOW), expected);
        Sway::SetPressed(false);
        Sway::MovePointer(expected.topLeft() + QPoint(110, 90));
        QTRY_VERIFY(scene.button.underMouse());
    }

    void colourDialogBelongsToItsWindow()
    {
        Scene<Zelkor::Vx::ColorButton> scene;
        const QWindow* parent = nullptr;
        const Support::ModalWatcher watcher([&parent](QWidget* dialog) {
            parent = dialog->windowHandle()->transientParent();
            dialog->close();
        });
        scene.button.click();
        QCOMPARE(parent, scene.window.windowHandle());
    }

    void initTestCase() { Sway::Command("create_output"); }

    void popUpsOpenBesideTheirWidget_data()
    {
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("second");
        QTest::addColumn<QPoint>("position");
        QTest::newRow("right output") << "0 0"
                                      << "1280 0 scale 1" << QPoint(1500, 300);
        QTest::newRow("left output") << "1024 0"
                                     << "0 0 scale 1" << QPoint(200, 300);
        QTest::newRow("upper output") << "0 768"
                                      << "0 0 scale 1" << QPoint(300, 200);
        QTest::newRow("scale 2") << "0 0"
                                 << "1280 0 scale 2" << QPoint(1300, 50);
        QTest::newRow("scale 1.5") << "0 0"
                                   << "1280 0 scale 1.5" << QPoint(1300, 100);
    }
    void popUpsOpenBesideTheirWidget()
    {
        QFETCH(const QString, first);
        QFETCH(const QString, second);
        QFETCH(const QPoint, position);
        Sway::Command("output HEADLESS-1 position " + first + "; output HEADLESS-2 resolution 1024x768 position " +
                      second);
        QTRY_COMPARE(QGuiApplication::screens().size(), 2);
        AllowWarnings("The cached device pixel ratio value was stale"); // a fault of Qt 6.8
        const QRect opener(position + QPoint(100, 80), QSize(60, 30));
        {
            PanelScene scene(position);
            Sway::Click(scene.Center());
            QTRY_VERIFY(scene.Shows(QRect(opener.bottomLeft() + QPoint(0, 1), PANEL_SIZE)));
        }
        {
            Scene<QPushButton> scene(position);
            MaskedToolTip hint(&scene.window);
            ShowHint(hint, scene.button.mapToGlobal(QPoint(0, -50)));
            QTRY_VERIFY(scene.Shows(QRect(opener.topLeft() - QPoint(0, 50), QSize(80, 40))));
        }
        {
            Scene<Zelkor::Vx::ButtonWithPopUpList> scene(position);
            scene.button.AppendItem("Item", {});
            bool isShown = false;
            const Support::ModalWatcher watcher([&](QWidget* menu) {
                const QRect place(opener.bottomLeft() + QPoint(0, 1), menu->size());
                isShown = QTest::qWaitFor([&] { return scene.Shows(place); });
                menu->close();
            });
            Sway::Click(opener.topRight() + QPoint(-4, 15));
            QTRY_VERIFY(isShown);
        }
        {
            Scene<ZComboBox> scene(position);
            scene.button.addItem("A list that is wider than its box");
            Sway::Click(scene.Center());
            QTRY_VERIFY(scene.button.view()->isVisible());
            QTRY_VERIFY(scene.Find(POPUP).intersects(opener.adjusted(-2, -2, 2, 2)));
        }
        {
            Scene<ZSliderButton> scene(position);
            scene.button.setOnTop(true);
            scene.button.setSliderHeight(50);
            Sway::Click(scene.Center());
            QTRY_VERIFY(scene.Shows(QRect(opener.topLeft() - QPoint(0, 50), QSize(scene.button.width(), 50))));
        }
        {
            Scene<Zelkor::Vx::VolumeSlider> scene(position);
            qApp->setStyleSheet("QToolTip { background: #ff00ff; color: #ff00ff; border: 0; padding: 20px }");
            scene.button.setValue(40);
            QTRY_VERIFY(scene.Find(POPUP).intersects(opener.adjusted(-30, -30, 30, 30)));
            qApp->setStyleSheet({});
        }
    }
};

VX_TEST_MAIN(tst_Wayland)
#include "tst_Wayland.moc"
