#pragma once

#include <QScrollArea>

namespace Zelkor::Gallery {

/// Gives its content the whole room, and scroll bars where that is less than the content needs.
class Scrolled : public QScrollArea
{
    Q_OBJECT

public:
    explicit Scrolled(QWidget* content, QWidget* parent = nullptr);

    /// That of the content, where Qt's own scroll areas are content with some lines of text.
    QSize sizeHint() const override;
};

/// Has a window be no larger than its screen, with its frame.
void FitScreen(QWidget* window);

} // namespace Zelkor::Gallery
