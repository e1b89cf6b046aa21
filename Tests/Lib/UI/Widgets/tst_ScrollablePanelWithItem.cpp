#include <UI/Widgets/ScrollablePanelWithItem.h>

#include <Support/Input.h>
#include <Support/TestCase.h>

#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QToolButton>

using Zelkor::Vx::UI::ScrollablePanelWithItem;

namespace {

/// A panel with items of 50 x 40 pixels, and a view that is 300 pixels wide.
struct Panel
{
    explicit Panel(int count, Qt::LayoutDirection direction = Qt::LeftToRight)
    {
        widget->setLayoutDirection(direction);
        for (int i = 0; i < count; ++i) {
            items.append(new QToolButton);
            items.last()->setFixedSize(50, 40);
            widget->Append(items.last());
        }
        widget->setFixedSize(300 + left->sizeHint().width() + right->sizeHint().width(), 60);
        Support::ShowActive(*widget);
    }

    bool TurnWheel(const QPoint& angle) { return Support::TurnWheel(area->viewport(), angle); }
    QRect Visible(int item) { return items[item]->visibleRegion().boundingRect(); }

    std::unique_ptr<ScrollablePanelWithItem> widget = std::make_unique<ScrollablePanelWithItem>(nullptr);
    QScrollArea* area = widget->findChild<QScrollArea*>("panelScrollArea");
    QScrollBar* bar = area->horizontalScrollBar();
    QToolButton* left = widget->findChild<QToolButton*>("leftScrollButton");
    QToolButton* right = widget->findChild<QToolButton*>("rightScrollButton");
    QVector<QToolButton*> items;
};

} // namespace

class tst_ScrollablePanelWithItem : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void buttonsWheelAndFocusScroll_data() { Support::AddDirectionRows(); }

    void buttonsWheelAndFocusScroll()
    {
        QFETCH(Qt::LayoutDirection, direction);
        Panel panel(20, direction);
        panel.widget->SetItemsSpacing(4);
        QTRY_COMPARE(panel.bar->maximum(), 20 * 50 + 19 * 4 - panel.area->viewport()->width());
        QCOMPARE(panel.left->x() > panel.right->x(), direction == Qt::RightToLeft);
        for (const int value : {0, 304, 608, panel.bar->maximum()}) {
            QCOMPARE(panel.bar->value(), value);
            QCOMPARE(panel.left->isEnabled(), value > 0);
            QCOMPARE(panel.right->isEnabled(), value < panel.bar->maximum());
            panel.right->click();
        }
        panel.left->click();
        QCOMPARE(panel.bar->value(), panel.bar->maximum() - 304);

        panel.bar->setValue(100);
        QVERIFY(panel.TurnWheel({0, 1200}));
        QCOMPARE(panel.bar->value(), 0);
        QVERIFY(!panel.TurnWheel({0, 120}));
        QVERIFY(panel.TurnWheel({direction == Qt::RightToLeft ? 120 : -120, 0}));
        for (const int i : {19, 0, 7}) {
            panel.items[i]->setFocus();
            QCOMPARE(panel.Visible(i), panel.items[i]->rect());
        }
        panel.items[12]->setFixedWidth(500);
        panel.items[12]->setFocus();
        QCOMPARE(QStyle::visualRect(direction, {0, 0, 500, 40}, panel.Visible(12)).left(), 0);
    }

    void itemsAreSelectedAndRemoved()
    {
        Panel panel(3);
        QVector<int> clicked;
        for (int i = 0; i < 3; ++i)
            connect(panel.items[i], &QToolButton::clicked, this, [&clicked, i] { clicked << i; });
        panel.widget->Append(nullptr);
        panel.widget->Append(panel.left);
        panel.widget->Append(panel.items[0]); // moves to the end
        QVERIFY(panel.widget->SelectItem(2));
        delete panel.items[1];
        QVERIFY(panel.widget->SelectItem(0));
        const std::unique_ptr<QToolButton> taken(panel.items[0]);
        taken->setParent(nullptr);
        QVERIFY(!panel.widget->SelectItem(1));
        QCOMPARE(clicked, QVector<int>({0, 2}));
        panel.widget->RemoveItems();
        QVERIFY(!panel.widget->SelectItem(0));
        QTRY_COMPARE(panel.area->widget()->findChildren<QToolButton*>().size(), 0);
    }
};

VX_TEST_MAIN(tst_ScrollablePanelWithItem)
#include "tst_ScrollablePanelWithItem.moc"
