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
    void stackTakesTheSizeOfItsPage()
    {
        ResizableStackedWidget stack(nullptr);
        auto* first = new Page(400, 300);
        auto* second = new Page(200, 100);
        second->setFixedSize(10, 10); // replaced
        stack.addWidget(first);
        stack.addWidget(second);
        stack.show();
        int resized = 0;
        const Support::EventSpy spy(&stack, [&](auto type, auto) { resized += type == QEvent::Resize; });
        stack.setCurrentIndex(1);
        QCOMPARE(resized, 1);
        for (const QSize& size : {stack.minimumSize(), stack.maximumSize(), second->minimumSize(), second->size()})
            QCOMPARE(size, QSize(200, 100));
        first->preferred = QSize(50, 60);
        delete second;
        QCOMPARE(stack.size(), QSize(50, 60));
        delete first;
        QCOMPARE(stack.size(), QSize(50, 60));
    }

    void pageFitsTextsSetBeforeItIsShown()
    {
        QWidget window;
        QVBoxLayout layout(&window);
        layout.setSizeConstraint(QLayout::SetFixedSize);
        auto* stack = new ResizableStackedWidget(&window);
        layout.addWidget(stack);
        auto* label = new QLabel;
        stack->addWidget(label);
        label->setText("A text that is set late");
        window.show();
        QCOMPARE(label->size(), label->sizeHint());
        window.setStyleSheet("QLabel { font-size: 30px }");
        QTRY_COMPARE(label->size(), label->sizeHint());
    }
};

VX_TEST_MAIN(tst_ResizableStackedWidget)
#include "tst_ResizableStackedWidget.moc"
