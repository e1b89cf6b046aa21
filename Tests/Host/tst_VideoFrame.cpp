#include <Zelkor/Core/CoreManager.h>
#include <Zelkor/Proc/ImplNames.h>
#include <Zelkor/Proc/SettingsColorspaceConverter.h>
#include <Zelkor/StandIn/VideoFrame.h>
#include <Zelkor/Util/ImageUtils.h>

#include <Support/LogCapture.h>
#include <Support/TestCase.h>

#include <QRandomGenerator>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <map>
#include <vector>

using namespace Zelkor;
using Proc::PixFmt;
using namespace StandIn;

namespace {

using Data = boost::intrusive_ptr<Proc::IDataVideo>;
using Effect = boost::intrusive_ptr<Proc::IEffect>;
using Frame = boost::intrusive_ptr<VideoFrame>;
using Pixel = std::array<double, 4>;

constexpr int MAX_SIDE = std::numeric_limits<int>::max();
constexpr std::size_t UNLIMITED = std::numeric_limits<std::size_t>::max();
constexpr std::int64_t TIME = 4711;

const std::uint8_t SOME_BYTES[16] = {1, 2, 3, 255, 4, 5, 6, 255, 7, 8, 9, 255, 10, 11, 12, 255};
const FrameFormat SMALL_NV12{PixFmt::NV12, 64, 48};
const FrameFormat SMALL_BGRA{PixFmt::BGRA, 6, 4};

// One channel of the pixel (x, y) is in row y / down of a plane, at the byte offset + x / across * step.
struct Channel
{
    int plane;
    int offset;
    int step;
    int across = 1;
    int down = 1;
};

struct Layout
{
    const char* name;
    bool isYuv;
    std::vector<Channel> channels; ///< Y, U, V or blue, green, red, alpha
};

const std::map<PixFmt, Layout> LAYOUTS = {
    {PixFmt::I420, {"I420", true, {{0, 0, 1}, {1, 0, 1, 2, 2}, {2, 0, 1, 2, 2}}}},
    {PixFmt::YV12, {"YV12", true, {{0, 0, 1}, {2, 0, 1, 2, 2}, {1, 0, 1, 2, 2}}}},
    {PixFmt::NV12, {"NV12", true, {{0, 0, 1}, {1, 0, 2, 2, 2}, {1, 1, 2, 2, 2}}}},
    {PixFmt::NV21, {"NV21", true, {{0, 0, 1}, {1, 1, 2, 2, 2}, {1, 0, 2, 2, 2}}}},
    {PixFmt::YUY2, {"YUY2", true, {{0, 0, 2}, {0, 1, 4, 2}, {0, 3, 4, 2}}}},
    {PixFmt::UYVY, {"UYVY", true, {{0, 1, 2}, {0, 0, 4, 2}, {0, 2, 4, 2}}}},
    {PixFmt::GRAY8, {"GRAY8", true, {{0, 0, 1}}}},
    {PixFmt::RGB24, {"RGB24", false, {{0, 2, 3}, {0, 1, 3}, {0, 0, 3}}}},
    {PixFmt::BGR24, {"BGR24", false, {{0, 0, 3}, {0, 1, 3}, {0, 2, 3}}}},
    {PixFmt::ARGB, {"ARGB", false, {{0, 3, 4}, {0, 2, 4}, {0, 1, 4}, {0, 0, 4}}}},
    {PixFmt::RGBA, {"RGBA", false, {{0, 2, 4}, {0, 1, 4}, {0, 0, 4}, {0, 3, 4}}}},
    {PixFmt::ABGR, {"ABGR", false, {{0, 1, 4}, {0, 2, 4}, {0, 3, 4}, {0, 0, 4}}}},
    {PixFmt::BGRA, {"BGRA", false, {{0, 0, 4}, {0, 1, 4}, {0, 2, 4}, {0, 3, 4}}}},
    {PixFmt::BGRX, {"BGRX", false, {{0, 0, 4}, {0, 1, 4}, {0, 2, 4}}}},
};

bool IsReadable(const FrameFormat& format, const Planes& planes)
{
    return VideoFrame::Reference(format, planes, nullptr)->IsReadable();
}

// Creates a frame of noise whose planes have `padding` bytes between the rows and end with the last sample.
Frame MakeNoise(const FrameFormat& format, int padding = 0, bool isBottomUp = false)
{
    static QRandomGenerator random(1);
    const auto storage = std::make_shared<std::array<std::vector<std::uint8_t>, 3>>();
    Planes planes;
    // The last channel of a plane needs the longest rows.
    for (const Channel& channel : LAYOUTS.at(format.pixFmt).channels) {
        const int stride = channel.step * ((format.width + channel.across - 1) / channel.across) + padding;
        const int rows = (format.height + channel.down - 1) / channel.down;
        std::vector<std::uint8_t>& bytes = (*storage)[channel.plane];
        bytes.resize(std::size_t(stride) * rows - padding);
        std::generate(bytes.begin(), bytes.end(), [&] { return std::uint8_t(random.generate()); });
        planes[channel.plane] = {bytes.data(), stride, bytes.size()};
        if (isBottomUp)
            planes[channel.plane] = {bytes.data() + stride * (rows - 1), -stride, bytes.size()};
    }
    return VideoFrame::Reference(format, planes, storage, TIME);
}

// Converts by the equations of BT.601 and BT.709 to blue, green, red, alpha.
Pixel FromYuv(const FrameFormat& format, const Pixel& yuv)
{
    const double red = format.matrix == ColorMatrix::BT601 ? 0.299 : 0.2126;
    const double blue = format.matrix == ColorMatrix::BT601 ? 0.114 : 0.0722;
    const bool full = format.range == ColorRange::Full;
    const double luma = full ? yuv[0] / 255 : (yuv[0] - 16) / 219;
    const double cb = (yuv[1] - 128) / (full ? 255 : 224);
    const double cr = (yuv[2] - 128) / (full ? 255 : 224);
    const double r = luma + 2 * (1 - red) * cr;
    const double b = luma + 2 * (1 - blue) * cb;
    const double g = (luma - red * r - blue * b) / (1 - red - blue);
    const auto level = [](double value) { return std::clamp(255 * value, 0.0, 255.0); };
    return {level(b), level(g), level(r), 255};
}

Pixel ExpectedPixel(const VideoFrame& frame, int x, int y)
{
    const Layout& layout = LAYOUTS.at(frame.GetPixelFormat());
    Pixel values{0, 128, 128, 255};
    for (std::size_t i = 0; i < layout.channels.size(); ++i) {
        const Channel& channel = layout.channels[i];
        const Plane& plane = frame.GetPlanes()[channel.plane];
        values[i] = plane.data[y / channel.down * plane.stride + channel.offset + x / channel.across * channel.step];
    }
    return layout.isYuv ? FromYuv(frame.GetFormat(), values) : values;
}

// Half a level is rounding. libyuv computes in steps of 1/64, which adds up to one level. Packed 4:2:2 in limited
// BT.601 is converted directly with 2.0 instead of 2.017 for blue: 128 * 0.017 more.
double Tolerance(const FrameFormat& format)
{
    const bool isPacked422 = format.pixFmt == PixFmt::YUY2 || format.pixFmt == PixFmt::UYVY;
    if (isPacked422 && format.matrix == ColorMatrix::BT601 && format.range == ColorRange::Limited)
        return 3;
    return LAYOUTS.at(format.pixFmt).isYuv ? 1.5 : 0;
}

Effect CreateConverter(bool passThrough = false)
{
    Effect effect;
    Core::CoreManager::Instance().GetEffectFactory()->CreateEffect(effect, Proc::SettingsColorspaceConverter::CLASS_ID,
                                                                   Proc::ImplNames::DEFAULT, nullptr);
    effect->ApplySettings(Proc::SettingsColorspaceConverter(PixFmt::BGRA, passThrough));
    return effect;
}

Frame Converted(const Effect& effect, Data frame)
{
    effect->Process(frame);
    return dynamic_cast<VideoFrame*>(frame.get());
}

const std::uint8_t* FirstByte(const Frame& frame)
{
    return frame->GetPlanes()[0].data;
}

QByteArray Bytes(const Frame& frame)
{
    return QByteArray(reinterpret_cast<const char*>(FirstByte(frame)), int(frame->GetPlanes()[0].size));
}

QImage ImageOf(const FrameFormat& format, const Plane& plane, std::shared_ptr<void> owner = nullptr)
{
    return Util::ImageUtils().FrameToImage(VideoFrame::Reference(format, {plane}, std::move(owner)));
}

class ForeignFrame : public RefCounted<Proc::IDataVideo>
{
public:
    PixFmt GetPixelFormat() const override { return PixFmt::BGRA; }
};

} // namespace

