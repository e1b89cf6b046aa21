#include "Inspector.h"
#include "ObjectTree.h"
#include "PropertyPanel.h"
#include "SignalLog.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

#include <array>

namespace Zelkor::Gallery {

namespace {

constexpr int MARGIN = 12;
constexpr int SMALLEST_WIDTH = 300;

} // namespace

Inspector::Inspector(QWidget* parent)
    : CustomTabWidget(parent), properties(new PropertyPanel), signalLog(new SignalLog), objects(new ObjectTree)
{
    setObjectName("inspector");
    setAccessibleName(tr("Inspector"));
    setMinimumWidth(SMALLEST_WIDTH);
    addTab(properties, tr("Properties"));
    addTab(signalLog, tr("Signals"));
    addTab(CreateObjectPage(), tr("Objects"));
}

// Returns the tree with what assistive technology gets from the current object.
QWidget* Inspector::CreateObjectPage()
{
    auto* page = new QWidget;
    auto* layout = new QGridLayout(page);
    layout->setContentsMargins(MARGIN, MARGIN, MARGIN, MARGIN);
    layout->addWidget(objects, 0, 0, 1, 2);
    const QString captions[] = {tr("Role"), tr("Accessible name"), tr("Value")};
    const char* const names[] = {"accessibleRole", "accessibleName", "accessibleValue"};
    std::array<QLineEdit*, 3> fields{};
    for (int i = 0; i < int(fields.size()); ++i) {
        auto* caption = new QLabel(captions[i]);
        fields[i] = new QLineEdit;
        fields[i]->setObjectName(names[i]);
        fields[i]->setReadOnly(true);
        fields[i]->setProperty("role", QStringLiteral("shownOnly"));
        fields[i]->setAccessibleName(captions[i]);
        caption->setObjectName("caption");
        layout->addWidget(caption, i + 1, 0);
        layout->addWidget(fields[i], i + 1, 1);
    }
    connect(objects, &ObjectTree::AccessibilityChanged, page,
            [fields](const QString& role, const QString& name, const QString& value) {
                fields[0]->setText(role);
                fields[1]->setText(name);
                fields[2]->setText(value);
            });
    return page;
}

void Inspector::Inspect(QWidget* widget, const QString& className, const QVariantMap& defaults)
{
    properties->SetObject(FindObject(widget, className), defaults);
    objects->SetObject(widget);
}

} // namespace Zelkor::Gallery
