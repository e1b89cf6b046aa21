#pragma once

#include <QLineEdit>

/// A line edit for one text that may be too long.
///
/// Without the focus it shows its text from the beginning, elided at the end when it does not fit and then whole as the
/// tool tip; the text runs from left to right whatever letters it has. With the focus it has the whole text for
/// editing, and reports what became of it when the focus leaves.
///
/// `originalText` is the text. What `QLineEdit::text()` and `textChanged` tell without the focus is what is shown: cut,
/// and between invisible direction marks. Whatever takes the text apart gets it whole and without marks nevertheless: a
/// selection, the clipboard, a drop, a key that arrives without the focus. Wherever something else judges or reads the
/// text (a validator, an input mask, a maximum length, assistive technology) or hides it (a password), the line edit
/// holds it whole all the time, and what is elided is the picture alone. What code does to the text of a line edit
/// without the focus, with `QLineEdit::setText` or `insert` for instance, is done to the whole text.
class ZLineEdit : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(bool eliding READ isEliding WRITE setEliding)
    Q_PROPERTY(QString originalText READ originalText WRITE setOriginalText NOTIFY originalTextChanged)

public:
    explicit ZLineEdit(QWidget* parent = nullptr);

    /// The whole text without marks: the last one that was set or reported. What is typed meanwhile is in `text()`.
    QString originalText() const;

    /// Sets the text, in the place of what is being typed too. Emits `originalTextChanged` unless the text is this one.
    void setOriginalText(const QString& text);

    /// Whether a text that does not fit is elided; on by default. A change shows when the line edit is resized, gets
    /// the focus or loses it.
    bool isEliding() const { return eliding; }
    void setEliding(bool on);

Q_SIGNALS:
    /// The whole text is another one: it was set, or the focus left after an edit, to another window perhaps. A menu
    /// that opens, as that of the line edit itself, does not end an edit.
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
    void refreshLater();
    void put(const QString& text);
    void showForUse();
    void takeTyped(bool staysInUse);
    void takeSelection();
    void takeForeignChange(const QString& text);
    bool mustHoldWholeText(const QString& shown) const;
    bool paintsElided(const QRect& area) const;
    QRect textArea() const;

    QString storedText;    ///< whole, with direction marks once it was set
    QString displayedText; ///< what `QLineEdit` was last given, as it took it
    QString displayedWithMask;
    bool eliding = true;
    bool focused = false;    ///< menus that come and go do not count
    bool inUse = false;      ///< holds the whole text, with the focus or for somebody who takes it apart
    bool refreshing = false; ///< changes of the text are our own
};
