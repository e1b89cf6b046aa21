#include <UI/Widgets/ButtonWithPopUpContainer.h>
#include <UI/Widgets/PopUpPlacement.h>

#include <Support/LogCapture.h>
#include <Support/TestCase.h>

#include <QAccessible>
#include <QBoxLayout>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>

#include <functional>

using namespace Zelkor::Vx::UI;
using namespace Zelkor::Vx::UI::PopUpPlacement;

using Use = std::function<void(ButtonWithPopUpContainer*)>;
Q_DECLARE_METATYPE(std::function<void(QWidget*)>)
Q_DECLARE_METATYPE(Use)

namespace {

const QRect SCREEN(-1000, 500, 800, 600); // left of and below the main screen
const QSize POP_UP(121, 83);              // odd, so that a centre is rounded
constexpr int PLACEMENTS = 36;            // left, centre and right of top and bottom; the same of down and up

// What grows away from the button is put from its bottom to its top, or back; what lies beside it at a corner, from
// right to left. Others, which lie on the button, have no other side.
int OtherSideOf(int number)
{
    const int anchor = number / 6;
    const int direction = number % 6;
    if ((anchor < 3) != (direction < 3))
        return (anchor + 3) % 6 * 6 + (direction + 3) % 6;
    const bool isBeside = qAbs(anchor % 3 - direction % 3) == 2;
    return isBeside ? (anchor + 2 - 2 * (anchor % 3)) * 6 + direction + 2 - 2 * (direction % 3) : number;
}

void Click(ButtonWithPopUpContainer* button)
{
    button->click();
}

void ShowPopup(ButtonWithPopUpContainer* button)
{
    button->ShowPopup();
}

QPoint Position(const Geometry& scene, const Placement& placement, bool canOverlap)
{
    return FindPosition(scene, placement, canOverlap,
                        [&](const QPoint& point) { return FitToScreen(SCREEN, scene.popUp, point); });
}

} // namespace

class tst_ButtonWithPopUpContainer : public Support::TestCase
{
    Q_OBJECT

    static Placement PlacementOf(int number) { return {Anchor(number / 6), Direction(number % 6)}; }

private Q_SLOTS:
    // In the middle of the screen the named side of the pop-up lies on the named point of the button.
    void growsFromItsAnchor()
    {
        const Geometry scene{QRect(-600, 800, 41, 25), POP_UP, 7, 3};
        for (int i = 0; i < PLACEMENTS; ++i) {
            InRow(QString::number(i));
            const int anchor = i / 6;
            const int direction = i % 6;
            const QPoint popUp = Position(scene, PlacementOf(i), true);
            const int across[] = {-600 - 7, -600 + 20, -600 + 41 + 7};
            const int rightToLeft[] = {0, 60, 121};
            QCOMPARE(popUp.x() + rightToLeft[direction % 3], across[anchor % 3]);
            QCOMPARE(popUp.y() + (direction < 3 ? 0 : 83), anchor < 3 ? 800 - 3 : 800 + 25 + 3);
        }
    }

    // At each edge and corner, over all placements.
    void mirrorsWhereItWouldCoverTheButton()
    {
        int mirrored = 0;
        for (int i = 0; i < 9 * PLACEMENTS; ++i) {
            InRow(QString("place %1, placement %2").arg(i / PLACEMENTS).arg(i % PLACEMENTS));
            const int x[] = {-1000, -620, -241};
            const int y[] = {500, 780, 1075};
            const Geometry scene{QRect(x[i / PLACEMENTS % 3], y[i / PLACEMENTS / 3], 41, 25), POP_UP, 0, 0};
            const auto covers = [&](const QPoint& point) { return scene.button.intersects(QRect(point, POP_UP)); };
            const Placement placement = PlacementOf(i % PLACEMENTS);
            const QPoint preferred = Position(scene, placement, true);
            const QPoint other = Position(scene, PlacementOf(OtherSideOf(i % PLACEMENTS)), true);
            const QPoint expected = covers(preferred) && !covers(other) ? other : preferred;
            QCOMPARE(Position(scene, placement, false), expected);
            mirrored += expected != preferred;
            for (const int offset : {INT_MIN, 0, INT_MAX}) {
                const QPoint pushed = Position({scene.button, POP_UP, offset, offset}, placement, false);
                QVERIFY(SCREEN.contains(QRect(pushed, POP_UP)));
            }
        }
        QVERIFY2(mirrored > 20, qPrintable(QString::number(mirrored)));
    }

