#include <UI/Widgets/ButtonWithPopUpList.h>

#include <Support/ModalWatcher.h>
#include <Support/TestCase.h>

#include <QAccessible>
#include <QMenu>
#include <QSignalSpy>

#include <memory>

using Zelkor::Vx::ButtonWithPopUpList;
using Indexes = QList<int>;

namespace {

QList<QAction*> ChoicesOf(const ButtonWithPopUpList& button)
{
    QList<QAction*> choices;
    for (QAction* action : button.menu()->actions()) {
        if (!action->isSeparator())
            choices += action;
    }
    return choices;
}

// "append", "set 2", "remove 0", "clear", "trigger 1" or "delete action 1".
void Perform(ButtonWithPopUpList& button, const QString& operation)
{
    const int number = operation.section(' ', -1).toInt();
    if (operation == "append")
        button.AppendItem("Item", QString(QChar('a' + button.Count())));
    else if (operation.startsWith("set"))
        button.SetCurrentIndex(number);
    else if (operation.startsWith("remove"))
        button.RemoveItem(number);
    else if (operation.startsWith("delete action"))
        delete ChoicesOf(button)[number];
    else if (operation.startsWith("trigger"))
        ChoicesOf(button)[number]->trigger();
    else
        button.Clear();
}

// The menu marks the current item, if there is one, and has no other items than the list.
void CheckMenu(const ButtonWithPopUpList& button)
{
    const auto choices = ChoicesOf(button);
    QCOMPARE(choices.size(), button.Count());
    for (int i = 0; i < choices.size(); ++i)
        QCOMPARE(choices[i]->isChecked(), i == button.CurrentIndex());
}

// With the items a, b and c, of which b is the current one.
std::unique_ptr<ButtonWithPopUpList> ThreeItems()
{
    auto button = std::make_unique<ButtonWithPopUpList>();
    for (int i = 0; i < 3; ++i)
        Perform(*button, "append");
    button->SetCurrentIndex(1);
    return button;
}

} // namespace

