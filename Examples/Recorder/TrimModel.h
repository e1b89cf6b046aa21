#pragma once

#include <UI/Kit/ZUndoStack.h>

#include <QObject>
#include <QVector>

namespace Zelkor::Recorder {

/// How a recording is trimmed: where it starts and ends, and what is cut out between. Every change can be undone.
///
/// Times are in milliseconds from the beginning of the recording. Knows no widget. GUI thread.
class TrimModel : public QObject
{
    Q_OBJECT

public:
    struct Range
    {
        qint64 from;
        qint64 to;

        bool operator==(const Range& other) const { return from == other.from && to == other.to; }
    };

    struct Trim
    {
        Range kept;
        QVector<Range> cuts; ///< in order, without touching each other; also of what is not kept for now

        bool operator==(const Trim& other) const { return kept == other.kept && cuts == other.cuts; }
    };

    /// Keeps all of a recording this long.
    explicit TrimModel(qint64 duration, QObject* parent = nullptr);

    qint64 Duration() const { return duration; }
    const Trim& Current() const { return trim; }

    /// The pieces that make up the result, in order, and how long they are together.
    QVector<Range> Pieces() const;
    qint64 ResultDuration() const;

    /// Start and end go no closer to each other than a frame of 40 milliseconds.
    void SetStart(qint64 time);
    void SetEnd(qint64 time);

    /// Takes a stretch out of the middle, whichever of the two times comes first.
    void CutOut(qint64 from, qint64 to);

    /// All changes from now on, until the step is finished, are one step to undo. A drag is one.
    void StartStep();
    void FinishStep();

    /// Takes back what was changed since the step started. Does nothing when none has.
    void CancelStep();
    bool HasOpenStep() const;

    bool CanUndo() const { return undoStack.canUndo(); }
    bool CanRedo() const { return undoStack.canRedo(); }
    void Undo();
    void Redo();

Q_SIGNALS:
    /// The trim is another one, or what can be undone is.
    void Changed();

private:
    class Change;

    void Set(const Trim& newTrim);

    const qint64 duration;
    Trim trim;
    ZUndoStack undoStack;
};

} // namespace Zelkor::Recorder
