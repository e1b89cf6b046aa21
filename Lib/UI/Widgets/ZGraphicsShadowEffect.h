#pragma once

#include <UI/Common/Export.h>

#include <QColor>
#include <QGraphicsEffect>
#include <QPointF>

#include <memory>

namespace Zelkor {

/// Draws a soft dark rim inside the edges of a widget.
///
/// The widget is drawn as it is, and over it bands of colour whose opacity falls off from each edge inwards, in steps
/// of 1, 1/2, 1/3 and so on. It enlarges nothing and blurs nothing. `QWidget::setGraphicsEffect` makes the widget its
/// owner. GUI thread only.
///
/// Every setter emits its signal and repaints, also with the value that is set already.
class VX_WIDGETS_EXPORT ZGraphicsShadowEffect : public QGraphicsEffect
{
    Q_OBJECT
    Q_PROPERTY(QPointF offset READ Offset WRITE SetOffset NOTIFY OffsetChanged)
    Q_PROPERTY(qreal xOffset READ XOffset WRITE SetXOffset NOTIFY OffsetChanged)
    Q_PROPERTY(qreal yOffset READ YOffset WRITE SetYOffset NOTIFY OffsetChanged)
    Q_PROPERTY(qreal brightnessLevel READ BrightnessLevel WRITE SetBrightnessLevel NOTIFY BrightnessLevelChanged)
    Q_PROPERTY(QColor color READ Color WRITE SetColor NOTIFY ColorChanged)

public:
    explicit ZGraphicsShadowEffect(QObject* parent);
    ~ZGraphicsShadowEffect() override;

    /// The widths of the bands in logical pixels: x at the left and right, y at the top and bottom; 0 by default.
    QPointF Offset() const;
    qreal XOffset() const;
    qreal YOffset() const;

    /// Strength of the rim; 0, the default, and less switch it off.
    qreal BrightnessLevel() const;

    /// Black by default. Its own alpha does not count.
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
