#pragma once

#include <QFrame>
#include <QTimer>

namespace Zelkor::Vx {
class PixmapWidget;
}

namespace Zelkor::Recorder {

/// A round thumbnail of what another widget shows, taken anew a few times a second while it is visible.
///
/// It lies over the upper corner of that widget where lines of text end.
class Snapshot : public QFrame
{
    Q_OBJECT

public:
    /// `source` has the same parent, else it would be on the picture itself, and has to outlive the snapshot.
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
