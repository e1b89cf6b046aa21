#include <UI/Kit/ZUndoStack.h>

#include <QPointer>

#include <algorithm>
#include <utility>

namespace {

// A running command. Defers its deletion, which the command may cause itself, for instance by a push.
class Run
{
public:
    explicit Run(QUndoCommand* command) : command(command), outer(innermost) { innermost = this; }

    ~Run()
    {
        innermost = outer;
        if (doomed)
            delete command;
    }

    Q_DISABLE_COPY_MOVE(Run)

    // Returns the outermost run of the command, which may have called itself through the stack.
    static Run* find(const QUndoCommand* command)
    {
        Run* found = nullptr;
        for (Run* run = innermost; run; run = run->outer) {
            if (run->command == command)
                found = run;
        }
        return found;
    }

    void deleteAtEnd() { doomed = true; }

private:
    // Not a member of the stack, because a command may move to the enclosing stack or outlive both.
    static thread_local Run* innermost;

    QUndoCommand* command;
    Run* outer;
    bool doomed = false;
};

thread_local Run* Run::innermost = nullptr;

void Delete(QUndoCommand* command)
{
    if (Run* run = Run::find(command))
        run->deleteAtEnd();
    else
        delete command;
}

// Deletes from last to first. Clears the list before, because a destructor may use the stack.
void DeleteAll(QVector<QUndoCommand*>& list)
{
    const QVector<QUndoCommand*> doomed = std::exchange(list, {});
    std::for_each(doomed.crbegin(), doomed.crend(), Delete);
}

} // namespace

ZUndoStack::TransactionCommand::TransactionCommand(QVector<QUndoCommand*> performed) : commands(std::move(performed)) {}

ZUndoStack::TransactionCommand::~TransactionCommand()
{
    std::for_each(commands.cbegin(), commands.cend(), Delete);
}

void ZUndoStack::TransactionCommand::undo()
{
    std::for_each(commands.crbegin(), commands.crend(), [](QUndoCommand* command) { command->undo(); });
}

void ZUndoStack::TransactionCommand::redo()
{
    std::for_each(commands.cbegin(), commands.cend(), [](QUndoCommand* command) { command->redo(); });
}

ZUndoStack::ZUndoStack(QObject* parent) : QObject(parent) {}

ZUndoStack::~ZUndoStack()
{
    // The application may delete an open transaction.
    if (auto* owner = qobject_cast<ZUndoStack*>(parent()))
        owner->openTransactions.removeOne(this);
    clear();
}

void ZUndoStack::push(QUndoCommand* command)
{
    currentHistory()->pushPastTransactions(command);
}

void ZUndoStack::pushPastTransactions(QUndoCommand* command)
{
    if (!command)
        return;
    undoList.append(command);
    DeleteAll(redoList);
}

bool ZUndoStack::canUndo() const
{
    return !currentHistory()->undoList.isEmpty();
}

bool ZUndoStack::canRedo() const
{
    return !currentHistory()->redoList.isEmpty();
}

int ZUndoStack::count() const
{
    return undoList.size();
}

ZUndoStack* ZUndoStack::currentTransaction() const
{
    if (openTransactions.isEmpty())
        return nullptr;
    // A transaction is a stack itself and may have open transactions.
    return openTransactions.last()->currentHistory();
}

// The command may delete the stack, so no member is used afterwards; likewise in redo().
void ZUndoStack::undo()
{
    ZUndoStack* history = currentHistory();
    if (history->undoList.isEmpty())
        return;
    QUndoCommand* command = history->undoList.takeLast();
    history->redoList.append(command);
    const Run run(command);
    command->undo();
}

void ZUndoStack::redo()
{
    ZUndoStack* history = currentHistory();
    if (history->redoList.isEmpty())
        return;
    QUndoCommand* command = history->redoList.takeLast();
    history->undoList.append(command);
    const Run run(command);
    command->redo();
}

void ZUndoStack::startTransaction()
{
    openTransactions.append(new ZUndoStack(this));
}

void ZUndoStack::commitTransaction()
{
    ZUndoStack* transaction = takeTransaction();
    if (!transaction)
        return;
    QVector<QUndoCommand*> performed = std::exchange(transaction->undoList, {});
    delete transaction;
    if (!performed.isEmpty())
        push(new TransactionCommand(std::move(performed)));
}

void ZUndoStack::rollbackTransaction()
{
    // A command may delete the stack and thereby the transaction.
    const QPointer<ZUndoStack> transaction = takeTransaction();
    while (transaction && transaction->canUndo())
        transaction->undo();
    delete transaction;
}

void ZUndoStack::clear()
{
    DeleteAll(undoList);
    DeleteAll(redoList);
}

const ZUndoStack* ZUndoStack::currentHistory() const
{
    const ZUndoStack* transaction = currentTransaction();
    return transaction ? transaction : this;
}

ZUndoStack* ZUndoStack::currentHistory()
{
    ZUndoStack* transaction = currentTransaction();
    return transaction ? transaction : this;
}

// Removes the innermost open transaction from the list that contains it.
ZUndoStack* ZUndoStack::takeTransaction()
{
    if (openTransactions.isEmpty())
        return nullptr;
    ZUndoStack* inner = openTransactions.last()->takeTransaction();
    return inner ? inner : openTransactions.takeLast();
}
