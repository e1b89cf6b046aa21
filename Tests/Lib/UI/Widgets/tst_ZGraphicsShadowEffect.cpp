#include <UI/Widgets/InnerShadow.h>
#include <UI/Widgets/ZGraphicsShadowEffect.h>

#include <Support/Picture.h>
#include <Support/TestCase.h>

#include <QPainter>
#include <QWidget>

#include <cmath>

using Zelkor::ZGraphicsShadowEffect;
using Zelkor::InnerShadow::Input;

namespace {

// The formula, pixel by pixel, for offsets of at least one pixel.
QImage Expected(const Input& input)
{
    QImage image(input.size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    const int w = image.width();
    const int h = image.height();
    const QPointF offset(qMin(input.offset.x(), 1e6), qMin(input.offset.y(), 1e6));
    for (int i = 0; i < w * h; ++i) {
        const int x = qMin(i % w, w - 1 - i % w);
        const int y = qMin(i / w, h - 1 - i / w);
        const bool isLeft = offset.x() > x;
        const bool isTop = offset.y() > y;
        const bool isMiddle = 2 * x + 1 == w || 2 * y + 1 == h; // transparent
        if ((!isLeft && !isTop) || isMiddle)
            continue;
        const int sum = 255 / (isLeft ? x + 1 : int(offset.x())) + 255 / (isTop ? y + 1 : int(offset.y()));
        QColor pixel = input.color;
        pixel.setAlpha(int(qMin(255.0, sum * input.level)));
        image.setPixel(i % w, i / w, qPremultiply(pixel.rgba()));
    }
    return image;
}

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
    void bandsEqualTheFormula_data()
    {
        QTest::addColumn<QPointF>("offset");
        QTest::addColumn<QSize>("size");
        QTest::newRow("small") << QPointF(1, 6) << QSize(40, 30);
        QTest::newRow("fractions, odd size") << QPointF(4.5, 2.3) << QSize(31, 9);
        QTest::newRow("wider than the widget") << QPointF(90, 1.5) << QSize(2, 40);
        QTest::newRow("huge") << QPointF(1e300, 1e300) << QSize(9, 8);
    }

    void bandsEqualTheFormula()
    {
        QFETCH(QPointF, offset);
        QFETCH(QSize, size);
        for (const double level : {0.1, 1.0, 1e300}) {
            const Input input{size, offset, level, qRgb(200, 40, 10)};
            const QImage expected = Expected(input);
            QCOMPARE(Zelkor::InnerShadow::WholeImage(input), expected);
            QCOMPARE(Bands(input, 1), expected);
            QImage doubled = expected.scaled(2 * size);
            doubled.setDevicePixelRatio(2);
            QCOMPARE(Bands(input, 2), doubled);
        }
    }

    void invalidOffsetsDrawNoBand()
    {
        for (const double x : {0.0, 0.5, -3.0, std::nan(""), double(INFINITY)}) {
            for (const double y : {0.0, -7.0, 2.0, std::nan("")}) {
                const Input input{QSize(20, 16), QPointF(x, y), 1, 0};
                QCOMPARE(Bands(input, 1), Zelkor::InnerShadow::WholeImage(input));
                const bool isDrawn = (x > 0 || y > 0) && !std::isnan(x + y);
                QCOMPARE(qAlpha(Bands(input, 1).pixel(0, 0)) > 0, isDrawn);
            }
        }
    }

    void effectIsOffAtFirst()
    {
        QWidget window;
        window.resize(60, 50);
        QWidget widget(&window);
        const QImage plain = Support::Render(window, Qt::white);
        auto* effect = new ZGraphicsShadowEffect(&widget);
        effect->SetOffset(5);
        widget.setGraphicsEffect(effect);
        QCOMPARE(Support::Render(window, Qt::white), plain);
        effect->SetBrightnessLevel(std::nan(""));
        QCOMPARE(Support::Render(window, Qt::white), plain);
        effect->SetBrightnessLevel(1);
        QVERIFY(Support::Render(window, Qt::white) != plain);
    }

    void everyPixelIsShaded_data()
    {
        QTest::addColumn<qreal>("ratio");
        for (const qreal ratio : {1.0, 1.1, 1.25, 1.75, 2.0})
            QTest::addRow("device pixel ratio %g", ratio) << ratio;
    }

    // A device pixel is coloured like one of the logical pixels that it intersects.
    void everyPixelIsShaded()
    {
        QFETCH(qreal, ratio);
        for (int side = 1; side < 40; ++side) {
            const Input input{QSize(side, 40 - side), QPointF(4, 5), 0.5, 0};
            const QPoint place(side % 8, side % 9);
            QWidget window;
            window.resize(60, 60);
            auto* widget = new QWidget(&window);
            widget->setStyleSheet("background: white");
            widget->setGeometry(QRect(place, input.size));
            auto* effect = new ZGraphicsShadowEffect(widget);
            effect->SetOffset(input.offset);
            effect->SetBrightnessLevel(input.level);
            widget->setGraphicsEffect(effect);
            const QImage shaded = Support::Render(window, Qt::magenta, ratio);
            const QImage shadow = Expected(input);
            for (int i = 0; i < shaded.width() * shaded.height(); ++i) {
                const QPoint pixel(i % shaded.width(), i / shaded.width());
                const QColor color = shaded.pixelColor(pixel);
                const QRectF area(QPointF(pixel) / ratio - place, QSizeF(1, 1) / ratio);
                int difference = color == Qt::magenta ? 0 : 256;
                for (int y = qMax(0, int(area.top())); difference && y < qMin(shadow.height() * 1.0, area.bottom());
                     ++y) {
                    for (int x = qMax(0, int(area.left())); x < qMin(shadow.width() * 1.0, area.right()); ++x)
                        difference = qMin(difference, qAbs(255 - qAlpha(shadow.pixel(x, y)) - color.green()));
                }
                QVERIFY2(difference <= 1, qPrintable(QString("width %1, pixel %2").arg(side).arg(i)));
            }
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
