#include "Catalogue.h"
#include "QtWidgets.h"

#include <UI/Kit/ZFrame.h>

#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <QVariant>

#include <algorithm>

namespace Zelkor::Catalogue {

namespace {

QVector<Entry> MakeEntries()
{
    return ButtonEntries() + LabelledButtonEntries() + ChoiceEntries() + MediaEntries() + MeterEntries() +
           IndicatorEntries() + PanelEntries() + TabEntries() + WindowEntries() + HintEntries() + EffectEntries() +
           KitEntries() + SliderEntries() + TimeEntries() + MatrixEntries() + FieldEntries() + EditorEntries();
}

QVector<Entry>& CurrentEntries()
{
    static QVector<Entry> entries = MakeEntries();
    return entries;
}

} // namespace

const QVector<Entry>& Entries()
{
    return CurrentEntries();
}

void RetranslateEntries()
{
    CurrentEntries() = MakeEntries();
}

const Entry* FindEntry(const QString& className)
{
    const auto found = std::find_if(Entries().begin(), Entries().end(),
                                    [&](const Entry& entry) { return entry.className == className; });
    if (found != Entries().end())
        return &*found;
    return className == QtWidgetsEntry().className ? &QtWidgetsEntry() : nullptr;
}

QWidget* CreateInState(const Entry& entry, const State& state, QWidget* parent)
{
    QWidget* widget = state.create ? state.create(parent) : entry.create(parent);
    state.apply(widget);
    return widget;
}

QObject* CreateBare(const Entry& entry, QWidget* parent)
{
    return entry.bare ? entry.bare(parent) : entry.create(parent);
}

State MadeState(const QString& name, std::function<QWidget*(QWidget*)> create)
{
    return {name, [](QWidget*) {}, std::move(create)};
}

void AddSamplePages(QStackedWidget* stack, const QStringList& texts)
{
    for (int i = 0; i < texts.size(); ++i) {
        auto* page = new ZFrame;
        auto* layout = new QVBoxLayout(page);
        auto* button = new QPushButton(EntryText::tr("Next page"));
        layout->addWidget(new QLabel(texts[i]));
        layout->addWidget(button);
        page->setProperty("role", QStringLiteral("card"));
        stack->addWidget(page);
        QObject::connect(button, &QPushButton::clicked, stack,
                         [stack, i, count = texts.size()] { stack->setCurrentIndex((i + 1) % count); });
    }
}

Entry NotInForms(Entry entry, const QString& reason)
{
    entry.form.reasonAgainst = reason;
    return entry;
}

Entry WithExample(Entry entry, std::function<void(QWidget*)> example)
{
    entry.example = std::move(example);
    return entry;
}

State DisabledState()
{
    return {EntryText::tr("Disabled"), [](QWidget* widget) { widget->setEnabled(false); }};
}

} // namespace Zelkor::Catalogue
