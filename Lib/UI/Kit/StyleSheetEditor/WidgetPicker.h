#pragma once

#include <QObject>
#include <QPointer>

class QWidget;

namespace Zelkor::Vx::UI::Kit {

/// Lets the user pick a widget of the application. While it runs, the widget under the mouse pointer has an outline,
/// and a click picks it and has no other effect. Escape cancels.
class WidgetPicker : public QObject
{
    Q_OBJECT

public:
    /// Clicks on `except` and its descendants are not picked.
    explicit WidgetPicker(QWidget* except, QObject* parent = nullptr);
    ~WidgetPicker() override;

    bool isRunning() const { return running; }

    /// Start or stop, without effect if that is the state already.
    void start();
    void stop();

Q_SIGNALS:
    /// Emitted when the mouse pointer moves to another widget that a click would pick.
    void pointed(QWidget* widget);

    /// Emitted after stopped(), unless a slot of that signal deleted the widget.
    void picked(QWidget* widget);

    /// Emitted whenever the picker stops.
    void stopped();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isPickable(const QWidget* widget) const;
    void pointTo(QWidget* widget);

    QWidget* except;
    QPointer<QWidget> pointedWidget;
    QPointer<QWidget> outline;
    bool running = false;
    bool swallowsRelease = false;    ///< of the press that picked
    bool isReleasedInWindow = false; ///< whether the press was delivered to a QWindow rather than a widget
};

} // namespace Zelkor::Vx::UI::Kit
