#pragma once

#include <StandIn/GStreamer/GStreamerPtr.h>

#include <chrono>
#include <functional>
#include <vector>

namespace Zelkor::StandIn {

/// Measures the level of a microphone. Not thread-safe; the callbacks run on threads of GStreamer.
class MicrophoneLevel
{
public:
    /// Names of the elements that capture from microphones on the supported platforms, by preference.
    static const std::vector<const char*>& Elements();

    /// Calls `peak` with decibels relative to full scale, and `failed` when the microphone fails. Neither is called
    /// after the destructor.
    MicrophoneLevel(std::function<void(double decibels)> peak, std::function<void()> failed);
    ~MicrophoneLevel();

    /// Opens the element's default microphone; may block. Returns false when there is none, and does not log that,
    /// since it is not an error. Call it once.
    bool Open(const char* element, std::chrono::nanoseconds interval);

private:
    static GstBusSyncReply HandleMessage(GstBus* bus, GstMessage* message, gpointer microphone);

    const std::function<void(double)> peak;
    const std::function<void()> failed;
    GStreamerPtr<GstElement> pipeline;
};

} // namespace Zelkor::StandIn
