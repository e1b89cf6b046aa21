#pragma once

#include <QSyntaxHighlighter>

namespace Zelkor::Vx::UI::Kit {

/// Colours the words of a style sheet. Each colour is readable on a dark or on a light ground, whichever is told.
class StyleSheetHighlighter : public QSyntaxHighlighter
{
    Q_OBJECT

public:
    /// Belongs to the document.
    explicit StyleSheetHighlighter(QTextDocument* document) : QSyntaxHighlighter(document) {}

    /// Whether the text lies on a dark ground; it does not by default.
    void setOnDark(bool on);

    /// Whether the sheet is declarations alone, without a selector and braces; it is not by default.
    void setDeclarationsAlone(bool on);

protected:
    void highlightBlock(const QString& text) override;

private:
    bool onDark = false;
    bool declarationsAlone = false;
};

} // namespace Zelkor::Vx::UI::Kit