class tst_ButtonWithPopUpList : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void signalsInTheirOrder()
    {
        // Operations on a list of three, a, b, c, whose current item is b; signals; current index.
        using Row = std::tuple<QString, Indexes, int>;
        const std::vector<Row> rows{
            {"append", {}, 1},
            {"set 2", {2}, 2},
            {"set 1", {1}, 1},
            {"set -3", {-3, 0}, 0},
            {"set 3", {3}, 3},
            {"set 3,append", {3}, 3},
            {"set 7,remove 0", {7}, 6},
            {"remove 0", {}, 0},
            {"remove 1", {0}, 0},
            {"remove 2", {}, 1},
            {"remove 3,remove -1", {}, 1},
            {"remove 1,remove 0,remove 0", {0, 0}, -1},
            {"delete action 0", {}, 0},
            {"delete action 1,set 1", {0, 1}, 1},
            {"clear", {}, -1},
            {"clear,append,append", {0}, 0},
            {"clear,set -1,set 4", {-1, 4}, 4},
            {"trigger 2", {2}, 2},
            {"trigger 1,trigger 1", {1, 1}, 1},
        };
        for (const auto& [operations, signalled, current] : rows) {
            InRow(operations);
            const auto button = ThreeItems();
            Indexes seen;
            connect(button.get(), &ButtonWithPopUpList::CurrentIndexChanged, [&](int index) { seen += index; });
            for (const QString& operation : operations.split(','))
                Perform(*button, operation);
            QCOMPARE(seen, signalled);
            QCOMPARE(button->CurrentIndex(), current);
            QCOMPARE(button->CurrentData(), button->ItemData(current));
            CheckMenu(*button);
        }
    }

    void valuesAreFoundByEquality()
    {
        ButtonWithPopUpList button;
        button.AppendItem("One", 1);
        button.AppendItem("Text", "text");
        button.AppendItem("Text again", "text");
        QVERIFY(button.ItemIndex("text") == 1 && button.ItemIndex("other") == -1);
        QVERIFY(!button.ItemData(3).isValid() && !button.ItemData(-1).isValid());
        button.RemoveItem(QVariant("other"));
        button.RemoveItem(QVariant("text"));
        QVERIFY(button.Count() == 2 && button.ItemData(1) == "text");
        QCOMPARE(ChoicesOf(button)[1]->text(), QString("Text again"));
        // Each item has a separator of its own, which stays when the item goes.
        QCOMPARE(button.menu()->actions().size(), 2 + 3);
    }

    void menuDoesNotGrowWithChanges()
    {
        const auto button = ThreeItems();
        for (const char* operation : {"remove 0", "append", "remove 1", "append", "remove 2", "append"})
            Perform(*button, operation);
        QString kinds;
        for (const QAction* action : button->menu()->actions())
            kinds += action->isSeparator() ? '-' : '*';
        QCOMPARE(kinds, QString("*-*-*-"));
    }

    void menuClosesWithItsLastItem_data()
    {
        QTest::addColumn<QString>("operations");
        for (const char* operations : {"clear", "remove 0,remove 0,remove 0"})
            QTest::newRow(operations) << operations;
    }

    void menuClosesWithItsLastItem()
    {
        QFETCH(QString, operations);
        const auto button = ThreeItems();
        button->menu()->popup(QPoint(50, 50));
        for (const QString& operation : operations.split(','))
            Perform(*button, operation);
        QVERIFY(!button->menu()->isVisible());
        QCOMPARE(button->accessibleDescription(), QString());
    }

    void applicationMayDeleteTheMenu()
    {
        const auto button = ThreeItems();
        delete button->menu();
        for (const char* operation : {"remove 0", "append", "clear", "append"})
            Perform(*button, operation);
        QCOMPARE(button->Count(), 1);
    }

    void keyOpensTheMenuAtTheCurrentItem_data()
    {
        QTest::addColumn<QKeySequence>("keys");
        for (const char* keys : {"Down", "Alt+Down", "F4", "Menu"})
            QTest::newRow(keys) << QKeySequence(keys);
    }

    void keyOpensTheMenuAtTheCurrentItem()
    {
        QFETCH(QKeySequence, keys);
        const auto button = ThreeItems();
        button->show();
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(button.get());
        bool isOpened = false;
        const Support::ModalWatcher loops([&](QWidget* menu) {
            isOpened = true;
            QVERIFY(accessible->state().expanded);
            QTest::keyClick(menu, Qt::Key_Down);
            QTest::keyClick(menu, Qt::Key_Return);
        });
        QTest::keySequence(button.get(), keys);
        QVERIFY(isOpened);
        QVERIFY(accessible->state().collapsed);
        QCOMPARE(button->CurrentIndex(), 2);
    }

    void screenReaderHearsTheApplicationFirst()
    {
        const auto button = ThreeItems();
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(button.get());
        button->setText("&Mode && more");
        button->AppendItem("&Last", 0);
        button->SetCurrentIndex(3);
        QCOMPARE(accessible->text(QAccessible::Name), QString("Mode & more"));
        QCOMPARE(accessible->text(QAccessible::Description), QString("Last"));
        button->setAccessibleDescription("Own");
        button->SetCurrentIndex(0);
        QCOMPARE(accessible->text(QAccessible::Description), QString("Own"));
    }

    void screenReaderMayPressAndOpen()
    {
        const auto button = ThreeItems();
        button->show();
        auto* actions = QAccessible::queryAccessibleInterface(button.get())->actionInterface();
        QSignalSpy clicked(button.get(), &QAbstractButton::clicked);
        actions->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(clicked.size(), 1);
        bool isOpened = false;
        connect(button->menu(), &QMenu::aboutToShow, [&] { isOpened = true; });
        const Support::ModalWatcher loops(Support::Dismiss);
        actions->doAction(QAccessibleActionInterface::showMenuAction());
        QTRY_VERIFY(isOpened);
    }

    void slotMayCallBack()
    {
        for (const QString operation : {"append", "remove 0", "remove 1", "clear", "set 0", "delete"}) {
            for (const QString cause : {"set 1", "trigger 1", "remove 1", "delete action 1"}) {
                InRow(operation + " in the slot of " + cause);
                QPointer<ButtonWithPopUpList> button = ThreeItems().release();
                bool isCalled = false;
                connect(button, &ButtonWithPopUpList::CurrentIndexChanged, qApp, [&] {
                    if (std::exchange(isCalled, true))
                        return;
                    if (operation != "delete")
                        Perform(*button, operation);
                    else if (cause.startsWith("trigger")) // Qt's own rule for actions
                        button->deleteLater();
                    else
                        delete button;
                });
                Perform(*button, cause);
                if (button)
                    CheckMenu(*button);
                QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
                delete button;
            }
        }
    }
};

VX_TEST_MAIN(tst_ButtonWithPopUpList)
#include "tst_ButtonWithPopUpList.moc"
