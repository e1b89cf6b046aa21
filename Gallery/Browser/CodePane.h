#pragma once

#include <QWidget>

class QMenu;
class QPlainTextEdit;
class QTabBar;
class QToolButton;

namespace Zelkor::Catalogue {
struct Entry;
}

namespace Zelkor::Gallery {

/// The C++ code and the form of a state, to be copied, with links to the files that it comes from.
class CodePane : public QWidget
{
    Q_OBJECT

public:
    explicit CodePane(QWidget* parent = nullptr);

    /// Shows a state of an entry, by its index. Hides the pane if there is no code of the entry.
    void ShowState(const Catalogue::Entry& entry, int state);

private:
    QToolButton* AddButton(const char* objectName, const QString& text, const QString& toolTip);
    void AddFile(const QString& title, const QStringList& places);
    void ShowCode();
    void Copy(const QString& text, QWidget* source) const;

    QTabBar* tabs;
    QWidget* head;
    QPlainTextEdit* text;
    QMenu* files;
    QToolButton* link;
    QToolButton* copy;
    QString code;
    QString form;
    QString commandLine;
};

} // namespace Zelkor::Gallery
