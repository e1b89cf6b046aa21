#include <UI/Widgets/ButtonWithPopUpList.h>

#include <Support/TestCase.h>

#include <QMenu>
#include <QSignalSpy>

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

// "append", "set 2", "remove 0", "clear" or "trigger 1".
void Perform(ButtonWithPopUpList& button, const QString& operation)
{
    const int number = operation.section(' ', 1).toInt();
    if (operation == "append")
        button.AppendItem("Item", QString(QChar('a' + button.Count())));
    else if (operation.startsWith("set"))
        button.SetCurrentIndex(number);
    else if (operation.startsWith("remove"))
        button.RemoveItem(number);
    else if (operation.startsWith("trigger"))
        ChoicesOf(button)[number]->trigger();
    else
        button.Clear();
}

Indexes CheckedOf(const ButtonWithPopUpList& button)
{
    Indexes checked;
    const auto choices = ChoicesOf(button);
    for (int i = 0; i < choices.size(); ++i) {
        if (choices[i]->isChecked())
            checked += i;
    }
    return checked;
}

} // namespace

class tst_ButtonWithPopUpList : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void signalsInTheirOrder_data()
    {
        QTest::addColumn<QString>("operations"); // on a list of three, a, b, c, whose current item is b
        QTest::addColumn<Indexes>("signalled");
        QTest::addColumn<int>("current");
        QTest::addColumn<Indexes>("checked");
        QTest::newRow("append") << "append" << Indexes{} << 1 << Indexes{1};
        QTest::newRow("set") << "set 2" << Indexes{2} << 2 << Indexes{2};
        QTest::newRow("set the same") << "set 1" << Indexes{1} << 1 << Indexes{1};
        QTest::newRow("set negative") << "set -3" << Indexes{-3, 0} << 0 << Indexes{0};
        QTest::newRow("set past the end") << "set 3" << Indexes{3} << 3 << Indexes{};
        QTest::newRow("set past the end, then fill up") << "set 3,append" << Indexes{3} << 3 << Indexes{3};
        QTest::newRow("set past the end, remove") << "set 7,remove 0" << Indexes{7} << 6 << Indexes{};
        QTest::newRow("remove before") << "remove 0" << Indexes{} << 0 << Indexes{0};
        QTest::newRow("remove current") << "remove 1" << Indexes{0} << 0 << Indexes{0};
        QTest::newRow("remove after") << "remove 2" << Indexes{} << 1 << Indexes{1};
        QTest::newRow("remove out of range") << "remove 3,remove -1" << Indexes{} << 1 << Indexes{1};
        QTest::newRow("remove all") << "remove 1,remove 0,remove 0" << Indexes{0, 0} << -1 << Indexes{};
        QTest::newRow("clear") << "clear" << Indexes{} << -1 << Indexes{};
        QTest::newRow("clear and append") << "clear,append,append" << Indexes{0} << 0 << Indexes{0};
        QTest::newRow("clear and set") << "clear,set -1,set 4" << Indexes{-1, 4} << 4 << Indexes{};
        QTest::newRow("trigger") << "trigger 2" << Indexes{2} << 2 << Indexes{2};
        QTest::newRow("trigger the current one") << "trigger 1,trigger 1" << Indexes{1, 1} << 1 << Indexes{1};
    }

    void signalsInTheirOrder()
    {
        QFETCH(QString, operations);
        QFETCH(Indexes, signalled);
        QFETCH(int, current);
        QFETCH(Indexes, checked);
        ButtonWithPopUpList button;
        QCOMPARE(button.popupMode(), QToolButton::MenuButtonPopup);
        for (int i = 0; i < 3; ++i)
            Perform(button, "append");
        button.SetCurrentIndex(1);
        Indexes seen;
        connect(&button, &ButtonWithPopUpList::CurrentIndexChanged, [&](int index) { seen += index; });
        for (const QString& operation : operations.split(','))
            Perform(button, operation);
        QCOMPARE(seen, signalled);
        QCOMPARE(button.CurrentIndex(), current);
        QCOMPARE(button.CurrentData(), button.ItemData(current));
        QCOMPARE(CheckedOf(button), checked);
        QCOMPARE(ChoicesOf(button).size(), button.Count());
    }

    void valuesAreFoundByEquality()
    {
        ButtonWithPopUpList button;
        button.AppendItem("One", 1);
        button.AppendItem("Text", "text");
        button.AppendItem("Text again", "text");
        QCOMPARE(button.ItemIndex("text"), 1);
        QCOMPARE(button.ItemIndex("other"), -1);
        QVERIFY(!button.ItemData(3).isValid() && !button.ItemData(-1).isValid());
        button.RemoveItem(QVariant("other"));
        button.RemoveItem(QVariant("text"));
        QCOMPARE(button.Count(), 2);
        QCOMPARE(button.ItemData(1), QVariant("text"));
        QCOMPARE(ChoicesOf(button)[1]->text(), QString("Text again"));
        // Each item has a separator of its own, which stays when the item goes.
        QCOMPARE(button.menu()->actions().size(), 2 + 3);
    }

    void slotMayCallBack_data()
    {
        QTest::addColumn<QString>("operation");
        for (const char* operation : {"append", "remove 0", "remove 1", "clear", "set 0", "delete", "delete later"})
            QTest::newRow(operation) << operation;
    }

    void slotMayCallBack()
    {
        QFETCH(QString, operation);
        for (const QString cause : {"set 1", "trigger 1", "remove 1"}) {
            QPointer<ButtonWithPopUpList> button = new ButtonWithPopUpList;
            for (int i = 0; i < 3; ++i)
                Perform(*button, "append");
            button->SetCurrentIndex(1);
            int calls = 0;
            connect(button, &ButtonWithPopUpList::CurrentIndexChanged, qApp, [&] {
                if (++calls > 1)
                    return;
                if (operation == "delete later")
                    button->deleteLater();
                else if (operation == "delete" && !cause.startsWith("trigger")) // Qt's own rule for actions
                    delete button;
                else
                    Perform(*button, operation);
            });
            Perform(*button, cause);
            if (button) {
                QCOMPARE(ChoicesOf(*button).size(), button->Count());
                const bool inRange = button->CurrentIndex() >= 0 && button->CurrentIndex() < button->Count();
                QCOMPARE(CheckedOf(*button), inRange ? Indexes{button->CurrentIndex()} : Indexes{});
            }
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            delete button;
        }
    }
};

VX_TEST_MAIN(tst_ButtonWithPopUpList)
#include "tst_ButtonWithPopUpList.moc"
