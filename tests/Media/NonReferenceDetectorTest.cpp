#include "Media/FFmpeg/NonReferenceDetector.h"

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

/// Calls `use` with each packet of a file's first stream, and whether it can be discarded.
void forEachPacket(const std::filesystem::path& path,
                   const std::function<void(const AVPacket&, Discardable)>& use) {
    Demuxer demuxer(SourceFile::open(path));
    demuxer.findStreamInfo();
    demuxer.selectOnly({0});
    NonReferenceDetector detector(*demuxer.context().streams[0]->codecpar);
    const PacketPtr packet = makePacket();
    while (demuxer.read(*packet) == Demuxer::Status::packet) {
        use(*packet, detector.inspect(*packet));
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
    forEachPacket(path, [&](const AVPacket& packet, Discardable discardable) {
        if (isComplete || discardable != Discardable::entirely) {
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
expectNothingDependsOnDiscardedPackets(const std::filesystem::path& path) {
    const auto all = decoded(path, true);
    const auto needed = decoded(path, false);
    EXPECT_FALSE(needed.empty());
    for (const auto& [time, samples] : needed)
        EXPECT_TRUE(all.contains(time) && all.at(time) == samples) << "at " << time;
    return {needed.size(), all.size()};
}

void expectManyDiscardablePackets(const Recipe& recipe) {
    const auto [needed, all] = expectNothingDependsOnDiscardedPackets(makeFixture(recipe).path);
    EXPECT_LT(needed, all * 3 / 4);
}

TEST(DiscardablePackets, ofH264AreThoseThatNoOtherPictureDependsOn) {
    expectManyDiscardablePackets({.codec = VideoCodec::h264});
}

TEST(DiscardablePackets, ofH264InATransportStreamAreThoseThatNoOtherPictureDependsOn) {
    expectManyDiscardablePackets({.codec = VideoCodec::h264, .container = "ts"});
}

TEST(DiscardablePackets, ofHevcAreThoseThatNoOtherPictureDependsOn) {
    expectManyDiscardablePackets({.codec = VideoCodec::hevc});
}

TEST(DiscardablePackets, ofARecorderThatRepeatsParametersAreThoseThatNoOtherPictureDependsOn) {
    const auto sample = testsupport::sampleMedia("mkv-screenrec-1080p60-aac.mkv");
    if (!sample)
        GTEST_SKIP() << "the sample with parameters beside every picture is not here";
    const auto [needed, all] = expectNothingDependsOnDiscardedPackets(*sample);
    EXPECT_LT(needed, all * 3 / 4);
}

/// A field without its partner would be taken for the partner of the next.
TEST(DiscardablePackets, areNoSingleFields) {
    const auto sample = testsupport::sampleMedia("mts-avchd-1080i50-ac3-pgs.mts");
    if (!sample)
        GTEST_SKIP() << "the sample with fields is not here";
    expectNothingDependsOnDiscardedPackets(*sample);
}

using Bytes = std::vector<std::uint8_t>;

/// A generated stream, and packets made from one of its discardable ones.
class PacketMaker {
public:
    explicit PacketMaker(const Recipe& recipe)
        : m_demuxer(SourceFile::open(makeFixture(recipe).path)),
          m_hasStartCodes(recipe.container == "ts") {
        m_demuxer.findStreamInfo();
        forEachPacket(makeFixture(recipe).path, [this](const AVPacket& packet, Discardable judged) {
            Bytes& kind = judged == Discardable::entirely ? m_discardable : m_needed;
            kind.assign(packet.data, packet.data + packet.size);
        });
    }

    [[nodiscard]] const Bytes& discardable() const { return m_discardable; }

    [[nodiscard]] const Bytes& needed() const { return m_needed; }

    /// The discardable packet with more units behind or in front of its own.
    [[nodiscard]] Bytes followedBy(const std::vector<Bytes>& units) const {
        return joined({m_discardable, unitsOf(units)});
    }

    [[nodiscard]] Bytes precededBy(const std::vector<Bytes>& units) const {
        return joined({unitsOf(units), m_discardable});
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
    Bytes m_discardable;
    Bytes m_needed;
};

/// Inspects packets one after the other.
class Inspector {
public:
    explicit Inspector(const PacketMaker& maker) : m_detector(maker.parameters()) {}

    bool isDiscardable(const Bytes& bytes, int flags = 0) {
        const PacketPtr packet = makePacket();
        EXPECT_EQ(av_new_packet(packet.get(), static_cast<int>(bytes.size())), 0);
        std::ranges::copy(bytes, packet->data);
        packet->flags = flags;
        return m_detector.inspect(*packet) == Discardable::entirely;
    }

    void restart() { m_detector.restart(); }

private:
    NonReferenceDetector m_detector;
};

/// H.264 whose packets have lengths of four bytes in front of their units.
class DiscardablePacket : public testing::Test {
protected:
    [[nodiscard]] bool isDiscardable(const Bytes& bytes) const {
        return Inspector(m_maker).isDiscardable(bytes);
    }

    PacketMaker m_maker{{}};
};

TEST_F(DiscardablePacket, hasOnlyPicturesMessagesAndFiller) {
    EXPECT_TRUE(isDiscardable(m_maker.discardable()));
    EXPECT_TRUE(isDiscardable(m_maker.followedBy({{0x06, 0x80}, {0x0c, 0xff}, {0x01, 0x80}})));
    EXPECT_FALSE(isDiscardable(m_maker.needed()));
    EXPECT_FALSE(isDiscardable(m_maker.followedBy({{0x41, 0x80}}))) << "a picture others refer to";
    EXPECT_FALSE(isDiscardable(m_maker.followedBy({{0x68, 0x80}}))) << "parameters";
    EXPECT_FALSE(isDiscardable(m_maker.followedBy({{0x0b}}))) << "the end of a stream";
    EXPECT_FALSE(isDiscardable({}));
}

TEST_F(DiscardablePacket, isCutOffNowhere) {
    const Bytes& whole = m_maker.discardable();
    EXPECT_FALSE(isDiscardable(Bytes(whole.begin(), whole.end() - 1)));
    EXPECT_FALSE(isDiscardable(Bytes(whole.begin(), whole.begin() + 4)));
    Bytes bytes = whole;
    bytes.insert(bytes.end(), {0, 0});
    EXPECT_FALSE(isDiscardable(bytes));
    bytes.insert(bytes.end(), {0, 0});
    EXPECT_FALSE(isDiscardable(bytes)) << "a unit of nothing";
}

/// Some files state lengths and have start codes all the same, which decoders notice.
TEST_F(DiscardablePacket, hasLengthsWhereTheStreamSaysSo) {
    Bytes bytes{0, 0, 0, 1, 0x09, 0xf0};
    bytes.insert(bytes.end(), m_maker.needed().begin(), m_maker.needed().end());
    std::ranges::copy(Bytes{0, 0, 0, 1}, bytes.begin() + 6);
    EXPECT_FALSE(isDiscardable(bytes));
    EXPECT_FALSE(isDiscardable(m_maker.followedBy({{0x06, 0x80, 0, 0, 1, 0x68, 0xee}})))
        << "parameters inside of a message";
}

TEST_F(DiscardablePacket, isNotMarkedAsDamaged) {
    EXPECT_FALSE(Inspector(m_maker).isDiscardable(m_maker.discardable(), AV_PKT_FLAG_CORRUPT));
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
    Inspector inspector(maker);
    EXPECT_FALSE(inspector.isDiscardable(maker.precededBy({units.parameters}))) << "the first time";
    EXPECT_TRUE(inspector.isDiscardable(maker.precededBy({units.parameters})));
    EXPECT_TRUE(inspector.isDiscardable(maker.discardable()));
    EXPECT_TRUE(inspector.isDiscardable(maker.precededBy({units.parameters})));
    EXPECT_FALSE(inspector.isDiscardable(maker.precededBy({units.parameters, units.second})));
    EXPECT_TRUE(inspector.isDiscardable(maker.precededBy({units.second, units.parameters})));
}

TEST_P(RepeatedParameters, areNeededAgainAfterOthersOfTheirNumber) {
    const ParameterUnits& units = GetParam();
    const PacketMaker maker(units.recipe);
    Inspector inspector(maker);
    EXPECT_FALSE(inspector.isDiscardable(maker.precededBy({units.parameters})));
    EXPECT_FALSE(inspector.isDiscardable(maker.precededBy({units.others})));
    EXPECT_FALSE(inspector.isDiscardable(maker.precededBy({units.parameters})));
    EXPECT_TRUE(inspector.isDiscardable(maker.precededBy({units.parameters})));
}

TEST_P(RepeatedParameters, areNeededAgainAfterWhatTheyBuildOn) {
    const ParameterUnits& units = GetParam();
    const PacketMaker maker(units.recipe);
    Inspector inspector(maker);
    EXPECT_FALSE(inspector.isDiscardable(maker.precededBy({units.parameters})));
    EXPECT_FALSE(inspector.isDiscardable(maker.precededBy({units.ofSequence})));
    EXPECT_FALSE(inspector.isDiscardable(maker.precededBy({units.parameters})));
    EXPECT_TRUE(inspector.isDiscardable(maker.precededBy({units.parameters})));
}

TEST_P(RepeatedParameters, areNeededAgainAfterARestart) {
    const ParameterUnits& units = GetParam();
    const PacketMaker maker(units.recipe);
    Inspector inspector(maker);
    EXPECT_FALSE(inspector.isDiscardable(maker.precededBy({units.parameters})));
    inspector.restart();
    EXPECT_FALSE(inspector.isDiscardable(maker.precededBy({units.parameters})));
}

TEST_P(RepeatedParameters, areNotKnownFromBehindAPicture) {
    const ParameterUnits& units = GetParam();
    const PacketMaker maker(units.recipe);
    Inspector inspector(maker);
    EXPECT_FALSE(inspector.isDiscardable(maker.precededBy({units.parameters})));
    EXPECT_FALSE(inspector.isDiscardable(maker.followedBy({units.parameters})));
    EXPECT_FALSE(inspector.isDiscardable(maker.precededBy({units.parameters})));
}

TEST_P(RepeatedParameters, areNotKnownFromADamagedPacket) {
    const ParameterUnits& units = GetParam();
    const PacketMaker maker(units.recipe);
    Inspector inspector(maker);
    const Bytes repeating = maker.precededBy({units.parameters});
    EXPECT_FALSE(inspector.isDiscardable(repeating, AV_PKT_FLAG_CORRUPT));
    EXPECT_FALSE(inspector.isDiscardable(repeating));
    EXPECT_TRUE(inspector.isDiscardable(repeating));
    if (units.recipe.container == "ts")
        return;
    EXPECT_FALSE(inspector.isDiscardable(Bytes(repeating.begin(), repeating.end() - 1)));
    EXPECT_FALSE(inspector.isDiscardable(repeating)) << "after one whose lengths are wrong";
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
