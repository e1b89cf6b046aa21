#include <UI/Widgets/ButtonWithPopUpContainer.h>
#include <UI/Widgets/MaskedToolTip.h>

#include <Support/Sway.h>
#include <Support/TestCase.h>

namespace Sway = Support::Sway;
using Zelkor::Vx::UI::ButtonWithPopUpContainer;
using Zelkor::Vx::UI::MaskedToolTip;

namespace {

const QColor PANEL(255, 0, 255);
const QColor BUTTON(0, 255, 0);

/// A window with a button whose panel is a plain rectangle.
struct Scene
{
    explicit Scene(const QPoint& position = QPoint(500, 400))
    {
        window.setWindowTitle("Scene");
        window.setStyleSheet("QToolButton { background: #00ff00; border: 0 }");
        window.resize(300, 200);
        button.setGeometry(100, 80, 60, 30);
        content->setFixedSize(151, 91);
        content->setStyleSheet("background: #ff00ff");
        button.AppendWidget(content);
        window.show();
        QTRY_VERIFY(window.isActiveWindow());
        Sway::MoveWindow(window, position);
        QTRY_COMPARE(Sway::Find(BUTTON), QRect(position + button.pos(), button.size()));
    }

    void ClickButton() { Sway::Click(Sway::Find(BUTTON).center()); }

    QWidget window;
    ButtonWithPopUpContainer button{&window};
    QWidget* content = new QWidget;
};

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
                    << QRect(x[anchor % 3] - left, y[anchor / 3] - (direction < 3 ? 0 : 91), 151, 91);
            }
        }
    }
    void panelOpensAtItsPlacement()
    {
        QFETCH(const int, anchor);
        QFETCH(const int, direction);
        QFETCH(const QRect, expected);
        Scene scene;
        scene.button.SetPreferredPopupAnchor(ButtonWithPopUpContainer::PreferredPopupAnchor(anchor));
        scene.button.SetPreferredPopupDirection(ButtonWithPopUpContainer::PreferredPopupDirection(direction));
        scene.ClickButton();
        QTRY_COMPARE(Sway::Find(PANEL), expected);
        QVERIFY(scene.button.isChecked());
    }
};

VX_TEST_MAIN(tst_Wayland)
#include "tst_Wayland.moc"
