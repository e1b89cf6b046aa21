#include <UI/Widgets/ButtonWithPopUpContainer.h>
#include <UI/Widgets/PopUpPlacement.h>

#include <Support/LogCapture.h>
#include <Support/TestCase.h>

#include <QAccessible>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QSignalSpy>

using namespace Zelkor::Vx::UI;
using namespace Zelkor::Vx::UI::PopUpPlacement;

namespace {

const QRect SCREEN(-1000, 500, 800, 600); // left of and below the primary screen
const QSize POP_UP(121, 83);              // odd, so that centres are rounded

QPoint Position(const Geometry& geometry, int anchor, int direction, bool canOverlap)
{
    return FindPosition(geometry, {Anchor(anchor), Direction(direction)}, canOverlap,
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

    static QPoint Below(const ButtonWithPopUpContainer& button) { return button.mapToGlobal({0, button.height()}); }

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
        const QPoint popUp = Position(geometry, anchor, direction, true);
        const int anchorX[] = {-600 - 7, -600 + 20, -600 + 41 + 7};
        const int widthLeftOfAnchor[] = {0, 60, 121};
        QCOMPARE(popUp.x() + widthLeftOfAnchor[direction % 3], anchorX[anchor % 3]);
        QCOMPARE(popUp.y() + (direction < 3 ? 0 : 83), anchor < 3 ? 800 - 3 : 800 + 25 + 3);
    }

    void mirrorsWhereItWouldCoverTheButton_data() { growsFromItsAnchor_data(); }

    // In the middle, at the edges and in the corners of the screen.
    void mirrorsWhereItWouldCoverTheButton()
    {
        QFETCH(int, anchor);
        QFETCH(int, direction);
        int otherAnchor = anchor;
        int otherDirection = direction;
        if ((anchor < 3) != (direction < 3)) { // above or below the button
            otherAnchor = (anchor + 3) % 6;
            otherDirection = (direction + 3) % 6;
        } else if (qAbs(anchor % 3 - direction % 3) == 2) { // beside the button
            otherAnchor += 2 - 2 * (anchor % 3);
            otherDirection += 2 - 2 * (direction % 3);
        }
        for (const QPoint& place : {QPoint(-1000, 500), QPoint(-620, 500), QPoint(-241, 500), QPoint(-1000, 780),
                                    QPoint(-620, 780), QPoint(-241, 780), QPoint(-1000, 1075), QPoint(-241, 1075)}) {
            const Geometry geometry{QRect(place, QSize(41, 25)), POP_UP, 0, 0};
            const auto covers = [&](const QPoint& point) { return geometry.button.intersects(QRect(point, POP_UP)); };
            const QPoint preferred = Position(geometry, anchor, direction, true);
            const QPoint other = Position(geometry, otherAnchor, otherDirection, true);
            const QPoint expected = covers(preferred) && !covers(other) ? other : preferred;
            QCOMPARE(Position(geometry, anchor, direction, false), expected);
            for (const int offset : {INT_MIN, INT_MAX}) {
                const QPoint pushed = Position({geometry.button, POP_UP, offset, offset}, anchor, direction, false);
                QVERIFY(SCREEN.contains(QRect(pushed, POP_UP)));
            }
        }
    }

    void widgetsAreInsertedAndDeleted()
    {
        Support::LogCapture log;
        ButtonWithPopUpContainer button;
        QPointer<QWidget> first = new QWidget;
        QWidget* second = new QWidget;
        button.AppendWidget(second);
        button.InsertWidget(first, 0);
        button.AppendWidget(second); // moves to the end
        button.InsertWidget(new QWidget, 99);
        QCOMPARE(button.GetWidget(1), second);
        QCOMPARE(button.WidgetsCount(), 3);
        button.RemoveWidget(0);
        QTRY_VERIFY(!first);
        QCOMPARE(log.Lines(), QStringList());

        button.AppendWidget(nullptr);
        button.InsertWidget(nullptr, 2);
        button.RemoveWidget(2);
        const QString line("E Lib/UI/Widgets/ButtonWithPopUpContainer:%1 Zelkor::Vx::UI::ButtonWithPopUpContainer::%2");
        QCOMPARE(log.Lines(),
                 QStringList(
                     {line.arg("273", "AppendWidget: widget is NULL"), line.arg("261", "InsertWidget: widget is NULL"),
                      line.arg("304", "GetWidget: item is NULL"), line.arg("290", "RemoveWidget: widget is NULL")}));
    }

    void parentsOfThePanelAreIgnored()
    {
        QWidget window;
        ButtonWithPopUpContainer button(&window);
        for (const char* function : {"Remove", "Append", "Insert"})
            ExpectWarning(QString("ButtonWithPopUpContainer::%1Widget: the widget holds the panel").arg(function));
        button.RemoveWidget(window.findChild<QWidget*>("popUpContainer"));
        button.AppendWidget(&window);
        button.InsertWidget(&button, 0);
        QCOMPARE(button.WidgetsCount(), 0);
    }

    void checkedMirrorsThePopUp()
    {
        QWidget window;
        auto& button = *new ButtonWithPopUpContainer(&window);
        button.AppendWidget(FixedSizeWidget({120, 70}));
        window.show();
        QWidget* popUp = PopUpOf(button);
        QSignalSpy toggled(&button, &QAbstractButton::toggled);
        const auto check = [&](bool isOpen) {
            QCOMPARE(popUp->isVisible(), isOpen);
            QCOMPARE(button.isChecked(), isOpen);
            QCOMPARE(bool(QAccessible::queryAccessibleInterface(&button)->state().expanded), isOpen);
        };
        QTest::mouseClick(&button, Qt::LeftButton);
        check(true);
        QCOMPARE(toggled.size(), 1);
        QVERIFY(!button.testAttribute(Qt::WA_UnderMouse));
        QCOMPARE(popUp->geometry(), QRect(Below(button), QSize(120, 70)));
        QTest::keyClick(popUp, Qt::Key_Escape);
        check(false);
        button.setLayoutDirection(Qt::RightToLeft);
        button.SetShowPopupOnClick(false);
        button.click();
        check(false);
        button.ShowPopup();
        check(true);
        QCOMPARE(popUp->layoutDirection(), Qt::RightToLeft);
        window.setEnabled(false);
        check(false);
        window.setEnabled(true);
        button.ShowPopup();
        window.hide();
        check(false);
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
        button.SetPopupVOffset(9); // takes effect when it opens next
        button.AppendWidget(FixedSizeWidget({90, 30}));
        QTRY_COMPARE(PopUpOf(button)->geometry(), QRect(corner - QPoint(0, 70), QSize(90, 70)));
        button.RemoveWidget(0);
        QTRY_COMPARE(PopUpOf(button)->geometry(), QRect(corner - QPoint(0, 30), QSize(90, 30)));
        PopUpOf(button)->hide();
        button.ShowPopup();
        QCOMPARE(PopUpOf(button)->pos(), corner - QPoint(0, 39));
    }

    void panelOpenedByKeyTakesTheFocus_data()
    {
        QTest::addColumn<QKeySequence>("keys");
        for (const char* keys : {"Space", "Down", "Alt+Down", "F4", "Menu"})
            QTest::newRow(keys) << QKeySequence(keys);
    }

    void panelOpenedByKeyTakesTheFocus()
    {
        QFETCH(QKeySequence, keys);
        ButtonWithPopUpContainer button;
        auto* box = new QGroupBox;
        auto* check = new QCheckBox(box);
        button.AppendWidget(new QLabel);
        button.AppendWidget(box);
        button.show();
        QTest::keySequence(&button, keys);
        QCOMPARE(PopUpOf(button)->focusWidget(), check);
        QTest::keyClick(PopUpOf(button)->windowHandle(), Qt::Key_Escape);
        QTest::mouseClick(&button, Qt::LeftButton);
        QVERIFY(button.isChecked());
        QVERIFY(!PopUpOf(button)->focusWidget());
    }
};

VX_TEST_MAIN(tst_ButtonWithPopUpContainer)
#include "tst_ButtonWithPopUpContainer.moc"
