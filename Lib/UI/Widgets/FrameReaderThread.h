#pragma once

#include <Zelkor/Acquis/IFrameProvider.h>

#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

namespace Zelkor::Vx {

class PreviewGate;

/// A thread that shows the newest frame of a reader once per frame period. Internal.
///
/// It is made for one run: started once, stopped for good. The schedule is absolute, so that the time spent on a frame
/// does not add up; a late tick is not skipped but follows at once.
class FrameReaderThread
{
public:
    /// Receives what the reader or the preview threw; called on the pump's thread, at its end.
    using FailureHandler = std::function<void(const std::string& what)>;

    FrameReaderThread(std::shared_ptr<PreviewGate> gate, boost::intrusive_ptr<Acquis::IFrameReader> reader,
                      double frameRate, FailureHandler onFailure);
    ~FrameReaderThread();

    /// Starts the thread of `pump`, which it keeps alive until it ends. Throws `std::system_error` when there are no
    /// threads left.
    static void Start(const std::shared_ptr<FrameReaderThread>& pump);

    /// Ends the thread. Whoever calls waits until it has ended, except the thread itself. Any thread, any number of
    /// times, once `Start` has returned.
    void Stop();

private:
    void Run();
    void ShowFrames();

    const std::shared_ptr<PreviewGate> gate;
    boost::intrusive_ptr<Acquis::IFrameReader> reader; ///< released by the thread at its end; it may hold the device
    const std::chrono::milliseconds period;
    const FailureHandler onFailure;

    std::mutex mutex;
    std::condition_variable wake;
    bool stopping = false; ///< guarded by `mutex`; never false again, so that no start can undo a stop

    std::thread thread;
    std::once_flag joined;
};

} // namespace Zelkor::Vx
