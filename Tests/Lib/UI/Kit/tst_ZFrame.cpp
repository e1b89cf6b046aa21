#include <UI/Kit/ZFrame.h>

#include <Support/TestCase.h>

#include <QFormLayout>
#include <QStackedLayout>

#include <functional>

namespace {

using Spacings = QPair<int, int>; // horizontal, vertical

Spacings SpacingsOf(const ZFrame& frame)
{
    return {frame.layoutHSpacing(), frame.layoutVSpacing()};
}

} // namespace

class tst_ZFrame : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void spacingFollowsTheKindOfLayout_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<int>("common"); // what QLayout::spacing() makes of 7 across and 9 down
        QTest::addColumn<Spacings>("spacings");
        QTest::newRow("horizontal box") << "QHBoxLayout" << 7 << Spacings(7, -1);
        QTest::newRow("vertical box") << "QVBoxLayout" << 9 << Spacings(-1, 9);
        QTest::newRow("plain box") << "QBoxLayout" << 3 << Spacings(-1, -1);
        QTest::newRow("grid") << "QGridLayout" << -1 << Spacings(7, 9);
        QTest::newRow("form") << "QFormLayout" << -1 << Spacings(7, 9);
        QTest::newRow("stack") << "QStackedLayout" << 3 << Spacings(-1, -1);
        QTest::newRow("none") << "" << -1 << Spacings(-1, -1);
    }

    void spacingFollowsTheKindOfLayout()
    {
        QFETCH(QString, kind);
        QFETCH(int, common);
        QFETCH(Spacings, spacings);
        const QMap<QString, std::function<QLayout*()>> make{
            {"QHBoxLayout", [] { return new QHBoxLayout; }},
            {"QVBoxLayout", [] { return new QVBoxLayout; }},
            {"QBoxLayout", [] { return new QBoxLayout(QBoxLayout::LeftToRight); }},
            {"QGridLayout", [] { return new QGridLayout; }},
            {"QFormLayout", [] { return new QFormLayout; }},
            {"QStackedLayout", [] { return new QStackedLayout; }},
        };
        ZFrame frame;
        if (!kind.isEmpty())
            frame.setLayout(make[kind]());
        frame.setLayoutSpacing(3);
        frame.setLayoutHSpacing(7);
        frame.setLayoutVSpacing(9);
        QCOMPARE(SpacingsOf(frame), spacings);
        QCOMPARE(frame.layoutSpacing(), common);
    }

    void marginsOneByOneAndTogether()
    {
        ZFrame frame;
        frame.setLayoutMargin(4);
        QCOMPARE(frame.layoutMargin(), -1);
        QCOMPARE(frame.layoutMarginTop(), -1);

        auto* layout = new QHBoxLayout(&frame);
        layout->setContentsMargins(4, 2, 4, 2);
        QCOMPARE(frame.layoutMargin(), -1);
        frame.setLayoutMarginTop(9);
        QCOMPARE(layout->contentsMargins(), QMargins(4, 9, 4, 2));
        frame.setLayoutMarginRight(6);
        frame.setLayoutMarginBottom(5);
        frame.setLayoutMarginLeft(3);
        QCOMPARE(layout->contentsMargins(), QMargins(3, 9, 6, 5));
        QCOMPARE(frame.layoutMarginRight(), 6);
        frame.setLayoutMargin(4);
        QCOMPARE(layout->contentsMargins(), QMargins(4, 4, 4, 4));
        QCOMPARE(frame.layoutMargin(), 4);
    }

    void styleSheetSetsTheProperties()
    {
        ZFrame frame;
        auto* layout = new QVBoxLayout(&frame);
        frame.setStyleSheet("ZFrame { qproperty-layoutMargin: 4; qproperty-layoutMarginLeft: 11;"
                            " qproperty-layoutVSpacing: 6; qproperty-layoutHSpacing: 8 }");
        frame.ensurePolished();
        QCOMPARE(layout->contentsMargins(), QMargins(11, 4, 4, 4));
        QCOMPARE(layout->spacing(), 6);
    }
};

VX_TEST_MAIN(tst_ZFrame)
#include "tst_ZFrame.moc"
