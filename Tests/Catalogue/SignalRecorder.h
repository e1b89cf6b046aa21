#pragma once

#include <Catalogue/EntryWindow.h>

#include <Support/AnySignalSpy.h>

#include <QMap>

#include <deque>

/// "Class::signal(types)" of each signal that a widget or one of its parts emits, with the index of the first sender in
/// PartsOf().
using EmittedSignals = QMap<QString, int>;

inline QString NameOf(const QWidget* part, const QMetaMethod& signal)
{
    return QStringLiteral("%1::%2").arg(part->metaObject()->className(), QString(signal.methodSignature()));
}

/// Records the signals of a widget and its parts. Ignores parts in pop-ups, which may cover the widget or not, and
/// signals about undo and copy, which depend on earlier input.
class SignalRecorder
{
public:
    explicit SignalRecorder(
        QWidget* widget, bool (*isIgnored)(const QWidget*, const QMetaMethod&) = [](auto*, auto&) { return false; })
    {
        const auto parts = PartsOf(widget);
        for (int i = 0; i < parts.size(); ++i) {
            if (parts[i]->window() != widget->window())
                continue;
            for (const QMetaMethod& signal : Support::SignalsOf(parts[i])) {
                if (signal.name().endsWith("Available") || isIgnored(parts[i], signal))
                    continue;
                spies.emplace_back(parts[i], QVector<QMetaMethod>{signal}, [this, i, name = NameOf(parts[i], signal)] {
                    if (isActive && !emitted.contains(name))
                        emitted[name] = i;
                });
            }
        }
    }

    EmittedSignals emitted;
    bool isActive = true;

private:
    std::deque<Support::AnySignalSpy> spies;
};

/// Returns the names of `expected` that `emitted` lacks.
inline QStringList Missing(const EmittedSignals& expected, const EmittedSignals& emitted)
{
    QStringList missing = expected.keys();
    for (const QString& name : emitted.keys())
        missing.removeAll(name);
    return missing;
}
