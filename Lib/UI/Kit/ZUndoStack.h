#pragma once

#include <QObject>
#include <QUndoCommand>
#include <QVector>

/// An undo history of actions that were performed already, with transactions: a group of actions that can be undone and
/// redone one by one while it is open, and becomes one step when it is committed or is taken back when it is rolled
/// back. Transactions nest; while one is open, what was before it cannot be undone.
///
/// The stack owns its commands. A command may do anything with the stack from inside its own `undo` and `redo`, delete
/// it included: it is itself deleted after it has returned. One thread, that of the object.
class ZUndoStack : public QObject
{
    Q_OBJECT

public:
    /// A committed transaction as one step. Owns its commands.
    class TransactionCommand : public QUndoCommand
    {
    public:
        /// Takes the commands in the order in which they were performed.
        explicit TransactionCommand(QVector<QUndoCommand*> performed);
        ~TransactionCommand() override;
        Q_DISABLE_COPY_MOVE(TransactionCommand)

        void undo() override;
        void redo() override;

    private:
        QVector<QUndoCommand*> commands;
    };

    explicit ZUndoStack(QObject* parent = nullptr);
    ~ZUndoStack() override;

    /// Records an action that was performed: `redo` is not called. Goes into the innermost open transaction, and what
    /// was undone there is deleted. Takes the command, which no other stack, command or transaction may own. Null is
    /// ignored.
    void push(QUndoCommand* command);

    /// The same past all open transactions, into the history of this stack itself. The action stands when they are
    /// rolled back.
    void pushPastTransactions(QUndoCommand* command);

    /// Whether there is anything to undo or redo, in the innermost open transaction when one is open.
    bool canUndo() const;
    bool canRedo() const;

    /// The steps that this stack itself can undo, those of open transactions not counted.
    int count() const;

    /// The innermost open transaction, which lives until it is committed or rolled back; null when none is open.
    ZUndoStack* currentTransaction() const;

public Q_SLOTS:
    /// Takes back or repeats one step; nothing when there is none.
    void undo();
    void redo();

    void startTransaction();

    /// Makes one step of what the innermost transaction has performed and deletes what was undone in it. One that has
    /// performed nothing leaves no step, and the history as it was.
    void commitTransaction();

    /// Undoes what the innermost transaction has performed and deletes it.
    void rollbackTransaction();

    /// Deletes the steps of this stack itself. Open transactions stay.
    void clear();

private:
    const ZUndoStack* currentHistory() const;
    ZUndoStack* currentHistory();
    ZUndoStack* takeTransaction();

    QVector<QUndoCommand*> undoList;       ///< oldest first
    QVector<QUndoCommand*> redoList;       ///< the next one to redo is the last
    QVector<ZUndoStack*> openTransactions; ///< children of this object, the innermost is the last
};
