#pragma once

#include <QWidget>

namespace Zelkor::Recorder {

/// The trimmer's frameless window.
class TrimWindow : public QWidget
{
    Q_OBJECT

public:
    TrimWindow();
};

} // namespace Zelkor::Recorder
