#include <UI/Kit/ZFrame.h>

#include <Support/TestCase.h>

#include <QFormLayout>
#include <QStackedLayout>

using Spacings = QVector<int>; // common, horizontal, vertical
Q_DECLARE_METATYPE(QLayout*)

class tst_ZFrame : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void spacingFollowsTheKindOfLayout_data()
    {
        QTest::addColumn<QLayout*>("layout");
        QTest::addColumn<Spacings>("spacings"); // after 3 for all, then 7 across and 9 down
        QTest::newRow("horizontal box") << static_cast<QLayout*>(new QHBoxLayout) << Spacings{7, 7, -1};
        QTest::newRow("vertical box") << static_cast<QLayout*>(new QVBoxLayout) << Spacings{9, -1, 9};
        QTest::newRow("plain box") << static_cast<QLayout*>(new QBoxLayout(QBoxLayout::Down)) << Spacings{3, -1, -1};
        QTest::newRow("grid") << static_cast<QLayout*>(new QGridLayout) << Spacings{-1, 7, 9};
        QTest::newRow("form") << static_cast<QLayout*>(new QFormLayout) << Spacings{-1, 7, 9};
        QTest::newRow("stack") << static_cast<QLayout*>(new QStackedLayout) << Spacings{3, -1, -1};
        QTest::newRow("none") << static_cast<QLayout*>(nullptr) << Spacings{-1, -1, -1};
    }

    void spacingFollowsTheKindOfLayout()
    {
        QFETCH(QLayout*, layout);
        QFETCH(Spacings, spacings);
        ZFrame frame;
        if (layout)
            frame.setLayout(layout);
        frame.setLayoutSpacing(3);
        frame.setLayoutHSpacing(7);
        frame.setLayoutVSpacing(9);
        frame.setLayoutMargin(5);
        QCOMPARE(Spacings({frame.layoutSpacing(), frame.layoutHSpacing(), frame.layoutVSpacing()}), spacings);
        QCOMPARE(frame.layoutMargin(), layout ? 5 : -1);
        QCOMPARE(frame.layoutMarginTop(), layout ? 5 : -1);
    }

    void marginsOneByOneAndByStyleSheet()
    {
        ZFrame frame;
        auto* layout = new QVBoxLayout(&frame);
        layout->setContentsMargins(4, 2, 4, 2);
        QCOMPARE(frame.layoutMargin(), -1);
        frame.setLayoutMarginTop(9);
        QCOMPARE(layout->contentsMargins(), QMargins(4, 9, 4, 2));
        frame.setLayoutMarginRight(6);
        frame.setLayoutMarginBottom(5);
        frame.setLayoutMarginLeft(3);
        QCOMPARE(layout->contentsMargins(), QMargins(3, 9, 6, 5));
        frame.setStyleSheet("ZFrame { qproperty-layoutMargin: 4; qproperty-layoutMarginLeft: 11;"
                            " qproperty-layoutVSpacing: 6; qproperty-layoutHSpacing: 8 }");
        frame.ensurePolished();
        QCOMPARE(layout->contentsMargins(), QMargins(11, 4, 4, 4));
        QCOMPARE(layout->spacing(), 6);
    }
};

VX_TEST_MAIN(tst_ZFrame)
#include "tst_ZFrame.moc"
