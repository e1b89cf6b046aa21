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

// A letter pushes a command of that name, a small one past the transactions; ( ) ! open, commit and roll back.
void Play(ZUndoStack& stack, const QString& script)
{
    static const QMap<QChar, const char*> SIGNS{{'<', "undo"},
                                                {'>', "redo"},
                                                {'(', "startTransaction"},
                                                {')', "commitTransaction"},
                                                {'!', "rollbackTransaction"},
                                                {'*', "clear"}};
    for (const QChar c : script) {
        if (const char* slot = SIGNS.value(c))
            QMetaObject::invokeMethod(&stack, slot);
        else if (c.isLower())
            stack.pushPastTransactions(new Step(c));
        else
            stack.push(c == '0' ? nullptr : new Step(c));
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
                Play(stack, row.script);
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
        for (const QString& script : scripts) {
            for (const QString before : {"A", "A(B", "A((B", "((A)(B"}) {
                for (const bool redone : {false, true}) {
                    for (const QString after : {"<", "!", ")<", ""}) {
                        InRow(before + " then " + script + (redone ? " redone" : " undone") + " then " + after);
                        events.clear();
                        QPointer<ZUndoStack> stack = new ZUndoStack;
                        Play(*stack, before);
                        const auto act = [&] {
                            for (const QChar c : script) {
                                if (c == '~')
                                    delete stack;
                                else if (stack)
                                    Play(*stack, c);
                            }
                        };
                        stack->push(new Step('S', act));
                        stack->undo();
                        if (redone && stack)
                            stack->redo();
                        if (stack)
                            Play(*stack, after);
                        delete stack;
                        QCOMPARE(alive, 0);
                        QVERIFY2(events.filter("!").isEmpty(), qPrintable(events.join(' ')));
                    }
                }
            }
        }
    }

    // One that is deleted instead of being closed, and one that was opened on a transaction and not on the stack.
    void transactionsOfOddOrigin()
    {
        {
            ZUndoStack stack;
            Play(stack, "(A(B");
            delete stack.currentTransaction();
            Play(stack, "C");
            stack.currentTransaction()->startTransaction();
            Play(stack, "D))");
            QVERIFY(!stack.currentTransaction());
            events.clear();
            Play(stack, "<");
            QCOMPARE(events, QStringList({"uD", "uC", "uA"}));
        }
        QCOMPARE(alive, 0);
    }

    void aMillionInATransaction()
    {
        ZUndoStack stack;
        for (const char* end : {")<>", "!"}) {
            stack.startTransaction();
            for (int i = 0; i < 1000000; ++i)
                stack.push(new QUndoCommand);
            Play(stack, end);
        }
        QCOMPARE(stack.count(), 1);
    }
};

VX_TEST_MAIN(tst_ZUndoStack)
#include "tst_ZUndoStack.moc"
