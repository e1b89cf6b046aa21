#include <StandIn/Frames/ColorspaceConverter.h>

#include <StandIn/Frames/BgraConversion.h>

#include <Zelkor/StandIn/VideoFrame.h>

#include <glog/logging.h>

#include <limits>
#include <new>
#include <utility>

namespace Zelkor::StandIn {

namespace {

constexpr Proc::PixFmt ONLY_TARGET = Proc::PixFmt::BGRA;
constexpr int BYTES_PER_PIXEL = 4;

// libyuv and QImage count bytes by int.
constexpr std::int64_t MAX_BYTES = std::numeric_limits<int>::max();

} // namespace

ColorspaceConverter::ColorspaceConverter(boost::intrusive_ptr<IRefCountable> effectOwner)
    : owner(std::move(effectOwner)), settings(ONLY_TARGET, true), pool(BufferPool::Create())
{}

ColorspaceConverter::~ColorspaceConverter()
{
    pool->Close();
}

void ColorspaceConverter::Process(boost::intrusive_ptr<Proc::IDataVideo>& frame)
{
    const auto* source = dynamic_cast<const VideoFrame*>(frame.get());
    if (source && source->IsReadable()) {
        if (settings.IsPassThrough() && source->GetPixelFormat() == ONLY_TARGET) {
            refusing = false;
            return;
        }
        if (const boost::intrusive_ptr<Proc::IDataVideo> converted = Convert(*source)) {
            refusing = false;
            frame = converted;
            return;
        }
    }
    if (!refusing) {
        LOG(ERROR) << "Zelkor::Proc::ColorspaceConverter::Process: cannot read a frame of pixel format "
                   << static_cast<int>(frame ? frame->GetPixelFormat() : Proc::PixFmt::None);
    }
    refusing = true;
    frame = nullptr;
}

void ColorspaceConverter::ApplySettings(const Proc::IEffectSettings& newSettings)
{
    const auto* own = dynamic_cast<const Proc::SettingsColorspaceConverter*>(&newSettings);
    if (!own) {
        LOG(ERROR) << "Zelkor::Proc::ColorspaceConverter::ApplySettings: settings of another effect";
        return;
    }
    if (own->GetTarget() != ONLY_TARGET) {
        LOG(ERROR) << "Zelkor::Proc::ColorspaceConverter::ApplySettings: no conversion to pixel format "
                   << static_cast<int>(own->GetTarget());
        return;
    }
    settings = *own;
}

// Returns null when there is no conversion or no memory for the picture.
boost::intrusive_ptr<Proc::IDataVideo> ColorspaceConverter::Convert(const VideoFrame& source)
{
    FrameFormat format = source.GetFormat();
    const std::int64_t stride = std::int64_t{format.width} * BYTES_PER_PIXEL;
    if (stride > MAX_BYTES / format.height)
        return nullptr;
    format.pixFmt = ONLY_TARGET;

    try {
        const auto size = static_cast<std::size_t>(stride * format.height);
        std::shared_ptr<std::uint8_t> buffer = pool->Take(size);
        if (!ConvertToBgra(source, buffer.get(), static_cast<int>(stride), scratch))
            return nullptr;
        const Planes planes{{{buffer.get(), static_cast<int>(stride), size}}};
        return VideoFrame::Reference(format, planes, std::move(buffer), source.GetTime());
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

} // namespace Zelkor::StandIn
