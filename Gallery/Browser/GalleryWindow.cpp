#include "GalleryWindow.h"
#include "Catalogue.h"
#include "RecorderView.h"
#include "SceneBar.h"
#include "Scrolled.h"
#include "TrimPage.h"
#include "WidgetPage.h"

#include <QCloseEvent>
#include <QHBoxLayout>

namespace Zelkor::Gallery {

namespace {

constexpr int COMPACT_BELOW = 720; ///< width of the window below which the list shows icons only
constexpr QSize PREFERRED_SIZE(1120, 720);

} // namespace

GalleryWindow::GalleryWindow(RecorderModel* model, Preferences* preferences, double scale, QWidget* parent)
    : QWidget(parent), model(model), preferences(preferences), list(new PageList),
      bar(new SceneBar(preferences, scale)), body(new QVBoxLayout)
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
    connect(&renewal, &QTimer::timeout, this, &GalleryWindow::MakePageAnew);
    connect(list, &PageList::PageChosen, this, &GalleryWindow::ShowPage);
    connect(bar, &SceneBar::StyleEditorRequested, this, &GalleryWindow::StyleEditorRequested);
    connect(bar, &SceneBar::RestartRequested, this,
            [this](double factor) { Q_EMIT RestartRequested(factor, list->CurrentPage()); });
    bar->SetForWidgets(false);
    setWindowTitle(tr("Widgets of Vx Recorder"));
    list->FocusList();
}

void GalleryWindow::OpenPage(const QString& name)
{
    list->OpenPage(name);
}

void GalleryWindow::ShowPage(const QString& name)
{
    delete page;
    WidgetPage* widgetPage = CreateWidgetPage(name);
    bar->SetForWidgets(widgetPage);
    if (widgetPage)
        page = widgetPage;
    else if (name == TrimPageName())
        page = new Scrolled(new TrimPage);
    else
        page = new Scrolled(new RecorderView(model, preferences));
    body->addWidget(page, 1);
}

WidgetPage* GalleryWindow::CreateWidgetPage(const QString& name)
{
    const Entry* entry = FindEntry(name);
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
    setWindowTitle(tr("Widgets of Vx Recorder"));
    list->Retranslate();
    bar->Retranslate();
}

// The pages of the catalogue have the texts and the alignment with which they were made.
void GalleryWindow::MakePageAnew()
{
    auto* old = qobject_cast<WidgetPage*>(page);
    if (!old)
        return;
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

void GalleryWindow::closeEvent(QCloseEvent* event)
{
    event->accept();
    Q_EMIT Closed();
}

} // namespace Zelkor::Gallery
