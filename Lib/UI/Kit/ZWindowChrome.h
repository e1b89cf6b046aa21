#pragma once

#include <QObject>

#include <memory>

class QWidget;

/// Gives a frameless window the behaviour of a framed one: edges and corners that resize it, and a title bar that
/// maximises, restores and moves it and has a window menu.
///
/// The window owns the chrome. It may be created before or after the window is shown, and follows the window's flags,
/// state and size limits: a window without `Qt::FramelessWindowHint` has no resize border, one with a fixed size cannot
/// be resized or maximised, one with a fixed height changes its width only. New size limits take effect when the window
/// is next resized or activated, or the pointer enters it. A child widget with that flag acts as a window inside its
/// parent.
///
/// A window has at most one chrome: a second one warns and has no effect, as does one with a null window. Window, bar
/// and chrome may be deleted in any order. GUI thread only.
///
/// Object names for style sheets: "resizeBorder", the edges, whose border of 1 pixel is the outline of the window;
/// in the title bar "maximizeButton", whose dynamic property "windowMaximized" is true while the window fills its
/// screen.
class ZWindowChrome : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int resizeBorder READ resizeBorder WRITE setResizeBorder)
    ///< width of the edges that resize the window, in pixels; default 6. Corners are longer. 0 disables resizing

public:
    explicit ZWindowChrome(QWidget* window);
    ~ZWindowChrome() override;

    int resizeBorder() const;
    void setResizeBorder(int pixels);

    /// The title bar; null by default. Any widget of the window can be one.
    ///
    /// A double click on its free area, which is the bar with its labels and plain frames, maximises or restores the
    /// window, and a right click or Alt+Space opens the window menu. Dragging the free area moves the window, except
    /// for a `CustomTitleBar`, which does so without chrome. If the bar has a child "closeButton" in a box layout, and
    /// the window has `Qt::WindowMaximizeButtonHint` and no fixed size, a button to maximise it is inserted before it.
    QWidget* titleBar() const;
    void setTitleBar(QWidget* bar);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void followWindow();

    struct Impl;
    std::unique_ptr<Impl> impl; ///< null without effect
};
