#include <UI/Widgets/InnerShadow.h>
#include <UI/Widgets/ZGraphicsShadowEffect.h>

#include <Support/Picture.h>
#include <Support/TestCase.h>

#include <QPainter>
#include <QWidget>

#include <cmath>

using Zelkor::ZGraphicsShadowEffect;
namespace InnerShadow = Zelkor::InnerShadow;

namespace {

const double NOT_A_NUMBER = std::nan("");

// The rim by the formula, pixel by pixel, for offsets of at least one pixel.
QImage Literal(const QSize& size, const QPointF& offset, double level, const QColor& color)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    const int w = size.width();
    const int h = size.height();
    for (int i = 0; i < w * h; ++i) {
        const int x = qMin(i % w, w - 1 - i % w);
        const int y = qMin(i / w, h - 1 - i / w);
        const bool isLeft = offset.x() > x;
        const bool isTop = offset.y() > y;
        const bool isMiddle = 2 * x + 1 == w || 2 * y + 1 == h; // of an odd side, which stays clear
        if ((!isLeft && !isTop) || isMiddle)
            continue;
        const int sum = (isLeft ? 255 / (x + 1) : 255 / int(offset.x())) + //
                        (isTop ? 255 / (y + 1) : 255 / int(offset.y()));
        QColor pixel = color;
        pixel.setAlpha(int(qMin(255.0, sum * level)));
        image.setPixel(i % w, i / w, qPremultiply(pixel.rgba()));
    }
    return image;
}

QImage Bands(const InnerShadow::Input& input, int ratio)
{
    QImage image(input.size * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    InnerShadow::DrawBands(painter, input);
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
                for (const double level : {0.1, 1.0, 1e300}) {
                    InRow(QString("offset %1 by %2, level %3").arg(offset.x()).arg(offset.y()).arg(level));
                    const InnerShadow::Input input{size, offset, level, color.rgb()};
                    const QPointF bounded(qMin(offset.x(), 1e6), qMin(offset.y(), 1e6));
                    const QImage expected = Literal(size, bounded, level, color);
                    QCOMPARE(InnerShadow::WholeImage(input), expected);
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
                    const InnerShadow::Input input{QSize(20, 16), QPointF(x, y), level, 0};
                    QCOMPARE(Bands(input, 1), InnerShadow::WholeImage(input));
                    const bool hasRim = (x > 0 || y > 0) && !std::isnan(x + y) && level > 0;
                    QCOMPARE(qAlpha(InnerShadow::WholeImage(input).pixel(0, 0)) > 0, hasRim);
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
            const auto grab = [&] { return Support::Render(window, Qt::white, ratio); };
            const QImage plain = grab();
            effect->SetOffset(5);
            QCOMPARE(grab(), plain); // still off
            effect->SetBrightnessLevel(NOT_A_NUMBER);
            QCOMPARE(grab(), plain);
            effect->SetBrightnessLevel(1);
            const QImage shadowed = grab();
            // At two corners, near an edge, in the middle, and beside the widget.
            using Row = QPair<QPoint, int>;
            for (const auto& [point, red] : {Row{{10, 10}, 0}, Row{{49, 39}, 0}, Row{{30, 12}, 255 - (85 + 51)},
                                             Row{{30, 25}, 255}, Row{{8, 25}, 255}, Row{{51, 25}, 255}})
                QVERIFY(qAbs(Support::ColorAt(shadowed, point).red() - red) <= 1);
            // In a window the source is painted on the same device, by a painter of its own.
            window.show();
            QVERIFY(QTest::qWaitForWindowExposed(&window));
        }
    }

    // A pixel of the device shows one of the widget's pixels that it lies in.
    void everyPixelOfTheRimIsShaded_data()
    {
        QTest::addColumn<qreal>("ratio");
        for (const qreal ratio : {1.0, 1.1, 1.25, 1.5, 1.75, 2.0, 3.0})
            QTest::addRow("pixel ratio %g", ratio) << ratio;
    }

    void everyPixelOfTheRimIsShaded()
    {
        QFETCH(qreal, ratio);
        for (int side = 1; side < 40; ++side) {
            const QPoint place(side % 8, side % 9);
            QWidget window;
            window.resize(60, 60);
            auto* widget = new QWidget(&window);
            widget->setStyleSheet("background: white");
            widget->setGeometry(QRect(place, QSize(side, 40 - side)));
            auto* effect = new ZGraphicsShadowEffect(widget);
            effect->SetOffset(4, 5);
            effect->SetBrightnessLevel(0.5);
            widget->setGraphicsEffect(effect);
            const QImage shaded = Support::Render(window, Qt::magenta, ratio);
            const QImage rim = Literal(widget->size(), QPointF(4, 5), 0.5, Qt::black);
            // What pixels of the widget a pixel of the device lies in.
            const auto covered = [&](const QPoint& pixel) {
                const QPointF first = QPointF(pixel) / ratio - place;
                const QPointF end = QPointF(pixel + QPoint(1, 1)) / ratio - place;
                const QPoint topLeft(int(std::floor(first.x())), int(std::floor(first.y())));
                return QRect(topLeft, QPoint(int(std::ceil(end.x())), int(std::ceil(end.y()))) - QPoint(1, 1));
            };
            for (int i = 0; i < shaded.width() * shaded.height(); ++i) {
                const QPoint pixel(i % shaded.width(), i / shaded.width());
                const QColor color = shaded.pixelColor(pixel);
                if (color == Qt::magenta)
                    continue;
                const QRect area = covered(pixel) & rim.rect();
                int difference = 256;
                for (int y = area.top(); y <= area.bottom(); ++y) {
                    for (int x = area.left(); x <= area.right(); ++x)
                        difference = qMin(difference, qAbs(255 - qAlpha(rim.pixel(x, y)) - color.green()));
                }
                QVERIFY2(difference <= 1,
                         qPrintable(QString("%1,%2 beside a width of %3").arg(pixel.x()).arg(pixel.y()).arg(side)));
            }
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
