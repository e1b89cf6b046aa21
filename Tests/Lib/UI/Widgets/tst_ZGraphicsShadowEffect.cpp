#include <UI/Widgets/InnerShadow.h>
#include <UI/Widgets/ZGraphicsShadowEffect.h>

#include <Support/Picture.h>
#include <Support/TestCase.h>

#include <QPainter>
#include <QWidget>

#include <cmath>

using Zelkor::ZGraphicsShadowEffect;
using Zelkor::InnerShadow::AlphaAt;
using Zelkor::InnerShadow::Input;

namespace {

QImage Bands(const Input& input, int ratio)
{
    QImage image(input.size * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    Zelkor::InnerShadow::DrawBands(painter, input);
    return image;
}

} // namespace

class tst_ZGraphicsShadowEffect : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void alphaFollowsTheFormula()
    {
        const Input input{QSize(31, 9), QPointF(4.5, 2.3), 0.1, 0};
        QCOMPARE(AlphaAt(input, 4, 2), (51 + 85) / 10);
        QCOMPARE(AlphaAt(input, 8, 0), (255 + 63) / 10); // the offset ends the ramp
        QCOMPARE(AlphaAt(input, 0, 3), (255 + 127) / 10);
        QCOMPARE(AlphaAt(input, 5, 3), 0);
        QCOMPARE(AlphaAt({input.size, input.offset, 1e300, 0}, 8, 0), 255);
    }

    void bandsEqualTheWholeImage()
    {
        // Compares at two device pixel ratios. Returns whether there is a shadow.
        const auto isDrawn = [](const QPointF& offset, const QSize& size) {
            const Input input{size, offset, 1, qRgb(200, 40, 10)};
            const QImage whole = Zelkor::InnerShadow::WholeImage(input);
            QImage doubled = whole.scaled(2 * size);
            doubled.setDevicePixelRatio(2);
            [&] { QCOMPARE(Bands(input, 1), whole); }();
            [&] { QCOMPARE(Bands(input, 2), doubled); }();
            return qAlpha(whole.pixel(0, 0)) > 0;
        };
        QVERIFY(isDrawn({4.5, 2.3}, {31, 9}));
        QVERIFY(isDrawn({90, 1.5}, {2, 40})); // wider than the widget
        QVERIFY(isDrawn({1e300, 1e300}, {9, 8}));
        QVERIFY(isDrawn({-3, 2}, {20, 16}));
        QVERIFY(!isDrawn({0, -7}, {20, 16}));
        QVERIFY(!isDrawn({std::nan(""), 2}, {20, 16}));
    }

    void shadowHasNoGaps()
    {
        for (int side = 2; side < 40; side += 2) {
            QWidget window;
            window.resize(60, 60);
            auto* widget = new QWidget(&window);
            widget->setStyleSheet("background: white");
            widget->setGeometry(side % 8, side % 9, side, 40 - side);
            auto* effect = new ZGraphicsShadowEffect(widget);
            effect->SetOffset(99);
            effect->SetBrightnessLevel(1e300); // opaque
            widget->setGraphicsEffect(effect);
            const QImage shaded = Support::Render(window, Qt::black, 1.25);
            const auto isInk = [](const QColor& color) { return color != Qt::black; };
            QCOMPARE(Support::InkOf(shaded, isInk), QRect());
        }
    }

    void settersAlwaysEmit()
    {
        ZGraphicsShadowEffect effect(nullptr);
        QVariantList emitted;
        connect(&effect, &ZGraphicsShadowEffect::OffsetChanged, [&](const QPointF& offset) { emitted += offset; });
        connect(&effect, &ZGraphicsShadowEffect::BrightnessLevelChanged, [&] { emitted += effect.BrightnessLevel(); });
        connect(&effect, &ZGraphicsShadowEffect::ColorChanged, [&] { emitted += effect.Color(); });
        effect.SetOffset(1, 2);
        effect.SetXOffset(4);
        effect.setProperty("yOffset", 2.0);
        effect.SetBrightnessLevel(0.5);
        effect.SetColor(Qt::black);
        QCOMPARE(emitted, QVariantList({QPointF(1, 2), QPointF(4, 2), QPointF(4, 2), 0.5, QColor(Qt::black)}));
    }
};

VX_TEST_MAIN(tst_ZGraphicsShadowEffect)
#include "tst_ZGraphicsShadowEffect.moc"
