#pragma once

#include <Zelkor/Proc/IDataVideo.h>

#include <QImage>

namespace Zelkor::Util {

/// Frames as Qt images. Any thread may call; an object has no state.
class VX_HOST_EXPORT ImageUtils
{
public:
    ImageUtils();
    ~ImageUtils();

    /// The picture of a frame in `PixFmt::BGRA`, as a 32-bit image that stays valid whatever becomes of the frame:
    /// the image holds a reference to it. Null for a null frame and for one in another format.
    QImage FrameToImage(const boost::intrusive_ptr<Proc::IDataVideo>& frame) const;
};

} // namespace Zelkor::Util
