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

/// Sets recording mode, drawing colour and click sound, with presets for the usual recording modes.
///
/// A narrow bar hides the presets; the list contains all modes. The actions of the presets are the `actions()` of the
/// bar: add them to the window so that their shortcuts work everywhere in it. The model must outlive the bar.
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
