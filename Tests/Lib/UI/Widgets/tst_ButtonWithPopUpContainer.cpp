#include <UI/Widgets/ButtonWithPopUpContainer.h>
#include <UI/Widgets/PopUpPlacement.h>

#include <Support/LogCapture.h>
#include <Support/TestCase.h>

#include <QSignalSpy>

using namespace Zelkor::Vx::UI;
using namespace Zelkor::Vx::UI::PopUpPlacement;

namespace {

const QRect SCREEN(-1000, 500, 800, 600); // left of and below the main screen
const QSize POP_UP(121, 83);              // odd, so that a centre is rounded

const QStringList ANCHORS{"TL", "TC", "TR", "BL", "BC", "BR"};
const QStringList DIRECTIONS{"DR", "DC", "DL", "UR", "UC", "UL"};

// The other side of each placement that has one: anchor and direction as letters.
const QVector<QPair<QString, QString>> MIRRORS{{"TR DR", "TL DL"}, {"BL DR", "TL UR"}, {"BC DR", "TC UR"},
                                               {"BR DR", "TR UR"}, {"BL DC", "TL UC"}, {"BC DC", "TC UC"},
                                               {"BR DC", "TR UC"}, {"BL DL", "TL UL"}, {"BC DL", "TC UL"},
                                               {"BR DL", "TR UL"}, {"BR UR", "BL UL"}};

QStringList AllPlacements()
{
    QStringList all;
    for (const QString& anchor : ANCHORS) {
        for (const QString& direction : DIRECTIONS)
            all += anchor + ' ' + direction;
    }
    return all;
}

Placement PlacementOf(const QString& letters)
{
    return {Anchor(ANCHORS.indexOf(letters.left(2))), Direction(DIRECTIONS.indexOf(letters.right(2)))};
}

QPoint Position(const Scene& scene, const Placement& placement, bool canOverlap)
{
    return FindPosition(scene, placement, canOverlap,
                        [&](const QPoint& point) { return FitToScreen(SCREEN, scene.popUp, point); });
}

bool Covers(const Scene& scene, const QPoint& position)
{
    return !scene.button.intersected(QRect(position, scene.popUp)).isEmpty();
}

} // namespace

