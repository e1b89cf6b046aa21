#include "GalleryWindow.h"
#include "SceneBar.h"
#include "StartPage.h"
#include "WidgetPage.h"

#include <Catalogue/Catalogue.h>

#include <QEvent>
#include <QHBoxLayout>

namespace Zelkor::Gallery {

namespace {

constexpr int COMPACT_BELOW = 720; ///< window width below which the list shows icons only
constexpr QSize PREFERRED_SIZE(1280, 800);

} // namespace

GalleryWindow::GalleryWindow(Examples::Appearance* appearance, double scale, QWidget* parent)
    : QWidget(parent), list(new PageList), bar(new SceneBar(appearance, scale)), body(new QVBoxLayout)
{
    resize(PREFERRED_SIZE);
    body->setContentsMargins(0, 0, 0, 0);
    body->setSpacing(0);
    body->addWidget(bar);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(list);
    layout->addLayout(body, 1);
    renewal.setSingleShot(true);
    connect(&renewal, &QTimer::timeout, this, &GalleryWindow::RecreatePage);
    connect(list, &PageList::PageChosen, this, &GalleryWindow::ShowPage);
    connect(bar, &SceneBar::StyleEditorRequested, this, &GalleryWindow::StyleEditorRequested);
    connect(bar, &SceneBar::RestartRequested, this, [this](double factor) {
        const auto* widgetPage = qobject_cast<WidgetPage*>(page);
        Q_EMIT RestartRequested(factor, list->CurrentPage(), widgetPage ? widgetPage->SelectedState() : 0);
    });
    bar->SetForWidgets(false);
    setWindowTitle(tr("VxUiWidgets Gallery"));
    list->FocusList();
}

void GalleryWindow::OpenPage(const QString& name, int state)
{
    list->OpenPage(name);
    if (auto* widgetPage = qobject_cast<WidgetPage*>(page); widgetPage && state > 0)
        widgetPage->ShowState(state);
}

void GalleryWindow::ShowPage(const QString& name)
{
    delete page;
    WidgetPage* widgetPage = CreateWidgetPage(name);
    bar->SetForWidgets(widgetPage);
    page = widgetPage ? static_cast<QWidget*>(widgetPage) : CreateStartPage();
    body->addWidget(page, 1);
}

QWidget* GalleryWindow::CreateStartPage()
{
    auto* start = new StartPage;
    connect(start, &StartPage::RecorderRequested, this, &GalleryWindow::RecorderRequested);
    return start;
}

WidgetPage* GalleryWindow::CreateWidgetPage(const QString& name)
{
    const Catalogue::Entry* entry = Catalogue::FindEntry(name);
    if (!entry)
        return nullptr;
    auto* widgetPage = new WidgetPage(*entry);
    widgetPage->SetWidgetsEnabled(bar->AreWidgetsEnabled());
    bar->ShowInspectorState(widgetPage->IsInspectorVisible());
    connect(bar, &SceneBar::EnabledChanged, widgetPage, &WidgetPage::SetWidgetsEnabled);
    connect(bar, &SceneBar::InspectorRequested, widgetPage, &WidgetPage::SetInspectorVisible);
    connect(widgetPage, &WidgetPage::InspectorVisibilityChanged, bar, &SceneBar::ShowInspectorState);
    return widgetPage;
}

void GalleryWindow::Retranslate()
{
    setWindowTitle(tr("VxUiWidgets Gallery"));
    list->Retranslate();
    bar->Retranslate();
}

// Pages keep the texts and the alignment that they were created with.
void GalleryWindow::RecreatePage()
{
    const auto* old = qobject_cast<WidgetPage*>(page);
    if (!old)
        return ShowPage(list->CurrentPage());
    const int state = old->SelectedState();
    const bool hasInspector = old->IsInspectorVisible();
    ShowPage(list->CurrentPage());
    layout()->activate();
    auto* renewed = static_cast<WidgetPage*>(page);
    renewed->SelectState(state);
    renewed->SetInspectorVisible(hasInspector);
}

void GalleryWindow::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::LayoutDirectionChange) {
        Retranslate();
        renewal.start(0);
    }
}

void GalleryWindow::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    list->SetCompact(width() < COMPACT_BELOW);
}

} // namespace Zelkor::Gallery
