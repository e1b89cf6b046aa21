#include <Catalogue/AccessibleEvents.h>

#if defined(VX_WITH_QT_PRIVATE)
#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>
#endif

#include <QApplication>

#include <algorithm>
#include <deque>

namespace {

AccessibleEventLog* current = nullptr;

struct StateBit
{
    const char* name;
    bool (*read)(QAccessible::State);
};

constexpr StateBit STATE_BITS[] = {
    {"checked", [](QAccessible::State state) { return bool(state.checked); }},
    {"mixed", [](QAccessible::State state) { return bool(state.checkStateMixed); }},
    {"expanded", [](QAccessible::State state) { return bool(state.expanded); }},
    {"collapsed", [](QAccessible::State state) { return bool(state.collapsed); }},
    {"disabled", [](QAccessible::State state) { return bool(state.disabled); }},
    {"read-only", [](QAccessible::State state) { return bool(state.readOnly); }},
};

const QVector<QAccessible::Event> TEXT_EVENTS = {QAccessible::TextInserted, QAccessible::TextRemoved,
                                                 QAccessible::TextUpdated};
const QVector<QAccessible::Event> SELECTION_EVENTS = {QAccessible::Selection, QAccessible::SelectionAdd,
                                                      QAccessible::SelectionRemove, QAccessible::SelectionWithin,
                                                      QAccessible::Focus};

struct Node
{
    QAccessibleInterface* interface;
    QObject* owner;
    QString path;
};

} // namespace

bool EnableAccessibility()
{
#if defined(VX_WITH_QT_PRIVATE)
    QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(true);
#endif
    return QAccessible::isActive();
}

void VisitAccessible(QAccessibleInterface* root,
                     const std::function<void(QAccessibleInterface&, QObject*, const QString&)>& visit)
{
    std::deque<Node> queue{{root, nullptr, {}}};
    for (; !queue.empty(); queue.pop_front()) {
        const auto [interface, parent, path] = queue.front();
        if (!interface || !interface->isValid() || interface->state().invisible)
            continue;
        QObject* owner = interface->object() ? interface->object() : parent;
        const QString place = interface->object() ? QString() : path;
        visit(*interface, owner, place);
        for (int i = 0; i < interface->childCount(); ++i)
            queue.push_back({interface->child(i), owner, place + '/' + QString::number(i)});
    }
}

AccessibleSnapshot::AccessibleSnapshot(QWidget* widget)
{
    if (!widget)
        return;
    VisitAccessible(QAccessible::queryAccessibleInterface(widget),
                    [this](QAccessibleInterface& interface, QObject* owner, const QString& place) {
                        // Without a description Qt returns the tool tip, and sends no event when that changes.
                        const auto* owned = qobject_cast<QWidget*>(interface.object());
                        Part part{interface.text(QAccessible::Name),
                                  owned ? owned->accessibleDescription() : QString(),
                                  interface.text(QAccessible::Value),
                                  {},
                                  interface.state()};
                        if (QAccessibleValueInterface* value = interface.valueInterface())
                            part.value = value->currentValue().toString();
                        if (QAccessibleTextInterface* text = interface.textInterface())
                            part.text = text->text(0, text->characterCount());
                        parts.insert({owner, place}, part);
                    });
}

AccessibleEventLog::AccessibleEventLog() : previous(QAccessible::installUpdateHandler(Record))
{
    current = this;
}

AccessibleEventLog::~AccessibleEventLog()
{
    QAccessible::installUpdateHandler(previous);
    current = nullptr;
}

void AccessibleEventLog::Record(QAccessibleEvent* event)
{
    QAccessible::State changed;
    if (event->type() == QAccessible::StateChanged)
        changed = static_cast<QAccessibleStateChangeEvent*>(event)->changedStates();
    QObject* object = event->object();
    if (!object && event->accessibleInterface())
        object = event->accessibleInterface()->object();
    current->events.append({object, event->type(), changed});
}

bool AccessibleEventLog::Has(QObject* object, const QVector<QAccessible::Event>& types) const
{
    return std::any_of(events.begin(), events.end(),
                       [&](const Event& event) { return event.object == object && types.contains(event.type); });
}

// Includes events of the line edit of an editable combo box.
bool AccessibleEventLog::HasText(QObject* object) const
{
    return std::any_of(events.begin(), events.end(), [&](const Event& event) {
        return TEXT_EVENTS.contains(event.type) && (event.object == object || event.object->parent() == object);
    });
}

bool AccessibleEventLog::HasStateChange(QObject* object, bool (*hasChanged)(QAccessible::State)) const
{
    return std::any_of(events.begin(), events.end(), [&](const Event& event) {
        return event.object == object && event.type == QAccessible::StateChanged && hasChanged(event.changed);
    });
}

QStringList AccessibleEventLog::MissingEvents(const AccessibleSnapshot& before, const AccessibleSnapshot& after) const
{
    QStringList faults;
    for (auto part = after.parts.begin(); part != after.parts.end(); ++part) {
        const auto found = before.parts.find(part.key());
        if (found == before.parts.end())
            continue;
        const auto [object, place] = part.key();
        const AccessibleSnapshot::Part& was = *found;
        const AccessibleSnapshot::Part& is = *part;
        const auto complain = [&, object = object, place = place](const QString& what) {
            faults += QStringLiteral("%1 %2%3: %4 of \"%5\"")
                          .arg(object->metaObject()->className(), object->objectName(), place, what, is.name);
        };
        const bool hasText = HasText(object);
        // A tab bar is named after the selected tab. Interfaces without an object may change places with each other.
        if (was.name != is.name && !is.name.isEmpty() && place.isEmpty() && !hasText &&
            !Has(object, {QAccessible::NameChanged, QAccessible::ValueChanged, QAccessible::Selection}))
            complain("name");
        if (was.description != is.description && !Has(object, {QAccessible::DescriptionChanged}))
            complain("description");
        if (was.text != is.text && !hasText)
            complain("text");
        if (was.value != is.value && !hasText && !Has(object, {QAccessible::ValueChanged, QAccessible::NameChanged}))
            complain("value");
        // A widget reports the focus of its focus proxy as its own.
        const bool hasFocus = object == QApplication::focusWidget() && place.isEmpty();
        if (hasFocus && !was.state.focused && is.state.focused && !Has(object, {QAccessible::Focus}))
            complain("focus");
        const auto isSelected = [](QAccessible::State state) { return bool(state.selected); };
        if (was.state.selected != is.state.selected && !Has(object, SELECTION_EVENTS) &&
            !HasStateChange(object, isSelected))
            complain("selected");
        for (const StateBit& bit : STATE_BITS) {
            if (bit.read(was.state) != bit.read(is.state) && !HasStateChange(object, bit.read))
                complain(bit.name);
        }
    }
    return faults;
}
