#include "Media/FFmpeg/PacketFacts.h"

#include "Media/FFmpeg/Decoder.h"
#include "Media/FFmpeg/Demuxer.h"
#include "TestSupport/Fixture.h"
#include "TestSupport/MediaCache.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace media::ffmpeg {
namespace {

using testsupport::makeFixture;
using testsupport::Recipe;
using testsupport::VideoCodec;

std::string samplesOf(const AVFrame& frame) {
    std::string samples;
    for (int y = 0; y < frame.height; ++y)
        samples.append(reinterpret_cast<const char*>(frame.data[0]) +
                           std::ptrdiff_t{y} * frame.linesize[0],
                       static_cast<std::size_t>(frame.width));
    return samples;
}

/// Calls `use` with each packet of a file's first stream, and how far it can be done without.
void forEachPacket(const std::filesystem::path& path,
                   const std::function<void(const AVPacket&, Dispensable)>& use) {
    Demuxer demuxer(SourceFile::open(path));
    demuxer.findStreamInfo();
    demuxer.selectOnly({0});
    Disposability disposability(*demuxer.context().streams[0]->codecpar);
    const PacketPtr packet = makePacket();
    while (demuxer.read(*packet) == Demuxer::Status::packet) {
        use(*packet, disposability.judge(*packet));
        av_packet_unref(packet.get());
    }
}

/// The pictures of a file's first stream by their times, decoded with or without the packets that
/// need not be seen.
std::map<std::int64_t, std::string> decoded(const std::filesystem::path& path, bool isComplete) {
    Demuxer demuxer(SourceFile::open(path));
    demuxer.findStreamInfo();
    const AVStream& stream = *demuxer.context().streams[0];
    Decoder decoder(*stream.codecpar, stream.time_base);
    std::map<std::int64_t, std::string> pictures;
    const FramePtr frame = makeFrame();
    const auto receive = [&] {
        while (decoder.receive(*frame) == Decoder::Status::frame)
            pictures[frame->pts] = samplesOf(*frame);
    };
    forEachPacket(path, [&](const AVPacket& packet, Dispensable dispensable) {
        if (isComplete || dispensable != Dispensable::entirely) {
            decoder.send(&packet);
            receive();
        }
    });
    decoder.send(nullptr);
    receive();
    return pictures;
}

/// Gives how many pictures are left of how many.
std::pair<std::size_t, std::size_t>
expectNothingDependsOnNeedlessPackets(const std::filesystem::path& path) {
    const auto all = decoded(path, true);
    const auto needed = decoded(path, false);
    EXPECT_FALSE(needed.empty());
    for (const auto& [time, samples] : needed)
        EXPECT_TRUE(all.contains(time) && all.at(time) == samples) << "at " << time;
    return {needed.size(), all.size()};
}

void expectManyNeedlessPackets(const Recipe& recipe) {
    const auto [needed, all] = expectNothingDependsOnNeedlessPackets(makeFixture(recipe).path);
    EXPECT_LT(needed, all * 3 / 4);
}

TEST(NeedlessPackets, ofH264AreThoseThatNoOtherPictureDependsOn) {
    expectManyNeedlessPackets({.codec = VideoCodec::h264});
}

TEST(NeedlessPackets, ofH264InATransportStreamAreThoseThatNoOtherPictureDependsOn) {
    expectManyNeedlessPackets({.codec = VideoCodec::h264, .container = "ts"});
}

TEST(NeedlessPackets, ofHevcAreThoseThatNoOtherPictureDependsOn) {
    expectManyNeedlessPackets({.codec = VideoCodec::hevc});
}

/// A field without its partner would be taken for the partner of the next.
TEST(NeedlessPackets, areNoSingleFields) {
    const auto sample = testsupport::sampleMedia("mts-avchd-1080i50-ac3-pgs.mts");
    if (!sample)
        GTEST_SKIP() << "the sample with fields is not here";
    expectNothingDependsOnNeedlessPackets(*sample);
}

using Bytes = std::vector<std::uint8_t>;

/// An H.264 stream whose packets have lengths of four bytes in front of their units.
class NeedlessPacket : public testing::Test {
protected:
    NeedlessPacket() : m_demuxer(SourceFile::open(makeFixture({}).path)) {
        m_demuxer.findStreamInfo();
        forEachPacket(makeFixture({}).path, [this](const AVPacket& packet, Dispensable judged) {
            Bytes& kind = judged == Dispensable::entirely ? m_needless : m_needed;
            kind.assign(packet.data, packet.data + packet.size);
        });
    }

    [[nodiscard]] bool isNeedless(const Bytes& bytes) const {
        const PacketPtr packet = makePacket();
        EXPECT_EQ(av_new_packet(packet.get(), static_cast<int>(bytes.size())), 0);
        std::ranges::copy(bytes, packet->data);
        Disposability disposability(*m_demuxer.context().streams[0]->codecpar);
        return disposability.judge(*packet) == Dispensable::entirely;
    }

    /// The needless packet with more units of these bytes.
    [[nodiscard]] Bytes followedBy(const std::vector<Bytes>& units) const {
        Bytes bytes = m_needless;
        for (const Bytes& unit : units) {
            bytes.insert(bytes.end(), {0, 0, 0, static_cast<std::uint8_t>(unit.size())});
            bytes.insert(bytes.end(), unit.begin(), unit.end());
        }
        return bytes;
    }

    Bytes m_needless;
    Bytes m_needed;

private:
    mutable Demuxer m_demuxer;
};

TEST_F(NeedlessPacket, hasOnlyPicturesMessagesAndFiller) {
    EXPECT_TRUE(isNeedless(m_needless));
    EXPECT_TRUE(isNeedless(followedBy({{0x06, 0x80}, {0x0c, 0xff}, {0x01, 0x80}})));
    EXPECT_FALSE(isNeedless(m_needed));
    EXPECT_FALSE(isNeedless(followedBy({{0x41, 0x80}}))) << "a picture that others refer to";
    EXPECT_FALSE(isNeedless(followedBy({{0x68, 0x80}}))) << "parameters";
    EXPECT_FALSE(isNeedless(followedBy({{0x0b}}))) << "the end of a stream";
    EXPECT_FALSE(isNeedless({}));
}

TEST_F(NeedlessPacket, isCutOffNowhere) {
    EXPECT_FALSE(isNeedless(Bytes(m_needless.begin(), m_needless.end() - 1)));
    EXPECT_FALSE(isNeedless(Bytes(m_needless.begin(), m_needless.begin() + 4)));
    Bytes bytes = m_needless;
    bytes.insert(bytes.end(), {0, 0});
    EXPECT_FALSE(isNeedless(bytes));
    bytes.insert(bytes.end(), {0, 0});
    EXPECT_FALSE(isNeedless(bytes)) << "a unit of nothing";
}

/// Some files state lengths and have start codes all the same, which decoders notice.
TEST_F(NeedlessPacket, hasLengthsWhereTheStreamSaysSo) {
    Bytes bytes{0, 0, 0, 1, 0x09, 0xf0};
    bytes.insert(bytes.end(), m_needed.begin(), m_needed.end());
    std::ranges::copy(Bytes{0, 0, 0, 1}, bytes.begin() + 6);
    EXPECT_FALSE(isNeedless(bytes));
}

} // namespace
} // namespace media::ffmpeg