Q_DECLARE_METATYPE(Data)
Q_DECLARE_METATYPE(FrameFormat)

class tst_VideoFrame : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void planesAreReadableToTheLastByte()
    {
        for (const PixFmt pixFmt : {PixFmt::I420, PixFmt::YUY2}) {
            const FrameFormat format{pixFmt, 5, 3};
            const Planes good = MakeNoise(format, 2)->GetPlanes();
            QVERIFY(IsReadable(format, good));
            QVERIFY(!IsReadable({pixFmt, 0, 3}, good));
            QVERIFY(!IsReadable({pixFmt, 5, -1}, good));
            for (std::size_t i = 0; i < 3 && good[i].data; ++i) {
                const auto [data, stride, size] = good[i];
                const int tooShort = stride - 3;
                for (const Plane& bad : {Plane{data, stride, size - 1}, Plane{data, tooShort, UNLIMITED},
                                         Plane{data, -tooShort, UNLIMITED}, Plane{nullptr, stride, UNLIMITED}}) {
                    Planes planes = good;
                    planes[i] = bad;
                    QVERIFY(!IsReadable(format, planes));
                }
            }
        }
    }

    void hugeAndEmptySizesAreRejected()
    {
        const std::size_t area = std::size_t(MAX_SIDE) * MAX_SIDE;
        QVERIFY(IsReadable({PixFmt::GRAY8, MAX_SIDE, MAX_SIDE}, {{{SOME_BYTES, MAX_SIDE, area}}}));
        QVERIFY(!IsReadable({PixFmt::GRAY8, MAX_SIDE, MAX_SIDE}, {{{SOME_BYTES, MAX_SIDE, area - 1}}}));
        QVERIFY(!IsReadable({PixFmt::BGRA, MAX_SIDE, MAX_SIDE}, {{{SOME_BYTES, MAX_SIDE, UNLIMITED}}}));
        const auto fill = [](const auto&, const auto&) { QFAIL("there is nothing to fill"); };
        QVERIFY(!VideoFrame::Create({PixFmt::None, 4, 4}, fill));
        QVERIFY(!VideoFrame::Create({PixFmt::BGRA, 4, -4}, fill));
        QVERIFY(!VideoFrame::Create({PixFmt::BGRA, MAX_SIDE, 1}, fill));
        QVERIFY(!VideoFrame::Create({PixFmt::GRAY8, MAX_SIDE, MAX_SIDE}, fill));
    }

    void imageKeepsItsFrameAlive()
    {
        auto storage = std::make_shared<std::vector<std::uint8_t>>(SOME_BYTES, SOME_BYTES + 16);
        const std::weak_ptr<void> alive = storage;
        const std::uint8_t* const data = storage->data();
        QImage image = ImageOf({PixFmt::BGRA, 1, 2}, {data, 8, 16}, std::move(storage));
        QCOMPARE(image.constBits(), data);
        QImage changed = image;
        changed.setPixel(0, 1, qRgb(1, 1, 1));
        QCOMPARE(image.pixel(0, 1), qRgb(9, 8, 7));
        image = QImage();
        QVERIFY(alive.expired());
    }

    void imageCopiesWhatItCannotReferTo()
    {
        const QImage unaligned = ImageOf({PixFmt::BGRA, 1, 2}, {SOME_BYTES + 1, 5, 9});
        QVERIFY(unaligned.constBits() != SOME_BYTES + 1);
        QCOMPARE(unaligned.pixel(0, 0), qRgb(255, 3, 2));
        const QImage bottomUp = ImageOf({PixFmt::BGRA, 1, 2}, {SOME_BYTES + 8, -8, 12});
        QCOMPARE(bottomUp.pixel(0, 1), qRgb(3, 2, 1));
        QVERIFY(ImageOf({PixFmt::RGBA, 1, 1}, {SOME_BYTES, 4, 4}).isNull());
        QVERIFY(ImageOf({PixFmt::BGRA, 1, 1}, {SOME_BYTES, 4, 3}).isNull());
        QVERIFY(Util::ImageUtils().FrameToImage(nullptr).isNull());
    }

    void convertsEveryPixel_data()
    {
        QTest::addColumn<FrameFormat>("format");
        for (const auto& [pixFmt, layout] : LAYOUTS) {
            for (const auto matrix : {ColorMatrix::BT601, ColorMatrix::BT709}) {
                for (const auto range : {ColorRange::Limited, ColorRange::Full})
                    QTest::addRow("%s, matrix %d, range %d", layout.name, int(matrix), int(range))
                        << FrameFormat{pixFmt, 0, 0, matrix, range};
            }
        }
    }

    void convertsEveryPixel()
    {
        QFETCH(FrameFormat, format);
        const double tolerance = Tolerance(format);
        const Effect effect = CreateConverter();
        for (const QSize& size : {QSize(1, 1), QSize(3, 1), QSize(1, 3), QSize(64, 16), QSize(641, 35)}) {
            format.width = size.width();
            format.height = size.height();
            for (const Frame& source : {MakeNoise(format), MakeNoise(format, 13), MakeNoise(format, 4, true)}) {
                const Frame result = Converted(effect, source);
                QVERIFY(result);
                QCOMPARE(result->GetPixelFormat(), PixFmt::BGRA);
                QCOMPARE(QSize(result->GetFormat().width, result->GetFormat().height), size);
                QCOMPARE(result->GetPlanes()[0].stride, 4 * size.width());
                QCOMPARE(result->GetTime(), TIME);
                const std::uint8_t* actual = FirstByte(result);
                for (int pixel = 0; pixel < size.width() * size.height(); ++pixel) {
                    for (const double byte : ExpectedPixel(*source, pixel % size.width(), pixel / size.width())) {
                        if (std::abs(*actual++ - byte) > tolerance)
                            QFAIL(qPrintable(QString("pixel %1 of %2 wide").arg(pixel).arg(size.width())));
                    }
                }
            }
        }
    }

    void memoryIsReusedForFramesOfItsSize()
    {
        Effect effect = CreateConverter();
        const Frame held = Converted(effect, MakeNoise(SMALL_NV12));
        const QByteArray before = Bytes(held);
        const std::uint8_t* const released = FirstByte(Converted(effect, MakeNoise(SMALL_NV12)));
        QVERIFY(released != FirstByte(held));
        Frame small = Converted(effect, MakeNoise(SMALL_NV12));
        QCOMPARE(FirstByte(small), released);

        const Frame larger = MakeNoise({PixFmt::I420, 99, 77});
        const std::uint8_t* const releasedLarger = FirstByte(Converted(effect, larger));
        small = nullptr;
        QCOMPARE(FirstByte(Converted(effect, larger)), releasedLarger);
        effect = nullptr;
        QCOMPARE(Bytes(held), before);
    }

    void unreadableFramesAreLoggedOnce_data()
    {
        QTest::addColumn<Data>("bad");
        const Planes planes{{{SOME_BYTES, 64, UNLIMITED}, {SOME_BYTES, 64, 16}}};
        QTest::newRow("null") << Data();
        QTest::newRow("of another host") << Data(new ForeignFrame);
        QTest::newRow("unknown format") << Data(VideoFrame::Reference({PixFmt(999), 64, 48}, planes, nullptr));
        QTest::newRow("small plane") << Data(VideoFrame::Reference(SMALL_NV12, planes, nullptr));
        QTest::newRow("larger than memory")
            << Data(VideoFrame::Reference({PixFmt::GRAY8, 1 << 30, 2}, {{{SOME_BYTES, 1 << 30, UNLIMITED}}}, nullptr));
    }

    void unreadableFramesAreLoggedOnce()
    {
        QFETCH(Data, bad);
        Support::LogCapture log;
        const Effect effect = CreateConverter(true);
        for (const FrameFormat& good : {SMALL_NV12, SMALL_BGRA}) {
            for (int i = 0; i < 3; ++i)
                QVERIFY(!Converted(effect, bad));
            const QStringList lines = log.Take();
            QCOMPARE(lines.size(), 1);
            QVERIFY(lines[0].contains("Zelkor::Proc::ColorspaceConverter::Process: cannot read a frame"));
            QVERIFY(Converted(effect, MakeNoise(good)));
        }
        QCOMPARE(log.Take(), QStringList());
    }

    void converterCopiesUnlessItMayPassThrough()
    {
        struct ForeignSettings : Proc::IEffectSettings
        {};
        const Effect effect = CreateConverter(true);
        const Frame source = MakeNoise(SMALL_BGRA);
        QCOMPARE(Converted(effect, source).get(), source.get());

        effect->ApplySettings(Proc::SettingsColorspaceConverter(PixFmt::BGRA, false));
        Support::LogCapture log;
        effect->ApplySettings(Proc::SettingsColorspaceConverter(PixFmt::I420, true));
        effect->ApplySettings(ForeignSettings());
        QCOMPARE(log.Take().size(), 2);
        const Frame copy = Converted(effect, source);
        QVERIFY(FirstByte(copy) != FirstByte(source));
        QCOMPARE(Bytes(copy), Bytes(source));
    }
};

VX_TEST_MAIN(tst_VideoFrame)
#include "tst_VideoFrame.moc"
