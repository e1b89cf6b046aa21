#pragma once

#include <Zelkor/Proc/IDataVideo.h>

#include <QImage>

#include <atomic>

namespace Zelkor::Util {

/// Frames as Qt images. Any thread may call.
class VX_HOST_EXPORT ImageUtils
{
public:
    ImageUtils();
    ~ImageUtils();

    /// The picture of a frame in `PixFmt::BGRA`, as a 32-bit image that stays valid whatever becomes of the frame:
    /// the image holds a reference to it. Null for a null frame; null too for one in another format and one whose
    /// plane is too small, of which the first of a row is logged.
    QImage FrameToImage(const boost::intrusive_ptr<Proc::IDataVideo>& frame) const;

private:
    mutable std::atomic<bool> refusing{false}; ///< the last frame could not be read, which has been logged
};

} // namespace Zelkor::Util