    void edges()
    {
        using Row = std::tuple<const char*, QRect, QSize, int, int, bool, QPoint>;
        const QRect inside(-600, 700, 40, 30);
        const QRect bottom(-600, 1070, 40, 30);
        const std::vector<Row> rows{
            {"bottom, may overlap: one pixel stays free", bottom, {100, 50}, 3, 0, true, {-600, 1099 - 50}},
            {"bottom, must not overlap: above", bottom, {100, 50}, 3, 0, false, {-600, 1020}},
            {"right: one pixel stays free", {-220, 700, 20, 20}, {100, 50}, 3, 0, true, {-201 - 100, 720}},
            {"wider than the screen", inside, {900, 50}, 3, 0, true, {-1000, 730}},
            {"no room either way: the preferred place", inside, {100, 590}, 3, 0, false, {-600, 509}},
            {"on the button itself there is no other side", inside, {100, 50}, 0, 0, false, {-600, 700}},
            {"values outside the enumerations", inside, {100, 50}, 17, -4, false, {-600, 730}},
            {"empty pop-up covers nothing", inside, {0, 0}, 0, 0, false, {-600, 700}},
        };
        for (const auto& [name, button, popUp, anchor, direction, canOverlap, position] : rows) {
            InRow(name);
            QCOMPARE(Position({button, popUp, 0, 0}, {Anchor(anchor), Direction(direction)}, canOverlap), position);
        }
    }

    void widgetsComeAndGo()
    {
        Support::LogCapture log;
        ButtonWithPopUpContainer button;
        QPointer<QWidget> first = new QWidget;
        QPointer<QWidget> second = new QWidget;
        QPointer<QWidget> third = new QWidget;
        button.AppendWidget(second);
        button.InsertWidget(first, 0);
        button.InsertWidget(third, 99);
        QVERIFY(button.GetWidget(0) == first && button.GetWidget(2) == third);
        button.AppendWidget(first); // again: it moves to the end
        QVERIFY(button.WidgetsCount() == 3 && button.GetWidget(2) == first);
        button.RemoveWidget(0);
        QVERIFY(button.WidgetsCount() == 2 && second);
        QTRY_VERIFY(!second);
        third->deleteLater();
        QTRY_COMPARE(button.WidgetsCount(), 1);
        QCOMPARE(log.Lines(), QStringList());

        button.AppendWidget(nullptr);
        button.InsertWidget(nullptr, 2);
        QVERIFY(!button.GetWidget(-1));
        button.RemoveWidget(1);
        const QString line("E Lib/UI/Widgets/ButtonWithPopUpContainer:%1 Zelkor::Vx::UI::ButtonWithPopUpContainer::%2");
        const QString noItem = line.arg("304", "GetWidget: item is NULL");
        QCOMPARE(log.Lines(), QStringList({line.arg("273", "AppendWidget: widget is NULL"),
                                           line.arg("261", "InsertWidget: widget is NULL"), noItem, noItem,
                                           line.arg("290", "RemoveWidget: widget is NULL")}));
    }

    void panelDoesNotTakeWhatItLiesIn_data()
    {
        QTest::addColumn<QString>("name");
        for (const char* name : {"popUpContainer", "popUpWindow", "button", "window"})
            QTest::newRow(name) << name;
    }

    void panelDoesNotTakeWhatItLiesIn()
    {
        QFETCH(QString, name);
        QWidget window;
        window.setObjectName("window");
        ButtonWithPopUpContainer button(&window);
        button.setObjectName("button");
        QPointer<QWidget> widget = name == "window" ? &window : window.findChild<QWidget*>(name);
        const QWidget* parent = widget->parentWidget();
        for (const char* function : {"Remove", "Append", "Insert"})
            ExpectWarning(QString("ButtonWithPopUpContainer::%1Widget: the widget holds the panel").arg(function));
        button.RemoveWidget(widget);
        button.AppendWidget(widget);
        button.InsertWidget(widget, 0);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(widget);
        QCOMPARE(widget->parentWidget(), parent);
        QCOMPARE(button.WidgetsCount(), 0);
    }

