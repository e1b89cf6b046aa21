#pragma once

#include <QLabel>

#include <functional>

namespace Zelkor::Vx::UI::Kit {

/// One line that says something, in the language of the application also after that changes. It takes whatever width is
/// left, elides what does not fit, and shows it whole as the tool tip. It begins at the side where the window's rows
/// begin, whatever letters it has.
class MessageLabel : public QLabel
{
    Q_OBJECT

public:
    explicit MessageLabel(QWidget* parent = nullptr);

    /// Shows what `message` returns, and calls it again when the language changes. Without one, shows nothing.
    void setMessage(std::function<QString()> message);

    QSize minimumSizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QString shownText() const;

    std::function<QString()> message;
};

} // namespace Zelkor::Vx::UI::Kit
