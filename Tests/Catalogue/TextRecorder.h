#pragma once

#include <QPaintDevice>
#include <QPaintEngine>
#include <QWidget>

/// A text that a widget paints.
struct PaintedText
{
    QString text;
    QRectF rect; ///< in the coordinates of the window
    QColor color;
};

/// Records the texts that widgets paint instead of painting them.
class TextRecorder : public QPaintDevice
{
public:
    /// Returns the texts that a widget paints, without those of its children.
    static QVector<PaintedText> TextsOf(QWidget& widget)
    {
        TextRecorder recorder(widget);
        widget.render(&recorder, widget.mapTo(widget.window(), QPoint()), QRegion(), QWidget::RenderFlags());
        return recorder.engine.texts;
    }

    QPaintEngine* paintEngine() const override { return &engine; }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth:
            return size.width();
        case PdmHeight:
            return size.height();
        case PdmDevicePixelRatioScaled:
            return int(devicePixelRatioFScale());
        case PdmDevicePixelRatio:
            return 1;
        case PdmDepth:
            return 32;
        case PdmNumColors:
            return 1 << 24;
        default:
            return 96; // dots per inch
        }
    }

private:
    class Engine : public QPaintEngine
    {
    public:
        Engine() : QPaintEngine(AllFeatures) {}
        bool begin(QPaintDevice*) override { return true; }
        bool end() override { return true; }
        void updateState(const QPaintEngineState& state) override
        {
            if (state.state() & DirtyTransform)
                transform = state.transform();
            if (state.state() & DirtyPen)
                color = state.pen().color();
        }
        void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
        void drawPolygon(const QPointF*, int, PolygonDrawMode) override {}
        void drawPath(const QPainterPath&) override {}
        Type type() const override { return User; }
        void drawTextItem(const QPointF& point, const QTextItem& item) override
        {
            const QRectF rect(point.x(), point.y() - item.ascent(), item.width(), item.ascent() + item.descent());
            // Empty texts may contain control characters.
            if (!item.text().trimmed().isEmpty() && item.width() > 0)
                texts.append({item.text(), transform.mapRect(rect), color});
        }

        QTransform transform;
        QColor color;
        QVector<PaintedText> texts;
    };

    explicit TextRecorder(const QWidget& widget) : size(widget.window()->size()) {}

    const QSize size;
    mutable Engine engine;
};
