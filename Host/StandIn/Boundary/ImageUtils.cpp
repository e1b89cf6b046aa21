#include <Zelkor/Util/ImageUtils.h>

#include <Zelkor/StandIn/VideoFrame.h>

#include <glog/logging.h>

#include <cstdint>
#include <cstring>

namespace Zelkor::StandIn {

namespace {

constexpr QImage::Format FORMAT = QImage::Format_RGB32;

void ReleaseFrame(void* frame)
{
    intrusive_ptr_release(static_cast<const VideoFrame*>(frame));
}

// Returns true when an image can refer to the plane. Images are top-down, and Qt's vector code requires rows that are
// aligned to pixels.
bool CanWrap(const Plane& plane)
{
    constexpr std::uintptr_t PIXEL = sizeof(QRgb);
    return plane.stride > 0 && reinterpret_cast<std::uintptr_t>(plane.data) % PIXEL == 0 && plane.stride % PIXEL == 0;
}

QImage Copy(const Plane& plane, const FrameFormat& format)
{
    QImage image(format.width, format.height, FORMAT);
    for (int row = 0; row < image.height(); ++row) {
        std::memcpy(image.scanLine(row), plane.data + std::ptrdiff_t{plane.stride} * row,
                    std::size_t(image.width()) * sizeof(QRgb));
    }
    return image;
}

} // namespace

} // namespace Zelkor::StandIn

namespace Zelkor::Util {

ImageUtils::ImageUtils() = default;
ImageUtils::~ImageUtils() = default;

QImage ImageUtils::FrameToImage(const boost::intrusive_ptr<Proc::IDataVideo>& frame) const
{
    if (!frame)
        return QImage();
    boost::intrusive_ptr<StandIn::VideoFrame> source(dynamic_cast<StandIn::VideoFrame*>(frame.get()));
    const bool readable = source && source->GetPixelFormat() == Proc::PixFmt::BGRA && source->IsReadable();
    const bool refusedBefore = refusing.exchange(!readable);
    if (!readable) {
        LOG_IF(ERROR, !refusedBefore) << "Zelkor::Util::ImageUtils::FrameToImage: cannot read a frame of pixel format "
                                      << static_cast<int>(frame->GetPixelFormat());
        return QImage();
    }

    const StandIn::Plane& plane = source->GetPlanes()[0];
    const StandIn::FrameFormat& format = source->GetFormat();
    if (!StandIn::CanWrap(plane))
        return StandIn::Copy(plane, format);
    QImage image(plane.data, format.width, format.height, plane.stride, StandIn::FORMAT, StandIn::ReleaseFrame,
                 source.get());
    if (!image.isNull())
        source.detach();
    return image;
}

} // namespace Zelkor::Util
