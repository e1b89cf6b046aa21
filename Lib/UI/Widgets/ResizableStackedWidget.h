#pragma once

#include <UI/Common/Export.h>

#include <QStackedWidget>

/// A stacked widget with the size of its current page, so that a dialog grows and shrinks with its pages.
///
/// When a page becomes current, its size and that of the stack are fixed to the page's size hint, plus the stack's
/// contents margins. Both are updated when the page becomes current again, when the stack is first shown, and after a
/// change of font, style sheet or language, but not when only the size hint changes. A stack without pages keeps its
/// last size. The stack owns its pages, as any `QStackedWidget`. GUI thread only.
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
