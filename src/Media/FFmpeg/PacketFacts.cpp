#include "Media/FFmpeg/PacketFacts.h"

#include "Media/FFmpeg/Check.h"

#include <algorithm>
#include <array>
#include <bit>
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

constexpr std::array<std::uint8_t, 3> kStartCode{0, 0, 1};

/// The first start code; the end where there is none.
auto startCodeIn(std::span<const std::uint8_t> bytes) {
    return std::search(bytes.begin(), bytes.end(), kStartCode.begin(), kStartCode.end());
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

    /// Empty, and the last, where the lengths are not those of the packet or a start code stands
    /// inside of a unit, with which decoders take it for two; none at the packet's end.
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
        const auto unit = m_rest.first(std::min(length, m_rest.size()));
        m_rest = m_rest.subspan(unit.size());
        if (unit.size() == length && startCodeIn(unit) == unit.end())
            return unit;
        m_rest = {};
        return m_rest;
    }

private:
    void skipPastStartCode() {
        const auto found = static_cast<std::size_t>(startCodeIn(m_rest) - m_rest.begin());
        m_rest = m_rest.subspan(std::min(found + kStartCode.size(), m_rest.size()));
    }

    std::span<const std::uint8_t> m_rest;
    std::size_t m_lengthBytes;
};

/// Units begin with a header of these lengths, in bytes.
constexpr std::size_t kH264Header = 1;
constexpr std::size_t kHevcHeader = 2;

/// The first number behind a unit's header, in the coding of Exp-Golomb; none if it is not small.
std::optional<unsigned> firstNumber(std::span<const std::uint8_t> unit, std::size_t header) {
    constexpr std::size_t kBytes = 2;
    if (unit.size() < header + kBytes)
        return std::nullopt;
    const unsigned bits = static_cast<unsigned>(unit[header]) << 8 | unit[header + 1];
    const int zeros = std::countl_zero(static_cast<std::uint16_t>(bits));
    const int length = 2 * zeros + 1;
    constexpr int kKnownBits = 16;
    if (length > kKnownBits)
        return std::nullopt;
    return (bits >> (kKnownBits - length)) - 1;
}

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
    case AV_CODEC_ID_HEVC: {
        // Both have to see every packet.
        const bool isWhole = isWholeFrame(packet);
        return isNonReference(packet) && isWhole ? Dispensable::entirely : Dispensable::no;
    }
    default:
        return canSkipNonReference(m_codec) ? Dispensable::bySkipping : Dispensable::no;
    }
}

void Disposability::restart() {
    m_pictureParameters.clear();
}

/// Not one field of a frame, whose other field may be in the next packet: a decoder that got only
/// one of them would take what follows for the other. HEVC has none that belong together.
bool Disposability::isWholeFrame(const AVPacket& packet) {
    if (!m_parser)
        return true;
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

/// No unit of the picture says that another refers to it, and beside it is nothing that others may
/// need and do not have already.
bool Disposability::isNonReference(const AVPacket& packet) {
    if (!m_layout)
        return false;
    bool isNeeded = false;
    bool hasPicture = false;
    // What a decoder takes from a damaged packet is not known.
    bool forgetsParameters = (packet.flags & AV_PKT_FLAG_CORRUPT) != 0;
    for (Units units(packet, m_layout->lengthBytes); const auto unit = units.next();) {
        switch (useOf(*unit)) {
        case Use::needlessPicture:
            hasPicture = true;
            break;
        case Use::none:
            break;
        case Use::pictureParameters:
            isNeeded = !isRepetition(*unit) || isNeeded;
            // Behind the picture a decoder with several threads may miss them.
            forgetsParameters = forgetsParameters || hasPicture;
            break;
        case Use::streamParameters:
            m_pictureParameters.clear();
            isNeeded = true;
            break;
        case Use::needed:
            hasPicture = isNeeded = true;
            break;
        case Use::damaged:
            forgetsParameters = true;
            break;
        }
    }
    if (forgetsParameters)
        m_pictureParameters.clear();
    return hasPicture && !isNeeded && !forgetsParameters;
}

/// Whether these very parameters came before, and no others with their number since. Some cameras
/// and recorders send them along with every picture.
bool Disposability::isRepetition(Unit pictureParameters) {
    const bool isHevc = m_codec == AV_CODEC_ID_HEVC;
    const auto number = firstNumber(pictureParameters, isHevc ? kHevcHeader : kH264Header);
    if (!number) {
        m_pictureParameters.clear();
        return false;
    }
    std::vector<std::uint8_t>& known = m_pictureParameters[*number];
    if (std::ranges::equal(known, pictureParameters))
        return true;
    known.assign(pictureParameters.begin(), pictureParameters.end());
    return false;
}

Disposability::Use Disposability::useOf(Unit unit) const {
    return m_codec == AV_CODEC_ID_HEVC ? useOfHevc(unit) : useOfH264(unit);
}

Disposability::Use Disposability::useOfH264(Unit unit) const {
    if (unit.size() < kH264Header)
        return Use::damaged;
    const bool isReferredTo = (unit[0] >> 5 & 3U) != 0;
    switch (unit[0] & 31U) { // Rec. ITU-T H.264, table 7-1
    case 1:                  // slices and parts of slices
    case 2:
    case 3:
    case 4:
    case 5:
        return isReferredTo ? Use::needed : Use::needlessPicture;
    case 6:  // messages
    case 9:  // delimiter
    case 12: // filler
        return Use::none;
    case 7:  // of a sequence
    case 13: // their extension
    case 15: // of a subset
        return Use::streamParameters;
    case 8:
        return Use::pictureParameters;
    default:
        return Use::needed;
    }
}

/// A picture that none refers to says so for its own temporal layer, and there is none above it.
Disposability::Use Disposability::useOfHevc(Unit unit) const {
    if (unit.size() < kHevcHeader)
        return Use::damaged;
    constexpr unsigned kFirstReservedPicture = 16;
    const int layer = (unit[1] & 7) - 1;
    switch (const unsigned type = unit[0] >> 1 & 63U) { // Rec. ITU-T H.265, table 7-1
    case 32:                                            // of the whole video
    case 33:                                            // of a sequence
        return Use::streamParameters;
    case 34:
        return Use::pictureParameters;
    case 35: // delimiter
    case 38: // filler
    case 39: // messages
    case 40:
        return Use::none;
    default:
        return type < kFirstReservedPicture && type % 2 == 0 && layer == m_layout->layers - 1
                   ? Use::needlessPicture
                   : Use::needed;
    }
}

bool isShownRightBefore(const AVPacket& first, const AVPacket& second, AVCodecID codec) {
    return isWholeKeyFrame(first) && isWholeKeyFrame(second) && first.pts < second.pts &&
           isInTurn(first, codec) && isInTurn(second, codec);
}

} // namespace media::ffmpeg
