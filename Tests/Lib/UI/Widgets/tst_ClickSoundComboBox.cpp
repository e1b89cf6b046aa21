#include <UI/Widgets/ClickSoundComboBox.h>

#include <Support/Picture.h>
#include <Support/TestCase.h>

#include <QAbstractItemView>

using Zelkor::Vx::UI::ClickSoundComboBox;

const QString LONG_TEXT("A click sound with a name that is far too long for its box");

class tst_ClickSoundComboBox : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void sizeHintsAreBounded()
    {
        ClickSoundComboBox box;
        box.addItem(LONG_TEXT.repeated(9));
        QVERIFY(box.minimumSizeHint().width() <= 100);
        QVERIFY(box.sizeHint().width() > 200);
        QVERIFY(box.sizeHint().width() <= 400);
        box.setMinimumContentsLength(60);
        QVERIFY(box.minimumSizeHint().width() >= 60 * box.fontMetrics().averageCharWidth());
    }

    void textIsElidedBesideTheArrow()
    {
        ClickSoundComboBox box;
        box.setLayoutDirection(Qt::RightToLeft);
        box.setStyleSheet("QComboBox { background: white; color: black; border: none; padding: 0 }"
                          "QComboBox::drop-down { width: 20px; border: none }");
        box.addItems({LONG_TEXT, "Short"});
        box.resize(120, 30);
        const auto ink = [&] {
            return Support::InkOf(box.grab().toImage(), [](const QColor& color) { return color.red() < 100; });
        };
        QVERIFY(ink().width() > 60);
        QVERIFY(ink().left() >= 20);
        QCOMPARE(box.currentText(), LONG_TEXT);
        box.setCurrentIndex(1);
        QVERIFY(qAbs(ink().width() - box.fontMetrics().horizontalAdvance("Short")) <= 6);
    }

    void listOfNarrowBoxShowsWholeTexts()
    {
        ClickSoundComboBox box;
        box.addItem("Mechanical keyboard");
        box.setStyleSheet("combobox-popup: 0");
        box.setLayoutDirection(Qt::RightToLeft);
        box.setGeometry(300, 300, 60, 30);
        box.show();
        box.showPopup();
        QVERIFY(box.view()->viewport()->width() >= box.view()->sizeHintForColumn(0));
        QCOMPARE(box.view()->window()->geometry().right(), box.geometry().right());
    }
};

VX_TEST_MAIN(tst_ClickSoundComboBox)
#include "tst_ClickSoundComboBox.moc"
