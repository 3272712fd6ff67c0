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

TEST(NeedlessPackets, ofARecorderThatRepeatsParametersAreThoseThatNoOtherPictureDependsOn) {
    const auto sample = testsupport::sampleMedia("mkv-screenrec-1080p60-aac.mkv");
    if (!sample)
        GTEST_SKIP() << "the sample with parameters beside every picture is not here";
    const auto [needed, all] = expectNothingDependsOnNeedlessPackets(*sample);
    EXPECT_LT(needed, all * 3 / 4);
}

/// A field without its partner would be taken for the partner of the next.
TEST(NeedlessPackets, areNoSingleFields) {
    const auto sample = testsupport::sampleMedia("mts-avchd-1080i50-ac3-pgs.mts");
    if (!sample)
        GTEST_SKIP() << "the sample with fields is not here";
    expectNothingDependsOnNeedlessPackets(*sample);
}

using Bytes = std::vector<std::uint8_t>;

/// A generated stream, and packets made from one of its needless ones.
class PacketMaker {
public:
    explicit PacketMaker(const Recipe& recipe)
        : m_demuxer(SourceFile::open(makeFixture(recipe).path)),
          m_hasStartCodes(recipe.container == "ts") {
        m_demuxer.findStreamInfo();
        forEachPacket(makeFixture(recipe).path, [this](const AVPacket& packet, Dispensable judged) {
            Bytes& kind = judged == Dispensable::entirely ? m_needless : m_needed;
            kind.assign(packet.data, packet.data + packet.size);
        });
    }

    [[nodiscard]] const Bytes& needless() const { return m_needless; }

    [[nodiscard]] const Bytes& needed() const { return m_needed; }

    /// The needless packet with more units behind or in front of its own.
    [[nodiscard]] Bytes followedBy(const std::vector<Bytes>& units) const {
        return joined({m_needless, unitsOf(units)});
    }

    [[nodiscard]] Bytes precededBy(const std::vector<Bytes>& units) const {
        return joined({unitsOf(units), m_needless});
    }

    [[nodiscard]] AVCodecParameters& parameters() const {
        return *m_demuxer.context().streams[0]->codecpar;
    }

private:
    static Bytes joined(const std::vector<Bytes>& parts) {
        Bytes bytes;
        for (const Bytes& part : parts)
            bytes.insert(bytes.end(), part.begin(), part.end());
        return bytes;
    }

    [[nodiscard]] Bytes unitsOf(const std::vector<Bytes>& units) const {
        Bytes bytes;
        for (const Bytes& unit : units) {
            const auto last =
                m_hasStartCodes ? std::uint8_t{1} : static_cast<std::uint8_t>(unit.size());
            bytes = joined({bytes, {0, 0, 0, last}, unit});
        }
        return bytes;
    }

    mutable Demuxer m_demuxer;
    bool m_hasStartCodes;
    Bytes m_needless;
    Bytes m_needed;
};

/// Judges packets one after the other.
class Judge {
public:
    explicit Judge(const PacketMaker& maker) : m_disposability(maker.parameters()) {}

    bool isNeedless(const Bytes& bytes, int flags = 0) {
        const PacketPtr packet = makePacket();
        EXPECT_EQ(av_new_packet(packet.get(), static_cast<int>(bytes.size())), 0);
        std::ranges::copy(bytes, packet->data);
        packet->flags = flags;
        return m_disposability.judge(*packet) == Dispensable::entirely;
    }

    void restart() { m_disposability.restart(); }

private:
    Disposability m_disposability;
};

/// H.264 whose packets have lengths of four bytes in front of their units.
class NeedlessPacket : public testing::Test {
protected:
    [[nodiscard]] bool isNeedless(const Bytes& bytes) const {
        return Judge(m_maker).isNeedless(bytes);
    }

    PacketMaker m_maker{{}};
};

TEST_F(NeedlessPacket, hasOnlyPicturesMessagesAndFiller) {
    EXPECT_TRUE(isNeedless(m_maker.needless()));
    EXPECT_TRUE(isNeedless(m_maker.followedBy({{0x06, 0x80}, {0x0c, 0xff}, {0x01, 0x80}})));
    EXPECT_FALSE(isNeedless(m_maker.needed()));
    EXPECT_FALSE(isNeedless(m_maker.followedBy({{0x41, 0x80}}))) << "a picture others refer to";
    EXPECT_FALSE(isNeedless(m_maker.followedBy({{0x68, 0x80}}))) << "parameters";
    EXPECT_FALSE(isNeedless(m_maker.followedBy({{0x0b}}))) << "the end of a stream";
    EXPECT_FALSE(isNeedless({}));
}

TEST_F(NeedlessPacket, isCutOffNowhere) {
    const Bytes& whole = m_maker.needless();
    EXPECT_FALSE(isNeedless(Bytes(whole.begin(), whole.end() - 1)));
    EXPECT_FALSE(isNeedless(Bytes(whole.begin(), whole.begin() + 4)));
    Bytes bytes = whole;
    bytes.insert(bytes.end(), {0, 0});
    EXPECT_FALSE(isNeedless(bytes));
    bytes.insert(bytes.end(), {0, 0});
    EXPECT_FALSE(isNeedless(bytes)) << "a unit of nothing";
}

/// Some files state lengths and have start codes all the same, which decoders notice.
TEST_F(NeedlessPacket, hasLengthsWhereTheStreamSaysSo) {
    Bytes bytes{0, 0, 0, 1, 0x09, 0xf0};
    bytes.insert(bytes.end(), m_maker.needed().begin(), m_maker.needed().end());
    std::ranges::copy(Bytes{0, 0, 0, 1}, bytes.begin() + 6);
    EXPECT_FALSE(isNeedless(bytes));
    EXPECT_FALSE(isNeedless(m_maker.followedBy({{0x06, 0x80, 0, 0, 1, 0x68, 0xee}})))
        << "parameters inside of a message";
}

