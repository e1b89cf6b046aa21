#include <Catalogue/Catalogue.h>
#include <Catalogue/SamplePictures.h>
#include <UI/Widgets/PixmapWidget.h>
#include <UI/Widgets/ZGraphicsShadowEffect.h>

using Zelkor::ZGraphicsShadowEffect;
using Zelkor::Vx::PixmapWidget;

namespace Zelkor::Catalogue {

namespace {

constexpr QSize PICTURE_SIZE(640, 480);
constexpr QSize SHADED_SIZE(224, 168);

QWidget* CreateShaded(QWidget* parent)
{
    auto* card = new PixmapWidget(parent, Qt::WindowFlags());
    card->setFixedSize(SHADED_SIZE);
    card->SetPixmap(QPixmap::fromImage(PortraitImage(PICTURE_SIZE)));
    card->setAccessibleName(EntryText::tr("A drawn portrait"));
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
        EntryText::tr("Effects"),
        EntryText::tr("Draws a soft rim inside the edges of a widget; here, of a picture."),
        "ZGraphicsShadowEffect",
        "shadow",
        CreateShaded,
        {
            ShadowState(EntryText::tr("Off"), 0, 0),
            ShadowState(EntryText::tr("Typical"), 12, 0.6),
            ShadowState(EntryText::tr("Wide"), 36, 1),
            ShadowState(EntryText::tr("Strong"), 12, 3),
            ShadowState(EntryText::tr("Coloured"), 24, 1.5, QColor(0x35, 0x67, 0xe0)),
        },
        MakeBare<ZGraphicsShadowEffect>,
        1,
    };
}

} // namespace

QVector<Entry> EffectEntries()
{
    return {NotInForms(ShadowEffectEntry(), "it is not a widget")};
}

} // namespace Zelkor::Catalogue
