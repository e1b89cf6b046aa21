#pragma once

#include <StandIn/Frames/BufferPool.h>

#include <Zelkor/Proc/SettingsColorspaceConverter.h>

#include <cstdint>
#include <memory>
#include <vector>

namespace Zelkor::StandIn {

class VideoFrame;

/// Brings frames of the stand-in into BGRA, the one target it has. Until it is told otherwise, frames that are BGRA
/// already pass through.
///
/// The frames that come out have their rows without gaps. Their memory is used again for later frames once nobody
/// holds them any more; they may outlive the converter.
class ColorspaceConverter : public RefCounted<Proc::IEffect>
{
public:
    /// `owner` is held as long as the converter lives; it may be null.
    explicit ColorspaceConverter(boost::intrusive_ptr<IRefCountable> owner);
    ~ColorspaceConverter() override;

    void Process(boost::intrusive_ptr<Proc::IDataVideo>& frame) override;
    void ApplySettings(const Proc::IEffectSettings& settings) override;

private:
    boost::intrusive_ptr<Proc::IDataVideo> Convert(const VideoFrame& source);

    boost::intrusive_ptr<IRefCountable> owner;
    Proc::SettingsColorspaceConverter settings;
    std::shared_ptr<BufferPool> pool;
    std::vector<std::uint8_t> scratch;
    bool refusing = false; ///< the last frame was refused, which has been logged
};

} // namespace Zelkor::StandIn
