#include "Media/FFmpeg/FirstPictures.h"

#include "Media/Error.h"
#include "Media/FFmpeg/Check.h"
#include "Media/FFmpeg/ContainerTraits.h"
#include "Media/FFmpeg/Encryption.h"
#include "Media/FFmpeg/LibavReleases.h"
#include "Media/FFmpeg/OpeningTime.h"

#include <algorithm>
#include <utility>

namespace media::ffmpeg {

namespace {

/// How many packets are looked at to learn whether a track states its presentation times.
constexpr std::size_t kPacketsToJudge = 16;

/// How much is read of a container without an index of all pictures to learn at which distances
/// they follow one another.
constexpr std::size_t kTimesToJudge = 64;
constexpr std::int64_t kBytesToJudge = 4'000'000;
/// No decoder keeps more pictures to put them in order.
constexpr std::size_t kMostReordered = 16;

/// How much is read to learn which picture is shown after the first, at most.
constexpr std::int64_t kBytesToLookAhead = 32'000'000;

/// How much is read in search of the beginnings of all sounds. As much as libav reads at most to
/// find out parameters.
constexpr std::int64_t kBytesForSounds = 5'000'000;

/// How many packets are read in search of the second one of a sound.
constexpr int kPacketsForSound = 64;

/// Whether the container counts the time of what only prepares the decoder: the first packet of
/// Vorbis, the first samples of Opus.
bool beginsSilently(const AVFormatContext& context, const AVStream& stream) {
    const AVCodecID codec = stream.codecpar->codec_id;
    return (codec == AV_CODEC_ID_VORBIS || codec == AV_CODEC_ID_OPUS) &&
           containerTraits(*context.iformat).countsSoundPriming;
}

/// A key frame that the decoder takes as it is, and puts out.
bool isPlainKeyFrame(const AVPacket& packet) {
    constexpr int kFlawed = AV_PKT_FLAG_CORRUPT | AV_PKT_FLAG_DISCARD;
    return packet.flags & AV_PKT_FLAG_KEY && !(packet.flags & kFlawed) &&
           !av_packet_get_side_data(&packet, AV_PKT_DATA_NEW_EXTRADATA, nullptr);
}

/// What the headers in a packet tell.
ParserPtr parsed(const AVPacket& packet, const AVCodecParameters& parameters) {
    const CodecContextPtr context(allocated(avcodec_alloc_context3(nullptr)));
    check(avcodec_parameters_to_context(context.get(), &parameters));
    ParserPtr parser(allocated(av_parser_init(parameters.codec_id)));
    parser->flags |= PARSER_FLAG_COMPLETE_FRAMES;
    std::uint8_t* data = nullptr;
    int size = 0;
    av_parser_parse2(parser.get(), context.get(), &data, &size, packet.data, packet.size,
                     packet.pts, packet.dts, packet.pos);
    return parser;
}

} // namespace

FirstPicturesReader::FirstPicturesReader(Demuxer& demuxer, AVStream& stream, Known known)
    : m_demuxer(demuxer),
      m_stream(stream),
      m_decoder(*stream.codecpar, stream.time_base, 0, Decoder::Sharing::withinPictures) {
    AVFormatContext& context = demuxer.context();
    m_statesDts = containerTraits(*context.iformat).statesDecodingTimes;
    if (known == Known::headers) {
        m_sounds.emplace(context);
        // As libav does, which decodes only what is not known otherwise.
        m_isCompleted = m_decoder.context().pix_fmt != AV_PIX_FMT_NONE;
        if (m_isCompleted)
            completeParameters(m_stream, m_decoder.context());
    }
    for (unsigned i = 0; i < context.nb_streams; ++i) {
        if (beginsSilently(context, *context.streams[i]))
            m_soundTimes[context.streams[i]->index];
    }
}

FirstPictures FirstPicturesReader::read(const std::stop_token& stop) {
    m_thread.check();
    findPicture(stop);
    m_waiting.clear();
    if (!m_hasPicture)
        throw Error(ErrorKind::noPictureDecodable);
    if (m_sounds)
        completeStreams(stop);
    const bool mustJudge = !m_demuxer.statesPresentationTimes();
    for (int read = 0; (mustJudge && m_packets < kPacketsToJudge) ||
                       (isAwaitingSound() && read < kPacketsForSound);
         ++read) {
        if (!readPacket(stop))
            break;
    }
    return judged();
}

void FirstPicturesReader::findPicture(const std::stop_token& stop) {
    const OpeningTime time;
    lookAhead(stop);
    if (!decodeAlone())
        decodeInTurn(stop);
}

/// Sounds that begin much later are believed to be what the headers say.
void FirstPicturesReader::completeStreams(const std::stop_token& stop) {
    if (!m_isCompleted)
        completeParameters(m_stream, m_decoder.context());
    if (m_stream.codecpar->field_order == AV_FIELD_UNKNOWN)
        m_stream.codecpar->field_order = m_fieldOrder;
    while (!m_sounds->isComplete() && m_bytes < kBytesForSounds && readPacket(stop)) {
    }
    m_sounds.reset();
}

/// Reads on until it is known when the picture after the first is shown, or that this does not show
/// at once.
void FirstPicturesReader::lookAhead(const std::stop_token& stop) {
    while (m_beginsInTurn && !knowsNext() && m_bytes < kBytesToLookAhead && readPacket(stop)) {
    }
}

bool FirstPicturesReader::knowsNext() const {
    if (!m_next)
        return false;
    // Nothing is shown before it is decoded.
    const bool isPassed = m_statesDts && m_dts.size() == m_packets && m_dts.back() >= *m_next;
    return isPassed || m_hasEnded || m_waiting.size() > kMostReordered ||
           hasOnlyKeyFrames(m_stream.codecpar->codec_id);
}

/// A decoder that is given one packet and told that there are no more does not wait for those that
/// may have to be shown before it; here it is known that none has.
bool FirstPicturesReader::decodeAlone() {
    if (!m_beginsInTurn || !knowsNext())
        return false;
    const AVPacket& packet = *m_waiting.front();
    m_decoder.send(&packet);
    m_decoder.send(nullptr);
    if (m_decoder.receive(*m_frame) == Decoder::Status::frame && ptsOf(*m_frame) == ptsOf(packet) &&
        isWholeFrame(*m_frame)) {
        m_decodedAlone = m_hasPicture = true;
        m_timestamp = ptsOf(*m_frame);
        return true;
    }
    m_decoder.flush();
    return false;
}

/// Fields may have packets of their own.
bool FirstPicturesReader::isWholeFrame(const AVFrame& frame) const {
    const AVCodecID codec = m_stream.codecpar->codec_id;
    if (codec == AV_CODEC_ID_H264)
        return m_structure == AV_PICTURE_STRUCTURE_FRAME;
    return !isInterlaced(frame) || hasOnlyKeyFrames(codec);
}

void FirstPicturesReader::decodeInTurn(const std::stop_token& stop) {
    bool hasMore = true;
    while (hasMore && !m_hasPicture) {
        OpeningTime::expectLeft();
        if (m_waiting.empty())
            hasMore = readPacket(stop);
        if (!m_waiting.empty()) {
            decode(m_waiting.front().get());
            m_waiting.pop_front();
        } else if (!hasMore) {
            decode(nullptr);
        }
    }
}

void FirstPicturesReader::decode(const AVPacket* packet) {
    const OpeningTime::Decoding decoding;
    m_decoder.send(packet);
    m_hasPicture = m_decoder.receive(*m_frame) == Decoder::Status::frame;
    if (m_hasPicture)
        m_timestamp = ptsOf(*m_frame);
}

std::optional<FirstFrame> FirstPicturesReader::firstFrame() const {
    const bool isFlawed = m_decoder.errorCount() > 0 || m_frame->decode_error_flags != 0 ||
                          m_frame->flags & AV_FRAME_FLAG_CORRUPT;
    if (!m_decodedAlone || isFlawed || !m_timestamp || !m_next)
        return std::nullopt;
    return FirstFrame{referenced(*m_frame), *m_timestamp, *m_next};
}

std::vector<Timestamp> FirstPicturesReader::times(const std::stop_token& stop) {
    m_thread.check();
    while (m_packets < kTimesToJudge && m_bytes < kBytesToJudge && readPacket(stop)) {
    }
    if (m_pts.size() < m_packets)
        return m_dts.size() == m_packets ? m_dts : std::vector<Timestamp>();
    // Between the last ones some may be missing that are decoded later.
    std::vector<Timestamp> shown = m_pts;
    std::ranges::sort(shown);
    shown.resize(shown.size() - std::min(shown.size(), kMostReordered));
    return shown;
}

std::optional<Timestamp> FirstPicturesReader::packetTime(int stream, std::size_t number) const {
    const auto entry = m_soundTimes.find(stream);
    if (entry == m_soundTimes.end() || entry->second.size() <= number)
        return std::nullopt;
    return entry->second[number];
}

bool FirstPicturesReader::readPacket(const std::stop_token& stop) {
    m_hasEnded = m_demuxer.read(*m_packet, stop) != Demuxer::Status::packet;
    if (m_hasEnded)
        return false;
    expectNoEncryption(*m_packet);
    m_bytes += m_packet->size;
    if (m_packet->stream_index != m_stream.index)
        noteSound();
    else
        notePicture();
    av_packet_unref(m_packet.get());
    return true;
}

void FirstPicturesReader::notePicture() {
    ++m_packets;
    if (const auto pts = ptsOf(*m_packet))
        m_pts.push_back(*pts);
    if (const auto dts = dtsOf(*m_packet))
        m_dts.push_back(*dts);
    if (m_hasPicture)
        return;
    noteNext();
    m_waiting.push_back(std::exchange(m_packet, makePacket()));
}

void FirstPicturesReader::noteHeaders() {
    if (m_stream.codecpar->codec_id != AV_CODEC_ID_H264)
        return;
    const ParserPtr parser = parsed(*m_packet, *m_stream.codecpar);
    m_structure = parser->picture_structure;
    m_fieldOrder = parser->field_order;
}

void FirstPicturesReader::noteNext() {
    const auto pts = ptsOf(*m_packet);
    const auto dts = dtsOf(*m_packet);
    const bool isDue = pts && (!m_statesDts || !dts || *dts <= *pts);
    if (m_packets == 1) {
        noteHeaders();
        m_beginsInTurn = isDue && isPlainKeyFrame(*m_packet);
        return;
    }
    m_beginsInTurn = m_beginsInTurn && isDue && *pts > m_pts.front();
    if (m_beginsInTurn)
        m_next = std::min(m_next.value_or(*pts), *pts);
}

void FirstPicturesReader::noteSound() {
    if (m_sounds)
        m_sounds->note(*m_packet);
    const auto entry = m_soundTimes.find(m_packet->stream_index);
    if (entry != m_soundTimes.end() && entry->second.size() < 2)
        entry->second.push_back(ptsOf(*m_packet));
}

bool FirstPicturesReader::isAwaitingSound() const {
    return std::ranges::any_of(m_soundTimes,
                               [](const auto& entry) { return entry.second.size() < 2; });
}

FirstPictures FirstPicturesReader::judged() const {
    FirstPictures result{m_timestamp, false, false};
    const std::size_t withoutPts = m_packets - m_pts.size();
    const AVCodecID codec = m_stream.codecpar->codec_id;
    const bool reordersByOne = codec == AV_CODEC_ID_MPEG1VIDEO || codec == AV_CODEC_ID_MPEG2VIDEO ||
                               codec == AV_CODEC_ID_MPEG4;
    if (reordersByOne && withoutPts > 0) {
        result.needsGeneratedTimes = true;
    } else if (withoutPts * 2 > m_packets) {
        result.lacksPresentationTimes = true;
        result.timestamp = m_dts.empty() ? std::nullopt : std::optional(m_dts.front());
    }
    return result;
}

} // namespace media::ffmpeg
