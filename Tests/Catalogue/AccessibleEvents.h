#pragma once

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QMap>
#include <QSet>
#include <QWidget>

#if defined(VX_WITH_QT_PRIVATE)
#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>
#endif

#include <cstring>
#include <functional>
#include <utility>

/// Makes Qt send accessibility events as with a running screen reader. Returns false without Qt's private headers.
inline bool EnableAccessibility()
{
#if defined(VX_WITH_QT_PRIVATE)
    QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(true);
#endif
    return QAccessible::isActive();
}

/// Calls `visit` for an interface and its visible descendants. `owner` is the nearest object, `path` the child indices
/// from there to an interface without an object, such as a tab of a tab bar.
inline void
VisitAccessible(QAccessibleInterface* interface,
                const std::function<void(QAccessibleInterface&, QObject* owner, const QString& path)>& visit,
                QObject* owner = nullptr, QString path = {})
{
    if (!interface || !interface->isValid() || interface->state().invisible)
        return;
    if (interface->object()) {
        owner = interface->object();
        path.clear();
    }
    visit(*interface, owner, path);
    for (int i = 0; i < interface->childCount(); ++i)
        VisitAccessible(interface->child(i), visit, owner, path + '/' + QString::number(i));
}

inline quint64 StateBits(QAccessible::State state)
{
    quint64 bits = 0;
    std::memcpy(&bits, &state, sizeof bits);
    return bits;
}

/// What assistive technology reads of a part of a widget.
struct AccessiblePart
{
    QString name;
    QString description;
    QString value;
    QString text; ///< of an editable text
    QAccessible::State state;
};

using AccessibleSnapshot = QMap<QPair<QObject*, QString>, AccessiblePart>; ///< by owner and path

inline AccessibleSnapshot SnapshotOf(QWidget* widget)
{
    AccessibleSnapshot parts;
    const auto add = [&parts](QAccessibleInterface& interface, QObject* owner, const QString& path) {
        // Without a description Qt returns the tool tip, and sends no event when that changes.
        const auto* part = qobject_cast<QWidget*>(interface.object());
        QString value = interface.text(QAccessible::Value);
        QString text;
        if (QAccessibleValueInterface* values = interface.valueInterface())
            value = values->currentValue().toString();
        if (QAccessibleTextInterface* texts = interface.textInterface())
            text = texts->text(0, texts->characterCount());
        parts[{owner, path}] = {interface.text(QAccessible::Name), part ? part->accessibleDescription() : QString(),
                                value, text, interface.state()};
    };
    VisitAccessible(widget ? QAccessible::queryAccessibleInterface(widget) : nullptr, add);
    return parts;
}

/// Records the accessibility events that are sent while it lives.
class AccessibleEventLog
{
public:
    AccessibleEventLog() : previous(QAccessible::installUpdateHandler(Record)) { events.clear(); }
    ~AccessibleEventLog() { QAccessible::installUpdateHandler(previous); }

    void Clear() { events.clear(); }

    /// Describes each difference between two snapshots without an event for it.
    QStringList MissingEvents(const AccessibleSnapshot& before, const AccessibleSnapshot& after) const
    {
        QStringList faults;
        for (auto part = after.begin(); part != after.end(); ++part) {
            if (before.contains(part.key()))
                AppendMissing(part.key(), before[part.key()], *part, faults);
        }
        return faults;
    }

private:
    struct Event
    {
        QObject* object;
        QAccessible::Event type;
        quint64 changed; ///< the bits of QAccessible::StateChanged
    };

    static void AppendMissing(const QPair<QObject*, QString>& place, const AccessiblePart& was,
                              const AccessiblePart& is, QStringList& faults)
    {
        const auto [object, path] = place;
        QSet<int> sent;
        quint64 sentBits = 0;
        for (const Event& event : std::as_const(events)) {
            // The line edit of an editable combo box reports its text.
            const bool isText = event.type >= QAccessible::TextInserted && event.type <= QAccessible::TextUpdated;
            if (event.object == object || (isText && event.object->parent() == object)) {
                sent += isText ? QAccessible::TextUpdated : event.type;
                sentBits |= event.changed;
            }
        }
        const auto check = [&](const QString& what, bool hasChanged, const QSet<int>& types) {
            if (hasChanged && !sent.intersects(types))
                faults += QStringLiteral("%1 %2%3: %4 of \"%5\"")
                              .arg(object->metaObject()->className(), object->objectName(), path, what, is.name);
        };
        // A tab bar is named after the selected tab. Interfaces without an object may change places with each other.
        check("name", was.name != is.name && !is.name.isEmpty() && path.isEmpty(),
              {QAccessible::NameChanged, QAccessible::ValueChanged, QAccessible::Selection, QAccessible::TextUpdated});
        check("description", was.description != is.description, {QAccessible::DescriptionChanged});
        check("text", was.text != is.text, {QAccessible::TextUpdated});
        check("value", was.value != is.value,
              {QAccessible::ValueChanged, QAccessible::NameChanged, QAccessible::TextUpdated});
        // A widget reports the focus of its focus proxy as its own.
        const bool hasFocus = object == QApplication::focusWidget() && path.isEmpty();
        check("focus", hasFocus && !was.state.focused && is.state.focused, {QAccessible::Focus});
        QAccessible::State selected;
        selected.selected = true;
        check("selection", was.state.selected != is.state.selected && !(sentBits & StateBits(selected)),
              {QAccessible::Selection, QAccessible::SelectionAdd, QAccessible::SelectionRemove,
               QAccessible::SelectionWithin, QAccessible::Focus});
        QAccessible::State reported;
        reported.checked = reported.checkStateMixed = reported.expanded = reported.collapsed = true;
        reported.disabled = reported.readOnly = true;
        // Since Qt 6, QComboBox has this state, but sends no event for it.
        if (qobject_cast<QComboBox*>(object))
            reported.expanded = false;
        const quint64 silent = (StateBits(was.state) ^ StateBits(is.state)) & StateBits(reported) & ~sentBits;
        check(QStringLiteral("state bits %1").arg(silent, 0, 16), silent != 0, {});
    }

    static void Record(QAccessibleEvent* event)
    {
        QObject* object = event->object();
        if (!object && event->accessibleInterface())
            object = event->accessibleInterface()->object();
        const bool isState = event->type() == QAccessible::StateChanged;
        if (object)
            events.append({object, event->type(),
                           isState ? StateBits(static_cast<QAccessibleStateChangeEvent*>(event)->changedStates()) : 0});
    }

    inline static QVector<Event> events; ///< of the one log
    QAccessible::UpdateHandler previous;
};
