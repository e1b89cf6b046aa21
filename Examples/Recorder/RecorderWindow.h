#pragma once

#include <QPointer>
#include <QWidget>

class QToolButton;

namespace Zelkor::Examples {
class Appearance;
}

namespace Zelkor::Recorder {

struct Preferences;
class RecorderModel;
class RecorderView;
class SettingsDialog;

/// The recorder's frameless main window, whose title bar opens trimmer, style sheet editor, settings and about box.
///
/// Model, preferences and appearance must outlive the window.
class RecorderWindow : public QWidget
{
    Q_OBJECT

public:
    RecorderWindow(RecorderModel* model, Preferences* preferences, Examples::Appearance* appearance);

    /// Shows a hint for new users. The window must be visible.
    void ShowFirstHint();

Q_SIGNALS:
    /// Emitted when a button of the title bar is clicked.
    void TrimmerRequested();
    void StyleEditorRequested();

protected:
    void changeEvent(QEvent* event) override;

private:
    void ShowSettings();
    void ShowAbout();
    void Retranslate();

    Preferences* preferences;
    Examples::Appearance* appearance;
    RecorderView* view;
    QToolButton* trimButton;
    QToolButton* styleButton;
    QToolButton* settingsButton;
    QToolButton* aboutButton;
    QPointer<SettingsDialog> settings;
};

} // namespace Zelkor::Recorder
