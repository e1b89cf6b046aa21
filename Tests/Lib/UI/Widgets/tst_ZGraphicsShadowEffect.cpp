#include <UI/Widgets/ShadowRim.h>
#include <UI/Widgets/ZGraphicsShadowEffect.h>

#include <Support/TestCase.h>

#include <QPainter>
#include <QWidget>

#include <cmath>

using Zelkor::ZGraphicsShadowEffect;
namespace ShadowRim = Zelkor::ShadowRim;

namespace {

const double NOT_A_NUMBER = std::nan("");

// The rim by the formula, pixel by pixel, for offsets of at least one pixel.
QImage Literal(const QSize& size, const QPointF& offset, double level, const QColor& color)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    const int w = size.width();
    const int h = size.height();
    for (int y = 0; y < h / 2; ++y) {
        for (int x = 0; x < w / 2; ++x) {
            double sum = 0;
            if (offset.y() > y && offset.x() > x)
                sum = 255 / (x + 1) + 255 / (y + 1);
            else if (x >= offset.x() && offset.y() > y)
                sum = 255 / (y + 1) + 255 / int(offset.x());
            else if (y >= offset.y() && offset.x() > x)
                sum = 255 / (x + 1) + 255 / int(offset.y());
            QColor pixel = color;
            pixel.setAlpha(int(qMin(255.0, sum * level)));
            for (const QPoint& mirrored :
                 {QPoint(x, y), QPoint(x, h - 1 - y), QPoint(w - 1 - x, y), QPoint(w - 1 - x, h - 1 - y)})
                image.setPixel(mirrored, qPremultiply(pixel.rgba()));
        }
    }
    return image;
}

QImage Bands(const ShadowRim::Input& input, int ratio)
{
    QImage image(input.size * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    ShadowRim::DrawBands(painter, input);
    return image;
}

} // namespace

class tst_ZGraphicsShadowEffect : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void bandsAreTheWholeRim()
    {
        const QColor color(200, 40, 10, 77);
        for (const QPointF& offset : {QPointF(3, 3), QPointF(1, 6), QPointF(4.5, 2.3), QPointF(12, 12),
                                      QPointF(90, 1.5), QPointF(1e300, 1e300)}) {
            for (const QSize& size :
                 {QSize(40, 30), QSize(9, 9), QSize(31, 8), QSize(1, 1), QSize(2, 40), QSize(0, 0)}) {
                for (const double level : {0.1, 0.5, 1.0, 3.0, 1e300}) {
                    InRow(QString("offset %1 by %2, level %3").arg(offset.x()).arg(offset.y()).arg(level));
                    const ShadowRim::Input input{size, offset, level, color.rgb()};
                    const QPointF bounded(qMin(offset.x(), 1e6), qMin(offset.y(), 1e6));
                    const QImage expected = Literal(size, bounded, level, color);
                    QCOMPARE(ShadowRim::WholeImage(input), expected);
                    if (size.isEmpty())
                        continue;
                    QCOMPARE(Bands(input, 1), expected);
                    QImage doubled = expected.scaled(2 * size);
                    doubled.setDevicePixelRatio(2);
                    QCOMPARE(Bands(input, 2), doubled);
                }
            }
        }
    }

    // Where the formula would divide by nothing, or count with what is no number, the rim has less or nothing.
    void oddOffsetsDrawNothingOdd()
    {
        for (const double x : {0.0, 0.5, -0.5, -3.0, -1e300, NOT_A_NUMBER, double(INFINITY)}) {
            for (const double y : {0.0, 0.5, -7.0, 2.0, NOT_A_NUMBER, double(INFINITY)}) {
                for (const double level : {1.0, NOT_A_NUMBER, double(INFINITY)}) {
                    const ShadowRim::Input input{QSize(20, 16), QPointF(x, y), level, 0};
                    QCOMPARE(Bands(input, 1), ShadowRim::WholeImage(input));
                    const bool hasRim = (x > 0 || y > 0) && !std::isnan(x + y) && level > 0;
                    QCOMPARE(qAlpha(ShadowRim::WholeImage(input).pixel(0, 0)) > 0, hasRim);
                }
            }
        }
    }

    void widgetGetsItsRim()
    {
        for (const qreal ratio : {1.0, 1.25, 2.0}) {
            InRow(QString("pixel ratio %1").arg(ratio));
            QWidget window;
            window.resize(60, 50);
            auto* widget = new QWidget(&window);
            widget->setGeometry(10, 10, 40, 30);
            widget->setStyleSheet("background: white");
            auto* effect = new ZGraphicsShadowEffect(widget);
            widget->setGraphicsEffect(effect);
            const auto grab = [&] {
                QImage image((QSizeF(window.size()) * ratio).toSize(), QImage::Format_RGB32);
                image.setDevicePixelRatio(ratio);
                image.fill(Qt::white);
                window.render(&image, {}, {}, QWidget::DrawChildren);
                return image;
            };
            const QImage plain = grab();
            effect->SetOffset(5);
            QCOMPARE(grab(), plain); // still off
            effect->SetBrightnessLevel(NOT_A_NUMBER);
            QCOMPARE(grab(), plain);
            effect->SetBrightnessLevel(1);
            const QImage shadowed = grab();
            const auto redAt = [&](double x, double y) {
                return shadowed.pixelColor(int((x + 0.5) * ratio), int((y + 0.5) * ratio)).red();
            };
            QCOMPARE(redAt(10, 10), 0);
            QCOMPARE(redAt(49, 39), 0);
            QVERIFY(qAbs(redAt(30, 12) - (255 - (85 + 51))) <= 1);
            QCOMPARE(redAt(30, 25), 255);
            QCOMPARE(redAt(8, 25), 255); // nothing outside
            QCOMPARE(redAt(51, 25), 255);
            // In a window the source is painted on the same device, by a painter of its own.
            window.show();
            QVERIFY(QTest::qWaitForWindowExposed(&window));
        }
    }

    void settersAlwaysTell()
    {
        ZGraphicsShadowEffect effect(nullptr);
        QList<QVariant> told;
        connect(&effect, &ZGraphicsShadowEffect::OffsetChanged, [&](const QPointF& offset) { told += offset; });
        connect(&effect, &ZGraphicsShadowEffect::BrightnessLevelChanged, [&] { told += "level"; });
        connect(&effect, &ZGraphicsShadowEffect::ColorChanged, [&] { told += "color"; });
        effect.SetOffset(1, 2);
        effect.SetXOffset(4);
        effect.SetYOffset(2);
        effect.setProperty("xOffset", 4.0);
        effect.SetBrightnessLevel(0);
        effect.SetColor(Qt::black);
        effect.SetColor(Qt::black);
        QCOMPARE(told, QList<QVariant>(
                           {QPointF(1, 2), QPointF(4, 2), QPointF(4, 2), QPointF(4, 2), "level", "color", "color"}));
    }
};

VX_TEST_MAIN(tst_ZGraphicsShadowEffect)
#include "tst_ZGraphicsShadowEffect.moc"
