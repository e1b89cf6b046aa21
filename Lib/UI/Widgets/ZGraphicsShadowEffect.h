#pragma once

#include <UI/Common/Export.h>

#include <QColor>
#include <QGraphicsEffect>
#include <QPointF>

#include <memory>

namespace Zelkor {

/// A graphics effect that draws a soft inner shadow along the edges of a widget.
///
/// It draws bands of colour over the widget whose opacity decreases from each edge inwards, by 1, 1/2, 1/3 and so on.
/// It does not blur the widget or enlarge its bounding rectangle. `QWidget::setGraphicsEffect` takes ownership. Each
/// setter emits its signal and repaints, even if the value does not change. GUI thread only.
class VX_WIDGETS_EXPORT ZGraphicsShadowEffect : public QGraphicsEffect
{
    Q_OBJECT
    Q_PROPERTY(QPointF offset READ Offset WRITE SetOffset NOTIFY OffsetChanged)
    ///< widths of the left and right (x) and the top and bottom (y) bands in logical pixels; default (0, 0)
    Q_PROPERTY(qreal xOffset READ XOffset WRITE SetXOffset NOTIFY OffsetChanged)
    ///< width of the left and right bands in logical pixels; default 0
    Q_PROPERTY(qreal yOffset READ YOffset WRITE SetYOffset NOTIFY OffsetChanged)
    ///< width of the top and bottom bands in logical pixels; default 0
    Q_PROPERTY(qreal brightnessLevel READ BrightnessLevel WRITE SetBrightnessLevel NOTIFY BrightnessLevelChanged)
    ///< factor of the opacity, none for values up to 0; default 0
    Q_PROPERTY(QColor color READ Color WRITE SetColor NOTIFY ColorChanged)
    ///< colour of the bands, alpha ignored; default black

public:
    explicit ZGraphicsShadowEffect(QObject* parent);
    ~ZGraphicsShadowEffect() override;

    QPointF Offset() const;
    qreal XOffset() const;
    qreal YOffset() const;
    qreal BrightnessLevel() const;
    QColor Color() const;

public Q_SLOTS:
    void SetOffset(const QPointF& offset);
    void SetOffset(qreal dx, qreal dy);
    void SetOffset(qreal d);
    void SetXOffset(qreal dx);
    void SetYOffset(qreal dy);
    void SetBrightnessLevel(qreal level);
    void SetColor(const QColor& color);

Q_SIGNALS:
    void OffsetChanged(const QPointF& offset);
    void BrightnessLevelChanged(qreal blurRadius);
    void ColorChanged(const QColor& color);

protected:
    void draw(QPainter* painter) override;

private:
    struct Q_DECL_HIDDEN Impl;
    std::unique_ptr<Impl> impl;
};

} // namespace Zelkor
