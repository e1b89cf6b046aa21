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
    void sizeHintsAreBounded_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("minimumLength");
        QTest::newRow("short text") << "On" << 0;
        QTest::newRow("long text") << LONG_TEXT.repeated(9) << 0;
        QTest::newRow("long text, minimum length") << LONG_TEXT.repeated(9) << 60;
    }

    void sizeHintsAreBounded()
    {
        QFETCH(QString, text);
        QFETCH(int, minimumLength);
        ClickSoundComboBox box;
        box.setMinimumContentsLength(minimumLength);
        box.addItem(text);
        const int least = box.fontMetrics().averageCharWidth() * minimumLength;
        QVERIFY(box.minimumSizeHint().width() >= least);
        QVERIFY(box.minimumSizeHint().width() <= 100 + least * 2);
        QVERIFY(box.sizeHint().width() >= box.minimumSizeHint().width());
        QVERIFY(box.sizeHint().width() <= 400 + least * 2);
    }

    void listOfNarrowBoxShowsWholeTexts_data()
    {
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::newRow("left to right") << Qt::LeftToRight;
        QTest::newRow("right to left") << Qt::RightToLeft;
    }

    void listOfNarrowBoxShowsWholeTexts()
    {
        QFETCH(Qt::LayoutDirection, direction);
        ClickSoundComboBox box;
        box.addItem("Mechanical keyboard");
        box.setStyleSheet("combobox-popup: 0");
        box.setLayoutDirection(direction);
        box.setGeometry(300, 300, 60, 30);
        box.show();
        box.showPopup();
        QVERIFY(box.view()->viewport()->width() >= box.view()->sizeHintForColumn(0));
        const QRect list = box.view()->window()->geometry();
        QCOMPARE(direction == Qt::LeftToRight ? list.left() : list.right(),
                 direction == Qt::LeftToRight ? box.geometry().left() : box.geometry().right());
    }

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
