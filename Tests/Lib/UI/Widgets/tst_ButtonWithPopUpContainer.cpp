#include <UI/Widgets/ButtonWithPopUpContainer.h>
#include <UI/Widgets/PopUpPlacement.h>

#include <Support/LogCapture.h>
#include <Support/TestCase.h>

#include <QCheckBox>
#include <QLabel>

using namespace Zelkor::Vx::UI;
using namespace Zelkor::Vx::UI::PopUpPlacement;

namespace {

const QRect SCREEN(-1000, 500, 800, 600); // left of and below the primary screen
const QSize POP_UP(121, 83);              // odd, so that centres are rounded

QPoint Position(const Geometry& geometry, Anchor anchor, Direction direction, bool canOverlap)
{
    return FindPosition(geometry, {anchor, direction}, canOverlap,
                        [&](const QPoint& point) { return FitToScreen(SCREEN, geometry.popUp, point); });
}

QWidget* FixedSizeWidget(const QSize& size)
{
    auto* widget = new QWidget;
    widget->setFixedSize(size);
    return widget;
}

} // namespace

class tst_ButtonWithPopUpContainer : public Support::TestCase
{
    Q_OBJECT

    static QWidget* PopUpOf(const ButtonWithPopUpContainer& button)
    {
        return button.findChild<QWidget*>("popUpWindow");
    }

    static QPoint Below(const ButtonWithPopUpContainer& button)
    {
        return button.mapToGlobal(QPoint(0, button.height()));
    }

private Q_SLOTS:
    void growsFromItsAnchor_data()
    {
        QTest::addColumn<int>("anchor");
        QTest::addColumn<int>("direction");
        for (int i = 0; i < 36; ++i)
            QTest::addRow("anchor %d, direction %d", i / 6, i % 6) << i / 6 << i % 6;
    }

    void growsFromItsAnchor()
    {
        QFETCH(int, anchor);
        QFETCH(int, direction);
        const Geometry geometry{QRect(-600, 800, 41, 25), POP_UP, 7, 3};
        const QPoint popUp = Position(geometry, Anchor(anchor), Direction(direction), true);
        const int anchorX[] = {-600 - 7, -600 + 20, -600 + 41 + 7};
        const int widthLeftOfAnchor[] = {0, 60, 121};
        QCOMPARE(popUp.x() + widthLeftOfAnchor[direction % 3], anchorX[anchor % 3]);
        QCOMPARE(popUp.y() + (direction < 3 ? 0 : 83), anchor < 3 ? 800 - 3 : 800 + 25 + 3);
    }

    void mirrorsWhereItWouldCoverTheButton()
    {
        const auto position = [](const QPoint& button, Anchor anchor, Direction direction, int offset = 0) {
            return Position({QRect(button, QSize(41, 25)), POP_UP, offset, offset}, anchor, direction, false);
        };
        QCOMPARE(position({-620, 780}, Anchor::BottomLeft, Direction::DownRight), QPoint(-620, 805));
        QCOMPARE(position({-620, 1075}, Anchor::BottomLeft, Direction::DownRight), QPoint(-620, 992));
        QCOMPARE(position({-241, 780}, Anchor::TopRight, Direction::DownRight), QPoint(-362, 780));
        QCOMPARE(position({-620, 780}, Anchor::TopLeft, Direction::DownRight), QPoint(-620, 780)); // has no mirror
        for (const int offset : {INT_MIN, INT_MAX}) {
            const QPoint pushed = position({-1000, 500}, Anchor::TopLeft, Direction::UpLeft, offset);
            QVERIFY(SCREEN.contains(QRect(pushed, POP_UP)));
        }
        QCOMPARE(MirroredPlacements().size(), std::size_t(22));
        for (const auto& [placement, mirrored] : MirroredPlacements())
            QVERIFY(MirroredPlacements().at(mirrored) == placement);
    }

