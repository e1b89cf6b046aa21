#pragma once

#include <QDialog>

class QComboBox;
class QLabel;
class QSlider;
class ResizableStackedWidget;

namespace Zelkor::Vx {
class ColorButton;
class HorizontalTabBar;
class SliderWithTickLabels;
namespace UI {
class CursorHighlightPreviewWidget;
}
} // namespace Zelkor::Vx

namespace Zelkor::Examples {
class Appearance;
}

namespace Zelkor::Recorder {

struct Preferences;

/// The settings dialog, with one page per topic. It resizes to its current page; changes take effect at once.
///
/// Preferences and appearance must outlive the dialog.
class SettingsDialog : public QDialog
{
    Q_OBJECT

public:
    SettingsDialog(Preferences* preferences, Examples::Appearance* appearance, QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    QWidget* CreateGeneralPage();
    QWidget* CreateRecordingPage();
    QWidget* CreatePointerPage();
    void ShowQuality();
    void ShowHighlight();
    void Retranslate();
    void MeasureCurrentPage();

    Preferences* preferences;
    Examples::Appearance* appearance;
    Vx::HorizontalTabBar* tabs;
    ResizableStackedWidget* pages;
    QLabel* languageLabel;
    QComboBox* language;
    QLabel* styleLabel;
    QComboBox* style;
    QLabel* countdownLabel;
    Vx::SliderWithTickLabels* countdown;
    QLabel* qualityLabel;
    Vx::SliderWithTickLabels* quality;
    QLabel* qualityRemark;
    Vx::UI::CursorHighlightPreviewWidget* highlight;
    QLabel* highlightColorLabel;
    Vx::ColorButton* highlightColor;
    QLabel* highlightSizeLabel;
    QSlider* highlightSize;
};

} // namespace Zelkor::Recorder
