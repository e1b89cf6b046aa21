#include "SettingsDialog.h"
#include "Preferences.h"

#include <Examples/Support/Appearance.h>
#include <Examples/Support/FramelessWindow.h>
#include <Examples/Support/WidgetTexts.h>
#include <UI/Widgets/ColorButton.h>
#include <UI/Widgets/CursorHighlightPreviewWidget.h>
#include <UI/Widgets/HorizontalTabBar.h>
#include <UI/Widgets/ResizableStackedWidget.h>
#include <UI/Widgets/SliderWithTickLabels.h>

#include <QColorDialog>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QSlider>
#include <QVBoxLayout>

#include <algorithm>
#include <iterator>

using Zelkor::Vx::ColorButton;
using Zelkor::Vx::HorizontalTabBar;
using Zelkor::Vx::SliderWithTickLabels;
using Zelkor::Vx::UI::CursorHighlightPreviewWidget;

namespace Zelkor::Recorder {

using namespace Examples;

namespace {

constexpr int SPACING = 8; ///< also the margin of the pages and their content
constexpr int FIELD_WIDTH = 320;
constexpr int COUNTDOWNS[] = {0, 3, 5, 10};
constexpr int MEGABYTES_PER_MINUTE[] = {6, 15, 40, 180}; ///< by quality
constexpr int SMALLEST_HIGHLIGHT = 16;
constexpr int HIGHLIGHT_STEP = 4;

QLabel* MakeFieldLabel()
{
    auto* label = new QLabel;
    label->setObjectName("fieldLabel");
    return label;
}

QComboBox* MakeCombo()
{
    auto* combo = new QComboBox;
    combo->setMinimumWidth(FIELD_WIDTH);
    StyleItems(combo);
    return combo;
}

QVBoxLayout* MakePageLayout(QWidget* page)
{
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(SPACING, SPACING, SPACING, SPACING);
    layout->setSpacing(SPACING);
    return layout;
}

// Translates the items of a slider.
void SetTexts(SliderWithTickLabels* slider, const QStringList& texts)
{
    if (slider->CurrentText().isEmpty())
        slider->AddItems(texts);
    for (int i = 0; i < texts.size(); ++i)
        slider->SetItemText(i, texts[i]);
}

void Name(QLabel* label, QWidget* field, const QString& text)
{
    label->setText(text);
    field->setAccessibleName(text);
}

} // namespace

SettingsDialog::SettingsDialog(Preferences* preferences, Appearance* appearance, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint), preferences(preferences),
      appearance(appearance), tabs(new HorizontalTabBar(nullptr)), pages(new ResizableStackedWidget(nullptr))
{
    setObjectName("settingsDialog");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(SPACING, SPACING, SPACING, SPACING);
    layout->setSpacing(0);
    // Created first, for the tab order.
    ReplaceFrame(this);
    layout->addWidget(tabs);
    layout->addWidget(pages);
    // The dialog resizes with its page.
    this->layout()->setSizeConstraint(QLayout::SetFixedSize);

    for (QWidget* page : {CreateGeneralPage(), CreateRecordingPage(), CreatePointerPage()}) {
        tabs->addTab(QString());
        pages->addWidget(page);
    }
    Retranslate();
    const auto* seconds = std::find(std::begin(COUNTDOWNS), std::end(COUNTDOWNS), preferences->countdownSeconds);
    countdown->SetCurrentIndex(int(seconds - std::begin(COUNTDOWNS)));
    quality->SetCurrentIndex(preferences->quality);
    tabs->setFocus();
    connect(tabs, &QTabBar::currentChanged, pages, &QStackedWidget::setCurrentIndex);
}

QWidget* SettingsDialog::CreateGeneralPage()
{
    auto* page = new QWidget;
    languageLabel = MakeFieldLabel();
    language = MakeCombo();
    language->setObjectName("languageCombo");
    for (const Language& item : AllLanguages())
        language->addItem(item.name, item.code);
    language->setCurrentIndex(language->findData(appearance->Language()));
    styleLabel = MakeFieldLabel();
    style = MakeCombo();
    style->setObjectName("styleCombo");

    auto* layout = MakePageLayout(page);
    layout->addWidget(languageLabel);
    layout->addWidget(language);
    layout->addSpacing(SPACING);
    layout->addWidget(styleLabel);
    layout->addWidget(style);

    const auto chosen = QOverload<int>::of(&QComboBox::activated);
    connect(language, chosen, this, [this] { appearance->SetLanguage(language->currentData().toString()); });
    connect(style, chosen, this, [this] { appearance->SetStyle(style->currentData().toString()); });
    return page;
}

QWidget* SettingsDialog::CreateRecordingPage()
{
    auto* page = new QWidget;
    countdownLabel = MakeFieldLabel();
    countdown = new SliderWithTickLabels(nullptr);
    countdown->setObjectName("countdown");
    qualityLabel = MakeFieldLabel();
    quality = new SliderWithTickLabels(nullptr);
    quality->setObjectName("quality");
    quality->setMinimumWidth(FIELD_WIDTH);
    qualityRemark = MakeFieldLabel();

    auto* layout = MakePageLayout(page);
    layout->addWidget(qualityLabel);
    layout->addWidget(quality);
    layout->addWidget(qualityRemark);
    layout->addSpacing(SPACING);
    layout->addWidget(countdownLabel);
    layout->addWidget(countdown);

    connect(countdown, &SliderWithTickLabels::CurrentIndexChanged, this,
            [this](int index) { preferences->countdownSeconds = COUNTDOWNS[index]; });
    connect(quality, &SliderWithTickLabels::CurrentIndexChanged, this, [this](int index) {
        preferences->quality = index;
        ShowQuality();
    });
    return page;
}

QWidget* SettingsDialog::CreatePointerPage()
{
    auto* page = new QWidget;
    highlight = new CursorHighlightPreviewWidget(nullptr);
    highlightColorLabel = MakeFieldLabel();
    highlightColor = new ColorButton;
    highlightColor->SetAlphaEnabled(true);
    highlightColor->SetColor(preferences->highlightColor);
    highlightSizeLabel = MakeFieldLabel();
    highlightSize = new QSlider(Qt::Horizontal);
    highlightSize->setRange(SMALLEST_HIGHLIGHT, CursorHighlightPreviewWidget::previewSize.width());
    highlightSize->setPageStep(HIGHLIGHT_STEP);
    highlightSize->setValue(preferences->highlightDiameter);

    auto* layout = new QGridLayout(page);
    layout->setContentsMargins(SPACING, SPACING, SPACING, SPACING);
    layout->setHorizontalSpacing(2 * SPACING);
    layout->setVerticalSpacing(SPACING);
    layout->addWidget(highlight, 0, 0, 4, 1, Qt::AlignTop);
    layout->addWidget(highlightColorLabel, 0, 1);
    layout->addWidget(highlightColor, 1, 1);
    layout->addWidget(highlightSizeLabel, 2, 1);
    layout->addWidget(highlightSize, 3, 1);

    connect(highlightColor, &ColorButton::ColorDialogWillBeOpened, this,
            [this] { ReplaceFrame(highlightColor->findChild<QColorDialog*>()); });
    connect(highlightColor, &ColorButton::ColorChanged, this, [this](const QColor& color) {
        preferences->highlightColor = color;
        ShowHighlight();
    });
    connect(highlightSize, &QSlider::valueChanged, this, [this](int diameter) {
        preferences->highlightDiameter = diameter;
        ShowHighlight();
    });
    ShowHighlight();
    return page;
}

void SettingsDialog::ShowQuality()
{
    qualityRemark->setText(tr("About %1 MB per minute").arg(MEGABYTES_PER_MINUTE[preferences->quality]));
}

void SettingsDialog::ShowHighlight()
{
    highlight->SetColor(preferences->highlightColor);
    highlight->SetDiameter(preferences->highlightDiameter);
}

void SettingsDialog::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
}

