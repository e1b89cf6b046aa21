#pragma once

#include <QSyntaxHighlighter>

namespace Zelkor::Vx::UI::Kit {

/// Highlights the syntax of a style sheet, with colours for light or dark backgrounds.
class StyleSheetHighlighter : public QSyntaxHighlighter
{
    Q_OBJECT

public:
    /// The document owns the highlighter.
    explicit StyleSheetHighlighter(QTextDocument* document) : QSyntaxHighlighter(document) {}

    /// Sets whether the background is dark; false by default.
    void setOnDark(bool on);

    /// Sets whether the sheet consists of declarations only, without selector and braces; false by default.
    void setDeclarationsOnly(bool on);

protected:
    void highlightBlock(const QString& text) override;

private:
    bool onDark = false;
    bool declarationsOnly = false;
};

} // namespace Zelkor::Vx::UI::Kit
