#include <StandIn/Frames/YuvMatrix.h>

#include <libyuv/row.h>

#include <algorithm>
#include <iterator>

namespace Zelkor::StandIn {

namespace {

// libyuv caps the coefficient of U in blue at 128 / 64 = 2, but the limited ranges need 2.017 and 2.112: saturated blue
// of BT.709 is up to 15 levels off. Its x86 code supports the true coefficient, so a capped one is replaced. On other
// architectures the constants have a different layout.
libyuv::YuvConstants WithUncappedBlue(libyuv::YuvConstants constants, [[maybe_unused]] std::uint8_t blue)
{
#if defined(__x86_64__) || defined(__i386__) || defined(_M_X64) || defined(_M_IX86)
    constexpr std::uint8_t CAPPED = 128;
    std::replace(std::begin(constants.kUVToB), std::end(constants.kUVToB), CAPPED, blue);
#endif
    return constants;
}

} // namespace

const libyuv::YuvConstants& YuvMatrix(ColorMatrix matrix, ColorRange range)
{
    // 129 and 135 are the coefficients of blue times 64, rounded. libyuv's vector code uses aligned loads.
    alignas(32) static const libyuv::YuvConstants LIMITED_601 = WithUncappedBlue(libyuv::kYuvI601Constants, 129);
    alignas(32) static const libyuv::YuvConstants LIMITED_709 = WithUncappedBlue(libyuv::kYuvH709Constants, 135);
    if (range == ColorRange::Full)
        return matrix == ColorMatrix::BT709 ? libyuv::kYuvF709Constants : libyuv::kYuvJPEGConstants;
    return matrix == ColorMatrix::BT709 ? LIMITED_709 : LIMITED_601;
}

} // namespace Zelkor::StandIn
