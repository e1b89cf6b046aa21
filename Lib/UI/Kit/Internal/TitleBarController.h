#pragma once

#include <QObject>
#include <QPoint>
#include <QPointer>

class QContextMenuEvent;
class QMouseEvent;
class QShortcut;
class QWidget;

namespace Zelkor::Vx::UI::Common {
class SymbolButton;
}

namespace Zelkor::Vx::UI::Kit {

/// Lets a widget act as the title bar of a frameless window: adds the button that maximises, opens the window menu,
/// maximises by double click and moves the window. Window and bar may be deleted in any order.
class TitleBarController : public QObject
{
    Q_OBJECT

public:
    TitleBarController(QWidget* window, QObject* parent);
    ~TitleBarController() override;

    QWidget* bar() const;
    void setBar(QWidget* newBar);

    /// Follows flags, state and size limits of the window.
    void update();
    void retranslate();

    /// Returns whether `part` belongs to the free area: the bar, its labels and its plain frames. Null does not.
    bool isFree(const QWidget* part) const;
    bool isMaximizeButton(const QWidget* part) const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class Drag { None, Pressed, ByController };

    void removeParts();
    void addButton();
    void sortTabOrder();
    bool isFreeAt(const QPoint& point) const;
    void press(const QMouseEvent& event);
    bool move(const QMouseEvent& event);
    bool startMove();
    bool showContextMenu(const QContextMenuEvent& event);
    void showMenuAtBar();
    void showMenu(const QPoint& global);

    QWidget* const window;
    QPointer<QWidget> titleBar;
    QPointer<Common::SymbolButton> button;
    QPointer<QShortcut> shortcut;
    Drag drag = Drag::None;
    QPoint pressPosition; ///< global
    QPoint windowOrigin;  ///< `QWidget::pos` of the window at the press
};

} // namespace Zelkor::Vx::UI::Kit
