#include <UI/Widgets/PreviewGate.h>

#include <UI/Widgets/VideoPreviewWidget.h>

namespace Zelkor::Vx {

void PreviewGate::Show(const boost::intrusive_ptr<Proc::IDataVideo>& frame)
{
    if (isClosing)
        return;
    const std::lock_guard<std::mutex> lock(mutex);
    if (!preview || (frame == shown && preview->GetRevision() == shownRevision))
        return;
    // The revision that this frame creates. A concurrent change creates a different one, which no frame has.
    const unsigned revision = preview->GetRevision() + 1;
    preview->UpdateView(frame);
    shown = frame;
    shownRevision = revision;
}

void PreviewGate::Reset()
{
    const std::lock_guard<std::mutex> lock(mutex);
    shown = nullptr;
    shownRevision.reset();
    if (preview)
        preview->ResetPreview();
}

bool PreviewGate::IsOpen() const
{
    if (isClosing)
        return false;
    const std::lock_guard<std::mutex> lock(mutex);
    return preview;
}

void PreviewGate::Close()
{
    isClosing = true;
    const std::lock_guard<std::mutex> lock(mutex);
    preview = nullptr;
    shown = nullptr;
}

} // namespace Zelkor::Vx
