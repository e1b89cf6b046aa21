#pragma once

#include <QLineEdit>

/// A line edit that elides its text at the end while it does not have the focus.
///
/// An elided text is shown whole as the tool tip. Without the focus, the text is laid out from left to right whatever
/// its script. With the focus, the line edit contains the whole text, and reports a change when the focus leaves.
///
/// `originalText` is the whole text. Without the focus, `QLineEdit::text` and `textChanged` report the displayed text:
/// elided and between invisible control characters. Selections, the clipboard, drag and drop and keys always work on
/// the whole text, and so do changes by code, such as `QLineEdit::setText` and `insert`. With a validator, an input
/// mask, a maximum length, an echo mode or active assistive technology, the line edit contains the whole text all the
/// time and elides only when it paints. GUI thread only.
class ZLineEdit : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(bool eliding READ isEliding WRITE setEliding)
    Q_PROPERTY(QString originalText READ originalText WRITE setOriginalText NOTIFY originalTextChanged)

public:
    explicit ZLineEdit(QWidget* parent = nullptr);

    /// The whole text without control characters, as last set or reported; empty by default. Typed text that is not
    /// reported yet is in `text()`.
    QString originalText() const;

    /// Sets the whole text and discards typed text. Emits `originalTextChanged` if the text differs.
    void setOriginalText(const QString& text);

    /// Whether a text that does not fit is elided; true by default. Takes effect when the line edit is resized or the
    /// focus changes.
    bool isEliding() const { return eliding; }
    void setEliding(bool on);

Q_SIGNALS:
    /// Emitted when the whole text is set, or when the focus or the active window changes after an edit. Pop-ups, such
    /// as the context menu, do not end an edit.
    void originalTextChanged(QString text);

protected:
    bool event(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void refreshText();
    void refreshTextLater();
    void put(const QString& text);
    void displayWholeText();
    void commitTypedText(bool keepWhole);
    void extendSelection();
    void handleTextSetByCode(const QString& text);
    bool mustContainWholeText(const QString& shown) const;
    bool paintsElided(const QRect& area) const;
    QRect textArea() const;

    QString storedText;        ///< whole, with control characters once it was set
    QString displayedText;     ///< `text()` after the last change by this class
    QString displayedWithMask; ///< input mask at that time
    bool eliding = true;
    bool focused = false;    ///< also while a pop-up has it
    bool isWhole = false;    ///< contains the whole text for editing, with or without the focus
    bool refreshing = false; ///< during changes by this class
};
