#pragma once

#include <QWidget>

class QHBoxLayout;
class QListWidget;

namespace Zelkor::Gallery {

class Preferences;
class RecorderModel;

/// The name of the recorder's page, the first one. After it come the trimmer, and a page for each class of the
/// catalogue.
QString RecorderPageName();

/// The names of all pages, in order.
QStringList PageNames();

/// All pages: their list at the start, the chosen one beside it. Only the page that shows exists, so that nothing runs
/// out of sight. Model and preferences have to outlive the window.
class GalleryWindow : public QWidget
{
    Q_OBJECT

public:
    GalleryWindow(RecorderModel* model, const Preferences* preferences, QWidget* parent = nullptr);

    /// Opens a page; a name that is no page is ignored.
    void OpenPage(const QString& name);

Q_SIGNALS:
    /// The person closed the window.
    void Closed();

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void FillList();
    void ShowPage(const QString& name);
    void SetCompact(bool on);

    RecorderModel* model;
    const Preferences* preferences;
    QListWidget* list;
    QHBoxLayout* body;
    QWidget* page = nullptr;
    int fullListWidth = 0;
    bool compact = false;
};

} // namespace Zelkor::Gallery
