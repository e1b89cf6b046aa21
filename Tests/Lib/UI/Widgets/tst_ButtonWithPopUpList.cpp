#include <UI/Widgets/ButtonWithPopUpList.h>

#include <Support/ModalWatcher.h>
#include <Support/TestCase.h>

#include <QMenu>

#include <functional>

using Zelkor::Vx::ButtonWithPopUpList;
using Action = std::function<void(ButtonWithPopUpList&)>;
using Indexes = QList<int>;

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
    void emitsEachIndex()
    {
        // The emitted indexes, and the current one at the end.
        const auto indexes = [](
                                 const Action& first, const Action& second = [](auto&) {}) {
            List button;
            Indexes seen;
            connect(&button, &ButtonWithPopUpList::CurrentIndexChanged, [&](int index) { seen += index; });
            first(button);
            second(button);
            for (int i = 0; i < button.Count(); ++i)
                [&] { QCOMPARE(ActionsOf(button).at(i)->isChecked(), i == button.CurrentIndex()); }();
            return seen << button.CurrentIndex();
        };
        const auto set = [](int index) { return [=](auto& button) { button.SetCurrentIndex(index); }; };
        const auto remove = [](int index) { return [=](auto& button) { button.RemoveItem(index); }; };
        const auto append = [](auto& button) { button.AppendItem("d", 0); };
        const auto deleteAction = [](auto& button) { delete ActionsOf(button)[1]; };
        const auto trigger = [](auto& button) { ActionsOf(button).last()->trigger(); };
        QCOMPARE(indexes(set(2)), Indexes({2, 2}));
        QCOMPARE(indexes(set(-3)), Indexes({-3, 0, 0}));
        QCOMPARE(indexes(set(3), append), Indexes({3, 3}));
        QCOMPARE(indexes(remove(0), trigger), Indexes({1, 1}));
        QCOMPARE(indexes(remove(1)), Indexes({0, 0}));
        QCOMPARE(indexes(remove(3), remove(-1)), Indexes({1}));
        QCOMPARE(indexes(deleteAction, set(1)), Indexes({0, 1, 1}));
        QCOMPARE(indexes(&ButtonWithPopUpList::Clear, append), Indexes({0, 0}));
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
