#pragma once

#include <QObject>

#include <functional>

namespace Zelkor::Vx::UI::Kit {

/// Reports the light or dark setting of the system. GUI thread.
class SystemColorScheme : public QObject
{
public:
    /// Calls `use` now, and from the event loop after each change.
    explicit SystemColorScheme(std::function<void(bool isDark)> use, QObject* parent);

private:
    bool eventFilter(QObject* object, QEvent* event) override;
    void Update();

    const std::function<void(bool)> use;
    bool isDark;
    bool isUpdating = true;
};

} // namespace Zelkor::Vx::UI::Kit