TEST_F(NeedlessPacket, isNotMarkedAsDamaged) {
    EXPECT_FALSE(Judge(m_maker).isNeedless(m_maker.needless(), AV_PKT_FLAG_CORRUPT));
}

/// Some cameras and recorders send the parameters of pictures along with each of them. The units
/// here are of a codec, or of packets, of one kind each.
struct ParameterUnits {
    const char* name;
    Recipe recipe;
    /// Of number 5, others of number 5, and of number 6: no picture of the stream has those.
    Bytes parameters, others, second;
    /// What parameters of pictures build on.
    Bytes ofSequence;
};

class RepeatedParameters : public testing::TestWithParam<ParameterUnits> {};

TEST_P(RepeatedParameters, areNotNeededAgain) {
    const ParameterUnits& units = GetParam();
    const PacketMaker maker(units.recipe);
    Judge judge(maker);
    EXPECT_FALSE(judge.isNeedless(maker.precededBy({units.parameters}))) << "the first time";
    EXPECT_TRUE(judge.isNeedless(maker.precededBy({units.parameters})));
    EXPECT_TRUE(judge.isNeedless(maker.needless()));
    EXPECT_TRUE(judge.isNeedless(maker.precededBy({units.parameters})));
    EXPECT_FALSE(judge.isNeedless(maker.precededBy({units.parameters, units.second})));
    EXPECT_TRUE(judge.isNeedless(maker.precededBy({units.second, units.parameters})));
}

TEST_P(RepeatedParameters, areNeededAgainAfterOthersOfTheirNumber) {
    const ParameterUnits& units = GetParam();
    const PacketMaker maker(units.recipe);
    Judge judge(maker);
    EXPECT_FALSE(judge.isNeedless(maker.precededBy({units.parameters})));
    EXPECT_FALSE(judge.isNeedless(maker.precededBy({units.others})));
    EXPECT_FALSE(judge.isNeedless(maker.precededBy({units.parameters})));
    EXPECT_TRUE(judge.isNeedless(maker.precededBy({units.parameters})));
}

TEST_P(RepeatedParameters, areNeededAgainAfterWhatTheyBuildOn) {
    const ParameterUnits& units = GetParam();
    const PacketMaker maker(units.recipe);
    Judge judge(maker);
    EXPECT_FALSE(judge.isNeedless(maker.precededBy({units.parameters})));
    EXPECT_FALSE(judge.isNeedless(maker.precededBy({units.ofSequence})));
    EXPECT_FALSE(judge.isNeedless(maker.precededBy({units.parameters})));
    EXPECT_TRUE(judge.isNeedless(maker.precededBy({units.parameters})));
}

TEST_P(RepeatedParameters, areNeededAgainAfterARestart) {
    const ParameterUnits& units = GetParam();
    const PacketMaker maker(units.recipe);
    Judge judge(maker);
    EXPECT_FALSE(judge.isNeedless(maker.precededBy({units.parameters})));
    judge.restart();
    EXPECT_FALSE(judge.isNeedless(maker.precededBy({units.parameters})));
}

TEST_P(RepeatedParameters, areNotKnownFromBehindAPicture) {
    const ParameterUnits& units = GetParam();
    const PacketMaker maker(units.recipe);
    Judge judge(maker);
    EXPECT_FALSE(judge.isNeedless(maker.precededBy({units.parameters})));
    EXPECT_FALSE(judge.isNeedless(maker.followedBy({units.parameters})));
    EXPECT_FALSE(judge.isNeedless(maker.precededBy({units.parameters})));
}

TEST_P(RepeatedParameters, areNotKnownFromADamagedPacket) {
    const ParameterUnits& units = GetParam();
    const PacketMaker maker(units.recipe);
    Judge judge(maker);
    const Bytes repeating = maker.precededBy({units.parameters});
    EXPECT_FALSE(judge.isNeedless(repeating, AV_PKT_FLAG_CORRUPT));
    EXPECT_FALSE(judge.isNeedless(repeating));
    EXPECT_TRUE(judge.isNeedless(repeating));
    if (units.recipe.container == "ts")
        return;
    EXPECT_FALSE(judge.isNeedless(Bytes(repeating.begin(), repeating.end() - 1)));
    EXPECT_FALSE(judge.isNeedless(repeating)) << "after one whose lengths are wrong";
}

INSTANTIATE_TEST_SUITE_P(Of, RepeatedParameters,
                         testing::Values(ParameterUnits{"H264",
                                                        {.codec = VideoCodec::h264},
                                                        {0x68, 0x34, 0x80},
                                                        {0x68, 0x36, 0x80},
                                                        {0x68, 0x3c, 0x80},
                                                        {0x6f, 0x80, 0x80}},
                                         ParameterUnits{
                                             "H264InATransportStream",
                                             {.codec = VideoCodec::h264, .container = "ts"},
                                             {0x68, 0x34, 0x80},
                                             {0x68, 0x36, 0x80},
                                             {0x68, 0x3c, 0x80},
                                             {0x6f, 0x80, 0x80}},
                                         ParameterUnits{"Hevc",
                                                        {.codec = VideoCodec::hevc},
                                                        {0x44, 0x01, 0x34, 0x80},
                                                        {0x44, 0x01, 0x36, 0x80},
                                                        {0x44, 0x01, 0x3c, 0x80},
                                                        {0x42, 0x01, 0x80, 0x80}}),
                         [](const auto& row) { return std::string(row.param.name); });

} // namespace
} // namespace media::ffmpeg
