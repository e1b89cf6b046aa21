#pragma once

#include <QWidget>

#include <memory>

/// A window to edit the style sheet of the running application, or of one of its widgets, and to see changes at once.
///
/// The sheet is checked while it is typed. Mistakes are marked, and a sheet that Qt rejects as a whole is not applied.
/// Names of classes, objects and properties of the application are offered as completions. Files are UTF-8. Before
/// unsaved changes are lost, the window asks, without a modal dialog. An unmodified text is replaced by the sheet of
/// the target whenever the target is set or the editor is shown. An editor without a parent is in front of the window
/// that was active when it was shown. GUI thread only.
class ZRuntimeStylesheetEditor : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(bool applyingWhileTyping READ isApplyingWhileTyping WRITE setApplyingWhileTyping NOTIFY
                   applyingWhileTypingChanged)

public:
    /// Constructs an editor for the sheet of the application, which it does not change until a sheet is applied.
    explicit ZRuntimeStylesheetEditor(QWidget* parent = nullptr);
    ~ZRuntimeStylesheetEditor() override;

    /// Sets the target; null is the application. The widget may be destroyed at any time; nothing is applied then until
    /// another target is set.
    void setTarget(QWidget* widget);

    /// Returns null for the application and for a destroyed widget.
    QWidget* target() const;

    /// Returns false after the target was destroyed.
    bool hasTarget() const;

    /// The current text, applied or not; the sheet of the target by default. Setting it can be undone.
    QString text() const;
    void setText(const QString& text);

    /// Returns whether the text was changed since it was loaded, saved or read from the target.
    bool isModified() const;

    /// Returns the file that the text was last loaded from or saved to, or an empty string.
    QString fileName() const;

    /// Whether the text is applied 300 ms after the last key, if it has no mistakes; false by default.
    bool isApplyingWhileTyping() const;
    void setApplyingWhileTyping(bool on);

    /// Returns the current message of the window, about a mistake, a file or the last apply().
    QString message() const;

public Q_SLOTS:
    /// Applies the text to the target. Returns false and shows a message if Qt rejects it or the target was destroyed.
    bool apply();

    /// Restores the sheet that the target had before the first apply(). Does not change the text.
    void revert();

    /// Replaces the text by the sheet of the target; can be undone.
    void readFromTarget();

    /// Replaces the text by that of a file without asking about changes. Returns false and shows a message on errors.
    bool load(const QString& fileName);

    /// Writes the text to a file. Returns false and shows a message on errors.
    bool save(const QString& fileName);

    /// Shows the search bar.
    void openSearch();

Q_SIGNALS:
    /// Emitted after a sheet was applied.
    void applied();

    /// Emitted after the original sheet was restored.
    void reverted();

    /// Emitted from the event loop.
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
