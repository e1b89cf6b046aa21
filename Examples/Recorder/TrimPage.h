#pragma once

#include "TrimModel.h"

#include <QWidget>

#include <optional>

class QLabel;
class QToolButton;
class ZLabel;
class ZSliderThumb;
class ZTimeEdit;
class ZTimelineSlider;

namespace Zelkor::Vx {
class CountdownIndicatorWidget;
}

namespace Zelkor::Recorder {

/// Trims a recording on a timeline: brackets and time fields set the kept range; ranges are cut out at the position.
///
/// A drag of a bracket is one undo step; Escape cancels it. GUI thread.
class TrimPage : public QWidget
{
    Q_OBJECT

public:
    explicit TrimPage(QWidget* parent = nullptr);
    ~TrimPage() override;

protected:
    void changeEvent(QEvent* event) override;

private:
    using Setter = void (TrimModel::*)(qint64);

    QWidget* CreateTimeline();
    QWidget* CreateControls();
    ZSliderThumb* AddBracket(const char* name, Setter set);
    ZTimeEdit* CreateField(const char* name, Setter set);
    void AddAction(QToolButton* button, const char* icon, const QKeySequence& shortcut, void (TrimPage::*act)());
    qint64 BracketTime(const ZSliderThumb* thumb) const;
    void ToggleCut();
    void Undo() { model.Undo(); }
    void Redo() { model.Redo(); }
    void CancelDrag();
    void Show();
    void ShowPosition();
    void Retranslate();

    TrimModel model;
    bool showing = false;       ///< the widgets are updated from the model
    bool dragCancelled = false; ///< for the current drag
    std::optional<qint64> cutFrom;
    Vx::CountdownIndicatorWidget* position;
    ZTimelineSlider* timeline;
    ZSliderThumb* start;
    ZSliderThumb* end;
    ZTimeEdit* startField;
    ZTimeEdit* endField;
    QLabel* title;
    QLabel* description;
    ZLabel* result;
    QToolButton* cutButton;
    QToolButton* undoButton;
    QToolButton* redoButton;
};

} // namespace Zelkor::Recorder
