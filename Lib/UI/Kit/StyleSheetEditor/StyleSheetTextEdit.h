#pragma once

#include <UI/Kit/StyleSheetEditor/StyleSheetChecker.h>
#include <UI/Kit/ZCodeEditor.h>

namespace Zelkor::Vx::UI::Kit {

class StyleSheetCompleter;
class StyleSheetHighlighter;

/// A code editor that knows style sheets: it colours them, offers names, and marks mistakes when it is told to look.
class StyleSheetTextEdit : public ZCodeEditor
{
    Q_OBJECT

public:
    /// Widgets within `except` are not looked at for names.
    explicit StyleSheetTextEdit(const QWidget* except, QWidget* parent = nullptr);

    /// For whom the sheet is; for the application at first.
    void setScope(StyleSheetScope scope);

    /// Looks for mistakes in the text as it is, and marks them.
    void check();

    /// Describes the mistakes that were found last in the language of the application.
    void markMistakes();

    /// Those that the last look found.
    const QVector<StyleSheetChecker::Mistake>& mistakes() const { return found; }

    /// Whether Qt accepts the text that was looked at last, with or without mistakes.
    bool isAccepted() const { return accepted; }

    /// Goes to the next mistake behind the cursor, or to the first one.
    void goToNextMistake();

    /// Sets the text and clears the undo history.
    void loadText(const QString& text);

    /// Replaces the text in one step that can be undone.
    void replaceText(const QString& text);

    /// The text to save and to apply: what was not edited is as it was loaded, line ends and no-break spaces included.
    /// Its positions are not those of the document.
    QString source() const;

    /// Offers names for the place of the cursor.
    void complete();

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void followColors();

    StyleSheetHighlighter* highlighter;
    StyleSheetCompleter* completer;
    QString original; ///< the text that was set last
    StyleSheetScope scope = StyleSheetScope::APPLICATION;
    QVector<StyleSheetChecker::Mistake> found;
    bool accepted = true;
};

} // namespace Zelkor::Vx::UI::Kit
