#include <UI/Widgets/ButtonWithPopUpList.h>

#include <Support/ModalWatcher.h>
#include <Support/TestCase.h>

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

// Three items, of which the second one is current.
struct List : ButtonWithPopUpList
{
    List()
    {
        for (const char* text : {"a", "b", "c"})
            AppendItem(text, text);
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
        const Action append = [](auto& button) { button.AppendItem("d", 0); };
        const Action none = [](auto&) {};
        const Action clear = &ButtonWithPopUpList::Clear;
        QTest::newRow("set") << set(2) << none << Indexes{2} << 2;
        QTest::newRow("set a negative index") << set(-3) << none << Indexes{-3, 0} << 0;
        QTest::newRow("set past the end, append") << set(3) << append << Indexes{3} << 3;
        QTest::newRow("remove an earlier one, trigger") << remove(0) << trigger << Indexes{1} << 1;
        QTest::newRow("remove the current one") << remove(1) << none << Indexes{0} << 0;
        QTest::newRow("remove out of range") << remove(3) << remove(-1) << Indexes{} << 1;
        QTest::newRow("delete the current action, set") << deleteAction << set(1) << Indexes{0, 1} << 1;
        QTest::newRow("clear, append") << clear << append << Indexes{0} << 0;
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
        List button;
        button.AppendItem("b again", "b");
        QCOMPARE(button.ItemIndex("b"), 1);
        QCOMPARE(button.ItemIndex("other"), -1);
        button.RemoveItem(QVariant("b"));
        QCOMPARE(ActionsOf(button)[2]->text(), QString("b again"));
        QCOMPARE(button.CurrentData(), QVariant("a"));
    }

    void menuOpenedByKeyHighlightsTheCurrentItem()
    {
        List button;
        button.show();
        QStringList highlighted;
        const Support::ModalWatcher menus([&](QWidget* menu) {
            QAction* active = static_cast<QMenu*>(menu)->activeAction();
            highlighted += active ? QString::number(ActionsOf(button).indexOf(active)) : "none";
            menu->close();
        });
        QTest::keyClick(&button, Qt::Key_Down);
        button.showMenu();
        QCOMPARE(highlighted, QStringList({"1", "none"}));
    }
};

VX_TEST_MAIN(tst_ButtonWithPopUpList)
#include "tst_ButtonWithPopUpList.moc"
