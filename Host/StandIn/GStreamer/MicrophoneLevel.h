#pragma once

#include <StandIn/GStreamer/GStreamerPtr.h>

#include <chrono>
#include <functional>
#include <vector>

namespace Zelkor::StandIn {

/// An open microphone of which only the level counts. One thread, apart from the callbacks.
class MicrophoneLevel
{
public:
    /// Names of the elements that may have a microphone on this kind of machine, the best first.
    static const std::vector<const char*>& Elements();

    /// Both are called on threads of the pipeline, never after the destructor: `peak` with decibels of full scale, and
    /// `failed` when the microphone cannot go on.
    MicrophoneLevel(std::function<void(double decibels)> peak, std::function<void()> failed);
    ~MicrophoneLevel();

    /// Opens the element's default microphone; may take its time. False, without a log line, when there is none: that
    /// is nothing unusual. To be called once.
    bool Open(const char* element, std::chrono::nanoseconds interval);

private:
    static GstBusSyncReply HandleMessage(GstBus* bus, GstMessage* message, gpointer microphone);

    const std::function<void(double)> peak;
    const std::function<void()> failed;
    GStreamerPtr<GstElement> pipeline;
};

} // namespace Zelkor::StandIn
