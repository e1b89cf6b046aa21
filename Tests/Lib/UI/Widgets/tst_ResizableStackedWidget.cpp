#include <UI/Widgets/ResizableStackedWidget.h>

#include <Support/EventSpy.h>
#include <Support/TestCase.h>

#include <QLabel>
#include <QVBoxLayout>

namespace {

struct Page : QWidget
{
    explicit Page(int width, int height) : preferred(width, height) {}
    QSize sizeHint() const override { return preferred; }

    QSize preferred;
};

} // namespace

class tst_ResizableStackedWidget : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void takesTheSizeOfThePage()
    {
        QWidget window;
        QVBoxLayout layout(&window);
        layout.setSizeConstraint(QLayout::SetFixedSize);
        ResizableStackedWidget stack(&window);
        layout.addWidget(&stack);
        const QVector<Page*> pages{new Page(400, 300), new Page(200, 100)};
        pages[1]->setFixedSize(10, 10); // gives way
        stack.addWidget(pages[0]);
        stack.addWidget(pages[1]);
        window.show();
        const QSize around = window.size() - stack.size();

        int resized = 0;
        Support::EventSpy watch(&stack, [&](QEvent::Type type, QEvent*) { resized += type == QEvent::Resize; });
        for (int i = 1; i <= 100; ++i) {
            stack.setCurrentIndex(i % 2);
            QCoreApplication::processEvents();
            const QWidget& page = *stack.currentWidget();
            for (const QSize& size : {stack.minimumSize(), stack.maximumSize(), page.minimumSize(), page.maximumSize()})
                QCOMPARE(size, page.sizeHint());
            QCOMPARE(window.size(), page.sizeHint() + around);
            QCOMPARE(resized, i);
        }
        // What the content needs later counts from the next time on.
        pages[0]->preferred = QSize(50, 60);
        pages[0]->updateGeometry();
        QCoreApplication::processEvents();
        QCOMPARE(stack.size(), QSize(400, 300));
        stack.setCurrentIndex(1);
        {
            // This one leads on while it is measured.
            Support::EventSpy leadOn(pages[0], [&](QEvent::Type, QEvent*) { stack.setCurrentIndex(1); });
            stack.setCurrentIndex(0);
        }
        QCOMPARE(stack.size(), QSize(200, 100));
        for (Page* page : {pages[1], pages[0]}) {
            delete page;
            QCOMPARE(stack.size(), QSize(50, 60));
        }
    }

    // As a form does it: pages are added, then they get their texts, and then the window is shown.
    void firstPageFitsTextsThatCameAfterIt()
    {
        QWidget window;
        QVBoxLayout layout(&window);
        layout.setSizeConstraint(QLayout::SetFixedSize);
        auto* stack = new ResizableStackedWidget(&window);
        layout.addWidget(stack);
        auto* page = new QWidget;
        auto* label = new QLabel(page);
        (new QVBoxLayout(page))->addWidget(label);
        stack->addWidget(page);
        label->setText("A text that is set late");
        window.show();
        QCOMPARE(label->size(), label->sizeHint());
        label->setText("A text that is set while the page is shown, which does not count");
        QCoreApplication::processEvents();
        QVERIFY(label->width() < label->sizeHint().width());
        window.setStyleSheet("QLabel { font-size: 30px }");
        QTRY_COMPARE(label->size(), label->sizeHint());
    }

    void borderLiesAroundThePage()
    {
        ResizableStackedWidget stack(nullptr);
        auto* page = new Page(200, 100);
        stack.addWidget(page);
        stack.setStyleSheet("ResizableStackedWidget { border: 3px solid red }");
        stack.show();
        QTRY_COMPARE(stack.size(), QSize(206, 106));
        QCOMPARE(page->geometry(), stack.contentsRect());
        stack.setStyleSheet({});
        stack.setContentsMargins(1, 2, 3, 4);
        QCOMPARE(stack.size(), QSize(204, 106));
    }
};

VX_TEST_MAIN(tst_ResizableStackedWidget)
#include "tst_ResizableStackedWidget.moc"