    void checkedMirrorsThePopUp()
    {
        QWidget window;
        auto* button = new ButtonWithPopUpContainer(&window);
        auto* content = new QWidget;
        content->setFixedSize(120, 70);
        button->AppendWidget(content);
        window.show();
        auto* popUp = button->findChild<QWidget*>("popUpWindow");
        const auto isOpen = [&] { return button->isChecked() && popUp->isVisible(); };
        const auto isClosed = [&] { return !button->isChecked() && !popUp->isVisible(); };
        QSignalSpy toggled(button, &QAbstractButton::toggled);
        QTest::mouseClick(button, Qt::LeftButton);
        QVERIFY(isOpen() && toggled.size() == 1 && !button->testAttribute(Qt::WA_UnderMouse));
        QCOMPARE(popUp->geometry(), QRect(button->mapToGlobal(QPoint(0, button->height())), QSize(120, 70)));
        QTest::keyClick(popUp, Qt::Key_Escape);
        QVERIFY(isClosed());
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(button);
        accessible->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QVERIFY(isOpen() && accessible->state().expanded && !accessible->state().collapsed);
        accessible->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QVERIFY(isClosed() && accessible->state().collapsed && !accessible->state().expanded);

        // Content, offsets and direction of the moment count each time it opens.
        content->setFixedSize(60, 40);
        button->SetPopupVOffset(6);
        button->ShowPopup();
        QVERIFY(isOpen());
        QCOMPARE(popUp->geometry(), QRect(button->mapToGlobal(QPoint(0, button->height() + 6)), QSize(60, 40)));
        window.hide();
        QVERIFY(isClosed());
        window.show();
        button->setLayoutDirection(Qt::RightToLeft);
        button->SetShowPopupOnClick(false);
        button->click();
        QVERIFY(isClosed());
        connect(button, &QAbstractButton::clicked, button, &ButtonWithPopUpContainer::ShowPopup);
        button->click();
        QVERIFY(isOpen() && popUp->layoutDirection() == Qt::RightToLeft);
    }

    void slotMayDeleteTheButton_data()
    {
        using Close = std::function<void(QWidget*)>;
        QTest::addColumn<Close>("close");
        QTest::newRow("hide") << Close(&QWidget::hide);
        QTest::newRow("close") << Close(&QWidget::close);
        QTest::newRow("press outside") << Close(
            [](QWidget* popUp) { QTest::mousePress(popUp->windowHandle(), Qt::LeftButton, {}, QPoint(-50, -90)); });
        QTest::newRow("it opens") << Close();
        QTest::newRow("Escape") << Close(
            [](QWidget* popUp) { QTest::keyPress(popUp->windowHandle(), Qt::Key_Escape); });
        QTest::newRow("hide the button") << Close([](QWidget* popUp) { popUp->parentWidget()->hide(); });
        QTest::newRow("close the window") << Close([](QWidget* popUp) { popUp->parentWidget()->window()->close(); });
    }

    void slotMayDeleteTheButton()
    {
        QFETCH(std::function<void(QWidget*)>, close);
        QWidget window;
        window.setGeometry(300, 300, 200, 100);
        QPointer<ButtonWithPopUpContainer> button = new ButtonWithPopUpContainer(&window);
        const QPointer<QWidget> content = new QLineEdit;
        button->AppendWidget(content);
        window.show();
        auto* popUp = button->findChild<QWidget*>("popUpWindow");
        if (close)
            button->ShowPopup();
        connect(button, &QAbstractButton::toggled, qApp, [&] { delete button; });
        close ? close(popUp) : popUp->show();
        QVERIFY(!button);
        QTRY_VERIFY(!content);
        QVERIFY(!QApplication::activePopupWidget());
    }

    void buttonOutOfUseHasNoPanel_data()
    {
        QTest::addColumn<Use>("end");
        QTest::newRow("hidden") << Use([](QWidget* button) { button->hide(); });
        QTest::newRow("window closed") << Use([](QWidget* button) { button->window()->close(); });
        QTest::newRow("disabled") << Use([](QWidget* button) { button->setEnabled(false); });
        QTest::newRow("window disabled") << Use([](QWidget* button) { button->window()->setEnabled(false); });
    }

    // Neither one that opened before, nor one that a slot of the same click would leave behind.
    void buttonOutOfUseHasNoPanel()
    {
        QFETCH(Use, end);
        for (const Use& open : {Use(Click), Use(ShowPopup)}) {
            for (const bool isInSlot : {false, true}) {
                QWidget window;
                auto* button = new ButtonWithPopUpContainer(&window);
                window.show();
                connect(button, &QAbstractButton::toggled, button, [&](bool isChecked) {
                    if (isInSlot && isChecked)
                        end(button);
                });
                open(button);
                if (!isInSlot)
                    end(button);
                QVERIFY(!button->isChecked());
                QVERIFY(!button->findChild<QWidget*>("popUpWindow")->isVisible());
            }
        }
    }

