#include <UI/Common/TextMarks.h>
#include <UI/Kit/ZFrame.h>
#include <UI/Kit/ZLabel.h>
#include <UI/Kit/ZStackedWidget.h>

#include <Support/TestCase.h>

#include <QAccessible>
#include <QFormLayout>

class tst_Kit : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void spacingsOfAFrameDependOnItsLayout()
    {
        // The common spacing, the horizontal and the vertical one.
        const auto spacings = [](QLayout* layout) {
            ZFrame frame;
            if (layout)
                frame.setLayout(layout);
            frame.setLayoutSpacing(3);
            frame.setLayoutHSpacing(7);
            frame.setLayoutVSpacing(9);
            return QVector<int>{frame.layoutSpacing(), frame.layoutHSpacing(), frame.layoutVSpacing()};
        };
        QCOMPARE(spacings(new QHBoxLayout), QVector<int>({7, 7, -1}));
        QCOMPARE(spacings(new QVBoxLayout), QVector<int>({9, -1, 9}));
        QCOMPARE(spacings(new QBoxLayout(QBoxLayout::Down)), QVector<int>({3, -1, -1}));
        QCOMPARE(spacings(new QGridLayout), QVector<int>({-1, 7, 9}));
        QCOMPARE(spacings(new QFormLayout), QVector<int>({-1, 7, 9}));
        QCOMPARE(spacings(nullptr), QVector<int>({-1, -1, -1}));
    }

    void marginOfAFrameIsThatOfAllSides()
    {
        ZFrame frame;
        frame.setLayoutMargin(5);
        QCOMPARE(frame.layoutMarginTop(), -1);
        QLayout* layout = new QVBoxLayout(&frame);
        frame.setLayoutMargin(5);
        QCOMPARE(frame.layoutMargin(), 5);
        frame.setLayoutMarginTop(9);
        frame.setLayoutMarginRight(6);
        frame.setLayoutMarginBottom(4);
        frame.setLayoutMarginLeft(3);
        QCOMPARE(frame.layoutMargin(), -1);
        QCOMPARE(layout->contentsMargins(), QMargins(3, 9, 6, 4));
    }

    void elidedLabelShowsAllOfItsTextAsToolTip()
    {
        for (const QString text : {"A text that is long enough to be cut", "نص طويل بما يكفي ليتم اقتطاعه هنا",
                                   "Aufnahme נא לבחור camera 2 (1280×720)"}) {
            const QString marked = Zelkor::Vx::UI::Common::Embed(text);
            ZLabel label;
            QSignalSpy changed(&label, &ZLabel::originalTextChanged);
            label.setOriginalText(text);
            label.setOriginalText(text);
            QCOMPARE(changed, QList<QVariantList>{{text}});
            label.resize(1000, 30);
            label.show();
            QCOMPARE(label.text(), marked);
            QCOMPARE(label.toolTip(), QString());

            label.resize(80, 30);
            // The joiner before the ellipsis of an Arabic text may widen the last letter.
            const QFontMetrics metrics = label.fontMetrics();
            QVERIFY(metrics.horizontalAdvance(label.text()) <= 80 + metrics.averageCharWidth());
            QVERIFY(label.text().contains(QChar(0x2026)));
            QVERIFY(label.sizeHint().width() >= metrics.horizontalAdvance(text));
            QCOMPARE(label.toolTip(), marked);
            QCOMPARE(QAccessible::queryAccessibleInterface(&label)->text(QAccessible::Name), text);
            // A frame reduces the width for the text.
            const int exact = metrics.horizontalAdvance(marked) + 2;
            label.resize(exact, 30);
            QCOMPARE(label.toolTip(), QString());
            label.setFrameStyle(QFrame::Box | QFrame::Plain);
            label.setLineWidth(8);
            label.resize(exact, 31);
            QCOMPARE(label.toolTip(), marked);
        }
    }

    void labelEmitsClickedOnPress()
    {
        ZLabel label;
        label.setOriginalText("Text");
        QSignalSpy clicked(&label, &ZLabel::clicked);
        QTest::mouseClick(&label, Qt::LeftButton);
        QTest::mousePress(&label, Qt::RightButton);
        QCOMPARE(clicked.size(), 2);
        label.setClickable(false);
        label.setTextInteractionFlags(Qt::TextSelectableByMouse);
        QTest::mouseDClick(&label, Qt::LeftButton);
        QCOMPARE(clicked.size(), 2);
        QVERIFY(label.hasSelectedText());
    }

    void stackHasTheSizeOfItsCurrentPage()
    {
        QWidget window;
        auto* layout = new QVBoxLayout(&window);
        layout->setContentsMargins({});
        layout->setSizeConstraint(QLayout::SetFixedSize);
        auto* stack = new ZStackedWidget;
        QCOMPARE(stack->sizeHint(), QStackedWidget().sizeHint());
        layout->addWidget(stack);
        for (const QSize size : {QSize(300, 200), QSize(40, 30)}) {
            auto* page = new QLabel;
            page->setPixmap(QPixmap(size));
            stack->addWidget(page);
        }
        window.show();
        QCOMPARE(window.size(), QSize(300, 200));
        stack->setCurrentIndex(1);
        QTRY_COMPARE(window.size(), QSize(40, 30));

        // Without autoFit its size is that of the largest page after the next layout.
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
