#include "TrimModel.h"

#include <algorithm>
#include <utility>

namespace Zelkor::Recorder {

namespace {

constexpr qint64 SHORTEST = 40;

// Sorts cuts and merges those that touch or overlap.
QVector<TrimModel::Range> Tidy(QVector<TrimModel::Range> cuts)
{
    std::sort(cuts.begin(), cuts.end(), [](const auto& a, const auto& b) { return a.from < b.from; });
    QVector<TrimModel::Range> tidy;
    for (const TrimModel::Range& cut : std::as_const(cuts)) {
        if (!tidy.isEmpty() && cut.from <= tidy.last().to)
            tidy.last().to = qMax(tidy.last().to, cut.to);
        else
            tidy.append(cut);
    }
    return tidy;
}

} // namespace

/// A change of the trim, with the old and new values.
class TrimModel::Change : public QUndoCommand
{
public:
    Change(TrimModel* model, Trim before, Trim after) : model(model), before(std::move(before)), after(std::move(after))
    {}

    void undo() override { model->trim = before; }
    void redo() override { model->trim = after; }

private:
    TrimModel* model;
    const Trim before;
    const Trim after;
};

TrimModel::TrimModel(qint64 duration, QObject* parent) : QObject(parent), duration(duration), trim{{0, duration}, {}} {}

QVector<TrimModel::Range> TrimModel::Pieces() const
{
    QVector<Range> pieces;
    qint64 from = trim.kept.from;
    for (const Range& cut : trim.cuts) {
        if (cut.from >= trim.kept.to)
            break;
        if (cut.from > from)
            pieces.append({from, cut.from});
        from = qMax(from, cut.to);
        if (from >= trim.kept.to)
            return pieces;
    }
    pieces.append({from, trim.kept.to});
    return pieces;
}

qint64 TrimModel::ResultDuration() const
{
    qint64 result = 0;
    for (const Range& piece : Pieces())
        result += piece.to - piece.from;
    return result;
}

void TrimModel::SetStart(qint64 time)
{
    Trim changed = trim;
    changed.kept.from = qBound(qint64(0), time, trim.kept.to - SHORTEST);
    Set(changed);
}

void TrimModel::SetEnd(qint64 time)
{
    Trim changed = trim;
    changed.kept.to = qBound(trim.kept.from + SHORTEST, time, duration);
    Set(changed);
}

void TrimModel::CutOut(qint64 from, qint64 to)
{
    if (from == to)
        return;
    Trim changed = trim;
    changed.cuts = Tidy(trim.cuts + QVector<Range>{{qMin(from, to), qMax(from, to)}});
    Set(changed);
}

void TrimModel::Set(const Trim& newTrim)
{
    if (newTrim == trim)
        return;
    undoStack.push(new Change(this, trim, newTrim));
    trim = newTrim;
    Q_EMIT Changed();
}

void TrimModel::StartStep()
{
    undoStack.startTransaction();
    Q_EMIT Changed();
}

void TrimModel::FinishStep()
{
    undoStack.commitTransaction();
    Q_EMIT Changed();
}

void TrimModel::CancelStep()
{
    undoStack.rollbackTransaction();
    Q_EMIT Changed();
}

bool TrimModel::HasOpenStep() const
{
    return undoStack.currentTransaction();
}

void TrimModel::Undo()
{
    undoStack.undo();
    Q_EMIT Changed();
}

void TrimModel::Redo()
{
    undoStack.redo();
    Q_EMIT Changed();
}

} // namespace Zelkor::Recorder
