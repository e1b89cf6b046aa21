#include <UI/Widgets/PixmapCrop.h>
#include <UI/Widgets/PixmapWidget.h>

#include <Support/Picture.h>
#include <Support/TestCase.h>

#include <QPainter>

using Zelkor::Vx::PixmapWidget;
namespace PixmapCrop = Zelkor::Vx::PixmapCrop;

namespace {

// The colour of each pixel encodes its position.
QImage Picture()
{
    QImage image(400, 300, QImage::Format_RGB32);
    for (int i = 0; i < 400 * 300; ++i)
        image.setPixel(i % 400, i / 400, qRgb(i % 400 * 255 / 400, i / 400 * 255 / 300, 128));
    return image;
}

} // namespace

class tst_PixmapWidget : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cropKeepsTheAspectRatio()
    {
        using PixmapCrop::CropRect;
        QCOMPARE(CropRect({400, 300}, {100, 100}, Qt::AlignCenter), QRect(50, 0, 300, 300));
        QCOMPARE(CropRect({400, 300}, {100, 100}, Qt::AlignRight), QRect(100, 0, 300, 300));
        QCOMPARE(CropRect({300, 400}, {200, 100}, Qt::AlignTop), QRect(0, 0, 300, 150));
        QCOMPARE(CropRect({300, 400}, {200, 100}, Qt::AlignBottom), QRect(0, 250, 300, 150));
        QCOMPARE(CropRect({400, 300}, {32, 0}, Qt::AlignCenter), QRect());
    }

    void orderOfScalingAndMaskingIsInvisible_data()
    {
        QTest::addColumn<int>("side");
        for (const int side : {300, 97, 700})
            QTest::addRow("%d pixels", side) << side;
    }

    void orderOfScalingAndMaskingIsInvisible()
    {
        QFETCH(int, side);
        const QImage picture = Picture();
        const QRect crop(50, 0, 300, 300);
        QImage masked(crop.size(), QImage::Format_ARGB32_Premultiplied);
        masked.fill(Qt::transparent);
        QPainter painter(&masked);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QBrush(picture.copy(crop)));
        painter.drawEllipse(masked.rect());
        painter.end();
        const QImage expected = masked.scaled(side, side, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        const QImage rendered = PixmapCrop::Render(picture, crop, QSize(side, side), true);
        // Edges are antialiased in different steps; inside, only rounding differs.
        QVERIFY(Support::LargestDifference(rendered, expected) <= 32);
        const QRect inside(side / 4, side / 4, side / 2, side / 2);
        QVERIFY(Support::LargestDifference(rendered.copy(inside), expected.copy(inside)) <= 2);
    }

    void pictureCoversTheWidget()
    {
        QWidget window;
        window.setStyleSheet("QWidget { background: black } Zelkor--Vx--PixmapWidget { background: #010203 }");
        PixmapWidget widget(&window, {});
        widget.resize(100, 100);
        QPixmap pixmap = QPixmap::fromImage(Picture());
        pixmap.setDevicePixelRatio(2); // ignored
        widget.SetPixmap(pixmap);
        const auto colorAt = [&](int x, int y) {
            return Support::ColorAt(window.grab(widget.geometry()).toImage(), QPoint(x, y));
        };
        const auto redAt = [&](int x, int y) { return qRound(colorAt(x, y).red() / 16.0); }; // in steps of 16
        QCOMPARE(redAt(1, 50), 0);
        QCOMPARE(redAt(98, 50), 16);
        widget.SetMaskMode(PixmapWidget::MASK_RECTANGLE); // crops the right quarter
        QCOMPARE(redAt(98, 50), 12);
        widget.SetMaskAnchor(PixmapWidget::ANCHOR_CENTER);
        QCOMPARE(redAt(1, 50), 2);
        widget.SetMaskMode(PixmapWidget::MASK_ELLIPSE);
        QCOMPARE(colorAt(2, 2), QColor(1, 2, 3));
        QCOMPARE(redAt(50, 50), 8);
        widget.resize(100, 50);
        QCOMPARE(redAt(50, 25), 8);
    }
};

VX_TEST_MAIN(tst_PixmapWidget)
#include "tst_PixmapWidget.moc"
