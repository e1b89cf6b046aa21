#pragma once

#include <Catalogue/EntryWindow.h>

#include <Support/AnySignalSpy.h>

#include <QMap>

#include <deque>

/// A signal and the index of its first sender in PartsOf().
struct EmittedSignal
{
    int part;
    QMetaMethod signal;
};

using EmittedSignals = QMap<QString, EmittedSignal>; ///< by "Class::signal(types)"

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
            spies.emplace_back(parts[i], [=, part = parts[i].data()](const QMetaMethod& signal) {
                if (!isActive || signal.name().endsWith("Available") || isIgnored(part, signal))
                    return;
                const QString name = part->metaObject()->className() + QStringLiteral("::") + signal.methodSignature();
                if (!emitted.contains(name))
                    emitted[name] = {i, signal};
            });
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
