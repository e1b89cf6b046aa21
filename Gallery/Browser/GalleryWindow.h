#pragma once

#include "PageList.h"

#include <QTimer>
#include <QWidget>

class QVBoxLayout;

namespace Zelkor::Examples {
class Appearance;
}

namespace Zelkor::Gallery {

class SceneBar;
class WidgetPage;

/// The gallery's window: the list of pages, the tool bar and the current page. Deletes other pages, so that no stream
/// runs hidden. `appearance` must outlive the window.
class GalleryWindow : public QWidget
{
    Q_OBJECT

public:
    /// `scale` is the scale factor of the running program.
    explicit GalleryWindow(Examples::Appearance* appearance, double scale = 1, QWidget* parent = nullptr);

    /// Opens a page and selects a state of it by its index. Unknown names are ignored.
    void OpenPage(const QString& name, int state = 0);

Q_SIGNALS:
    void RecorderRequested();
    void StyleEditorRequested();

    /// Emitted when the user chooses a scale factor, which requires a restart.
    void RestartRequested(double scale, const QString& page, int state);

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void ShowPage(const QString& name);
    QWidget* CreateStartPage();
    WidgetPage* CreateWidgetPage(const QString& name);
    void Retranslate();
    void RecreatePage();

    PageList* list;
    SceneBar* bar;
    QVBoxLayout* body;
    QTimer renewal; ///< recreates the page after all receivers of a change event
    QWidget* page = nullptr;
};

} // namespace Zelkor::Gallery
