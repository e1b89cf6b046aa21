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
#include <cstring>
#include <future>
#include <limits>
#include <set>
#include <vector>

using namespace Zelkor;
using Proc::PixFmt;
using StandIn::ColorMatrix;
using StandIn::ColorRange;
using StandIn::FrameFormat;
using StandIn::Plane;
using StandIn::Planes;
using StandIn::VideoFrame;

namespace {

using Data = boost::intrusive_ptr<Proc::IDataVideo>;
using Effect = boost::intrusive_ptr<Proc::IEffect>;
using Frame = boost::intrusive_ptr<VideoFrame>;
using Pixel = std::array<double, 4>;

constexpr int HUGE_SIDE = std::numeric_limits<int>::max();
constexpr std::size_t ENDLESS = std::numeric_limits<std::size_t>::max();

const std::uint8_t SOME_BYTES[16] = {1, 2, 3, 255, 4, 5, 6, 255, 7, 8, 9, 255, 10, 11, 12, 255};

bool IsReadable(const FrameFormat& format, const Planes& planes)
{
    return VideoFrame::Reference(format, planes, nullptr)->IsReadable();
}

// Where one channel of the pixel (x, y) lies: in row y / down of a plane, at offset + x / across * step.
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
    PixFmt pixFmt;
    bool isYuv;
    std::vector<Channel> channels; ///< Y, U, V or blue, green, red, alpha
};

const std::vector<Layout> LAYOUTS = {
    {"I420", PixFmt::I420, true, {{0, 0, 1}, {1, 0, 1, 2, 2}, {2, 0, 1, 2, 2}}},
    {"YV12", PixFmt::YV12, true, {{0, 0, 1}, {2, 0, 1, 2, 2}, {1, 0, 1, 2, 2}}},
    {"NV12", PixFmt::NV12, true, {{0, 0, 1}, {1, 0, 2, 2, 2}, {1, 1, 2, 2, 2}}},
    {"NV21", PixFmt::NV21, true, {{0, 0, 1}, {1, 1, 2, 2, 2}, {1, 0, 2, 2, 2}}},
    {"YUY2", PixFmt::YUY2, true, {{0, 0, 2}, {0, 1, 4, 2}, {0, 3, 4, 2}}},
    {"UYVY", PixFmt::UYVY, true, {{0, 1, 2}, {0, 0, 4, 2}, {0, 2, 4, 2}}},
    {"GRAY8", PixFmt::GRAY8, true, {{0, 0, 1}}},
    {"RGB24", PixFmt::RGB24, false, {{0, 2, 3}, {0, 1, 3}, {0, 0, 3}}},
    {"BGR24", PixFmt::BGR24, false, {{0, 0, 3}, {0, 1, 3}, {0, 2, 3}}},
    {"ARGB", PixFmt::ARGB, false, {{0, 3, 4}, {0, 2, 4}, {0, 1, 4}, {0, 0, 4}}},
    {"RGBA", PixFmt::RGBA, false, {{0, 2, 4}, {0, 1, 4}, {0, 0, 4}, {0, 3, 4}}},
    {"ABGR", PixFmt::ABGR, false, {{0, 1, 4}, {0, 2, 4}, {0, 3, 4}, {0, 0, 4}}},
    {"BGRA", PixFmt::BGRA, false, {{0, 0, 4}, {0, 1, 4}, {0, 2, 4}, {0, 3, 4}}},
    {"BGRX", PixFmt::BGRX, false, {{0, 0, 4}, {0, 1, 4}, {0, 2, 4}}},
};

const Layout& LayoutOf(PixFmt pixFmt)
{
    return *std::find_if(LAYOUTS.begin(), LAYOUTS.end(), [&](const auto& layout) { return layout.pixFmt == pixFmt; });
}

Effect MakeConverter(bool passThrough = false)
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

