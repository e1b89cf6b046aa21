#include <Zelkor/Core/CoreManager.h>
#include <Zelkor/Proc/ImplNames.h>
#include <Zelkor/Proc/SettingsColorspaceConverter.h>
#include <Zelkor/StandIn/VideoFrame.h>

#include <Support/LogCapture.h>
#include <Support/TestCase.h>

#include <QRandomGenerator>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <memory>
#include <mutex>
#include <set>
#include <thread>
#include <vector>

using namespace Zelkor;
using Proc::PixFmt;
using StandIn::ColorMatrix;
using StandIn::ColorRange;
using StandIn::FrameFormat;
using StandIn::VideoFrame;

namespace {

using Data = boost::intrusive_ptr<Proc::IDataVideo>;
using Effect = boost::intrusive_ptr<Proc::IEffect>;
using Frame = boost::intrusive_ptr<VideoFrame>;
using Pixel = std::array<double, 4>;

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

struct Shape
{
    int rowBytes;
    int rows;
};

std::vector<Shape> ShapesOf(const FrameFormat& format)
{
    const int w = format.width;
    const int h = format.height;
    const int halfWidth = (w + 1) / 2;
    const int halfHeight = (h + 1) / 2;
    switch (format.pixFmt) {
    case PixFmt::I420:
    case PixFmt::YV12:
        return {{w, h}, {halfWidth, halfHeight}, {halfWidth, halfHeight}};
    case PixFmt::NV12:
    case PixFmt::NV21:
        return {{w, h}, {2 * halfWidth, halfHeight}};
    case PixFmt::YUY2:
    case PixFmt::UYVY:
        return {{4 * halfWidth, h}};
    case PixFmt::RGB24:
    case PixFmt::BGR24:
        return {{3 * w, h}};
    case PixFmt::GRAY8:
        return {{w, h}};
    default:
        return {{4 * w, h}};
    }
}

// A frame of noise whose planes have `padding` bytes between the rows and end with the last row's last sample.
Frame MakeNoise(const FrameFormat& format, int padding = 0, quint32 seed = 1)
{
    QRandomGenerator random(seed);
    auto storage = std::make_shared<std::array<std::vector<std::uint8_t>, 3>>();
    StandIn::Planes planes;
    int index = 0;
    for (const Shape& shape : ShapesOf(format)) {
        std::vector<std::uint8_t>& bytes = (*storage)[index];
        const int stride = shape.rowBytes + padding;
        bytes.resize(std::size_t(stride) * (shape.rows - 1) + shape.rowBytes);
        std::generate(bytes.begin(), bytes.end(), [&] { return std::uint8_t(random.generate()); });
        planes[index++] = {bytes.data(), stride, bytes.size()};
    }
    return VideoFrame::Reference(format, planes, storage, 4711);
}

// The equations of BT.601 and BT.709 in blue, green, red, alpha.
Pixel FromYuv(const FrameFormat& format, double y, double u, double v)
{
    const double red = format.matrix == ColorMatrix::BT601 ? 0.299 : 0.2126;
    const double blue = format.matrix == ColorMatrix::BT601 ? 0.114 : 0.0722;
    const bool full = format.range == ColorRange::Full;
    const double luma = full ? y / 255 : (y - 16) / 219;
    const double cb = (u - 128) / (full ? 255 : 224);
    const double cr = (v - 128) / (full ? 255 : 224);
    const double r = luma + 2 * (1 - red) * cr;
    const double b = luma + 2 * (1 - blue) * cb;
    const double g = (luma - red * r - blue * b) / (1 - red - blue);
    const auto level = [](double value) { return std::clamp(255 * value, 0.0, 255.0); };
    return {level(b), level(g), level(r), 255};
}

Pixel Expected(const VideoFrame& frame, int x, int y)
{
    const FrameFormat& format = frame.GetFormat();
    const auto at = [&](int plane, int column, int row) {
        return double(frame.GetPlanes()[plane].data[row * frame.GetPlanes()[plane].stride + column]);
    };
    const int pair = x / 2;
    const auto bytes = [&](int size, int b, int g, int r, int a) {
        return Pixel{at(0, size * x + b, y), at(0, size * x + g, y), at(0, size * x + r, y),
                     a < 0 ? 255 : at(0, size * x + a, y)};
    };
    switch (format.pixFmt) {
    case PixFmt::I420:
        return FromYuv(format, at(0, x, y), at(1, pair, y / 2), at(2, pair, y / 2));
    case PixFmt::YV12:
        return FromYuv(format, at(0, x, y), at(2, pair, y / 2), at(1, pair, y / 2));
    case PixFmt::NV12:
        return FromYuv(format, at(0, x, y), at(1, 2 * pair, y / 2), at(1, 2 * pair + 1, y / 2));
    case PixFmt::NV21:
        return FromYuv(format, at(0, x, y), at(1, 2 * pair + 1, y / 2), at(1, 2 * pair, y / 2));
    case PixFmt::YUY2:
        return FromYuv(format, at(0, 2 * x, y), at(0, 4 * pair + 1, y), at(0, 4 * pair + 3, y));
    case PixFmt::UYVY:
        return FromYuv(format, at(0, 2 * x + 1, y), at(0, 4 * pair, y), at(0, 4 * pair + 2, y));
    case PixFmt::GRAY8:
        return FromYuv(format, at(0, x, y), 128, 128);
    case PixFmt::RGB24:
        return bytes(3, 2, 1, 0, -1);
    case PixFmt::BGR24:
        return bytes(3, 0, 1, 2, -1);
    case PixFmt::ARGB:
        return bytes(4, 3, 2, 1, 0);
    case PixFmt::RGBA:
        return bytes(4, 2, 1, 0, 3);
    case PixFmt::ABGR:
        return bytes(4, 1, 2, 3, 0);
    case PixFmt::BGRA:
        return bytes(4, 0, 1, 2, 3);
    default:
        return bytes(4, 0, 1, 2, -1);
    }
}

// The first pixel that is further than `tolerance` from what the equations give, empty when there is none.
QString Difference(const VideoFrame& source, const VideoFrame& result, double tolerance)
{
    const StandIn::Plane& plane = result.GetPlanes()[0];
    for (int y = 0; y < source.GetFormat().height; ++y) {
        for (int x = 0; x < source.GetFormat().width; ++x) {
            const Pixel expected = Expected(source, x, y);
            for (int i = 0; i < 4; ++i) {
                const double actual = plane.data[y * plane.stride + 4 * x + i];
                if (std::abs(actual - expected[i]) > tolerance) {
                    return QStringLiteral("%1x%2: byte %3 at (%4, %5) is %6 instead of %7")
                        .arg(source.GetFormat().width)
                        .arg(source.GetFormat().height)
                        .arg(i)
                        .arg(x)
                        .arg(y)
                        .arg(actual)
                        .arg(expected[i]);
                }
            }
        }
    }
    return QString();
}

QByteArray Bytes(const VideoFrame& frame)
{
    const StandIn::Plane& plane = frame.GetPlanes()[0];
    return QByteArray(reinterpret_cast<const char*>(plane.data), int(plane.size));
}

class ForeignFrame : public RefCounted<Proc::IDataVideo>
{
public:
    PixFmt GetPixelFormat() const override { return PixFmt::BGRA; }
};

class ForeignSettings : public Proc::IEffectSettings
{};

const FrameFormat SMALL_NV12{PixFmt::NV12, 64, 48};
const FrameFormat SMALL_BGRA{PixFmt::BGRA, 6, 4};

} // namespace

