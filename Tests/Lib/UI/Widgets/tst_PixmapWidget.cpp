#include <UI/Widgets/PixmapCrop.h>
#include <UI/Widgets/PixmapWidget.h>

#include <Support/Picture.h>
#include <Support/TestCase.h>

#include <QPainter>

using Zelkor::Vx::PixmapWidget;
namespace PixmapCrop = Zelkor::Vx::PixmapCrop;

namespace {

// A smooth picture in which each place has another colour.
QImage Picture(const QSize& size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, qRgb(x * 255 / size.width(), y * 255 / size.height(), 128));
    }
    return image;
}

// Mask first, then scale.
QImage Straightforward(const QImage& picture, const QRect& cut, const QSize& size)
{
    QImage masked(cut.size(), QImage::Format_ARGB32_Premultiplied);
    masked.fill(Qt::transparent);
    QPainter painter(&masked);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QBrush(picture.copy(cut)));
    painter.drawEllipse(masked.rect());
    painter.end();
    return masked.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace

class tst_PixmapWidget : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cut()
    {
        using Row = std::tuple<const char*, QSize, QSize, QVector<QPoint>, QSize>;
        const QVector<QPoint> origin(5);
        const std::vector<Row> rows{
            {"wide", {400, 300}, {100, 100}, {{50, 0}, {0, 0}, {100, 0}, {0, 0}, {100, 0}}, {300, 300}},
            {"tall", {300, 400}, {200, 100}, {{0, 125}, {0, 0}, {0, 0}, {0, 250}, {0, 250}}, {300, 150}},
            {"same shape", {64, 48}, {32, 24}, origin, {64, 48}},
            {"one pixel", {1, 1}, {32, 24}, origin, {1, 1}},
            {"no height", {64, 48}, {32, 0}, origin, {0, 0}},
        };
        for (const auto& [name, picture, area, corners, size] : rows) {
            InRow(name);
            const Qt::Alignment anchors[] = {Qt::AlignCenter, Qt::AlignTop | Qt::AlignLeft,
                                             Qt::AlignTop | Qt::AlignRight, Qt::AlignBottom | Qt::AlignLeft,
                                             Qt::AlignBottom | Qt::AlignRight};
            for (int i = 0; i < 5; ++i)
                QCOMPARE(PixmapCrop::CropRect(picture, area, anchors[i]), QRect(corners[i], size));
        }
    }

    void orderOfScalingAndMaskingDoesNotShow()
    {
        const QImage picture = Picture({400, 300});
        const QRect cut(50, 0, 300, 300);
        for (const int side : {300, 150, 97, 40, 700}) {
            InRow(QString::number(side));
            const QSize size(side, side);
            const QImage rendered = PixmapCrop::Render(picture, cut, size, true);
            const QImage expected = Straightforward(picture, cut, size);
            QCOMPARE(rendered.size(), size);
            // An edge is opaque in other steps in a large picture than in a small one; inside there is rounding alone.
            QVERIFY(Support::LargestDifference(rendered, expected) <= 32);
            const QRect inside(side / 4, side / 4, side / 2, side / 2);
            QVERIFY(Support::LargestDifference(rendered.copy(inside), expected.copy(inside)) <= 2);
        }
    }

    void showsCutAndStretched()
    {
        QWidget window;
        window.setStyleSheet("QWidget { background: black } Zelkor--Vx--PixmapWidget { background: #010203 }");
        PixmapWidget widget(&window, {});
        widget.resize(100, 100);
        QPixmap pixmap = QPixmap::fromImage(Picture({400, 300}));
        pixmap.setDevicePixelRatio(2); // its own ratio does not count
        widget.SetPixmap(pixmap);
        const auto at = [&](int x, int y) {
            // Never shown: there is no backing store.
            return Support::ColorAt(window.grab(widget.geometry()).toImage(), QPoint(x, y));
        };
        const auto isNear = [](const QColor& color, int red, int green) {
            return qAbs(color.red() - red) <= 4 && qAbs(color.green() - green) <= 4;
        };
        QVERIFY(isNear(at(50, 50), 128, 128) && isNear(at(1, 50), 3, 128) && isNear(at(98, 50), 252, 128));
        widget.SetMaskMode(PixmapWidget::MASK_RECTANGLE); // keeps the left three quarters
        QVERIFY(isNear(at(98, 50), 189, 128) && isNear(at(1, 98), 2, 252));
        widget.SetMaskAnchor(PixmapWidget::ANCHOR_CENTER);
        QVERIFY(isNear(at(1, 50), 34, 128));
        widget.SetMaskMode(PixmapWidget::MASK_ELLIPSE);
        QCOMPARE(at(2, 2), QColor(1, 2, 3));
        QCOMPARE(at(97, 97), QColor(1, 2, 3));
        QVERIFY(isNear(at(50, 50), 128, 128) && isNear(at(50, 1), 128, 3));
        widget.resize(0, 100);
        window.grab();
        widget.resize(100, 50);
        QVERIFY(isNear(at(50, 25), 128, 128));
    }
};

VX_TEST_MAIN(tst_PixmapWidget)
#include "tst_PixmapWidget.moc"
