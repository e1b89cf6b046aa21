#pragma once

#include <QWidget>

class QLineEdit;
class QListWidget;
class QListWidgetItem;

namespace Zelkor::Gallery {

/// The name of the page that the gallery opens with.
QString StartPageName();

/// The names of all pages, in order: the start page, then one for each class of the catalogue.
QStringList PageNames();

/// The list of the pages under their groups, with a field to search in it: names and groups that hold the text stay.
///
/// Ctrl+F goes to the field, from there Down to the list and Return to the first hit, and Escape clears it.
class PageList : public QWidget
{
    Q_OBJECT

public:
    explicit PageList(QWidget* parent = nullptr);

    /// Opens a page; a name that is no page is ignored.
    void OpenPage(const QString& name);

    /// Gives the focus to the list; as the focus proxy it would keep Tab from the search field.
    void FocusList();

    /// The name of the open page, empty for none.
    QString CurrentPage() const;

    /// Writes the texts anew, those of the catalogue too. The page stays open.
    void Retranslate();

    /// Shows icons only, and tool tips for the names. A search shows all.
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
