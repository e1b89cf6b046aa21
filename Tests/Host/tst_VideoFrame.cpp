#include <Zelkor/Core/CoreManager.h>
#include <Zelkor/Proc/SettingsColorspaceConverter.h>
#include <Zelkor/StandIn/VideoFrame.h>
#include <Zelkor/Util/ImageUtils.h>

#include <Support/TestCase.h>

#include <cstring>
#include <limits>
#include <vector>

using namespace Zelkor;
using Proc::PixFmt;
using StandIn::FrameFormat;
using StandIn::VideoFrame;

namespace {

using Frame = boost::intrusive_ptr<VideoFrame>;

constexpr int HUGE_SIDE = std::numeric_limits<int>::max();

const std::uint8_t SOME_BYTES[16] = {1, 2, 3, 255, 4, 5, 6, 255, 7, 8, 9, 255, 10, 11, 12, 255};

} // namespace

class tst_VideoFrame : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isReadableToTheLastByte_data()
    {
        QTest::addColumn<int>("pixFmt");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QVector<int>>("strides");
        QTest::addColumn<QVector<quint64>>("sizes"); // the fewest bytes that are enough
        using Sizes = QVector<quint64>;
        const auto row = [](const char* name, PixFmt pixFmt, QSize size, QVector<int> strides, Sizes sizes) {
            QTest::newRow(name) << int(pixFmt) << size << strides << sizes;
        };
        row("BGRA, one row, wide stride", PixFmt::BGRA, {3, 1}, {1000}, {12});
        row("RGB24, padded", PixFmt::RGB24, {3, 4}, {16}, {3 * 16 + 9});
        row("GRAY8", PixFmt::GRAY8, {5, 2}, {5}, {10});
        row("YUY2, odd width", PixFmt::YUY2, {5, 3}, {12}, {36});
        row("I420, odd sides", PixFmt::I420, {5, 3}, {8, 4, 3}, {2 * 8 + 5, 4 + 3, 6});
        row("NV12, odd sides", PixFmt::NV12, {5, 3}, {5, 6}, {15, 12});
        row("GRAY8, all an int can count", PixFmt::GRAY8, {HUGE_SIDE, HUGE_SIDE}, {HUGE_SIDE},
            {quint64(HUGE_SIDE) * quint64(HUGE_SIDE)});
    }

    void isReadableToTheLastByte()
    {
        QFETCH(int, pixFmt);
        QFETCH(QSize, size);
        QFETCH(QVector<int>, strides);
        QFETCH(QVector<quint64>, sizes);
        const auto readable = [&](const QSize& side, const StandIn::Planes& planes) {
            return VideoFrame::Reference({PixFmt(pixFmt), side.width(), side.height()}, planes, nullptr)->IsReadable();
        };
        StandIn::Planes planes;
        for (int i = 0; i < sizes.size(); ++i)
            planes[std::size_t(i)] = {SOME_BYTES, strides[i], std::size_t(sizes[i])};
        QVERIFY(readable(size, planes));
        QVERIFY(!readable({0, size.height()}, planes));
        QVERIFY(!readable({size.width(), -1}, planes));
        for (std::size_t i = 0; i < std::size_t(sizes.size()); ++i) {
            const StandIn::Plane whole = planes[i];
            --planes[i].size;
            QVERIFY(!readable(size, planes));
            planes[i] = {nullptr, whole.stride, whole.size};
            QVERIFY(!readable(size, planes));
            for (const int stride : {-whole.stride, 0, 2}) {
                planes[i] = {whole.data, stride, std::numeric_limits<std::size_t>::max()};
                QVERIFY(!readable(size, planes));
            }
            planes[i] = whole;
        }
    }

    void absurdFormatsAreNotReadable()
    {
        const StandIn::Plane endless{SOME_BYTES, HUGE_SIDE, std::numeric_limits<std::size_t>::max()};
        for (const PixFmt pixFmt : {PixFmt::BGRA, PixFmt::RGB24, PixFmt::YUY2, PixFmt::None, PixFmt(77)}) {
            const FrameFormat format{pixFmt, HUGE_SIDE, HUGE_SIDE};
            QVERIFY(!VideoFrame::Reference(format, {endless, endless, endless}, nullptr)->IsReadable());
        }
    }

    void ownMemoryIsPaddedAndWritable()
    {
        const FrameFormat format{PixFmt::I420, 101, 5};
        const Frame frame = VideoFrame::Create(
            format,
            [](const auto& data, const auto& strides) {
                const int rows[] = {5, 3, 3};
                for (std::size_t i = 0; i < 3; ++i)
                    std::memset(data[i], int(i) + 1, std::size_t(strides[i] * rows[i]));
            },
            5);
        QVERIFY(frame->IsReadable());
        for (std::size_t i = 0; i < 3; ++i) {
            const StandIn::Plane& plane = frame->GetPlanes()[i];
            QCOMPARE(plane.stride, i == 0 ? 128 : 64);
            QCOMPARE(reinterpret_cast<std::uintptr_t>(plane.data) % 64, std::uintptr_t{0});
            QCOMPARE(int(plane.data[0]), int(i) + 1);
            QCOMPARE(int(plane.data[plane.size - 1]), int(i) + 1);
        }
        const Frame later = frame->WithTime(9);
        QCOMPARE(later->GetTime(), std::int64_t{9});
        QCOMPARE(frame->GetTime(), std::int64_t{5});
        QCOMPARE(later->GetPlanes()[2].data, frame->GetPlanes()[2].data);

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
        Frame frame = VideoFrame::Reference({PixFmt::BGRA, 1, 2}, {{{data, 8, 16}}}, std::move(storage));
        QImage image = Util::ImageUtils().FrameToImage(frame);
        frame = nullptr;
        QCOMPARE(image.constBits(), data);
        QCOMPARE(image.size(), QSize(1, 2));
        QCOMPARE(image.pixel(0, 1), qRgb(9, 8, 7));

        QImage changed = image;
        changed.setPixel(0, 1, qRgb(1, 1, 1));
        QCOMPARE(image.pixel(0, 1), qRgb(9, 8, 7));
        image = QImage();
        QVERIFY(alive.expired());
    }

    void imageOutlivesTheConverter()
    {
        boost::intrusive_ptr<Proc::IEffect> effect;
        Core::CoreManager::Instance().GetEffectFactory()->CreateEffect(
            effect, Proc::SettingsColorspaceConverter::CLASS_ID, std::string(), nullptr);
        boost::intrusive_ptr<Proc::IDataVideo> frame =
            VideoFrame::Reference({PixFmt::RGB24, 2, 1}, {{{SOME_BYTES, 6, 6}}}, nullptr);
        effect->Process(frame);
        const QImage image = Util::ImageUtils().FrameToImage(frame);
        frame = nullptr;
        effect = nullptr;
        QCOMPARE(image.pixel(0, 0), qRgb(1, 2, 3));
        QCOMPARE(image.pixel(1, 0), qRgb(255, 4, 5));
    }

    void imagesOfOddMemoryAreCopied()
    {
        const Frame shifted = VideoFrame::Reference({PixFmt::BGRA, 1, 2}, {{{SOME_BYTES + 1, 5, 9}}}, nullptr);
        const QImage image = Util::ImageUtils().FrameToImage(shifted);
        QVERIFY(image.constBits() != SOME_BYTES + 1);
        QCOMPARE(qRed(image.pixel(0, 0)), 255);
        QCOMPARE(qBlue(image.pixel(0, 1)), 6);

        const Util::ImageUtils utils;
        QVERIFY(utils.FrameToImage(nullptr).isNull());
        QVERIFY(utils.FrameToImage(VideoFrame::Reference({PixFmt::RGBA, 1, 1}, {{{SOME_BYTES, 4, 4}}}, {})).isNull());
        QVERIFY(utils.FrameToImage(VideoFrame::Reference({PixFmt::BGRA, 1, 1}, {{{SOME_BYTES, 4, 3}}}, {})).isNull());
    }
};

VX_TEST_MAIN(tst_VideoFrame)
#include "tst_VideoFrame.moc"