// A frame of noise whose planes have `padding` bytes between the rows and end with the last row's last sample.
Frame MakeNoise(const FrameFormat& format, int padding = 0, quint32 seed = 1)
{
    std::array<int, 3> rowBytes{};
    std::array<int, 3> rows{};
    for (const Channel& channel : LayoutOf(format.pixFmt).channels) {
        const int samples = (format.width + channel.across - 1) / channel.across;
        rowBytes[channel.plane] = std::max(rowBytes[channel.plane], channel.step * samples);
        rows[channel.plane] = (format.height + channel.down - 1) / channel.down;
    }
    QRandomGenerator random(seed);
    const auto storage = std::make_shared<std::array<std::vector<std::uint8_t>, 3>>();
    Planes planes;
    for (int i = 0; i < 3 && rows[i] > 0; ++i) {
        std::vector<std::uint8_t>& bytes = (*storage)[i];
        const int stride = rowBytes[i] + padding;
        bytes.resize(std::size_t(stride) * (rows[i] - 1) + rowBytes[i]);
        std::generate(bytes.begin(), bytes.end(), [&] { return std::uint8_t(random.generate()); });
        planes[i] = {bytes.data(), stride, bytes.size()};
    }
    return VideoFrame::Reference(format, planes, storage, 4711);
}

// The equations of BT.601 and BT.709 in blue, green, red, alpha.
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

Pixel Expected(const VideoFrame& frame, int x, int y)
{
    const Layout& layout = LayoutOf(frame.GetPixelFormat());
    Pixel values{0, 128, 128, 255};
    for (std::size_t i = 0; i < layout.channels.size(); ++i) {
        const Channel& channel = layout.channels[i];
        const Plane& plane = frame.GetPlanes()[channel.plane];
        values[i] = plane.data[y / channel.down * plane.stride + channel.offset + x / channel.across * channel.step];
    }
    return layout.isYuv ? FromYuv(frame.GetFormat(), values) : values;
}

QByteArray Bytes(const VideoFrame& frame)
{
    const Plane& plane = frame.GetPlanes()[0];
    return QByteArray(reinterpret_cast<const char*>(plane.data), int(plane.size));
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

const FrameFormat SMALL_NV12{PixFmt::NV12, 64, 48};
const FrameFormat SMALL_BGRA{PixFmt::BGRA, 6, 4};

} // namespace

Q_DECLARE_METATYPE(Layout)

