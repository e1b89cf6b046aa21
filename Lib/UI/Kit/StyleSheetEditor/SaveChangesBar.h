#pragma once

#include <QWidget>

#include <functional>

class QPushButton;

namespace Zelkor::Vx::UI::Kit {

class MessageLabel;

/// Asks within a window whether to save unsaved changes, without blocking the program.
class SaveChangesBar : public QWidget
{
    Q_OBJECT

public:
    explicit SaveChangesBar(QWidget* parent = nullptr);

    /// Shows the question; `then` runs once the text is saved or its changes are discarded. Replaces a question that is
    /// shown.
    void ask(std::function<void()> then);

    /// Hides the question and runs what it held up.
    void proceed();

    /// Hides the question and drops what it held up.
    void dismiss();

Q_SIGNALS:
    /// Save was pressed; call proceed() when that is done.
    void saveRequested();

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void retranslate();

    std::function<void()> next;
    MessageLabel* question;
    QPushButton* saveButton;
    QPushButton* discardButton;
    QPushButton* cancelButton;
};

} // namespace Zelkor::Vx::UI::Kit
