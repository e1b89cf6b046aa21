#include <UI/Widgets/ButtonWithPopUpList.h>

#include <Support/ModalWatcher.h>
#include <Support/TestCase.h>

#include <QAccessible>
#include <QMenu>

#include <functional>

using Zelkor::Vx::ButtonWithPopUpList;
using Action = std::function<void(ButtonWithPopUpList&)>;
using Indexes = QList<int>;
Q_DECLARE_METATYPE(Action)

namespace {

QList<QAction*> ActionsOf(const ButtonWithPopUpList& button)
{
    QList<QAction*> actions;
    for (QAction* action : button.menu()->actions()) {
        if (!action->isSeparator())
            actions += action;
    }
    return actions;
}

void Append(ButtonWithPopUpList& button)
{
    button.AppendItem("Item", button.Count());
}

// Three items, of which the second one is current.
struct List : ButtonWithPopUpList
{
    List()
    {
        for (int i = 0; i < 3; ++i)
            Append(*this);
        SetCurrentIndex(1);
    }
};

} // namespace

class tst_ButtonWithPopUpList : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void emitsEachIndex_data()
    {
        QTest::addColumn<Action>("first");
        QTest::addColumn<Action>("second");
        QTest::addColumn<Indexes>("emitted");
        QTest::addColumn<int>("current");
        const auto set = [](int index) { return Action([=](auto& button) { button.SetCurrentIndex(index); }); };
        const auto remove = [](int index) { return Action([=](auto& button) { button.RemoveItem(index); }); };
        const Action deleteAction = [](auto& button) { delete ActionsOf(button)[1]; };
        const Action trigger = [](auto& button) { ActionsOf(button).last()->trigger(); };
        const Action none = [](auto&) {};
        const Action clear = &ButtonWithPopUpList::Clear;
        QTest::newRow("set") << set(2) << none << Indexes{2} << 2;
        QTest::newRow("set a negative index") << set(-3) << none << Indexes{-3, 0} << 0;
        QTest::newRow("set past the end, append") << set(3) << Action(Append) << Indexes{3} << 3;
        QTest::newRow("remove an earlier one, trigger") << remove(0) << trigger << Indexes{1} << 1;
        QTest::newRow("remove the current one") << remove(1) << none << Indexes{0} << 0;
        QTest::newRow("remove out of range") << remove(3) << remove(-1) << Indexes{} << 1;
        QTest::newRow("delete the current action, set") << deleteAction << set(1) << Indexes{0, 1} << 1;
        QTest::newRow("clear, append") << clear << Action(Append) << Indexes{0} << 0;
    }

    void emitsEachIndex()
    {
        QFETCH(Action, first);
        QFETCH(Action, second);
        List button;
        Indexes seen;
        connect(&button, &ButtonWithPopUpList::CurrentIndexChanged, [&](int index) { seen += index; });
        first(button);
        second(button);
        QTEST(seen, "emitted");
        QTEST(button.CurrentIndex(), "current");
        for (int i = 0; i < button.Count(); ++i)
            QCOMPARE(ActionsOf(button).at(i)->isChecked(), i == button.CurrentIndex());
    }

    void itemsAreFoundByValue()
    {
        ButtonWithPopUpList button;
        button.AppendItem("One", 1);
        button.AppendItem("Text", "text");
        button.AppendItem("Text again", "text");
        QCOMPARE(button.ItemIndex("text"), 1);
        QCOMPARE(button.ItemIndex("other"), -1);
        button.RemoveItem(QVariant("text"));
        QCOMPARE(ActionsOf(button)[1]->text(), QString("Text again"));
        QCOMPARE(button.CurrentData(), QVariant(1));
    }

    void menuOpenedByKeyHighlightsTheCurrentItem()
    {
        List button;
        button.show();
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&button);
        QStringList highlighted;
        const Support::ModalWatcher menus([&](QWidget* menu) {
            QAction* active = static_cast<QMenu*>(menu)->activeAction();
            highlighted += active ? QString::number(ActionsOf(button).indexOf(active)) : "none";
            QVERIFY(accessible->state().expanded);
            menu->close();
        });
        QTest::keyClick(&button, Qt::Key_Down);
        button.showMenu();
        QCOMPARE(highlighted, QStringList({"1", "none"}));
        QVERIFY(accessible->state().collapsed);
    }
};

VX_TEST_MAIN(tst_ButtonWithPopUpList)
#include "tst_ButtonWithPopUpList.moc"
