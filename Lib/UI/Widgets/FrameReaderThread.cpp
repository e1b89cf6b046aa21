#include <UI/Widgets/FrameReaderThread.h>

#include <UI/Common/CatchException.h>
#include <UI/Widgets/PreviewGate.h>

#include <algorithm>
#include <chrono>
#include <utility>

namespace Zelkor::Vx {

namespace {

// Whole frames per second, so 29.97 makes 34 ms. A rate above 1000 would leave no time between two frames.
std::chrono::milliseconds FramePeriod(double frameRate)
{
    return std::chrono::milliseconds(1000 / static_cast<int>(std::clamp(frameRate, 1.0, 1000.0)));
}

} // namespace

FrameReaderThread::FrameReaderThread(std::shared_ptr<PreviewGate> gate,
                                     boost::intrusive_ptr<Acquis::IFrameReader> reader, double frameRate,
                                     FailureHandler onFailure)
    : gate(std::move(gate)), reader(std::move(reader)), period(FramePeriod(frameRate)), onFailure(std::move(onFailure))
{}

FrameReaderThread::~FrameReaderThread()
{
    // Nobody joined, so the last reference was the thread's own and this is its end.
    if (thread.joinable())
        thread.detach();
}

void FrameReaderThread::Start(const std::shared_ptr<FrameReaderThread>& pump)
{
    pump->thread = std::thread([pump] { pump->Run(); });
}

void FrameReaderThread::Stop()
{
    {
        const std::lock_guard<std::mutex> lock(mutex);
        stopping = true;
    }
    wake.notify_all();
    if (std::this_thread::get_id() != thread.get_id())
        std::call_once(joined, [this] { thread.join(); });
}

void FrameReaderThread::Run()
{
    if (!reader || !gate->IsOpen())
        return;
    const auto failure = UI::Common::CatchException([this] { ShowFrames(); });
    gate->Reset();
    reader = nullptr;
    if (failure)
        onFailure(*failure);
}

void FrameReaderThread::ShowFrames()
{
    const auto isStopping = [this] { return stopping; };
    auto deadline = std::chrono::steady_clock::now() + period;
    std::unique_lock<std::mutex> lock(mutex);
    while (!wake.wait_until(lock, deadline, isStopping)) {
        lock.unlock();
        boost::intrusive_ptr<Proc::IDataVideo> frame;
        reader->ReadLatestFrame(frame);
        gate->Show(frame);
        deadline += period;
        const bool previewIsGone = !gate->IsOpen();
        lock.lock();
        if (previewIsGone)
            break;
    }
}

} // namespace Zelkor::Vx
