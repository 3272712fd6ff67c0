#include "Media/FFmpeg/PacketFacts.h"

#include <algorithm>
#include <cstdint>
#include <span>

namespace media::ffmpeg {

namespace {

/// Whether "non-reference" means in this codec that no other picture depends on it.
bool canSkipNonReference(AVCodecID codec) {
    return codec == AV_CODEC_ID_H264 || codec == AV_CODEC_ID_MPEG2VIDEO ||
           codec == AV_CODEC_ID_MPEG1VIDEO || codec == AV_CODEC_ID_MPEG4;
}

bool hasOnlyKeyFrames(AVCodecID codec) {
    const AVCodecDescriptor* descriptor = avcodec_descriptor_get(codec);
    return descriptor && descriptor->props & AV_CODEC_PROP_INTRA_ONLY;
}

/// Whether the packet is shown in its turn: where times of decoding and showing are the same, no
/// later packet can be shown before this one.
bool isInTurn(const AVPacket& packet, AVCodecID codec) {
    return packet.dts == packet.pts || (packet.dts == AV_NOPTS_VALUE && hasOnlyKeyFrames(codec));
}

bool isWholeKeyFrame(const AVPacket& packet) {
    constexpr int kFlawed = AV_PKT_FLAG_CORRUPT | AV_PKT_FLAG_DISCARD;
    return packet.flags & AV_PKT_FLAG_KEY && !(packet.flags & kFlawed) &&
           packet.pts != AV_NOPTS_VALUE;
}

} // namespace

Disposability::Disposability(const AVCodecParameters& parameters)
    : m_codec(parameters.codec_id), m_hevcLayout(hevcLayout(parameters)) {}

bool Disposability::mayBeLeftOut(const AVPacket& packet) const {
    return m_hevcLayout ? isHevcNonReference(packet, *m_hevcLayout) : canSkipNonReference(m_codec);
}

std::optional<Disposability::HevcLayout>
Disposability::hevcLayout(const AVCodecParameters& parameters) {
    constexpr int kLayoutByte = 21;
    const std::uint8_t* data = parameters.extradata;
    if (parameters.codec_id != AV_CODEC_ID_HEVC || parameters.extradata_size <= kLayoutByte ||
        data[0] != 1)
        return std::nullopt;
    const int layers = data[kLayoutByte] >> 3 & 7;
    if (layers == 0)
        return std::nullopt;
    return HevcLayout{(data[kLayoutByte] & 3U) + 1U, layers};
}

/// The units of the picture say so for their own temporal layer, and there is none above it.
bool Disposability::isHevcNonReference(const AVPacket& packet, const HevcLayout& layout) {
    constexpr unsigned kFirstOtherUnit = 32;
    constexpr unsigned kFirstReservedPicture = 16;
    const std::span bytes(packet.data, static_cast<std::size_t>(std::max(packet.size, 0)));
    std::size_t at = 0;
    while (at + layout.lengthBytes + 2 <= bytes.size()) {
        std::size_t length = 0;
        for (unsigned i = 0; i < layout.lengthBytes; ++i)
            length = length << 8 | bytes[at + i];
        at += layout.lengthBytes;
        const unsigned type = bytes[at] >> 1 & 63U;
        const int layer = (bytes[at + 1] & 7) - 1;
        if (type < kFirstOtherUnit)
            return type < kFirstReservedPicture && type % 2 == 0 && layer == layout.layers - 1;
        at += length;
    }
    return false;
}

bool isShownRightBefore(const AVPacket& first, const AVPacket& second, AVCodecID codec) {
    return isWholeKeyFrame(first) && isWholeKeyFrame(second) && first.pts < second.pts &&
           isInTurn(first, codec) && isInTurn(second, codec);
}

} // namespace media::ffmpeg
