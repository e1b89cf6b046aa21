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

/// The window of the gallery: the list of pages, the tool bar, and the current page. Only the current page exists, so
/// that nothing runs while hidden. `appearance` must outlive the window.
class GalleryWindow : public QWidget
{
    Q_OBJECT

public:
    /// `scale` is the one that the program runs with.
    explicit GalleryWindow(Examples::Appearance* appearance, double scale = 1, QWidget* parent = nullptr);

    /// Opens a page. Unknown names are ignored.
    void OpenPage(const QString& name);

Q_SIGNALS:
    void RecorderRequested();
    void StyleEditorRequested();

    /// Another scale was chosen, which takes effect when the program starts.
    void RestartRequested(double scale, const QString& page);

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
    QTimer renewal; ///< of the page, when all who are told of a change know of it
    QWidget* page = nullptr;
};

} // namespace Zelkor::Gallery
