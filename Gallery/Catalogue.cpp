#include "Catalogue.h"

#include <QWidget>

#include <algorithm>

namespace Zelkor::Gallery {

const QVector<Entry>& Entries()
{
    static const QVector<Entry> entries =
        ButtonEntries() + LabelledButtonEntries() + ChoiceEntries() + MediaEntries() + MeterEntries() +
        IndicatorEntries() + PanelEntries() + TabEntries() + WindowEntries() + HintEntries() + EffectEntries() +
        KitEntries() + SliderEntries() + TimeEntries() + MatrixEntries() + FieldEntries() + EditorEntries();
    return entries;
}

const Entry* FindEntry(const QString& className)
{
    const auto found = std::find_if(Entries().begin(), Entries().end(),
                                    [&](const Entry& entry) { return entry.className == className; });
    return found == Entries().end() ? nullptr : &*found;
}

QWidget* CreateInState(const Entry& entry, const State& state, QWidget* parent)
{
    QWidget* widget = state.create ? state.create(parent) : entry.create(parent);
    state.apply(widget);
    return widget;
}

State MadeState(const QString& name, std::function<QWidget*(QWidget*)> create)
{
    return {name, [](QWidget*) {}, std::move(create)};
}

State DisabledState()
{
    return {Catalogue::tr("Disabled"), [](QWidget* widget) { widget->setEnabled(false); }};
}

} // namespace Zelkor::Gallery
