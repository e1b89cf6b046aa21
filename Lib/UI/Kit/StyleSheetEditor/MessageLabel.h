#pragma once

#include <QLabel>

#include <functional>

namespace Zelkor::Vx::UI::Kit {

/// A single-line message that follows changes of the language.
///
/// The label uses the available width, elides the message and shows all of it as the tool tip. The message is aligned
/// by the layout direction, whatever its script.
class MessageLabel : public QLabel
{
    Q_OBJECT

public:
    explicit MessageLabel(QWidget* parent = nullptr);

    /// Shows what `message` returns, and calls it again after a change of the language. An empty function shows
    /// nothing.
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
