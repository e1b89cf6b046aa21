#pragma once

#include <UI/Kit/StyleSheetEditor/StyleSheetChecker.h>
#include <UI/Kit/ZCodeEditor.h>

namespace Zelkor::Vx::UI::Kit {

class StyleSheetCompleter;
class StyleSheetHighlighter;

/// The text field of the style sheet editor, with syntax highlighting, completion and marks at mistakes.
class StyleSheetTextEdit : public ZCodeEditor
{
    Q_OBJECT

public:
    /// Names of `except` and its descendants are not offered.
    explicit StyleSheetTextEdit(const QWidget* except, QWidget* parent = nullptr);

    /// Sets the scope of the sheet, APPLICATION by default, and checks it.
    void setScope(StyleSheetScope scope);

    /// Checks the current text and marks the mistakes.
    void check();

    /// Marks the mistakes found by the last check, in the language of the application.
    void markMistakes();

    /// Returns the mistakes found by the last check.
    const QVector<StyleSheetChecker::Mistake>& mistakes() const { return found; }

    /// Returns whether Qt accepted the text at the last check, with or without mistakes.
    bool isAccepted() const { return accepted; }

    /// Moves the cursor to the next mistake, or to the first one after the last.
    void goToNextMistake();

    /// Sets the text and clears the undo history.
    void loadText(const QString& text);

    /// Replaces the text in one undo step.
    void replaceText(const QString& text);

    /// Returns the text to save and apply, with the original line endings and no-break spaces. Its positions differ
    /// from those of the document.
    QString source() const;

    /// Offers completions at the cursor.
    void complete();

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void followColors();

    StyleSheetHighlighter* highlighter;
    StyleSheetCompleter* completer;
    QString original; ///< the last text set
    StyleSheetScope scope = StyleSheetScope::APPLICATION;
    QVector<StyleSheetChecker::Mistake> found;
    bool accepted = true;
};

} // namespace Zelkor::Vx::UI::Kit