    void widgetsAreInsertedAndDeleted()
    {
        Support::LogCapture log;
        ButtonWithPopUpContainer button;
        QPointer<QWidget> first = new QWidget;
        auto* second = new QWidget;
        button.AppendWidget(second);
        button.InsertWidget(first, 0);
        button.AppendWidget(second); // moves to the end
        button.InsertWidget(new QWidget, 99);
        QCOMPARE(button.GetWidget(1), second);
        button.RemoveWidget(0);
        QTRY_VERIFY(!first);
        button.AppendWidget(nullptr);
        button.InsertWidget(nullptr, 2);
        button.RemoveWidget(2);
        const QString line("E Lib/UI/Widgets/ButtonWithPopUpContainer:%1 Zelkor::Vx::UI::ButtonWithPopUpContainer::%2");
        QCOMPARE(log.Take(),
                 QStringList(
                     {line.arg("273", "AppendWidget: widget is NULL"), line.arg("261", "InsertWidget: widget is NULL"),
                      line.arg("304", "GetWidget: item is NULL"), line.arg("290", "RemoveWidget: widget is NULL")}));
    }

    void checkedMirrorsThePopUp()
    {
        QWidget window;
        auto& button = *new ButtonWithPopUpContainer(&window);
        button.AppendWidget(FixedSizeWidget({120, 70}));
        window.show();
        QWidget* popUp = PopUpOf(button);
        QSignalSpy toggled(&button, &QAbstractButton::toggled);
        const auto isOpen = [&] {
            [&] { QCOMPARE(button.isChecked(), popUp->isVisible()); }();
            return popUp->isVisible();
        };
        QTest::mouseClick(&button, Qt::LeftButton);
        QVERIFY(isOpen());
        QCOMPARE(toggled.size(), 1);
        QCOMPARE(popUp->geometry(), QRect(Below(button), QSize(120, 70)));
        QTest::keyClick(popUp, Qt::Key_Escape);
        QVERIFY(!isOpen());
        button.SetShowPopupOnClick(false);
        button.click();
        QVERIFY(!isOpen());
        button.ShowPopup();
        QVERIFY(isOpen());
        window.hide();
        QVERIFY(!isOpen());
    }

    void openPanelFollowsItsButton()
    {
        QWidget window;
        window.setGeometry(300, 300, 200, 100);
        auto* page = new QWidget(&window);
        ButtonWithPopUpContainer button(page);
        window.show();
        button.ShowPopup();
        QCoreApplication::processEvents();
        page->move(30, 5);
        QCOMPARE(PopUpOf(button)->pos(), Below(button));
        button.resize(70, 50);
        QCOMPARE(PopUpOf(button)->pos(), Below(button));
        window.move(350, 280);
        QTRY_COMPARE(PopUpOf(button)->pos(), Below(button));
    }

    void openPanelFollowsItsContents()
    {
        ButtonWithPopUpContainer button;
        button.move(300, 400);
        button.SetPreferredPopupAnchor(ButtonWithPopUpContainer::ANCHOR_TOP_LEFT);
        button.SetPreferredPopupDirection(ButtonWithPopUpContainer::DIRECTION_UP_RIGHT);
        button.AppendWidget(FixedSizeWidget({60, 40}));
        button.show();
        button.ShowPopup();
        const QPoint corner = button.mapToGlobal(QPoint(0, 0));
        button.AppendWidget(FixedSizeWidget({90, 30}));
        QTRY_COMPARE(PopUpOf(button)->geometry(), QRect(corner - QPoint(0, 70), QSize(90, 70)));
        button.RemoveWidget(0);
        QTRY_COMPARE(PopUpOf(button)->geometry(), QRect(corner - QPoint(0, 30), QSize(90, 30)));
    }

    void panelOpenedByKeyTakesTheFocus()
    {
        ButtonWithPopUpContainer button;
        auto* check = new QCheckBox;
        button.AppendWidget(new QLabel);
        button.AppendWidget(check);
        button.show();
        QTest::keyClick(&button, Qt::Key_Down);
        QCOMPARE(PopUpOf(button)->focusWidget(), check);
        QTest::keyClick(PopUpOf(button)->windowHandle(), Qt::Key_Escape);
        QTest::mouseClick(&button, Qt::LeftButton);
        QVERIFY(button.isChecked());
        QVERIFY(!PopUpOf(button)->focusWidget());
    }
};

VX_TEST_MAIN(tst_ButtonWithPopUpContainer)
#include "tst_ButtonWithPopUpContainer.moc"