class tst_VideoFrame : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isReadableToTheLastByte()
    {
        for (const Layout& layout : LAYOUTS) {
            const FrameFormat format{layout.pixFmt, 5, 3};
            Planes planes = MakeNoise(format, 2)->GetPlanes();
            QVERIFY2(IsReadable(format, planes), layout.name);
            QVERIFY(!IsReadable({layout.pixFmt, 0, 3}, planes));
            QVERIFY(!IsReadable({layout.pixFmt, 5, -1}, planes));
            for (Plane& plane : planes) {
                const Plane whole = plane;
                if (!whole.data)
                    continue;
                const int shortest = whole.stride - 2;
                for (const Plane& bad :
                     {Plane{whole.data, whole.stride, whole.size - 1}, Plane{nullptr, 99, ENDLESS},
                      Plane{whole.data, 1 - shortest, ENDLESS}, Plane{whole.data, shortest - 1, ENDLESS},
                      Plane{whole.data, -whole.stride, whole.size - 1}}) {
                    plane = bad;
                    QVERIFY2(!IsReadable(format, planes), layout.name);
                }
                plane = whole;
            }
        }
        const std::size_t most = std::size_t(HUGE_SIDE) * HUGE_SIDE;
        QVERIFY(IsReadable({PixFmt::GRAY8, HUGE_SIDE, HUGE_SIDE}, {{{SOME_BYTES, HUGE_SIDE, most}}}));
        QVERIFY(!IsReadable({PixFmt::GRAY8, HUGE_SIDE, HUGE_SIDE}, {{{SOME_BYTES, HUGE_SIDE, most - 1}}}));
        const Plane endless{SOME_BYTES, HUGE_SIDE, ENDLESS};
        for (const PixFmt pixFmt : {PixFmt::BGRA, PixFmt::RGB24, PixFmt::YUY2, PixFmt::None, PixFmt(77)})
            QVERIFY(!IsReadable({pixFmt, HUGE_SIDE, HUGE_SIDE}, {endless, endless, endless}));
    }

    void ownMemoryIsPaddedAndWritable()
    {
        const auto fill = [](const auto& data, const auto& strides) {
            const int rows[] = {5, 3, 3};
            for (std::size_t i = 0; i < 3; ++i)
                std::memset(data[i], int(i) + 1, std::size_t(strides[i] * rows[i]));
        };
        const Frame frame = VideoFrame::Create({PixFmt::I420, 101, 5}, fill);
        QVERIFY(frame->IsReadable());
        for (std::size_t i = 0; i < 3; ++i) {
            const Plane& plane = frame->GetPlanes()[i];
            QCOMPARE(plane.stride, i == 0 ? 128 : 64);
            QCOMPARE(reinterpret_cast<std::uintptr_t>(plane.data) % 64, std::uintptr_t{0});
            QCOMPARE(int(plane.data[0]), int(i) + 1);
            QCOMPARE(int(plane.data[plane.size - 1]), int(i) + 1);
        }
        const auto never = [](const auto&, const auto&) { QFAIL("there is nothing to fill"); };
        for (const FrameFormat& bad :
             {FrameFormat{PixFmt::None, 4, 4}, FrameFormat{PixFmt::BGRA, 0, 4}, FrameFormat{PixFmt::BGRA, 4, -4},
              FrameFormat{PixFmt::BGRA, HUGE_SIDE, 1}, FrameFormat{PixFmt::GRAY8, HUGE_SIDE, HUGE_SIDE}})
            QVERIFY(!VideoFrame::Create(bad, never));
    }

    void imageKeepsItsFrameAlive()
    {
        auto storage = std::make_shared<std::vector<std::uint8_t>>(SOME_BYTES, SOME_BYTES + 16);
        const std::weak_ptr<void> alive = storage;
        const std::uint8_t* const data = storage->data();
        QImage image = ImageOf({PixFmt::BGRA, 1, 2}, {data, 8, 16}, std::move(storage));
        QCOMPARE(image.constBits(), data);
        QCOMPARE(image.size(), QSize(1, 2));
        QImage changed = image;
        changed.setPixel(0, 1, qRgb(1, 1, 1));
        QCOMPARE(image.pixel(0, 1), qRgb(9, 8, 7));
        image = QImage();
        QVERIFY(alive.expired());

        // Memory that no image can have is copied; what is none gives none.
        image = ImageOf({PixFmt::BGRA, 1, 2}, {SOME_BYTES + 1, 5, 9});
        QVERIFY(image.constBits() != SOME_BYTES + 1);
        QCOMPARE(qRed(image.pixel(0, 0)), 255);
        QCOMPARE(qBlue(image.pixel(0, 1)), 6);
        QVERIFY(ImageOf({PixFmt::RGBA, 1, 1}, {SOME_BYTES, 4, 4}).isNull());
        QVERIFY(ImageOf({PixFmt::BGRA, 1, 1}, {SOME_BYTES, 4, 3}).isNull());
        QVERIFY(Util::ImageUtils().FrameToImage(nullptr).isNull());
    }

    void convertsEveryPixel_data()
    {
        QTest::addColumn<Layout>("layout");
        for (const Layout& layout : LAYOUTS)
            QTest::newRow(layout.name) << layout;
    }

    void convertsEveryPixel()
    {
        // Half a level is rounding; the conversion computes in steps of 1/64, which adds up to one level more. Packed
        // 4:2:2 in limited BT.601 goes a quicker way that takes 2.0 for the 2.017 of blue: 128 * 0.017 more.
        constexpr double FIXED_POINT = 1.5;
        constexpr double DIRECT_422 = 3;
        QFETCH(Layout, layout);
        const bool isPacked422 = layout.pixFmt == PixFmt::YUY2 || layout.pixFmt == PixFmt::UYVY;
        for (const auto matrix : {ColorMatrix::BT601, ColorMatrix::BT709}) {
            for (const auto range : {ColorRange::Limited, ColorRange::Full}) {
                const bool isDirect = isPacked422 && matrix == ColorMatrix::BT601 && range == ColorRange::Limited;
                InRow(QString("matrix %1, range %2").arg(int(matrix)).arg(int(range)));
                Compare({layout.pixFmt, 0, 0, matrix, range}, isDirect ? DIRECT_422 : FIXED_POINT * layout.isYuv);
                if (QTest::currentTestFailed())
                    return;
            }
        }
    }

    void memoryIsUsedAgainOnceNobodyReadsIt()
    {
        Effect effect = MakeConverter();
        const Frame held = Converted(effect, MakeNoise(SMALL_NV12));
        const QByteArray before = Bytes(*held);
        std::set<const std::uint8_t*> seen;
        for (quint32 seed = 2; seed < 10; ++seed)
            seen.insert(Converted(effect, MakeNoise(SMALL_NV12, 0, seed))->GetPlanes()[0].data);
        QCOMPARE(seen.size(), std::size_t{1});
        QVERIFY(seen.count(held->GetPlanes()[0].data) == 0);

        // Memory of another size is not taken up again.
        const Frame larger = MakeNoise({PixFmt::I420, 99, 77});
        Frame other = Converted(effect, MakeNoise(SMALL_NV12));
        const std::uint8_t* const idle = Converted(effect, larger)->GetPlanes()[0].data;
        other = nullptr;
        QCOMPARE(Converted(effect, larger)->GetPlanes()[0].data, idle);

        effect = nullptr;
        QVERIFY(Bytes(*held) == before);
    }

    void readersLetGoOnOtherThreads()
    {
        const Effect effect = MakeConverter();
        const Frame source = MakeNoise(SMALL_NV12);
        const QByteArray picture = Bytes(*Converted(effect, source));
        std::vector<std::future<bool>> readers;
        for (int i = 0; i < 200; ++i) {
            readers.push_back(std::async(std::launch::async, [&, result = Converted(effect, source)]() mutable {
                const Frame frame = std::move(result);
                return Bytes(*frame) == picture;
            }));
        }
        for (auto& reader : readers)
            QVERIFY(reader.get());
    }

    void bottomUpFramesAreReadable_data() { convertsEveryPixel_data(); }

    void bottomUpFramesAreReadable()
    {
        QFETCH(Layout, layout);
        const FrameFormat format{layout.pixFmt, 33, 19};
        const Frame down = MakeNoise(format, 4);
        // The same picture with its rows in reverse order.
        const auto storage = std::make_shared<std::array<std::vector<std::uint8_t>, 3>>();
        Planes planes = down->GetPlanes();
        for (std::size_t i = 0; i < 3 && planes[i].data; ++i) {
            const int rows = int((planes[i].size + 4) / std::size_t(planes[i].stride));
            (*storage)[i].resize(planes[i].size);
            std::uint8_t* const top = (*storage)[i].data() + std::ptrdiff_t{planes[i].stride} * (rows - 1);
            for (int row = 0; row < rows; ++row)
                std::memcpy(top - std::ptrdiff_t{planes[i].stride} * row, planes[i].data + planes[i].stride * row,
                            std::size_t(planes[i].stride - 4));
            planes[i] = {top, -planes[i].stride, planes[i].size};
        }
        const Frame up = VideoFrame::Reference(format, planes, storage);
        const Frame converted = Converted(MakeConverter(), up);
        QVERIFY(converted);
        QCOMPARE(Bytes(*converted), Bytes(*Converted(MakeConverter(), down)));
        if (layout.pixFmt == PixFmt::BGRA)
            QCOMPARE(Util::ImageUtils().FrameToImage(up), Util::ImageUtils().FrameToImage(down));
    }

    void badFramesAreRefusedAndLoggedOnce()
    {
        const Planes planes = MakeNoise(SMALL_NV12)->GetPlanes();
        const Plane endless{SOME_BYTES, 1 << 30, ENDLESS};
        const Data badFrames[] = {
            nullptr,
            new ForeignFrame,
            VideoFrame::Reference({PixFmt(999), 64, 48}, planes, nullptr),
            VideoFrame::Reference(SMALL_NV12, {planes[0], {SOME_BYTES, 64, 16}}, nullptr),
            VideoFrame::Reference({PixFmt::GRAY8, 1 << 30, 2}, {endless}, nullptr), // larger than memory
        };
        Support::LogCapture log;
        for (const Data& bad : badFrames) {
            const Effect effect = MakeConverter(true);
            for (const FrameFormat& good : {SMALL_NV12, SMALL_BGRA, SMALL_NV12}) {
                for (int i = 0; i < 3; ++i) {
                    Data frame = bad;
                    effect->Process(frame);
                    QVERIFY(!frame);
                }
                const QStringList lines = log.Take();
                QCOMPARE(lines.size(), 1);
                QVERIFY(lines[0].startsWith("E "));
                QVERIFY(lines[0].contains("Zelkor::Proc::ColorspaceConverter::Process: cannot read a frame"));
                QVERIFY(Converted(effect, MakeNoise(good)));
            }
        }
        QCOMPARE(log.Lines().size(), 0);
    }

    void passesThroughOnlyWhenTold()
    {
        struct ForeignSettings : Proc::IEffectSettings
        {};
        const Effect effect = MakeConverter(true);
        const Frame source = MakeNoise(SMALL_BGRA);
        QCOMPARE(Converted(effect, source).get(), source.get());

        effect->ApplySettings(Proc::SettingsColorspaceConverter(PixFmt::BGRA, false));
        Support::LogCapture log;
        effect->ApplySettings(Proc::SettingsColorspaceConverter(PixFmt::I420, true));
        effect->ApplySettings(ForeignSettings());
        QCOMPARE(log.Lines().size(), 2);
        const Frame copy = Converted(effect, source);
        QVERIFY(copy.get() != source.get());
        QCOMPARE(Bytes(*copy), Bytes(*source));
    }

    void factoryKnowsItsEffects()
    {
        const auto factory = Core::CoreManager::Instance().GetEffectFactory();
        const Data owner(new ForeignFrame);
        Effect effect;
        factory->CreateEffect(effect, Proc::SettingsColorspaceConverter::CLASS_ID, std::string(), owner);
        QCOMPARE(owner->GetRefCount(), 2);
        factory->CreateEffect(effect, Proc::SettingsColorspaceConverter::CLASS_ID, "Other", nullptr);
        QVERIFY(!effect);
        QCOMPARE(owner->GetRefCount(), 1);
    }

