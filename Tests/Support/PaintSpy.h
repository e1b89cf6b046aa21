#pragma once

#include <Support/EventSpy.h>

#include <QCoreApplication>
#include <QPaintEvent>
#include <QRegion>
#include <QVector>
#include <QWidget>

#include <utility>

namespace Support {

/// Watches what a widget has to paint while it lives.
class PaintSpy
{
public:
    explicit PaintSpy(QWidget* widget)
        : watch(widget, [this](QEvent::Type type, QEvent* event) {
              if (type == QEvent::Paint)
                  paints += static_cast<QPaintEvent*>(event)->region();
          })
    {
        Take();
    }

    /// The regions of the paint events since it was asked last, those included that are pending.
    QVector<QRegion> Take()
    {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        return std::exchange(paints, {});
    }

private:
    QVector<QRegion> paints;
    EventSpy watch;
};

} // namespace Support
