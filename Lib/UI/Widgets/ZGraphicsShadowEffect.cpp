#include <UI/Widgets/ZGraphicsShadowEffect.h>

#include <UI/Widgets/ShadowRim.h>

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
    // Drawn by itself: a pixmap of the source would cost more than the rim, and more with each pixel of the widget.
    drawSource(painter);
    if (!(impl->brightnessLevel > 0)) // nor when it is not a number
        return;
    const QRectF source = boundingRectFor(sourceBoundingRect(Qt::LogicalCoordinates));
    const QSize size(qRound(source.width()), qRound(source.height()));
    const ShadowRim::Input rim{size, impl->offset, impl->brightnessLevel, impl->color.rgb()};
    // Where logical pixels share device pixels, bands drawn one by one would show seams.
    const QTransform transform = painter->deviceTransform();
    const bool isWhole =
        transform.m11() == std::floor(transform.m11()) && transform.m22() == std::floor(transform.m22());
    if (isWhole)
        ShadowRim::DrawBands(*painter, rim);
    else
        painter->drawImage(QPointF(0, 0), ShadowRim::WholeImage(rim));
}

} // namespace Zelkor
