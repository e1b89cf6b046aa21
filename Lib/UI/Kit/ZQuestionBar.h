#pragma once

#include <QWidget>

#include <functional>

class QPushButton;
class ZMessageLabel;

/// Asks within a window what shall become of changes that were not saved, and does not hold up the program meanwhile.
class ZQuestionBar : public QWidget
{
    Q_OBJECT

public:
    explicit ZQuestionBar(QWidget* parent = nullptr);

    /// Shows the question; `then` is what the person was about to do. A question that shows is dropped.
    void ask(std::function<void()> then);

    /// Does what the person was about to do, once the question is settled.
    void proceed();

    /// Drops the question, and what the person was about to do.
    void dismiss();

Q_SIGNALS:
    /// The person wants to save; `proceed` is for when that is done.
    void saveWanted();

    /// The person does not want the changes any more. What was to be done comes after it.
    void discarded();

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void retranslate();

    std::function<void()> next;
    ZMessageLabel* question;
    QPushButton* saveButton;
    QPushButton* discardButton;
    QPushButton* cancelButton;
};
