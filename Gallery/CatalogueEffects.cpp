#include "Artwork.h"
#include "Catalogue.h"

#include <UI/Widgets/PixmapWidget.h>
#include <UI/Widgets/ZGraphicsShadowEffect.h>

#include <QCoreApplication>

using Zelkor::ZGraphicsShadowEffect;
using Zelkor::Vx::PixmapWidget;

namespace Zelkor::Gallery {

namespace {

constexpr QSize PICTURE_SIZE(640, 480);
constexpr QSize SHADED_SIZE(224, 168);

QString Tr(const char* text)
{
    return QCoreApplication::translate("Catalogue", text);
}

QWidget* CreateShaded(QWidget* parent)
{
    auto* card = new PixmapWidget(parent, Qt::WindowFlags());
    card->setFixedSize(SHADED_SIZE);
    card->SetPixmap(QPixmap::fromImage(PortraitImage(PICTURE_SIZE)));
    card->setAccessibleName(Tr("A drawn portrait"));
    card->setGraphicsEffect(new ZGraphicsShadowEffect(card));
    return card;
}

State ShadowState(const QString& name, qreal offset, qreal strength, const QColor& color = Qt::black)
{
    return MakeState<QWidget>(name, [=](QWidget& card) {
        auto* effect = static_cast<ZGraphicsShadowEffect*>(card.graphicsEffect());
        effect->SetOffset(offset);
        effect->SetBrightnessLevel(strength);
        effect->SetColor(color);
    });
}

Entry ShadowEffectEntry()
{
    return {
        "ZGraphicsShadowEffect",
        Tr("Effects"),
        Tr("Draws a soft rim inside the edges of a widget; here, of a picture."),
        "ZGraphicsShadowEffect",
        "shadow",
        CreateShaded,
        {
            ShadowState(Tr("Off"), 0, 0),
            ShadowState(Tr("Typical"), 12, 0.6),
            ShadowState(Tr("Wide"), 36, 1),
            ShadowState(Tr("Strong"), 12, 3),
            ShadowState(Tr("Coloured"), 24, 1.5, QColor(0x35, 0x67, 0xe0)),
        },
    };
}

} // namespace

QVector<Entry> EffectEntries()
{
    return {ShadowEffectEntry()};
}

} // namespace Zelkor::Gallery
