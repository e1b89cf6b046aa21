#pragma once

#include <Zelkor/Proc/IDataVideo.h>

#include <atomic>
#include <mutex>
#include <optional>

namespace Zelkor::Vx {

namespace UI {
class VideoPreviewWidget;
}

/// Gives other threads access to a preview widget, until it is closed. Any thread. Internal.
class PreviewGate
{
public:
    explicit PreviewGate(UI::VideoPreviewWidget* preview) : preview(preview) {}

    /// Shows the frame while the gate is open. Does nothing when the preview shows this frame already, in this size.
    void Show(const boost::intrusive_ptr<Proc::IDataVideo>& frame);
    void Reset();
    bool IsOpen() const;

    /// Blocks until a running conversion has ended. Afterwards no thread uses the preview.
    void Close();

private:
    std::atomic<bool> isClosing{false}; ///< keeps a late thread from taking the mutex again before `Close` does
    mutable std::mutex mutex;           ///< held while the preview converts a frame
    UI::VideoPreviewWidget* preview;
    boost::intrusive_ptr<Proc::IDataVideo> shown; ///< owned, so that no other frame can have its address
    std::optional<unsigned> shownRevision;        ///< of the preview; none before the first frame
};

} // namespace Zelkor::Vx
