#pragma once

#include <QVector>
#include <QWidget>

class QToolButton;

namespace Zelkor::Gallery {

class Preferences;

/// The row of tools that sets the scene of the pages: style sheet, direction, language, scale, enabled widgets. The
/// preferences have to outlive it.
class SceneBar : public QWidget
{
    Q_OBJECT

public:
    SceneBar(Preferences* preferences, double scale, QWidget* parent = nullptr);

    /// Whether there are widgets to switch off, and an inspector.
    void SetForWidgets(bool on);

    void ShowInspectorState(bool visible);
    bool AreWidgetsEnabled() const;

    void Retranslate();

Q_SIGNALS:
    void EnabledChanged(bool on);
    void InspectorRequested(bool on);
    void StyleEditorRequested();

    /// Qt takes its scale when a program starts, so another one takes another start.
    void RestartRequested(double scale);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QToolButton* AddButton(const char* icon, bool checkable);
    void FillMenus();
    void ShowPreferences();
    void ShowTexts();

    Preferences* preferences;
    const double scale;
    QVector<QToolButton*> buttons; ///< all of them, in order
    QToolButton* style;
    QToolButton* direction;
    QToolButton* language;
    QToolButton* scaling;
    QToolButton* enabled;
    QToolButton* styleEditor;
    QToolButton* inspector;
};

} // namespace Zelkor::Gallery
