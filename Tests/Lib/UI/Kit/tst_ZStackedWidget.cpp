#include <UI/Kit/ZStackedWidget.h>

#include <Support/TestCase.h>

#include <QVBoxLayout>

namespace {

QWidget* MakePage(const QSize& minimum)
{
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* content = new QWidget;
    content->setMinimumSize(minimum);
    layout->addWidget(content);
    return page;
}

} // namespace

class tst_ZStackedWidget : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void followsTheCurrentPage()
    {
        QWidget window;
        auto* layout = new QVBoxLayout(&window);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSizeConstraint(QLayout::SetFixedSize);
        auto* stack = new ZStackedWidget;
        QCOMPARE(stack->sizeHint(), QStackedWidget().sizeHint());
        layout->addWidget(stack);
        stack->addWidget(MakePage({300, 200}));
        stack->addWidget(MakePage({40, 30}));
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

VX_TEST_MAIN(tst_ZStackedWidget)
#include "tst_ZStackedWidget.moc"
