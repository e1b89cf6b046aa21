#include <UI/Widgets/CursorHighlightPreviewWidget.h>

#include <Zelkor/Util/ImageGenerator.h>

#include <Support/PaintSpy.h>
#include <Support/Picture.h>
#include <Support/TestCase.h>

#include <QPainter>

using Zelkor::Vx::UI::CursorHighlightPreviewWidget;

namespace {

const QColor COLOR(0, 0, 255, 128);

// With a border of 3 pixels.
QImage Expected(int radius)
{
    QImage image(90, 90, QImage::Format_RGB32);
    image.fill(Qt::green);
    QPainter painter(&image);
    painter.translate(3, 3);
    painter.setClipRect(0, 0, 84, 84);
    for (int i = 0; i < 14 * 14; ++i)
        painter.fillRect(i / 14 * 6, i % 14 * 6, 6, 6, (i / 14 + i % 14) % 2 ? Qt::darkGray : Qt::white);
    const QSize disc(2 * radius, 2 * radius);
    painter.drawImage(42 - radius, 42 - radius,
                      Zelkor::Util::ImageGenerator::CreateCircleWithAlphaGradientCubic(disc, COLOR));
    return image;
}

} // namespace

class tst_CursorHighlightPreviewWidget : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void paintsDiscCheckerboardAndFrame()
    {
        CursorHighlightPreviewWidget preview(nullptr);
        preview.SetBorderColor(Qt::green);
        preview.SetColor(COLOR);
        preview.SetBorderWidth(3);
        for (const int diameter : {41, -40, 121, 2000}) {
            preview.SetDiameter(diameter);
            QCOMPARE(preview.GetRadius(), diameter / 2);
            QCOMPARE(Support::Render(preview, Qt::red), Expected(qBound(0, diameter / 2, 500)));
        }
    }

    void onlyChangesRepaint()
    {
        CursorHighlightPreviewWidget preview(nullptr);
        Support::PaintSpy paints(&preview);
        preview.SetDiameter(2 * preview.GetRadius() + 1);
        preview.SetColor(preview.GetColor());
        QCOMPARE(paints.Take().size(), 0);
        preview.SetRadius(20);
        QCOMPARE(paints.Take().size(), 1);
    }
};

VX_TEST_MAIN(tst_CursorHighlightPreviewWidget)
#include "tst_CursorHighlightPreviewWidget.moc"
