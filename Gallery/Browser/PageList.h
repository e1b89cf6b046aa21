#pragma once

#include "PageSearch.h"

#include <QWidget>

class QKeyEvent;
class QLineEdit;
class QListWidget;
class QListWidgetItem;

namespace Zelkor::Gallery {

/// Returns the name of the first page.
QString StartPageName();

/// Returns the names of all pages in order: the start page, then one per class of the catalogue, then the widgets of
/// Qt.
QStringList PageNames();

/// The list of pages by group, with a search field. A search lists its hits instead, names first, then descriptions,
/// then properties, signals and object names.
///
/// Keys: Ctrl+F focuses the field, where Down and Return open the first hit and Escape clears; text that is typed in
/// the list goes to the field.
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
    QString CurrentPage() const { return current; }

    /// Updates all texts, also those of the catalogue, and keeps the current page.
    void Retranslate();

    /// Shows icons with tool tips instead of names, except during a search.
    void SetCompact(bool on);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void PageChosen(const QString& name);

private:
    void Fill(bool isCompact);
    void AddAllPages(bool isCompact);
    void AddHits(const QString& text);
    void AddHeading(const QString& text);
    QListWidgetItem* AddPage(const QString& name, bool isCompact);
    bool SelectItem(const QString& name);
    void Search();
    void EndSearch();
    void ChooseHit();
    void Arrange();
    bool PressInField(const QKeyEvent& event);
    bool PressInList(QKeyEvent& event);

    QLineEdit* search;
    QListWidget* list;
    PageSearch pageSearch;
    QString current;
    int fullWidth = 0;
    bool compact = false;
    bool searching = false;
};

} // namespace Zelkor::Gallery