Q_DECLARE_METATYPE(Data)

class tst_ColorspaceConverter : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void convertsEveryPixel_data()
    {
        QTest::addColumn<int>("pixFmt");
        QTest::addColumn<int>("matrix");
        QTest::addColumn<int>("range");
        QTest::addColumn<double>("tolerance");

        // Half a level is rounding; the conversion computes in steps of 1/64, which adds up to one level more. Packed
        // 4:2:2 in limited BT.601 goes a quicker way that takes 2.0 for the 2.017 of blue: 128 * 0.017 more.
        constexpr double EXACT = 0;
        constexpr double FIXED_POINT = 1.5;
        constexpr double DIRECT_422 = 3;
        const std::vector<std::pair<const char*, PixFmt>> yuv = {
            {"I420", PixFmt::I420}, {"YV12", PixFmt::YV12}, {"NV12", PixFmt::NV12},   {"NV21", PixFmt::NV21},
            {"YUY2", PixFmt::YUY2}, {"UYVY", PixFmt::UYVY}, {"GRAY8", PixFmt::GRAY8},
        };
        for (const auto& [name, pixFmt] : yuv) {
            for (const ColorMatrix matrix : {ColorMatrix::BT601, ColorMatrix::BT709}) {
                for (const ColorRange range : {ColorRange::Limited, ColorRange::Full}) {
                    const bool direct = (pixFmt == PixFmt::YUY2 || pixFmt == PixFmt::UYVY) &&
                                        matrix == ColorMatrix::BT601 && range == ColorRange::Limited;
                    QTest::addRow("%s BT.%s %s", name, matrix == ColorMatrix::BT601 ? "601" : "709",
                                  range == ColorRange::Full ? "full" : "limited")
                        << int(pixFmt) << int(matrix) << int(range) << (direct ? DIRECT_422 : FIXED_POINT);
                }
            }
        }
        const std::vector<std::pair<const char*, PixFmt>> rgb = {
            {"RGB24", PixFmt::RGB24}, {"BGR24", PixFmt::BGR24}, {"ARGB", PixFmt::ARGB}, {"RGBA", PixFmt::RGBA},
            {"ABGR", PixFmt::ABGR},   {"BGRA", PixFmt::BGRA},   {"BGRX", PixFmt::BGRX},
        };
        for (const auto& [name, pixFmt] : rgb)
            QTest::addRow("%s", name) << int(pixFmt) << 0 << 0 << EXACT;
    }

    void convertsEveryPixel()
    {
        QFETCH(int, pixFmt);
        QFETCH(int, matrix);
        QFETCH(int, range);
        QFETCH(double, tolerance);
        const Effect effect = MakeConverter();
        const QSize sizes[] = {{1, 1}, {2, 2}, {3, 1}, {1, 3}, {7, 5}, {33, 19}, {64, 16}, {641, 35}};
        for (const QSize& size : sizes) {
            for (const int padding : {0, 13}) {
                const Frame source = MakeNoise(
                    {PixFmt(pixFmt), size.width(), size.height(), ColorMatrix(matrix), ColorRange(range)}, padding);
                const Frame result = Converted(effect, source);
                QVERIFY(result && result->IsReadable());
                QCOMPARE(int(result->GetPixelFormat()), int(PixFmt::BGRA));
                QCOMPARE(QSize(result->GetFormat().width, result->GetFormat().height), size);
                QCOMPARE(result->GetPlanes()[0].stride, 4 * size.width());
                QCOMPARE(result->GetTime(), std::int64_t{4711});
                const QString difference = Difference(*source, *result, tolerance);
                QVERIFY2(difference.isEmpty(), qPrintable(difference));
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
        constexpr int ROUNDS = 200;
        const Effect effect = MakeConverter();
        const Frame source = MakeNoise(SMALL_NV12);
        const QByteArray picture = Bytes(*Converted(effect, source));
        std::mutex mutex;
        std::vector<Frame> handedOver;
        bool done = false;
        int wrong = 0;
        std::thread reader([&] {
            for (bool last = false; !last;) {
                std::vector<Frame> taken;
                {
                    const std::lock_guard<std::mutex> lock(mutex);
                    taken.swap(handedOver);
                    last = done;
                }
                for (const Frame& frame : taken)
                    wrong += Bytes(*frame) != picture;
                std::this_thread::yield();
            }
        });
        for (int i = 0; i < ROUNDS; ++i) {
            Frame result = Converted(effect, source);
            const std::lock_guard<std::mutex> lock(mutex);
            handedOver.push_back(std::move(result));
            done = i + 1 == ROUNDS;
        }
        reader.join();
        QCOMPARE(wrong, 0);
    }

    void badFramesAreRefusedAndLoggedOnce_data()
    {
        QTest::addColumn<Data>("bad");
        const Frame good = MakeNoise(SMALL_NV12);
        const auto changed = [&](auto change) {
            FrameFormat format = good->GetFormat();
            StandIn::Planes planes = good->GetPlanes();
            change(format, planes);
            return Data(VideoFrame::Reference(format, planes, std::make_shared<Frame>(good)));
        };
        QTest::newRow("null") << Data();
        QTest::newRow("foreign") << Data(new ForeignFrame);
        QTest::newRow("no format") << changed([](auto& format, auto&) { format.pixFmt = PixFmt::None; });
        QTest::newRow("unknown format") << changed([](auto& format, auto&) { format.pixFmt = PixFmt(999); });
        QTest::newRow("plane too small") << changed([](auto&, auto& planes) { --planes[1].size; });
        QTest::newRow("larger than memory") << changed([](auto& format, auto& planes) {
            format = {PixFmt::GRAY8, 1 << 30, 2};
            planes[0].stride = 1 << 30;
            planes[0].size = std::numeric_limits<std::size_t>::max();
        });
    }

    void badFramesAreRefusedAndLoggedOnce()
    {
        QFETCH(Data, bad);
        const Effect effect = MakeConverter(true);
        Support::LogCapture log;
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
        QCOMPARE(log.Lines().size(), 0);
    }

    void passesThroughOnlyWhenTold()
    {
        const Effect effect = MakeConverter(true);
        const Frame source = MakeNoise(SMALL_BGRA, 8);
        QCOMPARE(Converted(effect, source).get(), source.get());

        effect->ApplySettings(Proc::SettingsColorspaceConverter(PixFmt::BGRA, false));
        Support::LogCapture log;
        effect->ApplySettings(Proc::SettingsColorspaceConverter(PixFmt::I420, true));
        effect->ApplySettings(ForeignSettings());
        QCOMPARE(log.Lines().size(), 2);
        const Frame copy = Converted(effect, source);
        QVERIFY(copy.get() != source.get());
        QCOMPARE(int(copy->GetPixelFormat()), int(PixFmt::BGRA));
        QCOMPARE(Difference(*source, *copy, 0), QString());
    }

    void factoryKnowsItsEffects()
    {
        const auto factory = Core::CoreManager::Instance().GetEffectFactory();
        const char* const classId = Proc::SettingsColorspaceConverter::CLASS_ID;
        const Data owner(new ForeignFrame);
        Effect effect;
        factory->CreateEffect(effect, classId, std::string(), owner);
        QVERIFY(effect);
        QCOMPARE(owner->GetRefCount(), 2);

        Support::LogCapture log;
        factory->CreateEffect(effect, classId, "Other", nullptr);
        QVERIFY(!effect);
        QCOMPARE(owner->GetRefCount(), 1);
        factory->CreateEffect(effect, "Other", Proc::ImplNames::DEFAULT, nullptr);
        QVERIFY(!effect);
        QCOMPARE(log.Lines().size(), 2);
    }
};

VX_TEST_MAIN(tst_ColorspaceConverter)
#include "tst_ColorspaceConverter.moc"
