#pragma once

#include <QVector>
#include <QWidget>

class QAction;
class QBoxLayout;

namespace Zelkor::Vx {
class ButtonWithPopUpList;
class ColorButton;
namespace UI {
class ClickSoundComboBox;
class FastPresetButton;
} // namespace UI
} // namespace Zelkor::Vx

namespace Zelkor::Recorder {

class RecorderModel;

/// How to record: presets for the usual recording modes, the list of all modes, drawing colour and click sound.
///
/// Where there is no room for the presets, the list is enough. Their actions, which have shortcuts, are the `actions()`
/// of the bar; a window adds them to itself so that the shortcuts work everywhere in it. The model has to outlive the
/// bar.
class CaptureBar : public QWidget
{
    Q_OBJECT

public:
    explicit CaptureBar(RecorderModel* model, QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void AddPresets();
    void AddChoices();
    void Connect();
    void ShowWhatFits();
    int FullWidth() const;
    void Refresh();
    void Retranslate();

    RecorderModel* model;
    QBoxLayout* row;
    QWidget* presetGroup;
    QVector<Vx::UI::FastPresetButton*> presets;
    Vx::ButtonWithPopUpList* modes;
    Vx::ColorButton* color;
    Vx::UI::ClickSoundComboBox* sound;
};

} // namespace Zelkor::Recorder
