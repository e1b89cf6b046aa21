#pragma once

#include <QWidget>

#include <memory>

/// A window in which a developer edits the style sheet of the running application, or of one widget in it, and sees the
/// change at once.
///
/// It checks the sheet while it is typed, shows mistakes beside their line, and applies none that Qt refuses, as it
/// would drop it whole. Where Qt drops a declaration alone, the sheet is applied and the mistake is shown. It offers
/// the names of classes, objects and properties that the application has. Files are UTF-8. A change that was not saved
/// is asked about within the window before it would be lost; the program goes on meanwhile.
///
/// Unless it was changed, the text is that of the target, read again whenever the target is set or the editor is shown.
class ZRuntimeStylesheetEditor : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(bool applyingWhileTyping READ isApplyingWhileTyping WRITE setApplyingWhileTyping NOTIFY
                   applyingWhileTypingChanged)

public:
    /// Edits the sheet of the application at first. Changes nothing before something is applied.
    explicit ZRuntimeStylesheetEditor(QWidget* parent = nullptr);
    ~ZRuntimeStylesheetEditor() override;

    /// Whose sheet it is; null is the application. The widget may be destroyed at any time: nothing is applied then
    /// before another target is set.
    void setTarget(QWidget* widget);

    /// Null for the application, and for a widget that is gone.
    QWidget* target() const;

    /// Whether the target is there: not a widget that is gone.
    bool hasTarget() const;

    /// The text as it is typed, applied or not. Setting it is an edit like any other, which can be undone.
    QString text() const;
    void setText(const QString& text);

    /// Whether the text was changed since it was loaded, saved or read from the target.
    bool isModified() const;

    /// The file that the text was loaded from or saved to last; empty when there is none.
    QString fileName() const;

    /// Whether the text is applied when the typing pauses; off by default.
    bool isApplyingWhileTyping() const;
    void setApplyingWhileTyping(bool on);

    /// What the window says last: of a mistake, a file, or what was applied.
    QString message() const;

public Q_SLOTS:
    /// Applies the text to the target; false, and the reason as the message, when Qt refuses it or the target is gone.
    bool apply();

    /// Gives the target the sheet that it had before the first one was applied. The text stays as it is.
    void revert();

    /// Replaces the text with the sheet that the target has; can be undone.
    void readFromTarget();

    /// Replaces the text with that of a file, without asking about changes; false, with the reason as the message and
    /// the text as it was, when it cannot be read.
    bool load(const QString& fileName);

    /// Writes the text to a file; false, with the reason as the message, when it cannot be written.
    bool save(const QString& fileName);

    /// Shows the bar that finds and replaces.
    void openSearch();

Q_SIGNALS:
    void applied();
    void reverted();
    /// Comes out of the event loop.
    void applyingWhileTypingChanged(bool on);

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    struct Impl;
    std::unique_ptr<Impl> impl;
};
