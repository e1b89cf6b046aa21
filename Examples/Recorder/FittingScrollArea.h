#pragma once

#include <QScrollArea>

namespace Zelkor::Recorder {

/// Resizes its content to the viewport and shows scroll bars below the minimum size of the content.
class FittingScrollArea : public QScrollArea
{
    Q_OBJECT

public:
    explicit FittingScrollArea(QWidget* content, QWidget* parent = nullptr);

    /// Returns the size hint of the content, which QScrollArea would limit.
    QSize sizeHint() const override;
};

} // namespace Zelkor::Recorder
