#pragma once

#include <StandIn/Frames/BufferPool.h>

#include <Zelkor/Proc/SettingsColorspaceConverter.h>

#include <cstdint>
#include <memory>
#include <vector>

namespace Zelkor::StandIn {

class VideoFrame;

/// Converts frames of the stand-in to BGRA, the only target it supports. By default BGRA frames pass through.
///
/// The rows of converted frames are not padded. Their memory is reused for later frames when they are released. They
/// may outlive the converter.
class ColorspaceConverter : public RefCounted<Proc::IEffect>
{
public:
    /// Keeps `owner` alive, which may be null.
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
    bool refusing = false; ///< whether the last frame was unreadable and logged
};

} // namespace Zelkor::StandIn
