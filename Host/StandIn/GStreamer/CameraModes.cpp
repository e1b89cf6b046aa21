#include <StandIn/GStreamer/CameraModes.h>

#include <StandIn/GStreamer/GStreamerFrames.h>

#include <algorithm>
#include <iterator>
#include <tuple>
#include <utility>

namespace Zelkor::StandIn {

using Acquis::Rational;
using Proc::PixFmt;

namespace {

constexpr Rational USUAL_RATES[] = {{5, 1},  {10, 1},       {15, 1}, {20, 1}, {24, 1},
                                    {25, 1}, {30000, 1001}, {30, 1}, {50, 1}, {60, 1}};

struct Size
{
    int width;
    int height;
};

constexpr Size USUAL_SIZES[] = {{320, 240},  {640, 360},   {640, 480},  {800, 600},
                                {1280, 720}, {1920, 1080}, {3840, 2160}};

// The usual matrix of high-definition video. The caps of the frames may override it.
constexpr int LOWEST_BT709_HEIGHT = 720;

// The result of decoding JPEG and of converting other raw formats.
constexpr PixFmt DECODED = PixFmt::I420;

struct Mode
{
    std::string media;  ///< "video/x-raw" or "image/jpeg"
    std::string format; ///< as GStreamer names it; "MJPEG" for JPEG
    PixFmt pixFmt;
    Size size;
    std::vector<Rational> rates;
};

bool IsSlower(const Rational& left, const Rational& right)
{
    return left.numerator * right.denominator < right.numerator * left.denominator;
}

bool IsSame(const Rational& left, const Rational& right)
{
    return !IsSlower(left, right) && !IsSlower(right, left);
}

Rational RationalOf(const GValue* value)
{
    return {gst_value_get_fraction_numerator(value), gst_value_get_fraction_denominator(value)};
}

/// Calls `handle` for the value, or for each value of a list.
template<class Handle>
void ForEach(const GValue* value, Handle handle)
{
    if (!value)
        return;
    if (!GST_VALUE_HOLDS_LIST(value)) {
        handle(value);
        return;
    }
    for (guint i = 0; i < gst_value_list_get_size(value); ++i)
        handle(gst_value_list_get_value(value, i));
}

/// Removes invalid rates and duplicates, and sorts the rest.
void Normalize(std::vector<Rational>& rates)
{
    rates.erase(std::remove_if(rates.begin(), rates.end(),
                               [](const Rational& rate) { return rate.numerator <= 0 || rate.denominator <= 0; }),
                rates.end());
    std::sort(rates.begin(), rates.end(), IsSlower);
    rates.erase(std::unique(rates.begin(), rates.end(), IsSame), rates.end());
}

void AddRates(const GValue* value, std::vector<Rational>& rates)
{
    ForEach(value, [&](const GValue* entry) {
        if (GST_VALUE_HOLDS_FRACTION(entry)) {
            rates.push_back(RationalOf(entry));
        } else if (GST_VALUE_HOLDS_FRACTION_RANGE(entry)) {
            const Rational least = RationalOf(gst_value_get_fraction_range_min(entry));
            const Rational most = RationalOf(gst_value_get_fraction_range_max(entry));
            std::copy_if(std::begin(USUAL_RATES), std::end(USUAL_RATES), std::back_inserter(rates),
                         [&](const Rational& rate) { return !IsSlower(rate, least) && !IsSlower(most, rate); });
        }
    });
    Normalize(rates);
}

bool Allows(const GValue* value, int number)
{
    bool allowed = false;
    ForEach(value, [&](const GValue* entry) {
        if (G_VALUE_HOLDS_INT(entry)) {
            allowed |= g_value_get_int(entry) == number;
        } else if (GST_VALUE_HOLDS_INT_RANGE(entry)) {
            const int least = gst_value_get_int_range_min(entry);
            allowed |= least <= number && number <= gst_value_get_int_range_max(entry) &&
                       (number - least) % gst_value_get_int_range_step(entry) == 0;
        }
    });
    return allowed;
}

std::vector<Size> SizesOf(const GstStructure* structure)
{
    int width = 0;
    int height = 0;
    if (gst_structure_get_int(structure, "width", &width) && gst_structure_get_int(structure, "height", &height))
        return {{width, height}};
    std::vector<Size> sizes;
    const GValue* widths = gst_structure_get_value(structure, "width");
    const GValue* heights = gst_structure_get_value(structure, "height");
    std::copy_if(std::begin(USUAL_SIZES), std::end(USUAL_SIZES), std::back_inserter(sizes),
                 [=](const Size& size) { return Allows(widths, size.width) && Allows(heights, size.height); });
    return sizes;
}

/// Adds a mode. Merges the rates if another structure of the caps has described the same mode.
void AddMode(std::vector<Mode>& modes, const Mode& added)
{
    const auto key = [](const Mode& mode) {
        return std::tie(mode.media, mode.format, mode.size.width, mode.size.height);
    };
    const auto known =
        std::find_if(modes.begin(), modes.end(), [&](const Mode& mode) { return key(mode) == key(added); });
    Mode& mode = known == modes.end() ? modes.emplace_back(added) : *known;
    mode.rates.insert(mode.rates.end(), added.rates.begin(), added.rates.end());
    Normalize(mode.rates);
}

void AddStructure(std::vector<Mode>& modes, const GstStructure* structure, bool readsJpeg)
{
    const std::string media = gst_structure_get_name(structure);
    std::vector<Rational> rates;
    AddRates(gst_structure_get_value(structure, "framerate"), rates);
    const auto add = [&](const std::string& format, PixFmt pixFmt) {
        for (const Size& size : SizesOf(structure)) {
            if (!rates.empty() && size.width > 0 && size.height > 0)
                AddMode(modes, {media, format, pixFmt, size, rates});
        }
    };
    if (media == "image/jpeg" && readsJpeg)
        add("MJPEG", DECODED);
    if (media != "video/x-raw")
        return;
    ForEach(gst_structure_get_value(structure, "format"), [&](const GValue* value) {
        const char* name = G_VALUE_HOLDS_STRING(value) ? g_value_get_string(value) : nullptr;
        const GstVideoFormat format = name ? gst_video_format_from_string(name) : GST_VIDEO_FORMAT_UNKNOWN;
        const PixFmt pixFmt = PixFmtOf(format);
        // Other raw formats are converted by the pipeline.
        if (format != GST_VIDEO_FORMAT_UNKNOWN && format != GST_VIDEO_FORMAT_ENCODED)
            add(name, pixFmt == PixFmt::None ? DECODED : pixFmt);
    });
}

/// Returns the relative cost of reading the mode: 0 for no conversion.
int CostOf(const Mode& mode)
{
    if (mode.media != "video/x-raw")
        return 2;
    return GStreamerFormatOf(mode.pixFmt) == gst_video_format_from_string(mode.format.c_str()) ? 0 : 1;
}

bool ComesBefore(const Mode& left, const Mode& right)
{
    const auto area = [](const Mode& mode) { return std::int64_t(mode.size.width) * mode.size.height; };
    if (area(left) != area(right))
        return area(left) > area(right);
    if (!IsSame(left.rates.back(), right.rates.back()))
        return IsSlower(right.rates.back(), left.rates.back());
    return CostOf(left) < CostOf(right);
}

boost::intrusive_ptr<VideoMode> VideoModeOf(const Mode& mode)
{
    const std::string width = std::to_string(mode.size.width);
    const std::string height = std::to_string(mode.size.height);
    FrameFormat format{mode.pixFmt, mode.size.width, mode.size.height};
    format.matrix = format.height >= LOWEST_BT709_HEIGHT ? ColorMatrix::BT709 : ColorMatrix::BT601;
    std::string detail = mode.media + ", width=" + width + ", height=" + height;
    if (mode.media == "video/x-raw")
        detail += ", format=" + mode.format;
    return new VideoMode(width + "×" + height + ' ' + mode.format, format, mode.rates, detail);
}

} // namespace

CaptureDevice::Modes CameraModes(const GstCaps* caps, bool readsJpeg)
{
    std::vector<Mode> modes;
    for (guint i = 0; i < gst_caps_get_size(caps); ++i) {
        // Frames in GPU memory cannot be read.
        const GstCapsFeatures* features = gst_caps_get_features(caps, i);
        if (!features || gst_caps_features_is_equal(features, GST_CAPS_FEATURES_MEMORY_SYSTEM_MEMORY))
            AddStructure(modes, gst_caps_get_structure(caps, i), readsJpeg);
    }
    std::stable_sort(modes.begin(), modes.end(), ComesBefore);
    CaptureDevice::Modes result;
    std::transform(modes.begin(), modes.end(), std::back_inserter(result), VideoModeOf);
    return result;
}

} // namespace Zelkor::StandIn
