#include <UI/Widgets/ZGraphicsShadowEffect.h>

#include <UI/Widgets/InnerShadow.h>

#include <QPainter>

#include <cmath>

namespace Zelkor {

struct ZGraphicsShadowEffect::Impl
{
    qreal brightnessLevel = 0;
    QColor color = Qt::black;
    QPointF offset;
};

ZGraphicsShadowEffect::ZGraphicsShadowEffect(QObject* parent) : QGraphicsEffect(parent), impl(std::make_unique<Impl>())
{}

ZGraphicsShadowEffect::~ZGraphicsShadowEffect() = default;

QPointF ZGraphicsShadowEffect::Offset() const
{
    return impl->offset;
}

qreal ZGraphicsShadowEffect::XOffset() const
{
    return impl->offset.x();
}

qreal ZGraphicsShadowEffect::YOffset() const
{
    return impl->offset.y();
}

qreal ZGraphicsShadowEffect::BrightnessLevel() const
{
    return impl->brightnessLevel;
}

QColor ZGraphicsShadowEffect::Color() const
{
    return impl->color;
}

void ZGraphicsShadowEffect::SetOffset(const QPointF& offset)
{
    impl->offset = offset;
    Q_EMIT OffsetChanged(impl->offset);
    update();
}

void ZGraphicsShadowEffect::SetOffset(qreal dx, qreal dy)
{
    SetOffset(QPointF(dx, dy));
}

void ZGraphicsShadowEffect::SetOffset(qreal d)
{
    SetOffset(QPointF(d, d));
}

void ZGraphicsShadowEffect::SetXOffset(qreal dx)
{
    SetOffset(QPointF(dx, impl->offset.y()));
}

void ZGraphicsShadowEffect::SetYOffset(qreal dy)
{
    SetOffset(QPointF(impl->offset.x(), dy));
}

void ZGraphicsShadowEffect::SetBrightnessLevel(qreal level)
{
    impl->brightnessLevel = level;
    Q_EMIT BrightnessLevelChanged(level);
    update();
}

void ZGraphicsShadowEffect::SetColor(const QColor& color)
{
    impl->color = color;
    Q_EMIT ColorChanged(color);
    update();
}

void ZGraphicsShadowEffect::draw(QPainter* painter)
{
    if (!(impl->brightnessLevel > 0)) { // true for NaN
        drawSource(painter);
        return;
    }
    // Uses a pixmap, since drawSource() creates another painter, after which this one cannot draw.
    const QPixmap source = sourcePixmap(Qt::LogicalCoordinates, nullptr, QGraphicsEffect::PadToEffectiveBoundingRect);
    const qreal ratio = source.devicePixelRatio();
    const QSize size(qRound(source.width() / ratio), qRound(source.height() / ratio));
    const InnerShadow::Input shadow{size, impl->offset, impl->brightnessLevel, impl->color.rgb()};
    painter->drawPixmap(QPointF(0, 0), source);
    // At fractional ratios, logical pixels share device pixels, and separate bands would show seams.
    if (ratio == std::floor(ratio))
        InnerShadow::DrawBands(*painter, shadow);
    else // covers the last pixel of the source, whose size is rounded to device pixels
        painter->drawImage(QRectF(QPointF(0, 0), QSizeF(source.size()) / ratio), InnerShadow::WholeImage(shadow));
}

} // namespace Zelkor
