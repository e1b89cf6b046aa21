#pragma once

#include <UI/Common/Export.h>

#include <QStackedWidget>

/// A stack of pages that has the size of the page it shows, so that a dialog grows and shrinks with its pages.
///
/// With each change of the current page, that page takes the size its content prefers and is fixed to it, and so is the
/// stack, with its own border around the page. What the page's content needs later counts the next time the page
/// becomes current, when the stack is first shown, and with another font, style sheet or language. A stack whose last
/// page went keeps its size. Pages belong to the stack as to any `QStackedWidget`. GUI thread only.
class VX_WIDGETS_EXPORT ResizableStackedWidget : public QStackedWidget
{
    Q_OBJECT

public:
    explicit ResizableStackedWidget(QWidget* parent);
    ~ResizableStackedWidget() override;

protected:
    bool event(QEvent* event) override;

private:
    void OnCurrentChanged(int index);

    bool wasShown = false;
};
