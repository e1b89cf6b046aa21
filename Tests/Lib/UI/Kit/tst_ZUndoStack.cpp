#include <UI/Kit/ZUndoStack.h>

#include <Support/TestCase.h>

#include <QPointer>

#include <functional>

namespace {

QStringList events;
int alive = 0;

/// Writes down what is done to it, and notices being deleted while it runs.
class Step : public QUndoCommand
{
public:
    explicit Step(QChar name, std::function<void()> act = nullptr) : name(name), act(std::move(act)) { ++alive; }
    ~Step() override
    {
        --alive;
        events += QString('-') + name + QString(running, '!');
    }

    void undo() override { run('u'); }
    void redo() override { run('r'); }

private:
    void run(QChar what)
    {
        events += QString(what) + name;
        ++running;
        if (const auto once = std::exchange(act, nullptr))
            once();
        --running;
    }

    QChar name;
    std::function<void()> act;
    int running = 0;
};

// A letter pushes a command of that name, a small one past the transactions; ( ) ! open, commit and roll back; * clears
// and ~ deletes the stack.
void Play(QPointer<ZUndoStack> stack, const QString& script)
{
    using Stack = ZUndoStack;
    static const QMap<QChar, void (Stack::*)()> SIGNS{{'<', &Stack::undo},
                                                      {'>', &Stack::redo},
                                                      {'(', &Stack::startTransaction},
                                                      {')', &Stack::commitTransaction},
                                                      {'!', &Stack::rollbackTransaction},
                                                      {'*', &Stack::clear}};
    for (int i = 0; i < script.size() && stack; ++i) {
        const QChar c = script[i];
        if (const auto act = SIGNS.value(c))
            (stack->*act)();
        else if (c == '~')
            delete stack;
        else if (c.isLower())
            stack->pushPastTransactions(new Step(c));
        else
            stack->push(c == '0' ? nullptr : new Step(c));
    }
}

} // namespace

class tst_ZUndoStack : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void history()
    {
        struct Row
        {
            QString script;
            QString events; ///< u undone, r redone, - deleted
            int count;
            QString can;
        };
        const Row rows[] = {
            {"<>)!*0", "", 0, ""},
            {"AB<", "uB", 1, "<>"},
            {"AB<<C", "uB uA -A -B", 1, "<"},
            {"AB<0>", "uB rB", 2, "<"},
            {"(AB)<>", "uB uA rA rB", 1, "<"},
            {"A<(0)", "uA", 0, ">"},    // an empty transaction keeps what can be redone
            {"A<(B)", "uA -A", 1, "<"}, // another one does not
            {"(A<)", "uA -A", 0, ""},   // nothing is left of what was undone
            {"(AB<)<", "uB -B uA", 0, ">"},
            {"X(AB!", "uB uA -A -B", 1, "<"},
            {"X(AB<!", "uB uA -A -B", 1, "<"},
            {"((A)B)<>", "uB uA rA rB", 1, "<"},
            {"(A(B!C)<", "uB -B uC uA", 0, ">"},
            {"(A(B)!", "uB uA -A -B", 0, ""},
            {"X(<", "", 1, ""}, // what was before a transaction waits
            {"AB<(C*", "uB -A -B", 0, "<"},
            {"A<(BcD)", "uA -A", 2, "<"},
        };
        for (const Row& row : rows) {
            InRow(row.script);
            events.clear();
            {
                ZUndoStack stack;
                Play(&stack, row.script);
                QCOMPARE(QStringList(events).join(' '), row.events);
                QCOMPARE(stack.count(), row.count);
                QCOMPARE(QString(stack.canUndo() ? "<" : "") + (stack.canRedo() ? ">" : ""), row.can);
            }
            QCOMPARE(alive, 0);
        }
    }

    void commandsThatUseTheStack()
    {
        const QStringList scripts{"X", "(", ")", "!", "*", "<", ">", "(X)", "!X", ")<", ")<X", "<X", "~", "))<~"};
        const QStringList befores{"A", "A(B", "A((B", "((A)(B"};
        const QStringList afters{"<", "<!", "<)<", "<<", "<>", "<>!", "<>)<", "<><"};
        for (int i = 0; i < scripts.size() * befores.size() * afters.size(); ++i) {
            const QString script = scripts[i % scripts.size()];
            const QString before = befores[i / scripts.size() % befores.size()];
            const QString after = afters[i / scripts.size() / befores.size()];
            InRow(before + " then " + script + " then " + after);
            events.clear();
            QPointer<ZUndoStack> stack = new ZUndoStack;
            Play(stack, before);
            stack->push(new Step('S', [&] { Play(stack, script); }));
            Play(stack, after);
            delete stack;
            QCOMPARE(alive, 0);
            QVERIFY2(events.filter("!").isEmpty(), qPrintable(events.join(' ')));
        }
    }

    // One that is deleted instead of being closed, and one that was opened on a transaction and not on the stack.
    void transactionsOfOddOrigin()
    {
        ZUndoStack stack;
        Play(&stack, "(A(B");
        delete stack.currentTransaction();
        Play(&stack, "C");
        stack.currentTransaction()->startTransaction();
        Play(&stack, "D))");
        QVERIFY(!stack.currentTransaction());
        events.clear();
        Play(&stack, "<*");
        QCOMPARE(events.mid(0, 3), QStringList({"uD", "uC", "uA"}));
        QCOMPARE(alive, 0);
    }
};

VX_TEST_MAIN(tst_ZUndoStack)
#include "tst_ZUndoStack.moc"
