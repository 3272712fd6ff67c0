#include "Media/FFmpeg/PacketFacts.h"

#include "Media/FFmpeg/Decoder.h"
#include "Media/FFmpeg/Demuxer.h"
#include "TestSupport/Fixture.h"

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <string>
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

/// The pictures of a file's first stream by their times, decoded without the packets that
/// `leaveOut` names.
std::map<std::int64_t, std::string>
decoded(const std::filesystem::path& path,
        const std::function<bool(const Disposability&, const AVPacket&)>& leaveOut) {
    Demuxer demuxer(SourceFile::open(path));
    demuxer.findStreamInfo();
    const AVStream& stream = *demuxer.context().streams[0];
    demuxer.selectOnly({0});
    const Disposability disposability(*stream.codecpar);
    Decoder decoder(*stream.codecpar, stream.time_base);
    std::map<std::int64_t, std::string> pictures;
    const PacketPtr packet = makePacket();
    const FramePtr frame = makeFrame();
    bool hasPacket = true;
    while (hasPacket) {
        hasPacket = demuxer.read(*packet) == Demuxer::Status::packet;
        if (!hasPacket)
            decoder.send(nullptr);
        else if (!leaveOut(disposability, *packet))
            decoder.send(packet.get());
        av_packet_unref(packet.get());
        while (decoder.receive(*frame) == Decoder::Status::frame)
            pictures[frame->pts] = samplesOf(*frame);
    }
    return pictures;
}

void expectNothingDependsOnNeedlessPackets(const Recipe& recipe) {
    const auto fixture = makeFixture(recipe);
    const auto all = decoded(fixture.path, [](const auto&, const auto&) { return false; });
    const auto needed =
        decoded(fixture.path, [](const Disposability& disposability, const AVPacket& packet) {
            return disposability.mayBeLeftOut(packet);
        });
    EXPECT_LT(needed.size(), all.size() * 3 / 4);
    EXPECT_FALSE(needed.empty());
    for (const auto& [time, samples] : needed)
        EXPECT_TRUE(all.contains(time) && all.at(time) == samples) << "at " << time;
}

TEST(NeedlessPackets, ofH264AreThoseThatNoOtherPictureDependsOn) {
    expectNothingDependsOnNeedlessPackets({.codec = VideoCodec::h264});
}

TEST(NeedlessPackets, ofH264InATransportStreamAreThoseThatNoOtherPictureDependsOn) {
    expectNothingDependsOnNeedlessPackets({.codec = VideoCodec::h264, .container = "ts"});
}

TEST(NeedlessPackets, ofHevcAreThoseThatNoOtherPictureDependsOn) {
    expectNothingDependsOnNeedlessPackets({.codec = VideoCodec::hevc});
}

/// Whether an H.264 packet of these bytes is.
bool isNeedless(std::vector<std::uint8_t> bytes) {
    std::array<std::uint8_t, 8 + AV_INPUT_BUFFER_PADDING_SIZE> extradata{1, 100, 0, 40, 0xff};
    AVCodecParameters parameters{};
    parameters.codec_id = AV_CODEC_ID_H264;
    parameters.extradata = extradata.data();
    parameters.extradata_size = 8;
    const PacketPtr packet = makePacket();
    packet->data = bytes.data();
    packet->size = static_cast<int>(bytes.size());
    return Disposability(parameters).mayBeLeftOut(*packet);
}

/// A packet of these units of one byte each.
std::vector<std::uint8_t> packetOf(const std::vector<std::uint8_t>& units) {
    std::vector<std::uint8_t> bytes;
    for (const std::uint8_t unit : units)
        bytes.insert(bytes.end(), {0, 0, 0, 1, unit});
    return bytes;
}

constexpr std::uint8_t kPicture = 0x01;
constexpr std::uint8_t kReferencePicture = 0x41;
constexpr std::uint8_t kMessage = 0x06;
constexpr std::uint8_t kParameters = 0x67;

TEST(NeedlessPackets, haveOnlyPicturesAndMessages) {
    EXPECT_TRUE(isNeedless(packetOf({kPicture})));
    EXPECT_TRUE(isNeedless(packetOf({kMessage, kPicture, kPicture})));
    EXPECT_FALSE(isNeedless(packetOf({kReferencePicture})));
    EXPECT_FALSE(isNeedless(packetOf({kPicture, kReferencePicture})));
    EXPECT_FALSE(isNeedless(packetOf({kParameters, kPicture})));
    EXPECT_FALSE(isNeedless(packetOf({kMessage})));
    EXPECT_FALSE(isNeedless({}));
}

TEST(NeedlessPackets, areNoneThatAreCutOff) {
    EXPECT_FALSE(isNeedless({0, 0, 1}));
    EXPECT_FALSE(isNeedless({0, 0, 0, 1}));
    EXPECT_FALSE(isNeedless({0, 0, 0, 1, kPicture, 0, 0}));
}

} // namespace
} // namespace media::ffmpeg
