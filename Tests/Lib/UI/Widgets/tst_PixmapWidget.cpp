#include <UI/Widgets/PixmapCrop.h>
#include <UI/Widgets/PixmapWidget.h>

#include <Support/Picture.h>
#include <Support/TestCase.h>

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
        QCOMPARE(CropRect({300, 400}, {200, 100}, Qt::AlignBottom), QRect(0, 250, 300, 150));
        QCOMPARE(CropRect({400, 300}, {32, 0}, Qt::AlignCenter), QRect());
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
