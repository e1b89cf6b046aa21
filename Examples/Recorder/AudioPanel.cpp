#include "AudioPanel.h"

#include <UI/Widgets/VolumeSlider.h>

#include <Zelkor/StandIn/AudioLevelSource.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

using Zelkor::StandIn::AudioLevelSource;
using Zelkor::Vx::VolumeSlider;

namespace Zelkor::Recorder {

namespace {

constexpr int COLUMN_WIDTH = 112;
constexpr int LABEL_DISTANCE = 4;
constexpr float FIRST_VOLUME = 0.8F;
constexpr QChar NO_REMARK(0xa0); ///< reserves the line of a remark

float VolumeOf(const VolumeSlider& slider)
{
    return float(slider.value()) / float(slider.maximum());
}

QLabel* CreateLabel(const char* objectName)
{
    auto* label = new QLabel;
    label->setObjectName(objectName);
    label->setAlignment(Qt::AlignCenter);
    label->setMinimumWidth(COLUMN_WIDTH);
    return label;
}

} // namespace

AudioPanel::AudioPanel(QWidget* parent)
    : QWidget(parent), microphone{new AudioLevelSource(AudioLevelSource::Input::Microphone, this), {}, {}, {}, {}},
      system{new AudioLevelSource(AudioLevelSource::Input::TestSignal, this), {}, {}, {}, {}}
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    Build(microphone);
    Build(system);
    Retranslate();
}

void AudioPanel::Build(Channel& channel)
{
    channel.slider = new VolumeSlider(Qt::Vertical, this);
    channel.slider->SetVolumes(FIRST_VOLUME, 0);
    channel.name = CreateLabel("channelName");
    channel.remark = CreateLabel("caption");
    channel.remark->setText(NO_REMARK);
    auto* column = new QVBoxLayout;
    column->setSpacing(LABEL_DISTANCE);
    column->addWidget(channel.slider, 1, Qt::AlignHCenter);
    column->addWidget(channel.name);
    column->addWidget(channel.remark);
    static_cast<QHBoxLayout*>(layout())->addLayout(column);
    connect(channel.source, &AudioLevelSource::PeakMeasured, this,
            [this, &channel](double decibels) { ShowLevel(channel, decibels); });
}

void AudioPanel::ShowLevel(Channel& channel, double decibels)
{
    const auto now = std::chrono::steady_clock::now();
    channel.level.TakePeak(decibels, now);
    channel.slider->SetVolumes(VolumeOf(*channel.slider), float(channel.level.LevelAt(now)));
    // Labels the test signal, which is not the microphone.
    channel.remark->setText(channel.source->IsTestSignal() ? tr("Test signal") : QString(NO_REMARK));
}

void AudioPanel::Retranslate()
{
    const auto name = [](const Channel& channel, const QString& text) {
        channel.name->setText(text);
        channel.slider->setAccessibleName(text);
    };
    name(microphone, tr("Microphone"));
    name(system, tr("System sound"));
}

void AudioPanel::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    for (Channel* channel : {&microphone, &system})
        channel->source->Start();
}

void AudioPanel::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    for (Channel* channel : {&microphone, &system}) {
        channel->source->Stop();
        channel->slider->SetVolumes(VolumeOf(*channel->slider), 0);
    }
}

void AudioPanel::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
}

} // namespace Zelkor::Recorder
