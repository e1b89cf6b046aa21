#include <UI/Kit/ZUndoStack.h>

#include <Support/TestCase.h>

#include <QPointer>

#include <functional>

namespace {

QStringList events;
int alive = 0;

/// Records its calls and its deletion, and whether it is deleted while it runs.
class Command : public QUndoCommand
{
public:
    explicit Command(const QString& name, std::function<void()> act = nullptr) : name(name), act(std::move(act))
    {
        ++alive;
    }
    ~Command() override
    {
        --alive;
        events += (depth > 0 ? "deleted while running " : "delete ") + name;
    }

    void undo() override { run("undo " + name); }
    void redo() override { run("redo " + name); }

private:
    void run(const QString& event)
    {
        events += event;
        ++depth;
        if (const auto once = std::exchange(act, nullptr))
            once();
        --depth;
    }

    QString name;
    std::function<void()> act;
    int depth = 0;
};

// Calls slots of the stack by their names; "push A" and "pushPast A" add a command, "delete" deletes the stack.
void Call(QPointer<ZUndoStack> stack, const QString& calls)
{
    for (const QString& call : calls.split(", ", Qt::SkipEmptyParts)) {
        if (!stack)
            return;
        if (call.startsWith("pushPast "))
            stack->pushPastTransactions(new Command(call.section(' ', 1)));
        else if (call.startsWith("push "))
            stack->push(new Command(call.section(' ', 1)));
        else if (call == "delete")
            delete stack;
        else
            QVERIFY2(QMetaObject::invokeMethod(stack, call.toLatin1()), qPrintable(call));
    }
}

} // namespace

class tst_ZUndoStack : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void historyFollowsTheCalls_data()
    {
        QTest::addColumn<QString>("calls");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("can");
        const auto row = [](const char* name, const QString& calls, const QString& expected, int count,
                            const QString& can) { QTest::newRow(name) << calls << expected << count << can; };
        row("empty stack", "undo, redo, commitTransaction, rollbackTransaction, clear", "", 0, "");
        row("undo", "push A, push B, undo", "undo B", 1, "undoredo");
        row("push deletes undone commands", "push A, push B, undo, undo, push C", "undo B, undo A, delete A, delete B",
            1, "undo");
        row("transaction is one step", "startTransaction, push A, push B, commitTransaction, undo, redo",
            "undo B, undo A, redo A, redo B", 1, "undo");
        row("empty transaction keeps undone commands", "push A, undo, startTransaction, commitTransaction, redo",
            "undo A, redo A", 1, "undo");
        row("transaction deletes undone commands", "push A, undo, startTransaction, push B, commitTransaction, redo",
            "undo A, delete A", 1, "undo");
        row("undone commands are not committed", "startTransaction, push A, push B, undo, commitTransaction, undo",
            "undo B, delete B, undo A", 0, "redo");
        row("rollback undoes the rest", "push X, startTransaction, push A, push B, undo, rollbackTransaction",
            "undo B, undo A, delete A, delete B", 1, "undo");
        row("nested rollback",
            "startTransaction, push A, startTransaction, push B, rollbackTransaction, push C, commitTransaction, undo",
            "undo B, delete B, undo C, undo A", 0, "redo");
        row("earlier steps wait for the transaction", "push X, startTransaction, undo", "", 1, "");
        row("clear keeps transactions", "push A, push B, undo, startTransaction, push C, clear",
            "undo B, delete A, delete B", 0, "undo");
        row("push past a transaction", "push A, undo, startTransaction, push B, pushPast C, push D, commitTransaction",
            "undo A, delete A", 2, "undo");
    }

    void historyFollowsTheCalls()
    {
        QFETCH(QString, calls);
        events.clear();
        {
            ZUndoStack stack;
            stack.push(nullptr);
            Call(&stack, calls);
            QTEST(QStringList(events).join(", "), "expected");
            QTEST(stack.count(), "count");
            QTEST(QString(stack.canUndo() ? "undo" : "") + (stack.canRedo() ? "redo" : ""), "can");
        }
        QCOMPARE(alive, 0);
    }

    // The same random calls in each run: before a command is pushed, within it, and after.
    void commandMayCallItsStack()
    {
        const QStringList calls{
            "push X", "undo", "redo", "clear", "startTransaction", "commitTransaction", "rollbackTransaction"};
        QRandomGenerator random(1);
        const auto choose = [&](int count, const QStringList& from) {
            QStringList chosen;
            while (chosen.size() < count)
                chosen += from[random.bounded(from.size())];
            return chosen.join(", ");
        };
        for (int round = 0; round < 3000; ++round) {
            const QString before = choose(4, calls);
            const QString within = choose(3, calls + QStringList{"delete"});
            const QString after = choose(4, calls);
            events.clear();
            QPointer<ZUndoStack> stack = new ZUndoStack;
            Call(stack, before);
            stack->push(new Command("S", [&] { Call(stack, within); }));
            Call(stack, after);
            delete stack;
            QVERIFY2(alive == 0, qPrintable(before + "; " + within + "; " + after));
            QCOMPARE(events.filter("deleted while running"), QStringList());
        }
    }

    void transactionMayBeDeletedOrHaveItsOwnTransactions()
    {
        ZUndoStack stack;
        Call(&stack, "startTransaction, push A, startTransaction, push B");
        delete stack.currentTransaction();
        stack.push(new Command("C"));
        stack.currentTransaction()->startTransaction();
        Call(&stack, "push D, commitTransaction, commitTransaction");
        QVERIFY(!stack.currentTransaction());
        events.clear();
        Call(&stack, "undo, clear");
        QCOMPARE(events.mid(0, 3), QStringList({"undo D", "undo C", "undo A"}));
        QCOMPARE(alive, 0);
    }
};

VX_TEST_MAIN(tst_ZUndoStack)
#include "tst_ZUndoStack.moc"
