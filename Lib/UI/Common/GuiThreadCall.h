#pragma once

#include <functional>
#include <memory>

class QObject;

namespace Zelkor::Vx::UI::Common {

/// Calls a function on the GUI thread when any thread requests it. Merges requests while one is pending.
///
/// The call is made when the event that carries the request is deleted, so that an event filter cannot prevent it. The
/// function must not rely on `deleteLater()`, which Qt ties to the delivery of events.
class GuiThreadCall
{
public:
    /// GUI thread. `receiver` lives on that thread and must exist whenever `Request` is called.
    GuiThreadCall(QObject* receiver, std::function<void()> function);

    /// Any thread.
    void Request();

    /// Prevents further calls. GUI thread.
    void Cancel();

private:
    struct State;
    class Carrier;

    QObject* const receiver;
    const std::shared_ptr<State> state; ///< shared with the pending event
};

} // namespace Zelkor::Vx::UI::Common
