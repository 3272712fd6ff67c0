#include "Media/Export/ExportProof.h"

#include "Media/Error.h"
#include "Media/FFmpeg/Decoder.h"
#include "Media/FFmpeg/Demuxer.h"
#include "Media/FFmpeg/NonReferenceDetector.h"
#include "Media/FFmpeg/SourceInfo.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <span>

namespace media {

namespace {

/// The sample table and the edit list round to their own time scales; seconds.
constexpr double kRounding = 0.002;

[[noreturn]] void fail() {
    throw Error(ErrorKind::newFileDamaged);
}

void require(bool condition) {
    if (!condition)
        fail();
}

/// The video and audio streams, without chapter and timecode tracks.
std::vector<AVStream*> mediaStreams(const AVFormatContext& context) {
    std::vector<AVStream*> streams;
    for (AVStream* stream : std::span(context.streams, context.nb_streams)) {
        const AVMediaType type = stream->codecpar->codec_type;
        if (type == AVMEDIA_TYPE_VIDEO || type == AVMEDIA_TYPE_AUDIO)
            streams.push_back(stream);
    }
    return streams;
}

void checkTrack(AVStream& stream, const ExportPlan::Track& plan, std::int64_t fileSize) {
    const bool isVideo = stream.codecpar->codec_type == AVMEDIA_TYPE_VIDEO;
    require(isVideo == (plan.type == MediaType::video));
    require(stream.nb_frames == plan.samples);
    const int count = avformat_index_get_entries_count(&stream);
    require(count > 0);
    for (int i = 0; i < count; ++i) {
        const AVIndexEntry& entry = *avformat_index_get_entry(&stream, i);
        require(entry.pos >= 0 && entry.size > 0 && entry.pos + entry.size <= fileSize);
    }
}

/// Decodes the pictures at the two ends of the video track.
class EndsReader {
public:
    EndsReader(ffmpeg::Demuxer& demuxer, const AVStream& stream, const std::stop_token& stop)
        : m_demuxer(demuxer),
          m_stream(stream),
          m_stop(stop),
          m_detector(*stream.codecpar),
          m_decoder(*stream.codecpar, stream.time_base) {
        // Whether a picture decodes does not depend on deblocking.
        m_decoder.context().skip_loop_filter = AVDISCARD_ALL;
    }

    /// Decodes the first packet alone and drains the decoder, which would otherwise take several
    /// more packets before it returns a picture.
    void checkFirst() {
        require(m_demuxer.read(*m_packet, m_stop) == ffmpeg::Demuxer::Status::packet);
        m_decoder.send(m_packet.get());
        av_packet_unref(m_packet.get());
        m_decoder.send(nullptr);
        require(receive());
        requireIntact();
        require(m_frame->pts == 0);
    }

    /// `end`: when the last picture's turn is over.
    void checkLast(ffmpeg::Timestamp end) {
        const ffmpeg::Timestamp last = lastTimestamp();
        require(last < end && m_demuxer.seek(m_stream.index, last, m_stop));
        m_decoder.flush();
        std::optional<ffmpeg::Timestamp> latest;
        bool isDraining = false;
        for (;;) {
            if (receive()) {
                requireIntact();
                latest = std::max(latest, ffmpeg::Timestamp::stated(m_frame->pts));
            } else if (isDraining) {
                break;
            } else {
                isDraining = !feed(last);
            }
        }
        require(latest == last);
    }

private:
    /// The latest pts of the pictures from the last key frame on.
    ffmpeg::Timestamp lastTimestamp() {
        const ffmpeg::Timestamp end(m_stream.start_time + m_stream.duration);
        require(m_demuxer.seek(m_stream.index, end, m_stop));
        std::optional<ffmpeg::Timestamp> last;
        while (m_demuxer.read(*m_packet, m_stop) == ffmpeg::Demuxer::Status::packet) {
            last = std::max(last, ffmpeg::ptsOf(*m_packet));
            av_packet_unref(m_packet.get());
        }
        require(last.has_value());
        return *last;
    }

    bool receive() { return m_decoder.receive(*m_frame) == ffmpeg::Decoder::Status::frame; }

    /// Sends the next packet to the decoder, unless no other picture refers to its picture and it
    /// is not the one with the pts `wanted`. At the end of the file starts to drain the decoder and
    /// returns false.
    bool feed(ffmpeg::Timestamp wanted) {
        if (m_demuxer.read(*m_packet, m_stop) == ffmpeg::Demuxer::Status::endOfFile) {
            m_decoder.send(nullptr);
            return false;
        }
        if (m_detector.inspect(*m_packet) != ffmpeg::Discardable::entirely ||
            ffmpeg::ptsOf(*m_packet) == wanted)
            m_decoder.send(m_packet.get());
        av_packet_unref(m_packet.get());
        return true;
    }

    void requireIntact() const {
        require(m_decoder.errorCount() == 0 && m_frame->decode_error_flags == 0 &&
                !(m_frame->flags & AV_FRAME_FLAG_CORRUPT));
    }

    ffmpeg::Demuxer& m_demuxer;
    const AVStream& m_stream;
    std::stop_token m_stop;
    ffmpeg::NonReferenceDetector m_detector;
    ffmpeg::Decoder m_decoder;
    ffmpeg::PacketPtr m_packet = ffmpeg::makePacket();
    ffmpeg::FramePtr m_frame = ffmpeg::makeFrame();
};

void check(const std::shared_ptr<const ffmpeg::SourceFile>& file, const ExportPlan& plan,
           const std::stop_token& stop) {
    ffmpeg::Demuxer demuxer(file, nullptr, stop);
    const std::vector<AVStream*> streams = mediaStreams(demuxer.context());
    require(streams.size() == plan.tracks.size());
    for (std::size_t i = 0; i < streams.size(); ++i)
        checkTrack(*streams[i], plan.tracks[i], file->size());

    AVStream& video = *streams.front();
    const double start = static_cast<double>(video.start_time) * av_q2d(video.time_base);
    const double duration = static_cast<double>(video.duration) * av_q2d(video.time_base);
    require(std::abs(start) < kRounding);
    require(std::abs(duration - plan.duration.seconds()) < kRounding);
    demuxer.selectOnly({video.index});
    EndsReader reader(demuxer, video, stop);
    reader.checkFirst();
    reader.checkLast(ffmpeg::Timestamp(video.start_time + video.duration));
}

} // namespace

void proveExport(const std::shared_ptr<const ffmpeg::SourceFile>& file, const ExportPlan& plan,
                 const std::stop_token& stop) {
    try {
        check(file, plan, stop);
    } catch (const Error&) {
        fail();
    }
}

} // namespace media
