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

/// Reads the newest frame once per frame period and shows it in a preview, on a worker thread. Internal.
///
/// Starts and stops once. The schedule is absolute, so the time spent on a frame does not add up; a late read follows
/// immediately and is not skipped.
class FrameReaderThread
{
public:
    /// Receives the message of an exception of the reader or the preview. Called at the end of the worker thread.
    using FailureHandler = std::function<void(const std::string& what)>;

    FrameReaderThread(std::shared_ptr<PreviewGate> gate, boost::intrusive_ptr<Acquis::IFrameReader> reader,
                      double frameRate, FailureHandler onFailure);
    ~FrameReaderThread();

    /// Starts the worker thread, which keeps `self` alive until it ends. Throws `std::system_error` if the system
    /// cannot create a thread.
    static void Start(const std::shared_ptr<FrameReaderThread>& self);

    /// Ends the worker thread and waits for it, unless called on the worker itself. May be called from any thread and
    /// repeatedly, after `Start` has returned.
    void Stop();

private:
    void Run();
    void ShowFrames();

    const std::shared_ptr<PreviewGate> gate;
    boost::intrusive_ptr<Acquis::IFrameReader>
        reader; ///< released at the end of the thread, since it may own the device
    const std::chrono::milliseconds period;
    const FailureHandler onFailure;

    std::mutex mutex;
    std::condition_variable wake;
    bool stopping = false; ///< guarded by `mutex`; never reset, so that no start can undo a stop

    std::thread thread;
    std::once_flag joined;
};

} // namespace Zelkor::Vx
