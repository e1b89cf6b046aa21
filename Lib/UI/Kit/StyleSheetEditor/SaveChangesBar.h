#pragma once

#include <QPointer>
#include <QWidget>

#include <functional>

class QPushButton;

namespace Zelkor::Vx::UI::Kit {

class MessageLabel;

/// A bar that asks whether to save changes, without a modal dialog.
class SaveChangesBar : public QWidget
{
    Q_OBJECT

public:
    explicit SaveChangesBar(QWidget* parent = nullptr);

    /// Shows the question. Calls `then` after the text is saved or the changes are discarded. Replaces a question that
    /// is already shown.
    void ask(std::function<void()> then);

    /// Hides the question, restores the focus and calls the pending function.
    void proceed();

    /// Hides the question, restores the focus and drops the pending function.
    void dismiss();

Q_SIGNALS:
    /// Emitted when Save is pressed. The receiver calls proceed() after saving.
    void saveRequested();

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void retranslate();
    void restoreFocusAndHide();

    std::function<void()> next;
    QPointer<QWidget> previousFocus; ///< before the question
    MessageLabel* question;
    QPushButton* saveButton;
    QPushButton* discardButton;
    QPushButton* cancelButton;
};

} // namespace Zelkor::Vx::UI::Kit
