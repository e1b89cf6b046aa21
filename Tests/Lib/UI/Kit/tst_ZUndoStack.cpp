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
    void historyFollowsTheCalls()
    {
        // What the commands record, the number of steps, and whether these can be undone and redone.
        const auto history = [](const QString& calls) {
            events.clear();
            ZUndoStack stack;
            stack.push(nullptr);
            Call(&stack, calls);
            return events.join(", ") + QString("; %1").arg(stack.count()) + (stack.canUndo() ? " undo" : "") +
                   (stack.canRedo() ? " redo" : "");
        };
        QCOMPARE(history("undo, redo, commitTransaction, rollbackTransaction, clear"), QString("; 0"));
        QCOMPARE(history("push A, push B, undo, undo, push C"), QString("undo B, undo A, delete A, delete B; 1 undo"));
        // A transaction is one step, unless it is empty, and contains no undone commands.
        QCOMPARE(history("startTransaction, push A, push B, commitTransaction, undo, redo"),
                 QString("undo B, undo A, redo A, redo B; 1 undo"));
        QCOMPARE(history("push A, undo, startTransaction, commitTransaction, redo"), QString("undo A, redo A; 1 undo"));
        QCOMPARE(history("push A, undo, startTransaction, push B, commitTransaction, redo"),
                 QString("undo A, delete A; 1 undo"));
        QCOMPARE(history("startTransaction, push A, push B, undo, commitTransaction, undo"),
                 QString("undo B, delete B, undo A; 0 redo"));
        QCOMPARE(history("push X, startTransaction, push A, push B, undo, rollbackTransaction"),
                 QString("undo B, undo A, delete A, delete B; 1 undo"));
        QCOMPARE(history("startTransaction, push A, startTransaction, push B, rollbackTransaction, push C, "
                         "commitTransaction, undo"),
                 QString("undo B, delete B, undo C, undo A; 0 redo"));
        // Calls apply to the transaction, with exceptions.
        QCOMPARE(history("push X, startTransaction, undo"), QString("; 1"));
        QCOMPARE(history("push A, push B, undo, startTransaction, push C, clear"),
                 QString("undo B, delete A, delete B; 0 undo"));
        QCOMPARE(history("push A, undo, startTransaction, push B, pushPast C, push D, commitTransaction"),
                 QString("undo A, delete A; 2 undo"));
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