    void keyOpensThePanel_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<Qt::KeyboardModifiers>("modifier");
        QTest::newRow("Down") << Qt::Key_Down << Qt::KeyboardModifiers(Qt::NoModifier);
        QTest::newRow("Alt+Down") << Qt::Key_Down << Qt::KeyboardModifiers(Qt::AltModifier);
        QTest::newRow("F4") << Qt::Key_F4 << Qt::KeyboardModifiers(Qt::NoModifier);
        QTest::newRow("Menu") << Qt::Key_Menu << Qt::KeyboardModifiers(Qt::NoModifier);
    }

    void keyOpensThePanel()
    {
        QFETCH(Qt::Key, key);
        QFETCH(Qt::KeyboardModifiers, modifier);
        ButtonWithPopUpContainer button;
        button.show();
        QSignalSpy clicked(&button, &QAbstractButton::clicked);
        QTest::keyClick(&button, key, modifier);
        QVERIFY(button.isChecked());
        QCOMPARE(clicked.size(), 1);
    }

    void openPanelFollowsItsButton()
    {
        QWidget window;
        window.setGeometry(300, 300, 200, 100);
        auto* page = new QWidget(&window);
        ButtonWithPopUpContainer button(page);
        window.show();
        button.ShowPopup();
        auto* popUp = button.findChild<QWidget*>("popUpWindow");
        const auto isBelow = [&] { return popUp->pos() == button.mapToGlobal(QPoint(0, button.height())); };
        button.setGeometry(10, 20, 70, 30);
        QTRY_VERIFY(isBelow());
        page->move(30, 5);
        QTRY_VERIFY(isBelow());
        window.move(350, 280);
        QTRY_VERIFY(isBelow());
    }

    void openPanelFollowsItsContents()
    {
        ButtonWithPopUpContainer button;
        button.move(300, 400);
        button.SetPreferredPopupAnchor(ButtonWithPopUpContainer::ANCHOR_TOP_LEFT);
        button.SetPreferredPopupDirection(ButtonWithPopUpContainer::DIRECTION_UP_RIGHT);
        const auto append = [&](const QSize& size) {
            auto* content = new QWidget;
            content->setFixedSize(size);
            button.AppendWidget(content);
        };
        append({60, 40});
        button.show();
        button.ShowPopup();
        auto* popUp = button.findChild<QWidget*>("popUpWindow");
        const QPoint corner = button.mapToGlobal(QPoint(0, 0));
        QCOMPARE(popUp->geometry(), QRect(corner - QPoint(0, 40), QSize(60, 40)));
        button.SetPopupVOffset(9); // for the next time
        append({90, 30});
        QTRY_COMPARE(popUp->geometry(), QRect(corner - QPoint(0, 70), QSize(90, 70)));
        button.RemoveWidget(0);
        QTRY_COMPARE(popUp->geometry(), QRect(corner - QPoint(0, 30), QSize(90, 30)));
    }

    void openedByKeyThePanelTakesTheKeyboard()
    {
        ButtonWithPopUpContainer button;
        auto* edit = new QLineEdit;
        auto* box = new QGroupBox;
        (new QVBoxLayout(box))->addWidget(new QCheckBox);
        button.AppendWidget(edit);
        button.InsertWidget(new QLabel, 0);
        button.InsertWidget(box, 1);
        button.show();
        auto* popUp = button.findChild<QWidget*>("popUpWindow");
        QTest::keyClick(&button, Qt::Key_Space);
        QCOMPARE(popUp->focusWidget(), box->findChild<QWidget*>());
        QTest::keyClick(popUp->windowHandle(), Qt::Key_Tab);
        QCOMPARE(popUp->focusWidget(), edit);
        QTest::keyClick(popUp->windowHandle(), Qt::Key_Escape);
        QVERIFY(!popUp->isVisible());

        QTest::mouseClick(&button, Qt::LeftButton);
        QVERIFY(popUp->isVisible());
        QVERIFY(!popUp->focusWidget());
    }

    void unknownLayoutDirectionReadsLeftToRight()
    {
        ButtonWithPopUpContainer button;
        QLayout* layout = button.findChild<QWidget*>("popUpContainer")->layout();
        static_cast<QBoxLayout*>(layout)->setDirection(QBoxLayout::Direction(17));
        QCOMPARE(button.GetLayoutDirection(), ButtonWithPopUpContainer::LAYOUT_LEFT_TO_RIGHT);
    }
};

VX_TEST_MAIN(tst_ButtonWithPopUpContainer)
#include "tst_ButtonWithPopUpContainer.moc"
