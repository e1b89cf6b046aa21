#pragma once

#include <QVector>
#include <QWidget>

class QAction;
class QToolButton;

namespace Zelkor::Examples {
class Appearance;
}

namespace Zelkor::Gallery {

/// The tool bar that sets style sheet or palette, direction, language, scale and enabled state of the pages.
/// `appearance` must outlive it.
class SceneBar : public QWidget
{
    Q_OBJECT

public:
    SceneBar(Examples::Appearance* appearance, double scale, QWidget* parent = nullptr);

    /// Enables the tools for widget pages: "Enabled" and the inspector.
    void SetForWidgets(bool on);

    void ShowInspectorState(bool visible);
    bool AreWidgetsEnabled() const;

    void Retranslate();

Q_SIGNALS:
    void EnabledChanged(bool on);
    void InspectorRequested(bool on);
    void StyleEditorRequested();

    /// Emitted when the user chooses a scale factor, which Qt reads when a program starts.
    void RestartRequested(double scale);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QToolButton* AddButton(const char* icon, bool checkable);
    void FillMenus();
    void FillStyleMenu();
    void OpenStyleSheet();
    void EditPalette();
    void ShowAppearance();
    void ShowTexts();

    Examples::Appearance* appearance;
    const double scale;
    QVector<QToolButton*> buttons; ///< all tool buttons, in order
    QToolButton* style;
    QAction* openSheet;
    QAction* editPalette;
    QToolButton* direction;
    QToolButton* language;
    QToolButton* scaling;
    QToolButton* enabled;
    QToolButton* styleEditor;
    QToolButton* inspector;
};

} // namespace Zelkor::Gallery
