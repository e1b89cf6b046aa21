#pragma once

#include <functional>
#include <memory>

class QObject;

namespace Zelkor::Vx::UI::Common {

/// Calls a function on the GUI thread at the request of any thread. Requests made while one is pending are merged.
///
/// The call is made when the event that carries the request is deleted, so an event filter that swallows the event
/// does not prevent the call. The function must not rely on `deleteLater()`, which Qt ties to the delivery of events.
class GuiThreadCall
{
public:
    /// Construct it on the GUI thread. `receiver` lives on that thread and must exist whenever `Request` is called.
    GuiThreadCall(QObject* receiver, std::function<void()> function);

    /// Any thread.
    void Request();

    /// Prevents further calls. GUI thread.
    void Cancel();

private:
    struct State;
    class Carrier;

    QObject* const receiver;
    const std::shared_ptr<State> state; ///< shared with the event that is under way
};

} // namespace Zelkor::Vx::UI::Common
