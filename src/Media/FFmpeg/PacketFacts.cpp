#include "Media/FFmpeg/PacketFacts.h"

#include "Media/FFmpeg/Check.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <span>

namespace media::ffmpeg {

namespace {

/// Whether "non-reference" means in this codec that no other picture depends on it.
bool canSkipNonReference(AVCodecID codec) {
    return codec == AV_CODEC_ID_MPEG2VIDEO || codec == AV_CODEC_ID_MPEG1VIDEO ||
           codec == AV_CODEC_ID_MPEG4;
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

/// The units of an H.264 or HEVC packet, each with its length or a start code in front of it.
class Units {
public:
    /// `lengthBytes`: of the lengths; 0 where there are start codes.
    Units(const AVPacket& packet, unsigned lengthBytes)
        : m_rest(packet.data, static_cast<std::size_t>(std::max(packet.size, 0))),
          m_lengthBytes(lengthBytes) {
        if (m_lengthBytes == 0)
            skipPastStartCode();
    }

    /// Empty, and the last, where the lengths are not those of the packet; none at its end.
    std::optional<std::span<const std::uint8_t>> next() {
        if (m_rest.empty())
            return std::nullopt;
        if (m_lengthBytes == 0) {
            const auto unit = m_rest;
            skipPastStartCode();
            return unit.first(unit.size() - m_rest.size());
        }
        std::size_t length = 0;
        for (const std::uint8_t byte : m_rest.first(std::min(m_lengthBytes, m_rest.size())))
            length = length << 8 | byte;
        m_rest = m_rest.subspan(std::min(m_lengthBytes, m_rest.size()));
        if (length > m_rest.size())
            m_rest = {};
        const auto unit = m_rest.first(std::min(length, m_rest.size()));
        m_rest = m_rest.subspan(unit.size());
        return unit;
    }

private:
    void skipPastStartCode() {
        constexpr std::array<std::uint8_t, 3> kStartCode{0, 0, 1};
        const auto found = std::ranges::search(m_rest, kStartCode);
        m_rest = std::span(found.end(), m_rest.end());
    }

    std::span<const std::uint8_t> m_rest;
    std::size_t m_lengthBytes;
};

} // namespace

Disposability::Disposability(const AVCodecParameters& parameters)
    : m_codec(parameters.codec_id), m_layout(layoutOf(parameters)) {
    if (m_codec != AV_CODEC_ID_H264)
        return;
    m_parserContext.reset(allocated(avcodec_alloc_context3(nullptr)));
    check(avcodec_parameters_to_context(m_parserContext.get(), &parameters));
    m_parser.reset(allocated(av_parser_init(m_codec)));
    m_parser->flags |= PARSER_FLAG_COMPLETE_FRAMES;
}

Dispensable Disposability::judge(const AVPacket& packet) {
    switch (m_codec) {
    case AV_CODEC_ID_H264:
        return isWholeFrame(packet) && isH264NonReference(packet) ? Dispensable::entirely
                                                                  : Dispensable::no;
    case AV_CODEC_ID_HEVC:
        return m_layout && isHevcNonReference(packet) ? Dispensable::entirely : Dispensable::no;
    default:
        return canSkipNonReference(m_codec) ? Dispensable::bySkipping : Dispensable::no;
    }
}

/// Not one field of a frame, whose other field may be in the next packet: a decoder that got only
/// one of them would take what follows for the other.
bool Disposability::isWholeFrame(const AVPacket& packet) {
    std::uint8_t* data = nullptr;
    int size = 0;
    av_parser_parse2(m_parser.get(), m_parserContext.get(), &data, &size, packet.data, packet.size,
                     packet.pts, packet.dts, packet.pos);
    return m_parser->picture_structure == AV_PICTURE_STRUCTURE_FRAME;
}

/// None for HEVC whose layers are not known.
std::optional<Disposability::Layout> Disposability::layoutOf(const AVCodecParameters& parameters) {
    constexpr int kH264LengthByte = 4;
    constexpr int kHevcLayoutByte = 21;
    const std::span data(parameters.extradata,
                         static_cast<std::size_t>(std::max(parameters.extradata_size, 0)));
    const bool isStored = !data.empty() && data[0] == 1;
    if (parameters.codec_id == AV_CODEC_ID_H264)
        return isStored && data.size() > kH264LengthByte
                   ? Layout{(data[kH264LengthByte] & 3U) + 1U, 1}
                   : Layout{};
    if (parameters.codec_id != AV_CODEC_ID_HEVC || !isStored || data.size() <= kHevcLayoutByte)
        return std::nullopt;
    const int layers = data[kHevcLayoutByte] >> 3 & 7;
    if (layers == 0)
        return std::nullopt;
    return Layout{(data[kHevcLayoutByte] & 3U) + 1U, layers};
}

/// The units of the picture say so for their own temporal layer, and there is none above it.
/// Beside them is nothing that others may need.
bool Disposability::isHevcNonReference(const AVPacket& packet) const {
    constexpr unsigned kFirstOtherUnit = 32;
    constexpr unsigned kFirstReservedPicture = 16;
    constexpr std::array<unsigned, 4> kHarmless{35, 38, 39, 40}; // delimiter, filler, messages
    bool hasPicture = false;
    for (Units units(packet, m_layout->lengthBytes); const auto unit = units.next();) {
        if (unit->size() < 2)
            return false;
        const unsigned type = (*unit)[0] >> 1 & 63U;
        const int layer = ((*unit)[1] & 7) - 1;
        const bool isNeedlessPicture =
            type < kFirstReservedPicture && type % 2 == 0 && layer == m_layout->layers - 1;
        if (type < kFirstOtherUnit ? !isNeedlessPicture
                                   : std::ranges::find(kHarmless, type) == kHarmless.end())
            return false;
        hasPicture = hasPicture || isNeedlessPicture;
    }
    return hasPicture;
}

/// No unit of the picture says that another refers to it, and there are no parameters beside it.
bool Disposability::isH264NonReference(const AVPacket& packet) const {
    constexpr unsigned kLastPicture = 5;
    constexpr std::array<unsigned, 3> kHarmless{6, 9, 12}; // messages, delimiter, filler
    bool hasPicture = false;
    for (Units units(packet, m_layout->lengthBytes); const auto unit = units.next();) {
        if (unit->empty())
            return false;
        const unsigned type = (*unit)[0] & 31U;
        const bool isReferredTo = ((*unit)[0] >> 5 & 3U) != 0;
        const bool isNeedlessPicture = type > 0 && type <= kLastPicture && !isReferredTo;
        if (!isNeedlessPicture && std::ranges::find(kHarmless, type) == kHarmless.end())
            return false;
        hasPicture = hasPicture || isNeedlessPicture;
    }
    return hasPicture;
}

bool isShownRightBefore(const AVPacket& first, const AVPacket& second, AVCodecID codec) {
    return isWholeKeyFrame(first) && isWholeKeyFrame(second) && first.pts < second.pts &&
           isInTurn(first, codec) && isInTurn(second, codec);
}

} // namespace media::ffmpeg
