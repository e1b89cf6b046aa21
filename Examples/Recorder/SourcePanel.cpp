#include "SourcePanel.h"
#include "RecorderModel.h"

#include <Examples/Support/WidgetTexts.h>
#include <UI/Kit/ZStyleSheet.h>

#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QVBoxLayout>

namespace Zelkor::Recorder {

using namespace Examples;

namespace {

constexpr int FIELD_WIDTH = 264;
constexpr int LABEL_DISTANCE = 4;
constexpr int FIELD_DISTANCE = 12;
constexpr QChar LEFT_TO_RIGHT_EMBEDDING(0x202a);
constexpr QChar POP_DIRECTIONAL_FORMATTING(0x202c);

QString IconOf(StandIn::CaptureDevice::Kind kind)
{
    switch (kind) {
    case StandIn::CaptureDevice::Kind::Camera:
        return "camera";
    case StandIn::CaptureDevice::Kind::Screen:
        return "screen";
    default:
        return "picture";
    }
}

// Emits nothing that the panel handles: it connects to activated() only.
template<class Value>
void Select(QComboBox* combo, const Value& value)
{
    combo->setCurrentIndex(combo->findData(value));
    combo->setEnabled(combo->count() > 0);
}

} // namespace

SourcePanel::SourcePanel(RecorderModel* model, QWidget* parent) : QWidget(parent), model(model)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(LABEL_DISTANCE);
    device = AddField("deviceCombo");
    layout->addSpacing(FIELD_DISTANCE - LABEL_DISTANCE);
    mode = AddField("modeCombo");
    layout->addSpacing(FIELD_DISTANCE - LABEL_DISTANCE);
    frameRate = AddField("frameRateCombo");
    Retranslate();

    const auto chosen = QOverload<int>::of(&QComboBox::activated);
    connect(device.combo, chosen, this,
            [this](int index) { this->model->ChooseDevice(device.combo->itemData(index).toString()); });
    connect(mode.combo, chosen, this,
            [this](int index) { this->model->ChooseMode(mode.combo->itemData(index).toString()); });
    connect(frameRate.combo, chosen, this,
            [this](int index) { this->model->ChooseFrameRate(frameRate.combo->itemData(index).toDouble()); });
    connect(model, &RecorderModel::OfferChanged, this, &SourcePanel::Refresh);
}

SourcePanel::Field SourcePanel::AddField(const char* name)
{
    Field field{new QLabel, new QComboBox};
    field.label->setObjectName("fieldLabel");
    AlignAtStart(field.label);
    field.combo->setObjectName(name);
    field.combo->setFixedWidth(FIELD_WIDTH);
    StyleItems(field.combo);
    layout()->addWidget(field.label);
    layout()->addWidget(field.combo);
    return field;
}

void SourcePanel::Refresh()
{
    device.combo->clear();
    for (const RecorderModel::DeviceItem& item : model->Devices()) {
        const QString name = item.isPresent ? item.name : tr("%1 (not connected)").arg(item.name);
        device.combo->addItem(ZStyleSheet::icon(IconOf(item.kind)), name, item.id);
    }
    Select(device.combo, model->CurrentDeviceId());

    mode.combo->clear();
    // Keeps "1920×1080" from left to right in a right-to-left layout.
    for (const QString& name : model->Modes())
        mode.combo->addItem(LEFT_TO_RIGHT_EMBEDDING + name + POP_DIRECTIONAL_FORMATTING, name);
    Select(mode.combo, model->CurrentMode());

    frameRate.combo->clear();
    for (const double rate : model->FrameRates())
        frameRate.combo->addItem(tr("%1 frames per second").arg(FrameRateText(rate)), rate);
    Select(frameRate.combo, model->CurrentFrameRate());
}

void SourcePanel::Retranslate()
{
    const auto name = [](const Field& field, const QString& text) {
        field.label->setText(text);
        field.combo->setAccessibleName(text);
    };
    name(device, tr("Device"));
    name(mode, tr("Mode"));
    name(frameRate, tr("Frame rate"));
    Refresh();
}

void SourcePanel::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
}

} // namespace Zelkor::Recorder
