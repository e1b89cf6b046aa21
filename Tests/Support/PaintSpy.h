#pragma once

#include <Support/EventSpy.h>

#include <QCoreApplication>
#include <QPaintEvent>
#include <QRegion>
#include <QVector>
#include <QWidget>
#include <QtTest>

#include <utility>

namespace Support {

/// Shows a widget and records its paint events.
class PaintSpy
{
public:
    explicit PaintSpy(QWidget* widget)
        : watch(widget, [this](QEvent::Type type, QEvent* event) {
              if (type == QEvent::Paint)
                  paints += static_cast<QPaintEvent*>(event)->region();
          })
    {
        widget->show();
        QVERIFY(QTest::qWaitForWindowExposed(widget));
        Take();
    }

    /// Returns the regions of the paint events since the last call, after processing pending events.
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
