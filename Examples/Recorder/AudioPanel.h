#pragma once

#include "LevelBallistics.h"

#include <QWidget>

class QLabel;

namespace Zelkor {
namespace StandIn {
class AudioLevelSource;
}
namespace Vx {
class VolumeSlider;
}
} // namespace Zelkor

namespace Zelkor::Recorder {

/// Sets the recording volumes of the microphone and the system sound, and shows their levels.
///
/// Opens the microphone only while the panel is visible.
class AudioPanel : public QWidget
{
    Q_OBJECT

public:
    explicit AudioPanel(QWidget* parent = nullptr);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    struct Channel
    {
        StandIn::AudioLevelSource* source;
        Vx::VolumeSlider* slider;
        QLabel* name;
        QLabel* remark;
        LevelBallistics level;
    };

    void Build(Channel& channel);
    void ShowLevel(Channel& channel, double decibels);
    void Retranslate();

    Channel microphone;
    Channel system;
};

} // namespace Zelkor::Recorder
