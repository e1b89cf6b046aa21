#pragma once

#include <QWidget>

class QLineEdit;
class QListWidget;
class QListWidgetItem;

namespace Zelkor::Gallery {

/// Returns the name of the first page.
QString StartPageName();

/// Returns the names of all pages in order: the start page, then one per class of the catalogue, then the widgets of
/// Qt.
QStringList PageNames();

/// The list of pages by group, with a search field that filters by page and group name.
///
/// Ctrl+F focuses the field; Down focuses the list, Return opens the first match and Escape clears the field.
class PageList : public QWidget
{
    Q_OBJECT

public:
    explicit PageList(QWidget* parent = nullptr);

    /// Opens a page. Ignores unknown names.
    void OpenPage(const QString& name);

    /// Sets the focus on the list. A focus proxy would make Tab skip the search field.
    void FocusList();

    /// Returns the name of the current page, empty for none.
    QString CurrentPage() const;

    /// Updates all texts, also those of the catalogue, and keeps the current page.
    void Retranslate();

    /// Shows icons with tool tips instead of names, except during a search.
    void SetCompact(bool on);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void PageChosen(const QString& name);

private:
    void Fill();
    void Filter();
    void Search();
    void EndSearch();
    void ChooseFirstHit();
    void Arrange();

    QLineEdit* search;
    QListWidget* list;
    int fullWidth = 0;
    bool compact = false;
    bool searching = false;
};

} // namespace Zelkor::Gallery
