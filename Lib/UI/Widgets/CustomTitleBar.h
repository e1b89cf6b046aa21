#pragma once

#include <UI/Common/Export.h>
#include <UI/Kit/ZFrame.h>

#include <memory>

namespace Zelkor::Vx::UI {

/// A title bar inside a frameless window: the window's icon and title, widgets of the application, and buttons to
/// minimise and close.
///
/// Create it when the window has its layout. The constructor makes the window frameless, moves its layout into a
/// content frame and puts the title bar above. The left mouse button drags the window by the bar, by free areas of the
/// content frame and by labels that are its direct children. The bar has a minimise or close button only if the
/// window's flags allow it. It follows title, icon and modified state of the window.
///
/// The window owns the title bar. Deleting the bar leaves the window frameless, with its content; a bar with a new
/// parent still serves its window. A null parent is allowed. In a `QMainWindow`, which cannot give up its layout, the
/// bar warns and hides. GUI thread only.
///
/// Object names for style sheets: "CustomTitleBar", in it "iconLabel", "titleLabel", "userWidgetsFrame" with each
/// "separator", "minimizeButton" and "closeButton"; beside it in the window "contentFrame".
class VX_WIDGETS_EXPORT CustomTitleBar : public ZFrame
{
    Q_OBJECT
    Q_PROPERTY(int WindowIconSize READ GetWindowIconSize WRITE SetWindowIconSize)
    ///< edge length of the icon in pixels; default 0, which shows none

public:
    /// `parent` is the window. A visible one is hidden and shown again, since its window flags change.
    explicit CustomTitleBar(QWidget* parent);
    ~CustomTitleBar() override;

    /// Appends a widget before the buttons and takes ownership. Ignores null, the title bar itself and its parents.
    void AddWidget(QWidget* widget);

    /// Appends a separator, which the style sheet sizes and draws.
    void AddSeparator();

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
