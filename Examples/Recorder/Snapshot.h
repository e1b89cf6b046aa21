#pragma once

#include <QFrame>
#include <QTimer>

namespace Zelkor::Vx {
class PixmapWidget;
}

namespace Zelkor::Recorder {

/// A round thumbnail of another widget, updated a few times a second while visible.
///
/// Placed over the upper trailing corner of that widget.
class Snapshot : public QFrame
{
    Q_OBJECT

public:
    /// `source` must outlive the snapshot and have the same parent, so that the picture does not contain the snapshot.
    explicit Snapshot(QWidget* source);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void Place();
    void Take();

    QWidget* source;
    Vx::PixmapWidget* thumbnail;
    QTimer timer;
};

} // namespace Zelkor::Recorder
