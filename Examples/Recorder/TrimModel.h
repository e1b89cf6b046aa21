#pragma once

#include <UI/Kit/ZUndoStack.h>

#include <QObject>
#include <QVector>

namespace Zelkor::Recorder {

/// The trim of a recording: its start, its end and the ranges cut out between. Every change can be undone.
///
/// Times are in milliseconds from the start of the recording. Independent of widgets. GUI thread.
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
        QVector<Range> cuts; ///< sorted and disjoint, also outside of the kept range

        bool operator==(const Trim& other) const { return kept == other.kept && cuts == other.cuts; }
    };

    /// Creates an empty trim of a recording with this duration.
    explicit TrimModel(qint64 duration, QObject* parent = nullptr);

    qint64 Duration() const { return duration; }
    const Trim& Current() const { return trim; }

    /// The remaining ranges, in order, and their total duration.
    QVector<Range> Pieces() const;
    qint64 ResultDuration() const;

    /// Keeps at least a frame of 40 ms between start and end.
    void SetStart(qint64 time);
    void SetEnd(qint64 time);

    /// Cuts out the range between two times, in either order.
    void CutOut(qint64 from, qint64 to);

    /// Groups the changes until the step is finished into one undo step, for example of a drag.
    void StartStep();
    void FinishStep();

    /// Reverts the changes since the step started. Does nothing without a step.
    void CancelStep();
    bool HasOpenStep() const;

    bool CanUndo() const { return undoStack.canUndo(); }
    bool CanRedo() const { return undoStack.canRedo(); }
    void Undo();
    void Redo();

Q_SIGNALS:
    /// Emitted when the trim or the undo stack changes.
    void Changed();

private:
    class Change;

    void Set(const Trim& newTrim);

    const qint64 duration;
    Trim trim;
    ZUndoStack undoStack;
};

} // namespace Zelkor::Recorder
