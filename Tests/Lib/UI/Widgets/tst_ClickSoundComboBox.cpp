#include <UI/Widgets/ClickSoundComboBox.h>

#include <Support/Picture.h>
#include <Support/TestCase.h>

#include <QAbstractItemView>
#include <QAccessible>

using Zelkor::Vx::UI::ClickSoundComboBox;

namespace {

const QString LONG_TEXT("A click sound with a name that is far too long for its box");

QRect InkOf(QWidget& widget)
{
    return Support::InkOf(widget.grab().toImage(), [](const QColor& color) { return color.red() < 100; });
}

} // namespace

class tst_ClickSoundComboBox : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void longTextStaysOffTheArrow()
    {
        // 20 is narrower than the arrow.
        using Row = QPair<int, Qt::LayoutDirection>;
        for (const auto& [width, direction] : {Row(120, Qt::LeftToRight), Row(120, Qt::RightToLeft),
                                               Row(20, Qt::LeftToRight), Row(0, Qt::LeftToRight)}) {
            InRow(QString("width %1").arg(width));
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
            QCOMPARE(QAccessible::queryAccessibleInterface(&box)->text(QAccessible::Value), LONG_TEXT);
            // A text that fits is drawn as it is.
            box.setCurrentIndex(1);
            box.resize(120, 30);
            QVERIFY(qAbs(InkOf(box).width() - box.fontMetrics().horizontalAdvance("Short")) <= 6);
        }
    }
};

VX_TEST_MAIN(tst_ClickSoundComboBox)
#include "tst_ClickSoundComboBox.moc"