private:
    static void Compare(FrameFormat format, double tolerance)
    {
        const Effect effect = MakeConverter();
        const QSize sizes[] = {{1, 1}, {2, 2}, {3, 1}, {1, 3}, {7, 5}, {33, 19}, {64, 16}, {641, 35}};
        for (int i = 0; i < 2 * int(std::size(sizes)); ++i) {
            const QSize& size = sizes[i / 2];
            format.width = size.width();
            format.height = size.height();
            const Frame source = MakeNoise(format, i % 2 * 13);
            const Frame result = Converted(effect, source);
            QVERIFY(result && result->IsReadable());
            QCOMPARE(int(result->GetPixelFormat()), int(PixFmt::BGRA));
            QCOMPARE(QSize(result->GetFormat().width, result->GetFormat().height), size);
            QCOMPARE(result->GetPlanes()[0].stride, 4 * size.width());
            QCOMPARE(result->GetTime(), std::int64_t{4711});
            const std::uint8_t* actual = result->GetPlanes()[0].data;
            for (int pixel = 0; pixel < size.width() * size.height(); ++pixel) {
                for (const double byte : Expected(*source, pixel % size.width(), pixel / size.width())) {
                    if (std::abs(*actual++ - byte) > tolerance)
                        QFAIL(qPrintable(QString("pixel %1 of %2 wide").arg(pixel).arg(size.width())));
                }
            }
        }
    }
};

VX_TEST_MAIN(tst_VideoFrame)
#include "tst_VideoFrame.moc"