class tst_ButtonWithPopUpContainer : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    // In the middle of the screen the named side of the pop-up lies on the named point of the button.
    void growsFromItsAnchor()
    {
        const Scene scene{QRect(-600, 800, 41, 25), POP_UP, 7, 3};
        for (const QString& letters : AllPlacements()) {
            InRow(letters);
            const auto [anchor, direction] = PlacementOf(letters);
            const QPoint popUp = Position(scene, {anchor, direction}, true);
            const int across[] = {-600 - 7, -600 + 20, -600 + 41 + 7};
            const int side[] = {0, 60, 121};
            QCOMPARE(popUp.x() + side[direction % 3], across[anchor % 3]);
            QCOMPARE(popUp.y() + (direction < 3 ? 0 : 83), anchor < 3 ? 800 - 3 : 800 + 25 + 3);
        }
    }

    // At each edge and corner, over all placements: the other side when the preferred one covers the button and the
    // other does not.
    void mirrorsWhereItWouldCoverTheButton()
    {
        int mirrored = 0;
        for (const QPoint& corner :
             {QPoint(-1000, 500), QPoint(-620, 500), QPoint(-241, 500), QPoint(-241, 780), QPoint(-241, 1075),
              QPoint(-620, 1075), QPoint(-1000, 1075), QPoint(-1000, 780), QPoint(-620, 780)}) {
            const Scene scene{QRect(corner, QSize(41, 25)), POP_UP, 0, 0};
            for (const QString& letters : AllPlacements()) {
                InRow(letters);
                const QPoint preferred = Position(scene, PlacementOf(letters), true);
                QPoint expected = preferred;
                for (const auto& [one, other] : MIRRORS) {
                    if (letters != one && letters != other)
                        continue;
                    const QPoint position = Position(scene, PlacementOf(letters == one ? other : one), true);
                    if (Covers(scene, preferred) && !Covers(scene, position))
                        expected = position;
                }
                QCOMPARE(Position(scene, PlacementOf(letters), false), expected);
                mirrored += expected != preferred;
                for (const int offset : {INT_MIN, 0, INT_MAX}) {
                    const Scene pushed{scene.button, POP_UP, offset, offset};
                    QVERIFY(SCREEN.contains(QRect(Position(pushed, PlacementOf(letters), false), POP_UP)));
                }
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

    void propertiesInTheirOrderAndByStyleSheet()
    {
        const QMetaObject& meta = ButtonWithPopUpContainer::staticMetaObject;
        QCOMPARE(meta.methodCount(), meta.methodOffset());
        ButtonWithPopUpContainer button;
        button.setStyleSheet("QToolButton { qproperty-layoutDirection: LAYOUT_BOTTOM_TO_TOP;"
                             " qproperty-preferredPopupDirection: DIRECTION_UP_LEFT;"
                             " qproperty-preferredPopupAnchor: ANCHOR_TOP_RIGHT;"
                             " qproperty-popupCanOverlapButton: false; qproperty-showPopupOnClick: false;"
                             " qproperty-popupHOffset: -3; qproperty-popupVOffset: 8 }");
        button.ensurePolished();
        QString properties;
        for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i)
            properties += QString("%1 %2, ").arg(meta.property(i).name()).arg(meta.property(i).read(&button).toInt());
        QCOMPARE(properties,
                 QString("layoutDirection 3, preferredPopupDirection 5, preferredPopupAnchor 2,"
                         " popupCanOverlapButton 0, showPopupOnClick 0, popupHOffset -3, popupVOffset 8, "));
    }

    void widgetsComeAndGo()
    {
        Support::LogCapture log;
        ButtonWithPopUpContainer button;
        QCOMPARE(button.GetLayoutDirection(), ButtonWithPopUpContainer::LAYOUT_TOP_TO_BOTTOM);
        QPointer<QWidget> first = new QWidget;
        QPointer<QWidget> second = new QWidget;
        QPointer<QWidget> third = new QWidget;
        button.AppendWidget(second);
        button.InsertWidget(first, 0);
        button.InsertWidget(third, 99);
        QCOMPARE(button.GetWidget(0), first.data());
        QCOMPARE(button.GetWidget(2), third.data());
        QCOMPARE(first->parentWidget()->objectName(), QString("popUpContainer"));
        button.AppendWidget(first); // again: it moves to the end
        QCOMPARE(button.WidgetsCount(), 3);
        QCOMPARE(button.GetWidget(2), first.data());
        button.RemoveWidget(0);
        QCOMPARE(button.WidgetsCount(), 2);
        QVERIFY(second);
        QTRY_VERIFY(!second);
        third->deleteLater();
        QTRY_COMPARE(button.WidgetsCount(), 1);
        QCOMPARE(log.Lines(), QStringList());

        button.AppendWidget(nullptr);
        button.InsertWidget(nullptr, 2);
        QVERIFY(!button.GetWidget(-1));
        button.RemoveWidget(1);
        const QString line("E Lib/UI/Widgets/ButtonWithPopUpContainer:%1 Zelkor::Vx::UI::ButtonWithPopUpContainer::%2");
        QCOMPARE(
            log.Lines(),
            QStringList({line.arg("273", "AppendWidget: widget is NULL"),
                         line.arg("261", "InsertWidget: widget is NULL"), line.arg("304", "GetWidget: item is NULL"),
                         line.arg("304", "GetWidget: item is NULL"), line.arg("290", "RemoveWidget: widget is NULL")}));
        button.SetLayoutDirection(ButtonWithPopUpContainer::LayoutDirection(9));
        QCOMPARE(button.GetLayoutDirection(), ButtonWithPopUpContainer::LAYOUT_LEFT_TO_RIGHT);
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
        QVERIFY(button->isCheckable() && isClosed());
        QSignalSpy toggled(button, &QAbstractButton::toggled);
        QTest::mouseClick(button, Qt::LeftButton);
        QVERIFY(isOpen());
        QCOMPARE(toggled.size(), 1);
        QCOMPARE(popUp->geometry(), QRect(button->mapToGlobal(QPoint(0, button->height())), QSize(120, 70)));
        QVERIFY(!button->testAttribute(Qt::WA_UnderMouse));
        QTest::keyClick(popUp, Qt::Key_Escape);
        QVERIFY(isClosed());

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
        QVERIFY(isOpen());
        QCOMPARE(popUp->layoutDirection(), Qt::RightToLeft);
    }

    void destroyedWhileOpen()
    {
        for (const bool later : {false, true}) {
            QWidget window;
            QPointer<ButtonWithPopUpContainer> button = new ButtonWithPopUpContainer(&window);
            const QPointer<QWidget> popUp = button->findChild<QWidget*>("popUpWindow");
            if (later)
                connect(button, &QAbstractButton::toggled, button, &QObject::deleteLater);
            window.show();
            button->ShowPopup();
            QVERIFY(popUp->isVisible());
            if (!later)
                delete button;
            QTRY_VERIFY(!button && !popUp);
            QVERIFY(!QApplication::activePopupWidget());
        }
    }
};

VX_TEST_MAIN(tst_ButtonWithPopUpContainer)
#include "tst_ButtonWithPopUpContainer.moc"
