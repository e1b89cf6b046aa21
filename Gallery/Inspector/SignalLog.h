#pragma once

#include <QMetaMethod>
#include <QVector>
#include <QWidget>

#include <functional>

class QPlainTextEdit;

namespace Zelkor::Gallery {

/// Calls a function for each signal of the objects that it watches, whatever their classes are.
///
/// An object may die at any time, also while one of its signals is told. GUI thread only: signals that come on another
/// thread are not for it.
class SignalTap : public QObject
{
public:
    using Listener = std::function<void(const QString& objectTitle, const QString& call)>;

    explicit SignalTap(Listener listener, QObject* parent = nullptr);

    /// Tells the signals that the class of `object` named `className`, without namespace, declares; where there are
    /// none, those of its bases below QWidget. Returns the number of signals.
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

/// What a page is about: `widget`, or the part of it that is of the class `className`, without namespace.
QObject* FindObject(QWidget* widget, const QString& className);

/// The value behind an argument of a signal, as text: colours as "#aarrggbb", objects as class and object name.
QString ArgumentText(int metaType, const void* argument);

/// Lists the signals of watched objects, the newest last, and forgets the oldest ones.
class SignalLog : public QWidget
{
    Q_OBJECT

public:
    explicit SignalLog(QWidget* parent = nullptr);

    /// Lists the signals of `widget`, or of the part of it that is of the class `className`, under `title`.
    void Watch(QWidget* widget, const QString& className, const QString& title);

private:
    SignalTap tap;
    QPlainTextEdit* lines;
    int watchedSignals = 0;
};

} // namespace Zelkor::Gallery
