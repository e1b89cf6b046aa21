#pragma once

#include <memory>

namespace Zelkor::Vx {

namespace UI {
class VideoPreviewWidget;
}

/// Interface of an object that feeds a preview widget from another thread. GUI thread. Internal.
class PreviewFeeder
{
public:
    virtual ~PreviewFeeder() = default;

    /// Stops feeding. After it returns, no thread uses the preview.
    virtual void EndFeeding() = 0;

    /// Registers `feeder` to be stopped before `preview` or the application object is destroyed.
    static void Register(const UI::VideoPreviewWidget* preview, const std::weak_ptr<PreviewFeeder>& feeder);

    /// Stops the feeders of `preview`. Called directly, since an event filter could intercept an event.
    static void EndAllOf(const UI::VideoPreviewWidget* preview);
};

} // namespace Zelkor::Vx
