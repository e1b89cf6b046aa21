#include "Inspector.h"
#include "ObjectTree.h"
#include "PropertyPanel.h"
#include "SignalLog.h"

#include <QVBoxLayout>

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
    auto* objectPage = new QWidget;
    auto* layout = new QVBoxLayout(objectPage);
    layout->setContentsMargins(MARGIN, MARGIN, MARGIN, MARGIN);
    layout->addWidget(objects);
    addTab(properties, tr("Properties"));
    addTab(signalLog, tr("Signals"));
    addTab(objectPage, tr("Objects"));
}

void Inspector::Inspect(QWidget* widget, const QString& className, const QVariantMap& defaults)
{
    properties->SetObject(FindObject(widget, className), defaults);
    objects->SetObject(widget);
}

} // namespace Zelkor::Gallery
