#pragma once

#include <UI/Kit/StyleSheetSyntax.h>
#include <UI/Kit/ZCodeEditor.h>

class StyleSheetCompleter;
class StyleSheetHighlighter;

/// A code editor that knows style sheets: it colours them, offers names, and marks mistakes when it is told to look.
class StyleSheetEdit : public ZCodeEditor
{
    Q_OBJECT

public:
    /// Widgets within `except` are not looked at for names.
    explicit StyleSheetEdit(const QWidget* except, QWidget* parent = nullptr);

    /// For whom the sheet is; for the application at first.
    void setScope(StyleSheetSyntax::Scope scope);

    /// Looks for mistakes in the text as it is, and marks them.
    void check();

    /// Those that the last look found.
    const QVector<StyleSheetSyntax::Mistake>& mistakes() const { return found; }

    /// Goes to the next mistake behind the cursor, or to the first one.
    void goToNextMistake();

    /// Replaces the text in one step that can be undone.
    void replaceText(const QString& text);

    /// Offers names for the place of the cursor.
    void complete();

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void followColors();

    StyleSheetHighlighter* highlighter;
    StyleSheetCompleter* completer;
    StyleSheetSyntax::Scope scope = StyleSheetSyntax::Scope::APPLICATION;
    QVector<StyleSheetSyntax::Mistake> found;
};
