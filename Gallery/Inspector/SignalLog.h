#pragma once

#include <QMetaMethod>
#include <QVector>
#include <QWidget>

#include <functional>

class QPlainTextEdit;

namespace Zelkor::Gallery {

/// Calls a function for each signal of the watched objects of any class.
///
/// An object may be deleted at any time, also by a receiver of its signal. GUI thread; ignores signals from other
/// threads.
class SignalListener : public QObject
{
public:
    using Listener = std::function<void(const QString& objectTitle, const QString& call)>;

    explicit SignalListener(Listener listener, QObject* parent = nullptr);

    /// Watches the signals that the class `className` of `object`, without namespace, declares; without any, those of
    /// its base classes below QWidget. Returns the number of signals.
    int Watch(QObject* object, const QString& className, const QString& title);

    int qt_metacall(QMetaObject::Call call, int id, void** arguments) override;

private:
    struct Connection
    {
        QMetaMethod signal;
        QString title;
    };

    int ConnectSignals(QObject* object, const QMetaObject& declaring, const QString& title);

    Listener listener;
    QVector<Connection> connections;
};

/// Returns the object in `widget` of the class `className`, without namespace, or `widget` itself.
QObject* FindObject(QWidget* widget, const QString& className);

/// Returns an argument of a signal as text: colours as "#aarrggbb", objects as class and object name.
QString ArgumentText(int metaType, const void* argument);

/// Lists the latest signals of watched objects, the newest last.
class SignalLog : public QWidget
{
    Q_OBJECT

public:
    explicit SignalLog(QWidget* parent = nullptr);

    /// Watches the object in `widget` of the class `className`; `title` is its name in the list.
    void Watch(QWidget* widget, const QString& className, const QString& title);

private:
    SignalListener tap;
    QPlainTextEdit* lines;
    int watchedSignals = 0;
};

} // namespace Zelkor::Gallery
