#include <UI/Widgets/ScrollablePanelWithItem.h>

#include <Support/EventSwallower.h>
#include <Support/Input.h>
#include <Support/TestCase.h>

#include <QScrollArea>
#include <QScrollBar>
#include <QToolButton>

using Zelkor::Vx::UI::ScrollablePanelWithItem;

namespace {

/// A panel with items of 50 x 40 pixels in a scroll area that is 300 pixels wide.
struct Scene
{
    explicit Scene(int count, Qt::LayoutDirection direction = Qt::LeftToRight)
    {
        panel->setLayoutDirection(direction);
        for (int i = 0; i < count; ++i)
            Add();
        panel->setFixedSize(300 + left->sizeHint().width() + right->sizeHint().width(), 60);
        panel->show();
        (void)QTest::qWaitForWindowExposed(panel.get());
    }

    QToolButton* Add()
    {
        items.append(new QToolButton);
        items.last()->setFixedSize(50, 40);
        panel->Append(items.last());
        return items.last();
    }

    bool Wheel(const QPoint& angle) { return Support::TurnWheel(area->viewport(), angle); }
    bool Shows(QWidget* item) { return item->visibleRegion().boundingRect() == item->rect(); }

    std::unique_ptr<ScrollablePanelWithItem> panel = std::make_unique<ScrollablePanelWithItem>(nullptr);
    QScrollArea* area = panel->findChild<QScrollArea*>("panelScrollArea");
    QScrollBar* bar = area->horizontalScrollBar();
    QToolButton* left = panel->findChild<QToolButton*>("leftScrollButton");
    QToolButton* right = panel->findChild<QToolButton*>("rightScrollButton");
    QVector<QToolButton*> items;
};

} // namespace

class tst_ScrollablePanelWithItem : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void scrolls()
    {
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            Scene scene(20, direction);
            scene.panel->SetItemsSpacing(4);
            QTRY_COMPARE(scene.bar->maximum(), 20 * 50 + 19 * 4 - scene.area->viewport()->width());
            // The buttons are where they lead to.
            QCOMPARE(scene.left->x() > scene.right->x(), direction == Qt::RightToLeft);
            for (const int value : {0, 304, 608, scene.bar->maximum()}) {
                QCOMPARE(scene.bar->value(), value);
                QCOMPARE(scene.left->isEnabled(), value > 0);
                QCOMPARE(scene.right->isEnabled(), value < scene.bar->maximum());
                scene.right->click();
            }
            QVERIFY(scene.Shows(scene.items[19]));
            scene.left->click();
            QCOMPARE(scene.bar->value(), scene.bar->maximum() - 304);

            // A turn to the side goes to that side, one at an end is for somebody else.
            const int away = direction == Qt::RightToLeft ? 120 : -120;
            scene.bar->setValue(100);
            QVERIFY(scene.Wheel({0, 1200}) && scene.bar->value() == 0 && !scene.Wheel({0, 120}));
            QVERIFY(scene.Wheel({0, -120}) && scene.Wheel({-away, 0}) && !scene.Wheel({-away, 0}));
            scene.bar->setValue(scene.bar->maximum() - 100);
            QVERIFY(scene.Wheel({10 * away, 0}) && !scene.Wheel({away, 0}) && scene.Shows(scene.items[19]));

            scene.panel->activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(scene.panel.get()));
            for (const int i : {19, 0, 7}) {
                scene.items[i]->setFocus();
                QVERIFY(scene.Shows(scene.items[i]));
            }
            // What goes while the strip is scrolled takes the range along.
            qDeleteAll(scene.items.mid(10));
            QTRY_COMPARE(scene.bar->maximum(), 10 * 50 + 9 * 4 - scene.area->viewport()->width());
            scene.panel->RemoveItems();
            QVERIFY(!scene.panel->SelectItem(0));
            QTRY_VERIFY(scene.bar->maximum() == 0 && !scene.left->isEnabled() && !scene.right->isEnabled());
        }
    }

    void directionAtRunTimeKeepsTheItems()
    {
        Scene scene(20);
        scene.bar->setValue(100);
        scene.panel->setLayoutDirection(Qt::RightToLeft);
        QCoreApplication::processEvents();
        QVERIFY(!scene.Shows(scene.items[1]));
        QVERIFY(scene.Shows(scene.items[2]));
        QVERIFY(scene.left->isEnabled());
        scene.left->click();
        QVERIFY(scene.Shows(scene.items[0]));
        QVERIFY(!scene.left->isEnabled());
    }

    void itemsComeAndGo()
    {
        Scene scene(3);
        int clicks = 0;
        connect(scene.items[2], &QToolButton::clicked, [&] { ++clicks; });
        QVERIFY(!scene.panel->SelectItem(3) && !scene.panel->SelectItem(-1) && !scene.panel->SelectItem(INT_MIN));
        scene.panel->Append(nullptr);
        scene.panel->Append(scene.items[0]); // goes to the end
        QVERIFY(scene.panel->SelectItem(1) && clicks == 1 && !scene.panel->SelectItem(3));
        delete scene.items[1];
        QVERIFY(scene.panel->SelectItem(0) && clicks == 2 && !scene.panel->SelectItem(2));
        const std::unique_ptr<QToolButton> taken(scene.items[0]);
        taken->setParent(nullptr);
        scene.panel->RemoveItems();
        QTRY_COMPARE(scene.area->widget()->findChildren<QToolButton*>().size(), 0);

        // The strip is as high as its items, and one that was hidden stays so.
        scene.Add()->setFixedHeight(90);
        auto* hidden = new QToolButton;
        hidden->hide();
        scene.panel->Append(hidden);
        QCOMPARE(scene.panel->sizeHint().height(), 90 + 2 * scene.area->frameWidth());
        QVERIFY(scene.items.last()->isVisible() && !hidden->isVisible());

        connect(scene.items.last(), &QToolButton::clicked, [&] { delete scene.items.last(); });
        QVERIFY(scene.panel->SelectItem(0));
        connect(hidden, &QToolButton::clicked, [&] { scene.panel.reset(); });
        QVERIFY(scene.panel->SelectItem(0) && !scene.panel);
    }

    void itemThatIsBeingDestroyedIsNoItem()
    {
        Scene scene(3);
        const Support::EventSwallower swallower; // of the event about a removed child, too
        int clicks = 0;
        connect(scene.items[1], &QToolButton::clicked, [&] { ++clicks; });
        connect(scene.items[0], &QObject::destroyed, [&] { scene.panel->SelectItem(0); });
        connect(scene.items[2], &QObject::destroyed, [panel = scene.panel.get()] { panel->RemoveItems(); });
        delete scene.items[0];
        QCOMPARE(clicks, 1);
        QVERIFY(!scene.panel->SelectItem(2));
        scene.panel.reset();
    }

    void partsAndParentsOfThePanelAreNotTaken()
    {
        QToolButton outer;
        auto* panel = new ScrollablePanelWithItem(&outer);
        panel->Append(&outer);
        panel->Append(panel->findChild<QToolButton*>("leftScrollButton"));
        QVERIFY(!panel->SelectItem(0));
    }
};

VX_TEST_MAIN(tst_ScrollablePanelWithItem)
#include "tst_ScrollablePanelWithItem.moc"
