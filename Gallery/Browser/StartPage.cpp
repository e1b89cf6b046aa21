#include "StartPage.h"
#include "FlowLayout.h"

#include <Catalogue/Catalogue.h>
#include <Examples/Support/WidgetTexts.h>
#include <UI/Kit/ZStyleSheet.h>

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace Zelkor::Gallery {

using namespace Examples;

namespace {

constexpr int MARGIN = 24;
constexpr int SPACING = 16;
const char* const SAMPLES[] = {"WebCameraPreviewStream",   "VolumeSlider", "CursorHighlightPreviewWidget",
                               "CountdownIndicatorWidget", "QLedMatrix",   "ZTimelineSlider"};

void AddText(QVBoxLayout* layout, const char* objectName, const QString& text)
{
    auto* label = new QLabel(text);
    label->setObjectName(objectName);
    label->setWordWrap(true);
    AlignAtStart(label);
    layout->addWidget(label);
}

// Widgets of the library in their pictured states, the preview with live video.
QWidget* CreateSamples()
{
    auto* samples = new QWidget;
    auto* layout = new FlowLayout(samples);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(SPACING);
    for (const char* className : SAMPLES) {
        const Catalogue::Entry& entry = *Catalogue::FindEntry(className);
        layout->addWidget(CreateInState(entry, entry.states[entry.pictured], nullptr));
    }
    return samples;
}

} // namespace

StartPage::StartPage(QWidget* parent) : QScrollArea(parent)
{
    auto* content = new QWidget;
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(MARGIN, MARGIN, MARGIN, MARGIN);
    layout->setSpacing(SPACING);
    AddText(layout, "title", tr("Widgets for screen recorders"));
    AddText(
        layout, "description",
        tr("The recorder is an application made of these widgets: a live picture, its sound level, panels, settings "
           "and a trimmer."));
    auto* recorderButton = new QPushButton;
    SetTextBesideIcon(recorderButton, tr("Open the recorder"));
    recorderButton->setObjectName("recorderButton");
    recorderButton->setIcon(ZStyleSheet::iconOnAccent("camera"));
    connect(recorderButton, &QPushButton::clicked, this, &StartPage::RecorderRequested);
    layout->addWidget(recorderButton, 0, Qt::AlignLeading);
    layout->addWidget(CreateSamples());
    AddText(layout, "description",
            tr("The list at the side has a page for each widget, with all of its states and an inspector."));
    layout->addStretch();
    setWidgetResizable(true);
    setWidget(content);
    content->setAutoFillBackground(false);
    setFrameShape(QFrame::NoFrame);
    // The button and the samples take the focus; QScrollArea scrolls to them.
    setFocusPolicy(Qt::NoFocus);
    // The texts wrap, so that the page can be narrow.
    setMinimumWidth(1);
}

} // namespace Zelkor::Gallery
