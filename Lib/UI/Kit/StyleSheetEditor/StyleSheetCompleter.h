#pragma once

#include <QObject>

class QCompleter;
class QPlainTextEdit;
class QStringListModel;
class QWidget;

namespace Zelkor::Vx::UI::Kit {

/// Offers completions while a style sheet is typed: after two characters of a name, or on request. Return or Tab
/// inserts the selected one, Escape closes the list.
class StyleSheetCompleter : public QObject
{
    Q_OBJECT

public:
    /// The editor owns the completer. Names of `except` and its descendants are not offered.
    StyleSheetCompleter(QPlainTextEdit* editor, const QWidget* except);

    /// Sets whether the sheet consists of declarations only, without selector and braces; false by default.
    void setDeclarationsOnly(bool on) { declarationsOnly = on; }

    /// Offers completions at the cursor, even before a character is typed.
    void open();

    bool isOpen() const;

    /// Returns the offered completions; empty if the list is closed.
    QStringList completions() const;

    /// Returns the text from the start of the rule to the cursor, which determines the completions.
    QString context() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void follow();
    void show(int minimumPrefix);
    void insert(const QString& name);

    QPlainTextEdit* editor;
    const QWidget* except;
    QCompleter* completer = nullptr;
    QStringListModel* names = nullptr;
    bool declarationsOnly = false;
    bool typing = false; ///< between the insertion of a typed character and the move of the cursor
};

} // namespace Zelkor::Vx::UI::Kit
