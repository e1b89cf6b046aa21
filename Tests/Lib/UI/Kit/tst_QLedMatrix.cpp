#include <UI/Kit/QLedMatrix.h>

#include <Support/PaintSpy.h>
#include <Support/Picture.h>
#include <Support/TestCase.h>

#include <QPainter>

namespace {

constexpr int TOLERANCE = 8; // of 255, for circles at multiples of 1/32 pixel

QRgb ColorOf(int row, int column)
{
    const QRgb colors[] = {QLedMatrix::NoColor, QLedMatrix::Red, QLedMatrix::Green, 0x800000ff};
    return colors[(row * 5 + column * 3) % 7 % 4];
}

void Fill(QLedMatrix& matrix, int rows, int columns)
{
    matrix.setRowCount(rows);
    matrix.setColumnCount(columns);
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column)
            matrix.setColorAt(row, column, ColorOf(row, column), false);
    }
}

// Paints the matrix circle by circle.
QImage Circles(const QLedMatrix& matrix, double pixelRatio)
{
    QImage image((QSizeF(matrix.size()) * pixelRatio).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(pixelRatio);
    image.fill(Qt::gray);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.fillRect(matrix.rect(), Qt::black);
    const QSizeF grid(matrix.columns() * 10, matrix.rows() * 10);
    const double scale = qMin(matrix.width() / grid.width(), matrix.height() / grid.height());
    painter.translate(QRectF(matrix.rect()).center());
    painter.scale(scale, scale);
    painter.translate(1.0 - grid.width() / 2, 1.0 - grid.height() / 2);
    for (int row = 0; row < matrix.rows(); ++row) {
        for (int column = 0; column < matrix.columns(); ++column) {
            painter.setBrush(QColor::fromRgba(matrix.colorAt(row, column)));
            painter.drawEllipse(QRectF(column * 10, row * 10, 8, 8));
        }
    }
    return image;
}

} // namespace

class tst_QLedMatrix : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void pixelsAreThoseOfCircles_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QSize>("grid");
        QTest::newRow("too large for the cache") << QSize(700, 900) << QSize(3, 2);
        QTest::newRow("cached") << QSize(333, 160) << QSize(16, 9);
        QTest::newRow("overlapping") << QSize(60, 20) << QSize(16, 9);
        QTest::newRow("smaller than pixels") << QSize(60, 20) << QSize(40, 40);
        QTest::newRow("single LED in a tiny widget") << QSize(5, 4) << QSize(1, 1);
    }

    void pixelsAreThoseOfCircles()
    {
        QFETCH(QSize, size);
        QFETCH(QSize, grid);
        for (const double pixelRatio : {1.0, 1.25, 2.0}) {
            QLedMatrix matrix;
            Fill(matrix, grid.height(), grid.width());
            matrix.resize(size);
            const QImage picture = Support::Render(matrix, Qt::gray, pixelRatio);
            QVERIFY(Support::LargestDifference(picture, Circles(matrix, pixelRatio)) <= TOLERANCE);
        }
    }

    void partIsPaintedLikeTheWhole()
    {
        QLedMatrix matrix;
        Fill(matrix, 20, 20);
        matrix.resize(333, 257);
        const QRect part(100, 40, 61, 83);
        QImage image(matrix.size(), QImage::Format_RGB32);
        matrix.render(&image, part.topLeft(), part, {});
        QCOMPARE(image.copy(part), Support::Render(matrix, Qt::gray).copy(part));
    }

    void onlyChangedLedsAreRepainted()
    {
        QLedMatrix matrix;
        Fill(matrix, 10, 20);
        matrix.resize(400, 200);
        Support::PaintSpy paints(&matrix);
        const auto painted = [&] {
            const QVector<QRegion> regions = paints.Take();
            return regions.size() == 1 ? regions[0].boundingRect() : QRect();
        };
        matrix.setColorAt(2, 3, QLedMatrix::White);
        QCOMPARE(painted(), QRect(61, 41, 18, 18));
        matrix.setColorAt(2, 3, QLedMatrix::Blue, false);
        QCOMPARE(painted(), QRect());
        // Includes the LED that was set without an update.
        matrix.setColorAt(3, 5, QLedMatrix::Blue);
        QCOMPARE(painted(), QRect(61, 41, 58, 38));
        matrix.clear();
        QCOMPARE(painted(), matrix.rect());
        QCOMPARE(matrix.colorAt(3, 5), QRgb(QLedMatrix::NoColor));
    }

    void badCountsAndCoordinatesWarn()
    {
        QLedMatrix matrix;
        ExpectWarning("QLedMatrix::sizeHint: no rows or columns to display, defaulting size to (10,10)");
        QCOMPARE(matrix.sizeHint(), QSize(10, 10));
        matrix.setRowCount(2);
        matrix.setColumnCount(3);
        matrix.setRowCount(-1);
        QCOMPARE(matrix.sizeHint(), QSize(30, 20));
        // Too many rows, and too many LEDs.
        ExpectWarning("QLedMatrix::setRowCount: 1677722 rows");
        matrix.setRowCount(1677722);
        matrix.setRowCount(4096);
        ExpectWarning("QLedMatrix::setColumnCount: 4097 columns");
        matrix.setColumnCount(4097);
        QCOMPARE(QSize(matrix.columns(), matrix.rows()), QSize(3, 4096));

        matrix.setRowCount(2);
        matrix.setColorAt(1, 2, QLedMatrix::Orange);
        for (const QPoint bad : {QPoint(-1, 0), QPoint(3, 0), QPoint(0, 2), QPoint(0, -1)}) {
            const QString place = QString("coordinate (row=%1, col=%2) out of range").arg(bad.y()).arg(bad.x());
            ExpectWarning("::colorAt: " + place);
            QCOMPARE(matrix.colorAt(bad.y(), bad.x()), 0xFF222222);
            ExpectWarning("::setColorAt: " + place);
            matrix.setColorAt(bad.y(), bad.x(), QLedMatrix::Red);
        }
        // A larger grid keeps its LEDs. New LEDs and those that were off have the new dark colour.
        matrix.setDarkLedColor(Qt::darkBlue);
        matrix.setRowCount(3);
        matrix.setColumnCount(4);
        QCOMPARE(matrix.colorAt(1, 2), QRgb(QLedMatrix::Orange));
        for (const QPoint dark : {QPoint(0, 0), QPoint(2, 2), QPoint(3, 1)})
            QCOMPARE(matrix.colorAt(dark.y(), dark.x()), QColor(Qt::darkBlue).rgba());
    }

    void backgroundIsPaintedInOpaqueMode()
    {
        QLedMatrix matrix;
        matrix.resize(40, 20);
        QCOMPARE(Support::Render(matrix, Qt::gray).pixelColor(20, 10), QColor(Qt::black));
        Fill(matrix, 1, 1);
        matrix.setDarkLedColor("#654321");
        matrix.setBackgroundColor("#123456");
        const QImage image = Support::Render(matrix, Qt::gray);
        QCOMPARE(image.pixelColor(1, 1), QColor("#123456"));
        QCOMPARE(image.pixelColor(20, 10), QColor("#654321"));
        matrix.setBackgroundMode(Qt::TransparentMode);
        matrix.setAttribute(Qt::WA_NoSystemBackground);
        QCOMPARE(Support::Render(matrix, Qt::gray).pixelColor(1, 1), QColor(Qt::gray));
    }
};

VX_TEST_MAIN(tst_QLedMatrix)
#include "tst_QLedMatrix.moc"
