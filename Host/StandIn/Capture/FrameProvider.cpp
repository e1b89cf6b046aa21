#include <StandIn/Capture/FrameProvider.h>

#include <glog/logging.h>

#include <utility>

namespace Zelkor::StandIn {

namespace {

/// An output and its reader in one object, so that each keeps the other alive.
class Output : public RefCounted<Acquis::ICaptureOutput, Acquis::IFrameReader>
{
public:
    explicit Output(std::shared_ptr<const LatestFrame> latest) : latest(std::move(latest)) {}

    void SetTimeShift(const boost::intrusive_ptr<Acquis::TimeShift>& newShift) override
    {
        // The previous shift is released after the lock.
        auto previous = newShift;
        const std::lock_guard<std::mutex> lock(mutex);
        previous.swap(shift);
        source = nullptr;
        shifted = nullptr;
    }

    boost::intrusive_ptr<Acquis::IFrameReader> GetFrameReader() override { return this; }

    void ReadLatestFrame(boost::intrusive_ptr<Proc::IDataVideo>& frame) override
    {
        const auto newest = latest->Get();
        boost::intrusive_ptr<Acquis::TimeShift> current;
        {
            const std::lock_guard<std::mutex> lock(mutex);
            current = newest ? shift : nullptr;
            if (current && newest == source) {
                frame = shifted;
                return;
            }
        }
        frame = current ? Shifted(newest, current) : newest;
    }

private:
    /// Returns the frame with its time mapped by `current`. Caches it, so that the same frame is returned as the same
    /// object.
    LatestFrame::Frame Shifted(const LatestFrame::Frame& newest, const boost::intrusive_ptr<Acquis::TimeShift>& current)
    {
        const std::int64_t time = current->MapTime(newest->GetTime());
        auto result = time == newest->GetTime() ? newest : newest->WithTime(time);
        const std::lock_guard<std::mutex> lock(mutex);
        if (shift == current) {
            source = newest;
            shifted = result;
        }
        return result;
    }

    const std::shared_ptr<const LatestFrame> latest;
    std::mutex mutex; ///< guards all members below
    boost::intrusive_ptr<Acquis::TimeShift> shift;
    LatestFrame::Frame source; ///< the last frame that was shifted
    LatestFrame::Frame shifted;
};

class Provider : public RefCounted<Acquis::IFrameProvider>
{
public:
    explicit Provider(std::shared_ptr<const LatestFrame> latest) : latest(std::move(latest)) {}

    void CreateOutput(boost::intrusive_ptr<Acquis::ICaptureOutput>& output, const std::string& name, int index) override
    {
        output = nullptr;
        if (index != 0) {
            LOG(ERROR) << "There is no picture number " << index << " for output " << name;
            return;
        }
        output = new Output(latest);
    }

private:
    const std::shared_ptr<const LatestFrame> latest;
};

} // namespace

boost::intrusive_ptr<Acquis::IFrameProvider> CreateFrameProvider(std::shared_ptr<const LatestFrame> latest)
{
    return new Provider(std::move(latest));
}

} // namespace Zelkor::StandIn
