#include "Media/FFmpeg/NonReferenceDetector.h"

#include "Media/FFmpeg/Check.h"

#include <algorithm>
#include <span>

namespace media::ffmpeg {

namespace {

/// Whether "non-reference" means in this codec that no other picture depends on it.
bool canSkipNonReference(AVCodecID codec) {
    return codec == AV_CODEC_ID_MPEG2VIDEO || codec == AV_CODEC_ID_MPEG1VIDEO ||
           codec == AV_CODEC_ID_MPEG4;
}

} // namespace

NonReferenceDetector::NonReferenceDetector(const AVCodecParameters& parameters)
    : m_codec(parameters.codec_id), m_layout(layoutOf(parameters)) {
    if (m_codec != AV_CODEC_ID_H264)
        return;
    m_parserContext.reset(allocated(avcodec_alloc_context3(nullptr)));
    check(avcodec_parameters_to_context(m_parserContext.get(), &parameters));
    m_parser.reset(allocated(av_parser_init(m_codec)));
    m_parser->flags |= PARSER_FLAG_COMPLETE_FRAMES;
}

Discardable NonReferenceDetector::inspect(const AVPacket& packet) {
    switch (m_codec) {
    case AV_CODEC_ID_H264:
    case AV_CODEC_ID_HEVC: {
        // Both have to see every packet.
        const bool isWhole = isWholeFrame(packet);
        return isNonReference(packet) && isWhole ? Discardable::entirely : Discardable::no;
    }
    default:
        return canSkipNonReference(m_codec) ? Discardable::byDecoder : Discardable::no;
    }
}

void NonReferenceDetector::restart() {
    m_pictureParameterSets.clear();
}

/// Not one field of a frame, whose other field may be in the next packet: a decoder that got only
/// one of them would take what follows for the other. HEVC has none that belong together.
bool NonReferenceDetector::isWholeFrame(const AVPacket& packet) {
    if (!m_parser)
        return true;
    std::uint8_t* data = nullptr;
    int size = 0;
    av_parser_parse2(m_parser.get(), m_parserContext.get(), &data, &size, packet.data, packet.size,
                     packet.pts, packet.dts, packet.pos);
    return m_parser->picture_structure == AV_PICTURE_STRUCTURE_FRAME;
}

/// None for HEVC whose layers are not known.
std::optional<NonReferenceDetector::Layout>
NonReferenceDetector::layoutOf(const AVCodecParameters& parameters) {
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

/// No NAL unit of the picture says that another refers to it, and beside it is nothing that others
/// may need and do not have already.
bool NonReferenceDetector::isNonReference(const AVPacket& packet) {
    if (!m_layout)
        return false;
    bool isNeeded = false;
    bool hasPicture = false;
    // What a decoder takes from a damaged packet is not known.
    bool forgetsParameters = (packet.flags & AV_PKT_FLAG_CORRUPT) != 0;
    for (NalUnits units(packet, m_layout->lengthBytes); const auto unit = units.next();) {
        switch (useOf(*unit)) {
        case Use::nonReferencePicture:
            hasPicture = true;
            break;
        case Use::none:
            break;
        case Use::pictureParameterSet:
            isNeeded = !isRepetition(*unit) || isNeeded;
            // Behind the picture a decoder with several threads may miss them.
            forgetsParameters = forgetsParameters || hasPicture;
            break;
        case Use::sequenceParameterSet:
            m_pictureParameterSets.clear();
            isNeeded = true;
            break;
        case Use::reference:
            hasPicture = isNeeded = true;
            break;
        case Use::damaged:
            forgetsParameters = true;
            break;
        }
    }
    if (forgetsParameters)
        m_pictureParameterSets.clear();
    return hasPicture && !isNeeded && !forgetsParameters;
}

/// Whether this very set came before, and no other with its number since. Some cameras and
/// recorders send them along with every picture.
bool NonReferenceDetector::isRepetition(NalUnit pictureParameterSet) {
    const bool isHevc = m_codec == AV_CODEC_ID_HEVC;
    const auto number =
        firstNumberIn(pictureParameterSet, isHevc ? kHevcUnitHeader : kH264UnitHeader);
    if (!number) {
        m_pictureParameterSets.clear();
        return false;
    }
    std::vector<std::uint8_t>& known = m_pictureParameterSets[*number];
    if (std::ranges::equal(known, pictureParameterSet))
        return true;
    known.assign(pictureParameterSet.begin(), pictureParameterSet.end());
    return false;
}

NonReferenceDetector::Use NonReferenceDetector::useOf(NalUnit unit) const {
    return m_codec == AV_CODEC_ID_HEVC ? useOfHevc(unit) : useOfH264(unit);
}

NonReferenceDetector::Use NonReferenceDetector::useOfH264(NalUnit unit) const {
    if (unit.size() < kH264UnitHeader)
        return Use::damaged;
    const bool isReferredTo = (unit[0] >> 5 & 3U) != 0;
    switch (unit[0] & 31U) { // Rec. ITU-T H.264, table 7-1
    case 1:                  // slices and parts of slices
    case 2:
    case 3:
    case 4:
    case 5:
        return isReferredTo ? Use::reference : Use::nonReferencePicture;
    case 6:  // SEI
    case 9:  // access unit delimiter
    case 12: // filler
        return Use::none;
    case 7:  // SPS
    case 13: // SPS extension
    case 15: // subset SPS
        return Use::sequenceParameterSet;
    case 8: // PPS
        return Use::pictureParameterSet;
    default:
        return Use::reference;
    }
}

/// A picture that none refers to says so for its own temporal layer, and there is none above it.
NonReferenceDetector::Use NonReferenceDetector::useOfHevc(NalUnit unit) const {
    if (unit.size() < kHevcUnitHeader)
        return Use::damaged;
    constexpr unsigned kFirstReservedPicture = 16;
    const int layer = (unit[1] & 7) - 1;
    switch (const unsigned type = unit[0] >> 1 & 63U) { // Rec. ITU-T H.265, table 7-1
    case 32:                                            // VPS
    case 33:                                            // SPS
        return Use::sequenceParameterSet;
    case 34: // PPS
        return Use::pictureParameterSet;
    case 35: // access unit delimiter
    case 38: // filler
    case 39: // SEI
    case 40:
        return Use::none;
    default:
        return type < kFirstReservedPicture && type % 2 == 0 && layer == m_layout->layers - 1
                   ? Use::nonReferencePicture
                   : Use::reference;
    }
}

} // namespace media::ffmpeg
