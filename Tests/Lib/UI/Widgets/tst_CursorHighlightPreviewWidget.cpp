#include <UI/Widgets/CursorHighlightPreviewWidget.h>

#include <Zelkor/Util/ImageGenerator.h>

#include <Support/PaintSpy.h>
#include <Support/Picture.h>
#include <Support/TestCase.h>

#include <QPainter>

#include <climits>

using Zelkor::Vx::UI::CursorHighlightPreviewWidget;

namespace {

const QColor COLOR(0, 0, 255, 128);

// From the outside to the inside, with a disc that is made for the scale.
QImage Expected(int border, const QColor& borderColor, int radius, int scale)
{
    QImage image(QSize(84 + 2 * border, 84 + 2 * border) * scale, QImage::Format_RGB32);
    image.fill(borderColor);
    QPainter painter(&image);
    painter.translate(border * scale, border * scale);
    painter.setClipRect(0, 0, 84 * scale, 84 * scale);
    for (int i = 0; i < 14 * 14; ++i)
        painter.fillRect(QRect(i / 14 * 6 * scale, i % 14 * 6 * scale, 6 * scale, 6 * scale),
                         (i / 14 + i % 14) % 2 ? Qt::darkGray : Qt::white);
    const QSize disc = QSize(2 * radius, 2 * radius) * scale;
    const int place = (42 - radius) * scale;
    painter.drawImage(place, place, Zelkor::Util::ImageGenerator::CreateCircleWithAlphaGradientCubic(disc, COLOR));
    return image;
}

} // namespace

class tst_CursorHighlightPreviewWidget : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void picture()
    {
        CursorHighlightPreviewWidget preview(nullptr);
        QCOMPARE(Support::Render(preview, Qt::red), Expected(1, Qt::darkGray, 0, 1));
        preview.SetBorderColor(Qt::green);
        preview.SetColor(COLOR);
        for (const int border : {1, 0, 3, 8}) {
            preview.SetBorderWidth(border);
            for (const int diameter : {41, 1, -40, 82, 121, 400, 2000, INT_MAX, INT_MIN}) {
                InRow(QString("border %1, diameter %2").arg(border).arg(diameter));
                preview.SetDiameter(diameter);
                QCOMPARE(preview.GetRadius(), diameter / 2);
                QCOMPARE(Support::Render(preview, Qt::red),
                         Expected(border, Qt::green, qBound(0, diameter / 2, 500), 1));
            }
            preview.SetRadius(20);
            const QImage twice = Support::Render(preview, Qt::red, 2);
            QVERIFY(Support::LargestDifference(twice, Expected(border, Qt::green, 20, 2)) <= 5);
        }
        for (const int border : {INT_MAX, INT_MIN, -42, -4}) // a size that Qt does not take would be a warning
            preview.SetBorderWidth(border);
        QCOMPARE(preview.size(), QSize(76, 76));
        QCOMPARE(Support::Render(preview, Qt::red).pixelColor(0, 0), QColor(Qt::white));
    }

    void unchangedValueRepaintsNothing()
    {
        CursorHighlightPreviewWidget preview(nullptr);
        preview.show();
        QVERIFY(QTest::qWaitForWindowExposed(&preview));
        Support::PaintSpy watch(&preview);
        preview.SetDiameter(2 * preview.GetRadius() + 1);
        preview.SetColor(preview.GetColor());
        preview.SetBorderColor(preview.GetBorderColor());
        preview.SetBorderWidth(preview.GetBorderWidth());
        QVERIFY(watch.Take().isEmpty());
        preview.SetColor(Qt::red);
        QCOMPARE(watch.Take().size(), 1);
    }
};

VX_TEST_MAIN(tst_CursorHighlightPreviewWidget)
#include "tst_CursorHighlightPreviewWidget.moc"
