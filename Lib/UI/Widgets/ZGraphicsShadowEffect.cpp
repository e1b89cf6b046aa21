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
    if (!(impl->brightnessLevel > 0)) { // nor when it is not a number
        drawSource(painter);
        return;
    }
    // By way of a pixmap: drawSource() paints with a painter of its own, after which this one is of no use any more.
    const QPixmap source = sourcePixmap(Qt::LogicalCoordinates, nullptr, QGraphicsEffect::PadToEffectiveBoundingRect);
    const qreal ratio = source.devicePixelRatio();
    const QSize size(qRound(source.width() / ratio), qRound(source.height() / ratio));
    const InnerShadow::Input rim{size, impl->offset, impl->brightnessLevel, impl->color.rgb()};
    painter->drawPixmap(QPointF(0, 0), source);
    // Where logical pixels share device pixels, bands drawn one by one would show seams.
    if (ratio == std::floor(ratio))
        InnerShadow::DrawBands(*painter, rim);
    else // over the source to its last pixel, where that was rounded to whole ones
        painter->drawImage(QRectF(QPointF(0, 0), QSizeF(source.size()) / ratio), InnerShadow::WholeImage(rim));
}

} // namespace Zelkor
