#pragma once

#include <UI/Common/Export.h>
#include <UI/Kit/ZFrame.h>

#include <memory>

namespace Zelkor::Vx::UI {

/// A title bar that the application draws itself, with the window's icon, its title, widgets of the application, and
/// buttons to minimise and close.
///
/// Made on a window that has its layout, it rebuilds the window: the window loses its frame, its layout moves into a
/// content frame, and above that lies the title bar. The left mouse button drags the window by the bar, by the free
/// area of the content frame, and by the labels that lie directly in it. A window that could not be minimised or closed
/// by its frame has no such button here. The window owns the title bar; one that goes before its window leaves the
/// window frameless, with its content, and one that is given another parent serves its window from there. Without a
/// window it is a bar with nothing to do; so it is, hidden, in a `QMainWindow`, which cannot part with its layout. GUI
/// thread only.
///
/// Object names for style sheets: "CustomTitleBar", in it "iconLabel", "titleLabel", "userWidgetsFrame" with each
/// "separator", "minimizeButton" and "closeButton"; beside it in the window "contentFrame".
class VX_WIDGETS_EXPORT CustomTitleBar : public ZFrame
{
    Q_OBJECT
    Q_PROPERTY(int WindowIconSize READ GetWindowIconSize WRITE SetWindowIconSize)

public:
    /// `parent` is the window. One that is visible is hidden and shown again, as windows are that lose their frame.
    explicit CustomTitleBar(QWidget* parent);
    ~CustomTitleBar() override;

    /// Puts a widget after those that were added before, ahead of the buttons. The title bar owns it. Null, the title
    /// bar itself and its parents are ignored.
    void AddWidget(QWidget* widget);

    /// Adds a line between widgets. Its size and look come from the style sheet.
    void AddSeparator();

    /// The edge of the icon in pixels of the widget, 0 by default: no icon.
    int GetWindowIconSize() const;
    void SetWindowIconSize(int size);

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void RebuildWindow(QWidget* window);
    void SetUpWindow(QWidget* window);
    void ShowTitle();
    void Retranslate();

    struct Q_DECL_HIDDEN Impl;
    std::unique_ptr<Impl> impl;
};

} // namespace Zelkor::Vx::UI
