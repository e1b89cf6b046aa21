#include <UI/Widgets/ClickSoundComboBox.h>

#include <Support/TestCase.h>

#include <QAbstractItemView>
#include <QAccessible>

using Zelkor::Vx::UI::ClickSoundComboBox;

namespace {

const QString LONG_TEXT("A click sound with a name that is far too long for its box");

// The columns with ink of the label's colour.
QRect InkOf(QWidget& widget)
{
    const QImage image = widget.grab().toImage();
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y).red() < 100)
                ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}

} // namespace

class tst_ClickSoundComboBox : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void longTextStaysOffTheArrow_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::newRow("left to right") << 120 << Qt::LeftToRight;
        QTest::newRow("right to left") << 120 << Qt::RightToLeft;
        QTest::newRow("narrower than the arrow") << 20 << Qt::LeftToRight;
        QTest::newRow("nothing") << 0 << Qt::LeftToRight;
    }

    void longTextStaysOffTheArrow()
    {
        QFETCH(int, width);
        QFETCH(Qt::LayoutDirection, direction);
        ClickSoundComboBox box;
        QCOMPARE(box.view()->textElideMode(), Qt::ElideRight);
        box.setLayoutDirection(direction);
        box.setStyleSheet("QComboBox { background: white; color: black; border: none; padding: 0 }"
                          "QComboBox::drop-down { width: 20px; border: none }");
        box.addItems({LONG_TEXT, "Short"});
        box.resize(width, 30);
        const QRect ink = InkOf(box);
        QVERIFY(ink.width() <= qMax(20, width - 30));
        QVERIFY(width < 100 || ink.width() > 60);
        QVERIFY(width < 100 || (direction == Qt::LeftToRight ? ink.right() < 100 : ink.left() >= 20));
        QCOMPARE(box.currentText(), LONG_TEXT);
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&box);
        QCOMPARE(accessible->text(QAccessible::Value), LONG_TEXT);
        // A text that fits is drawn as it is.
        box.setCurrentIndex(1);
        box.resize(120, 30);
        const int advance = box.fontMetrics().horizontalAdvance("Short");
        QVERIFY(qAbs(InkOf(box).width() - advance) <= 6);
    }
};

VX_TEST_MAIN(tst_ClickSoundComboBox)
#include "tst_ClickSoundComboBox.moc"
