#include <UI/Widgets/FrameReaderThread.h>

#include <UI/Common/CatchException.h>
#include <UI/Widgets/PreviewGate.h>

#include <algorithm>
#include <chrono>
#include <utility>

namespace Zelkor::Vx {

namespace {

// Truncates the rate, so 29.97 frames per second become 34 ms. Clamps it to 1000, for a period of at least 1 ms.
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
    // Joinable only on the worker thread itself, which has released the last reference.
    if (thread.joinable())
        thread.detach();
}

void FrameReaderThread::Start(const std::shared_ptr<FrameReaderThread>& self)
{
    self->thread = std::thread([self] { self->Run(); });
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
