#pragma once

#include <QObject>
#include <QUndoCommand>
#include <QVector>

/// An undo stack for actions that are already performed, with nested transactions.
///
/// Actions in an open transaction can be undone and redone one by one. Committing makes them one step, rolling back
/// undoes them. While a transaction is open, earlier steps cannot be undone.
///
/// The stack owns its commands. A command may call the stack from its own `undo` and `redo` and may even delete it; a
/// running command is deleted after it returns. Not thread-safe: use it in the thread of the object only.
class ZUndoStack : public QObject
{
    Q_OBJECT

public:
    /// A committed transaction. Owns its commands.
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

    /// Adds a performed action to the innermost open transaction without a call of `redo`, and deletes the undone
    /// commands there. Takes ownership of the command, which must have no other owner. Ignores null.
    void push(QUndoCommand* command);

    /// Adds a performed action to the history of this stack itself, so that a rollback of open transactions does not
    /// undo it.
    void pushPastTransactions(QUndoCommand* command);

    /// Return whether the innermost open transaction, or the stack without one, has a step to undo or redo.
    bool canUndo() const;
    bool canRedo() const;

    /// Returns the number of steps to undo in this stack itself, without open transactions.
    int count() const;

    /// Returns the innermost open transaction, or null. It is deleted when it is committed or rolled back.
    ZUndoStack* currentTransaction() const;

public Q_SLOTS:
    /// Undo or redo one step, if there is one.
    void undo();
    void redo();

    /// Opens a transaction within the innermost open one.
    void startTransaction();

    /// Combines the actions of the innermost transaction into one step and deletes the undone ones. An empty
    /// transaction does not change the history.
    void commitTransaction();

    /// Undoes the actions of the innermost transaction and deletes it.
    void rollbackTransaction();

    /// Deletes the steps of this stack itself, but no open transactions.
    void clear();

private:
    const ZUndoStack* currentHistory() const;
    ZUndoStack* currentHistory();
    ZUndoStack* takeTransaction();

    QVector<QUndoCommand*> undoList;       ///< oldest first
    QVector<QUndoCommand*> redoList;       ///< last undone last
    QVector<ZUndoStack*> openTransactions; ///< children of this object, innermost last
};
