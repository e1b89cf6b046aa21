#include <UI/Kit/ZLabel.h>

#include <Support/TestCase.h>

#include <QSignalSpy>

namespace {

QString Marked(const QString& text)
{
    return QChar(0x202A) + text + QChar(0x202C);
}

} // namespace

class tst_ZLabel : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void textIsSetOnceAndReadWithoutMarks()
    {
        ZLabel label;
        QCOMPARE(label.originalText(), QString("ZLabel"));
        QCOMPARE(label.text(), QString("ZLabel"));
        QSignalSpy changed(&label, &ZLabel::originalTextChanged);
        label.setOriginalText("abc");
        label.setOriginalText("abc");
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed[0][0].toString(), QString("abc"));
        QCOMPARE(label.originalText(), QString("abc"));
        label.setOriginalText("");
        QCOMPARE(label.originalText(), QString(""));
        QCOMPARE(changed.size(), 2);
    }

    void elidesToItsWidth_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("latin") << "A text that is long enough to be cut";
        QTest::newRow("arabic") << QString::fromUtf8("نص طويل بما يكفي ليتم اقتطاعه هنا");
        QTest::newRow("mixed") << QString::fromUtf8("Aufnahme נא לבחור camera 2 (1280×720)");
    }

    void elidesToItsWidth()
    {
        QFETCH(QString, text);
        ZLabel label;
        label.setOriginalText(text);
        label.resize(1000, 30);
        label.show();
        QCOMPARE(label.text(), Marked(text));
        QCOMPARE(label.toolTip(), QString());

        label.resize(80, 30);
        QVERIFY(label.text() != Marked(text));
        QVERIFY(label.text().contains(QChar(0x2026)));
        QVERIFY(label.text().startsWith(QChar(0x202A)));
        // The joiner that Qt puts before the ellipsis of a joining script may make the last letter a little wider.
        const QFontMetrics metrics = label.fontMetrics();
        QVERIFY(metrics.horizontalAdvance(label.text()) <= 80 + metrics.averageCharWidth());
        QCOMPARE(label.toolTip(), Marked(text));
        QCOMPARE(label.originalText(), text);
        QCOMPARE(label.accessibleName(), text);

        label.setEliding(false);
        QCOMPARE(label.text(), Marked(text));
        QCOMPARE(label.toolTip(), QString());
        label.setEliding(true);
        QCOMPARE(label.toolTip(), Marked(text));
        label.resize(1000, 30);
        QCOMPARE(label.text(), Marked(text));
        QCOMPARE(label.toolTip(), QString());
    }

    void frameTakesItsShareOfTheWidth()
    {
        ZLabel label;
        label.setOriginalText("wide as it is");
        label.show();
        label.resize(label.fontMetrics().horizontalAdvance(Marked("wide as it is")) + 10, 30);
        QCOMPARE(label.toolTip(), QString());
        label.setFrameStyle(QFrame::Box | QFrame::Plain);
        label.setLineWidth(8);
        label.resize(label.width() + 1, 30);
        QVERIFY(!label.toolTip().isEmpty());
    }

    void anyButtonClicksOnPress()
    {
        ZLabel label;
        label.resize(100, 30);
        QSignalSpy clicked(&label, &ZLabel::clicked);
        QTest::mousePress(&label, Qt::LeftButton);
        QCOMPARE(clicked.size(), 1);
        QTest::mouseRelease(&label, Qt::LeftButton);
        QTest::mousePress(&label, Qt::RightButton);
        QCOMPARE(clicked.size(), 2);

        label.setClickable(false);
        label.setTextInteractionFlags(Qt::TextSelectableByMouse);
        label.setOriginalText("abc");
        QTest::mouseDClick(&label, Qt::LeftButton, {}, QPoint(5, 15));
        QCOMPARE(clicked.size(), 2);
        QVERIFY(label.hasSelectedText());
    }

    void slotMayDeleteTheLabel()
    {
        auto* label = new ZLabel;
        connect(label, &ZLabel::clicked, label, [label] { delete label; });
        QMouseEvent press(QEvent::MouseButtonPress, QPointF(1, 1), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QPointer<ZLabel> guard(label);
        static_cast<QObject*>(label)->event(&press);
        QVERIFY(!guard);
    }
};

VX_TEST_MAIN(tst_ZLabel)
#include "tst_ZLabel.moc"
