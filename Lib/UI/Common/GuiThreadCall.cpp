#include <UI/Common/GuiThreadCall.h>

#include <QCoreApplication>
#include <QEvent>
#include <QThread>

#include <atomic>
#include <utility>

namespace Zelkor::Vx::UI::Common {

struct GuiThreadCall::State
{
    const QThread* thread;
    std::function<void()> function; ///< GUI thread only
    std::atomic<bool> isPending{false};
};

class GuiThreadCall::Carrier : public QEvent
{
public:
    explicit Carrier(std::shared_ptr<State> state) : QEvent(QEvent::User), state(std::move(state))
    {
        isComplete.store(true, std::memory_order_release);
    }

    ~Carrier() override
    {
        // Qt's lock orders access to the event between the threads, but ThreadSanitizer does not see that lock.
        isComplete.load(std::memory_order_acquire);
        // On another thread, or without an application, Qt deletes events only while the process exits.
        if (!QCoreApplication::instance() || QThread::currentThread() != state->thread)
            return;
        // Cleared first, so that a request made during the call leads to another call.
        state->isPending = false;
        if (const auto function = state->function)
            function();
    }

private:
    const std::shared_ptr<State> state;
    std::atomic<bool> isComplete{false};
};

GuiThreadCall::GuiThreadCall(QObject* receiver, std::function<void()> function)
    : receiver(receiver), state(std::make_shared<State>())
{
    state->thread = QThread::currentThread();
    state->function = std::move(function);
}

void GuiThreadCall::Request()
{
    if (!state->isPending.exchange(true))
        QCoreApplication::postEvent(receiver, new Carrier(state));
}

void GuiThreadCall::Cancel()
{
    state->function = nullptr;
}

} // namespace Zelkor::Vx::UI::Common
