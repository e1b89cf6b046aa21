#include <UI/Kit/ZFrame.h>
#include <UI/Kit/ZLabel.h>
#include <UI/Kit/ZStackedWidget.h>

#include <Support/TestCase.h>

#include <QAccessible>
#include <QFormLayout>
#include <QSignalSpy>
#include <QStackedLayout>

using Spacings = QVector<int>; // common, horizontal, vertical

class tst_Kit : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void frameSpacingFollowsTheKindOfLayout()
    {
        // What remains of 3 for all, then 7 across and 9 down.
        const QVector<QPair<QLayout*, Spacings>> rows{
            {new QHBoxLayout, {7, 7, -1}},
            {new QVBoxLayout, {9, -1, 9}},
            {new QBoxLayout(QBoxLayout::Down), {3, -1, -1}},
            {new QGridLayout, {-1, 7, 9}},
            {new QFormLayout, {-1, 7, 9}},
            {new QStackedLayout, {3, -1, -1}},
            {nullptr, {-1, -1, -1}},
        };
        for (const auto& row : rows) {
            InRow(row.first ? row.first->metaObject()->className() : "no layout");
            ZFrame frame;
            if (row.first)
                frame.setLayout(row.first);
            frame.setLayoutSpacing(3);
            frame.setLayoutHSpacing(7);
            frame.setLayoutVSpacing(9);
            frame.setLayoutMargin(5);
            QCOMPARE(Spacings({frame.layoutSpacing(), frame.layoutHSpacing(), frame.layoutVSpacing()}), row.second);
            QCOMPARE(frame.layoutMargin(), row.first ? 5 : -1);
            QCOMPARE(frame.layoutMarginTop(), row.first ? 5 : -1);
        }
    }

    void frameMarginsOneByOne()
    {
        ZFrame frame;
        auto* layout = new QVBoxLayout(&frame);
        layout->setContentsMargins(4, 2, 4, 2);
        QCOMPARE(frame.layoutMargin(), -1);
        frame.setLayoutMarginTop(9);
        frame.setLayoutMarginRight(6);
        frame.setLayoutMarginBottom(5);
        frame.setLayoutMarginLeft(3);
        QCOMPARE(layout->contentsMargins(), QMargins(3, 9, 6, 5));
    }

    void labelElidesToItsWidth()
    {
        for (const QString text : {"A text that is long enough to be cut", "نص طويل بما يكفي ليتم اقتطاعه هنا",
                                   "Aufnahme נא לבחור camera 2 (1280×720)"}) {
            InRow(text);
            const QString marked = QChar(0x202A) + text + QChar(0x202C);
            ZLabel label;
            QSignalSpy changed(&label, &ZLabel::originalTextChanged);
            label.setOriginalText(text);
            label.setOriginalText(text);
            QCOMPARE(changed, QList<QVariantList>{{text}});
            label.resize(1000, 30);
            label.show();
            QVERIFY(label.text() == marked && label.toolTip().isEmpty());

            label.resize(80, 30);
            QVERIFY(label.text().startsWith(QChar(0x202A)) && label.text().contains(QChar(0x2026)));
            // The joiner that Qt puts before the ellipsis of a joining script may make the last letter a little wider.
            const QFontMetrics metrics = label.fontMetrics();
            QVERIFY(metrics.horizontalAdvance(label.text()) <= 80 + metrics.averageCharWidth());
            QVERIFY(label.sizeHint().width() >= metrics.horizontalAdvance(text));
            QCOMPARE(label.toolTip(), marked);
            QCOMPARE(QAccessible::queryAccessibleInterface(&label)->text(QAccessible::Name), text);
            // A frame takes its share of the width.
            const int exact = metrics.horizontalAdvance(marked) + 2;
            label.resize(exact, 30);
            QCOMPARE(label.toolTip(), QString());
            label.setFrameStyle(QFrame::Box | QFrame::Plain);
            label.setLineWidth(8);
            label.resize(exact, 31);
            QCOMPARE(label.toolTip(), marked);
        }
    }

    void labelClicksOnPress()
    {
        QPointer<ZLabel> label = new ZLabel;
        label->resize(100, 30);
        QSignalSpy clicked(label, &ZLabel::clicked);
        QTest::mouseClick(label, Qt::LeftButton);
        QTest::mousePress(label, Qt::RightButton);
        QCOMPARE(clicked.size(), 2);
        label->setClickable(false);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        QTest::mouseDClick(label, Qt::LeftButton, {}, QPoint(5, 15));
        QVERIFY(clicked.size() == 2 && label->hasSelectedText());
        label->setClickable(true);
        connect(label, &ZLabel::clicked, label, [label] { delete label; });
        QTest::mousePress(label, Qt::LeftButton);
        QVERIFY(!label);
    }

    void stackFollowsTheCurrentPage()
    {
        QWidget window;
        auto* layout = new QVBoxLayout(&window);
        layout->setContentsMargins({});
        layout->setSizeConstraint(QLayout::SetFixedSize);
        auto* stack = new ZStackedWidget;
        QCOMPARE(stack->sizeHint(), QStackedWidget().sizeHint());
        layout->addWidget(stack);
        for (const QSize size : {QSize(300, 200), QSize(40, 30)}) {
            auto* pageLayout = new QVBoxLayout;
            pageLayout->setContentsMargins({});
            pageLayout->addSpacerItem(new QSpacerItem(size.width(), size.height()));
            stack->widget(stack->addWidget(new QWidget))->setLayout(pageLayout);
        }
        window.show();
        QCOMPARE(window.size(), QSize(300, 200));
        stack->setCurrentIndex(1);
        QTRY_COMPARE(window.size(), QSize(40, 30));

        // Off, it is as large as its largest page, once the layout asks again.
        stack->setAutoFit(false);
        QCOMPARE(window.size(), QSize(40, 30));
        stack->updateGeometry();
        QTRY_COMPARE(window.size(), QSize(300, 200));
        stack->setAutoFit(true);
        QTRY_COMPARE(window.size(), QSize(40, 30));
        delete stack->currentWidget();
        QTRY_COMPARE(window.size(), QSize(300, 200));
    }
};

VX_TEST_MAIN(tst_Kit)
#include "tst_Kit.moc"
