#pragma once

#include <QScrollArea>

namespace Zelkor::Gallery {

/// The first page: a live preview among a few of the widgets, and a button that starts the recorder.
class StartPage : public QScrollArea
{
    Q_OBJECT

public:
    explicit StartPage(QWidget* parent = nullptr);

Q_SIGNALS:
    void RecorderRequested();
};

} // namespace Zelkor::Gallery
