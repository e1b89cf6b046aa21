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
        QCOMPARE(label.text(), QString("ZLabel"));
        QSignalSpy changed(&label, &ZLabel::originalTextChanged);
        label.setOriginalText(text);
        label.setOriginalText(text);
        QCOMPARE(changed, QList<QVariantList>{{text}});
        label.resize(1000, 30);
        label.show();
        QCOMPARE(label.text(), Marked(text));
        QCOMPARE(label.toolTip(), QString());

        label.resize(80, 30);
        QVERIFY(label.text().startsWith(QChar(0x202A)) && label.text().contains(QChar(0x2026)));
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
        // A frame takes its share of the width.
        const int exact = metrics.horizontalAdvance(Marked(text)) + 2;
        label.resize(exact, 30);
        QCOMPARE(label.toolTip(), QString());
        label.setFrameStyle(QFrame::Box | QFrame::Plain);
        label.setLineWidth(8);
        label.resize(exact, 31);
        QCOMPARE(label.toolTip(), Marked(text));
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
        QTest::mouseDClick(&label, Qt::LeftButton, {}, QPoint(5, 15));
        QCOMPARE(clicked.size(), 2);
        QVERIFY(label.hasSelectedText());
    }

    void slotMayDeleteTheLabel()
    {
        QPointer<ZLabel> label = new ZLabel;
        connect(label, &ZLabel::clicked, label, [label] { delete label; });
        QMouseEvent press(QEvent::MouseButtonPress, QPointF(1, 1), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        static_cast<QObject*>(label)->event(&press);
        QVERIFY(!label);
    }
};

VX_TEST_MAIN(tst_ZLabel)
#include "tst_ZLabel.moc"
