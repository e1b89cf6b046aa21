#pragma once

#include <Zelkor/Proc/IDataVideo.h>

#include <QImage>

#include <atomic>

namespace Zelkor::Util {

/// Converts frames to Qt images. Any thread may call.
class VX_HOST_EXPORT ImageUtils
{
public:
    ImageUtils();
    ~ImageUtils();

    /// Returns the picture of a frame in `PixFmt::BGRA` as a 32-bit image, which keeps the frame alive instead of
    /// copying it where possible. Null for a null frame. Null also for a frame in another format or with a plane that
    /// is too small; the first of consecutive failures is logged.
    QImage FrameToImage(const boost::intrusive_ptr<Proc::IDataVideo>& frame) const;

private:
    mutable std::atomic<bool> refusing{false}; ///< whether the last frame was unreadable and logged
};

} // namespace Zelkor::Util
