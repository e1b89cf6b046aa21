#pragma once

#include "PageList.h"

#include <QTimer>
#include <QWidget>

class QVBoxLayout;

namespace Zelkor::Gallery {

class Preferences;
class RecorderModel;
class SceneBar;
class WidgetPage;

/// All pages: their list at the start, the chosen one beside it under the tools that set the scene. Only the page that
/// shows exists, so that nothing runs out of sight. Model and preferences have to outlive the window.
class GalleryWindow : public QWidget
{
    Q_OBJECT

public:
    /// `scale` is the one that the program runs with.
    GalleryWindow(RecorderModel* model, Preferences* preferences, double scale = 1, QWidget* parent = nullptr);

    /// Opens a page; a name that is no page is ignored.
    void OpenPage(const QString& name);

Q_SIGNALS:
    /// The person closed the window.
    void Closed();

    void StyleEditorRequested();

    /// The person wants another scale, which a program has from its start on.
    void RestartRequested(double scale, const QString& page);

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void ShowPage(const QString& name);
    WidgetPage* CreateWidgetPage(const QString& name);
    void Retranslate();
    void MakePageAnew();

    RecorderModel* model;
    Preferences* preferences;
    PageList* list;
    SceneBar* bar;
    QVBoxLayout* body;
    QTimer renewal; ///< of the page, when all who are told of a change know of it
    QWidget* page = nullptr;
};

} // namespace Zelkor::Gallery
