#include "StartPage.h"

#include <Examples/Support/WidgetTexts.h>
#include <UI/Kit/ZStyleSheet.h>

#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace Zelkor::Gallery {

using namespace Examples;

namespace {

constexpr int MARGIN = 24;
constexpr int SPACING = 16;

QLabel* AddText(QVBoxLayout* layout, const char* objectName)
{
    auto* label = new QLabel;
    label->setObjectName(objectName);
    label->setWordWrap(true);
    AlignAtStart(label);
    layout->addWidget(label);
    return label;
}

} // namespace

StartPage::StartPage(QWidget* parent) : QWidget(parent)
{
    // As narrow as the window gets: the texts wrap.
    setMinimumWidth(1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(MARGIN, MARGIN, MARGIN, MARGIN);
    layout->setSpacing(SPACING);
    title = AddText(layout, "title");
    description = AddText(layout, "description");
    recorderButton = new QPushButton;
    recorderButton->setObjectName("recorderButton");
    recorderButton->setIcon(ZStyleSheet::iconOnAccent("camera"));
    layout->addWidget(recorderButton, 0, Qt::AlignLeading);
    hint = AddText(layout, "description");
    layout->addStretch();
    connect(recorderButton, &QPushButton::clicked, this, &StartPage::RecorderRequested);
    Retranslate();
}

void StartPage::Retranslate()
{
    title->setText(tr("Widgets for screen recorders"));
    description->setText(tr("The recorder is an application made of these widgets: a live picture, its sound level, "
                            "panels, settings and a trimmer."));
    SetTextBesideIcon(recorderButton, tr("Open the recorder"));
    hint->setText(tr("The list at the side has a page for each widget, with all of its states and an inspector."));
}

void StartPage::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
}

} // namespace Zelkor::Gallery
