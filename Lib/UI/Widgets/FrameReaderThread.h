#pragma once

#include <Zelkor/Acquis/IFrameProvider.h>

#include <atomic>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

namespace Zelkor::Vx {

namespace UI {
class VideoPreviewWidget;
}

/// The way from other threads to a preview widget: it can be closed before the widget dies. Any thread; internal.
class PreviewGate
{
public:
    explicit PreviewGate(UI::VideoPreviewWidget* preview) : preview(preview) {}

    /// Shows the frame, if the preview is still there. Does nothing when it shows this frame already, in this size.
    void Show(const boost::intrusive_ptr<Proc::IDataVideo>& frame);
    void Reset();
    bool IsOpen() const;

    /// When this returns, no thread uses the preview and none will. Waits for the conversion that runs, for no other.
    void Close();

private:
    std::atomic<bool> isClosing{false}; ///< keeps a pump that is late from taking the mutex again before `Close`
    mutable std::mutex mutex;           ///< held while the preview takes a frame
    UI::VideoPreviewWidget* preview;
    boost::intrusive_ptr<Proc::IDataVideo> shown; ///< held, so that no other frame can have its address
    std::optional<unsigned> shownRevision;        ///< of the preview, none before the first frame
};

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
