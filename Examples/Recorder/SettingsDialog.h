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

namespace Zelkor::Gallery {

class Preferences;

/// The settings, a page for each subject; the dialog is as large as its page. What is changed counts at once.
///
/// The preferences have to outlive the dialog.
class SettingsDialog : public QDialog
{
    Q_OBJECT

public:
    explicit SettingsDialog(Preferences* preferences, QWidget* parent = nullptr);

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

} // namespace Zelkor::Gallery
