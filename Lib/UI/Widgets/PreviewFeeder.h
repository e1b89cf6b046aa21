#pragma once

#include <memory>

namespace Zelkor::Vx {

namespace UI {
class VideoPreviewWidget;
}

/// Something that feeds a preview widget from another thread. Internal; GUI thread.
class PreviewFeeder
{
public:
    virtual ~PreviewFeeder() = default;

    /// Stops feeding: when this returns, no thread uses the preview and none will.
    virtual void EndFeeding() = 0;

    /// Has `feeder` end before `preview` is destroyed, and at the latest before the application object is.
    static void Register(const UI::VideoPreviewWidget* preview, const std::weak_ptr<PreviewFeeder>& feeder);

    /// Ends the feeders of `preview`; a direct call, which no event filter can intercept.
    static void EndAllOf(const UI::VideoPreviewWidget* preview);
};

} // namespace Zelkor::Vx
