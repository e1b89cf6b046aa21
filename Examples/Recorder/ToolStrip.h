#pragma once

#include <QWidget>

class QToolButton;

namespace Zelkor::Vx::UI {
class ScrollablePanelWithItem;
}

namespace Zelkor::Recorder {

/// The tools for drawing on the picture, one of them checked. Scrolls if it is too narrow.
class ToolStrip : public QWidget
{
    Q_OBJECT

public:
    explicit ToolStrip(QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    void Retranslate();

    Vx::UI::ScrollablePanelWithItem* panel;
    QVector<QToolButton*> tools;
};

} // namespace Zelkor::Recorder