void SettingsDialog::Retranslate()
{
    setWindowTitle(tr("Settings"));
    tabs->setAccessibleName(tr("Subjects"));
    tabs->setTabText(0, tr("General"));
    tabs->setTabText(1, tr("Recording"));
    tabs->setTabText(2, tr("Pointer"));

    Name(languageLabel, language, tr("Language"));
    Name(styleLabel, style, tr("Appearance"));
    style->clear();
    if (appearance->StyleName().isEmpty())
        style->addItem(tr("As given"), QString());
    for (const Style& item : Appearance::AllStyles())
        style->addItem(item.title, item.name);
    style->setCurrentIndex(style->findData(appearance->StyleName()));

    Name(countdownLabel, countdown, tr("Countdown"));
    QStringList times;
    for (const int seconds : COUNTDOWNS)
        times.append(seconds == 0 ? tr("None") : tr("%1 s").arg(seconds));
    SetTexts(countdown, times);
    Name(qualityLabel, quality, tr("Quality"));
    SetTexts(quality, {tr("Small"), tr("Medium"), tr("High"), tr("Lossless")});
    ShowQuality();
    Name(highlightColorLabel, highlightColor, tr("Colour"));
    Name(highlightSizeLabel, highlightSize, tr("Size"));
    highlight->setAccessibleName(tr("The pointer's highlight"));
    MeasureCurrentPage();
}

// The stack measures a page when it is shown, which was before its texts changed.
void SettingsDialog::MeasureCurrentPage()
{
    const int index = pages->currentIndex();
    pages->setCurrentIndex((index + 1) % pages->count());
    pages->setCurrentIndex(index);
}

} // namespace Zelkor::Recorder
