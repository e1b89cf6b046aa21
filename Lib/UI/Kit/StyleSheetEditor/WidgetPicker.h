#pragma once

#include <QObject>

class QWidget;

namespace Zelkor::Vx::UI::Kit {

/// Lets a person choose a widget of the application with the mouse. While it runs, a click chooses the widget under the
/// pointer and does nothing else; Escape gives up.
class WidgetPicker : public QObject
{
    Q_OBJECT

public:
    /// Clicks on `except` and within it are left alone.
    explicit WidgetPicker(QWidget* except, QObject* parent = nullptr);
    ~WidgetPicker() override;

    bool isRunning() const { return running; }

    /// Starting twice, and stopping what does not run, does nothing.
    void start();
    void stop();

Q_SIGNALS:
    /// The pointer came upon this widget, which a click would choose.
    void pointed(QWidget* widget);

    /// Comes after stopped(), unless a slot of that deleted the widget.
    void picked(QWidget* widget);

    /// The picker stopped, by whatever.
    void stopped();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isPickable(const QWidget* widget) const;

    QWidget* except;
    bool running = false;
    bool swallowsRelease = false;    ///< of the button whose press chose
    bool isReleasedInWindow = false; ///< of the window system, which the press came to; else in a widget
};

} // namespace Zelkor::Vx::UI::Kit
