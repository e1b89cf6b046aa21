#pragma once

#include <QPointer>
#include <QWidget>

class QSizeGrip;
class QToolButton;

namespace Zelkor::Gallery {

class Preferences;
class RecorderModel;
class RecorderView;
class SettingsDialog;

/// The recorder as a program of its own: a frameless window whose title bar leads to everything else.
///
/// Model and preferences have to outlive the window.
class RecorderWindow : public QWidget
{
    Q_OBJECT

public:
    RecorderWindow(RecorderModel* model, Preferences* preferences);

    /// Tells somebody who is here for the first time where to begin. The window has to be visible.
    void ShowFirstHint();

Q_SIGNALS:
    /// The person wants to see the widgets.
    void WidgetsRequested();

    /// The person wants to edit the style sheet.
    void StyleEditorRequested();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void ShowSettings();
    void ShowAbout();
    void Retranslate();

    Preferences* preferences;
    RecorderView* view;
    QToolButton* widgetsButton;
    QToolButton* styleButton;
    QToolButton* settingsButton;
    QToolButton* aboutButton;
    QSizeGrip* sizeGrip;
    QPointer<SettingsDialog> settings;
};

} // namespace Zelkor::Gallery
