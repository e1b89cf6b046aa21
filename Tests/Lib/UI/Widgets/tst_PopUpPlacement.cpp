#include <UI/Widgets/PopUpPlacement.h>

#include <Support/TestCase.h>

using namespace Zelkor::Vx::UI;
using namespace Zelkor::Vx::UI::PopUpPlacement;
using B = ButtonWithPopUpContainer;

namespace {

const QRect SCREEN(-1000, 500, 800, 600); // left of and below the main screen
const QSize POP_UP(121, 83);              // odd, so that a centre is rounded

QVector<Placement> AllPlacements()
{
    QVector<Placement> all;
    for (int anchor = 0; anchor < 6; ++anchor) {
        for (int direction = 0; direction < 6; ++direction)
            all.append({Anchor(anchor), Direction(direction)});
    }
    return all;
}

QPoint Position(const Scene& scene, const Placement& placement, bool canOverlap, const QRect& screen = SCREEN)
{
    return FindPosition(scene, placement, canOverlap,
                        [&](const QPoint& point) { return FitToScreen(screen, scene.popUp, point); });
}

bool Covers(const Scene& scene, const QPoint& position)
{
    return !scene.button.intersected(QRect(position, scene.popUp)).isEmpty();
}

// The other side of each placement that has one: anchor and direction as letters, left of the sign and right of it.
const QStringList MIRRORS{"TR DR = TL DL", "BL DR = TL UR", "BC DR = TC UR", "BR DR = TR UR",
                          "BL DC = TL UC", "BC DC = TC UC", "BR DC = TR UC", "BL DL = TL UL",
                          "BC DL = TC UL", "BR DL = TR UL", "BR UR = BL UL"};

QString Letters(const Placement& placement)
{
    static const QStringList anchors{"TL", "TC", "TR", "BL", "BC", "BR"};
    static const QStringList directions{"DR", "DC", "DL", "UR", "UC", "UL"};
    return anchors[placement.first] + ' ' + directions[placement.second];
}

} // namespace

class tst_PopUpPlacement : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    // In the middle of the screen the named side of the pop-up lies on the named point of the button.
    void growsFromItsAnchor()
    {
        const Scene scene{QRect(-600, 800, 41, 25), POP_UP, 7, 3};
        for (const Placement& placement : AllPlacements()) {
            const QRect popUp(Position(scene, placement, true), POP_UP);
            const int column = placement.first % 3;
            const QPoint anchor(column == 0   ? -600 - 7
                                : column == 1 ? -600 + 20
                                              : -600 + 41 + 7,
                                placement.first < 3 ? 800 - 3 : 800 + 25 + 3);
            const int side = placement.second % 3;
            const int x = side == 0 ? popUp.left() : side == 1 ? popUp.left() + 60 : popUp.left() + 121;
            const int y = placement.second < 3 ? popUp.top() : popUp.top() + 83;
            QVERIFY2(anchor == QPoint(x, y), qPrintable(Letters(placement)));
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
            for (const Placement& placement : AllPlacements()) {
                const QPoint preferred = Position(scene, placement, true);
                QPoint expected = preferred;
                const QString letters = Letters(placement);
                for (const QString& mirror : MIRRORS) {
                    if (!mirror.contains(letters))
                        continue;
                    const QString other = mirror.startsWith(letters) ? mirror.right(5) : mirror.left(5);
                    for (const Placement& candidate : AllPlacements()) {
                        const QPoint position = Position(scene, candidate, true);
                        if (Letters(candidate) == other && Covers(scene, preferred) && !Covers(scene, position))
                            expected = position;
                    }
                }
                QVERIFY2(Position(scene, placement, false) == expected, qPrintable(letters));
                mirrored += expected != preferred;
                for (const int offset : {INT_MIN, 0, INT_MAX}) {
                    const Scene pushed{scene.button, POP_UP, offset, offset};
                    QVERIFY(SCREEN.contains(QRect(Position(pushed, placement, false), POP_UP)));
                }
            }
        }
        QVERIFY2(mirrored > 20, qPrintable(QString::number(mirrored)));
    }

    void edges_data()
    {
        QTest::addColumn<QRect>("button");
        QTest::addColumn<QSize>("popUp");
        QTest::addColumn<int>("anchor");
        QTest::addColumn<int>("direction");
        QTest::addColumn<bool>("canOverlap");
        QTest::addColumn<QPoint>("position");
        const QRect bottom(-600, 1070, 40, 30);
        QTest::newRow("bottom, may overlap: one pixel stays free")
            << bottom << QSize(100, 50) << 3 << 0 << true << QPoint(-600, 1099 - 50);
        QTest::newRow("bottom, must not overlap: above")
            << bottom << QSize(100, 50) << 3 << 0 << false << QPoint(-600, 1020);
        QTest::newRow("right edge: one pixel stays free")
            << QRect(-220, 700, 20, 20) << QSize(100, 50) << 3 << 0 << true << QPoint(-201 - 100, 720);
        QTest::newRow("wider than the screen")
            << QRect(-600, 700, 40, 30) << QSize(900, 50) << 3 << 0 << true << QPoint(-1000, 730);
        QTest::newRow("no room either way: the preferred place")
            << QRect(-600, 700, 40, 30) << QSize(100, 590) << 3 << 0 << false << QPoint(-600, 509);
        QTest::newRow("on the button itself there is no other side")
            << QRect(-600, 700, 40, 30) << QSize(100, 50) << 0 << 0 << false << QPoint(-600, 700);
        QTest::newRow("values outside the enumerations")
            << QRect(-600, 700, 40, 30) << QSize(100, 50) << 17 << -4 << false << QPoint(-600, 730);
        QTest::newRow("empty pop-up covers nothing")
            << QRect(-600, 700, 40, 30) << QSize(0, 0) << 0 << 0 << false << QPoint(-600, 700);
    }

    void edges()
    {
        QFETCH(QRect, button);
        QFETCH(QSize, popUp);
        QFETCH(int, anchor);
        QFETCH(int, direction);
        QFETCH(bool, canOverlap);
        QFETCH(QPoint, position);
        QCOMPARE(Position({button, popUp, 0, 0}, {Anchor(anchor), Direction(direction)}, canOverlap), position);
    }
};

VX_TEST_MAIN(tst_PopUpPlacement)
#include "tst_PopUpPlacement.moc"
