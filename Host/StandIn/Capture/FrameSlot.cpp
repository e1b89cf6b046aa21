#include <StandIn/Capture/FrameSlot.h>

#include <glog/logging.h>

#include <utility>

namespace Zelkor::StandIn {

namespace {

/// An output and its reader in one object, so that either keeps the other alive.
class Output : public RefCounted<Acquis::ICaptureOutput, Acquis::IFrameReader>
{
public:
    explicit Output(std::shared_ptr<const FrameSlot> slot) : slot(std::move(slot)) {}

    void SetTimeShift(const boost::intrusive_ptr<Acquis::TimeShift>& newShift) override
    {
        // The former one is destroyed after the lock.
        auto former = newShift;
        const std::lock_guard<std::mutex> lock(mutex);
        former.swap(shift);
        source = nullptr;
        shifted = nullptr;
    }

    boost::intrusive_ptr<Acquis::IFrameReader> GetFrameReader() override { return this; }

    void ReadLatestFrame(boost::intrusive_ptr<Proc::IDataVideo>& frame) override
    {
        const auto newest = slot->Get();
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
    /// The frame under the time that `current` gives it. It is kept, so that the same frame comes again as the same.
    FrameSlot::Frame Shifted(const FrameSlot::Frame& newest, const boost::intrusive_ptr<Acquis::TimeShift>& current)
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

    const std::shared_ptr<const FrameSlot> slot;
    std::mutex mutex; ///< guards all that follows
    boost::intrusive_ptr<Acquis::TimeShift> shift;
    FrameSlot::Frame source; ///< the frame that was shifted last
    FrameSlot::Frame shifted;
};

class Provider : public RefCounted<Acquis::IFrameProvider>
{
public:
    explicit Provider(std::shared_ptr<const FrameSlot> slot) : slot(std::move(slot)) {}

    void CreateOutput(boost::intrusive_ptr<Acquis::ICaptureOutput>& output, const std::string& name, int index) override
    {
        output = nullptr;
        if (index != 0) {
            LOG(ERROR) << "There is no picture number " << index << " for output " << name;
            return;
        }
        output = new Output(slot);
    }

private:
    const std::shared_ptr<const FrameSlot> slot;
};

} // namespace

void FrameSlot::Put(Frame frame)
{
    // The former frame is released after the lock.
    const std::lock_guard<std::mutex> lock(mutex);
    if (!closed)
        newest.swap(frame);
}

FrameSlot::Frame FrameSlot::Get() const
{
    const std::lock_guard<std::mutex> lock(mutex);
    return newest;
}

void FrameSlot::Close()
{
    Frame last;
    const std::lock_guard<std::mutex> lock(mutex);
    closed = true;
    last.swap(newest);
}

boost::intrusive_ptr<Acquis::IFrameProvider> CreateFrameProvider(const std::shared_ptr<const FrameSlot>& slot)
{
    return new Provider(slot);
}

} // namespace Zelkor::StandIn
