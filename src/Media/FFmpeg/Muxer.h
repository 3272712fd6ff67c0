#pragma once

#include "Media/ExportSession.h"
#include "Media/FFmpeg/Handles.h"
#include "Media/FFmpeg/SourceInfo.h"

namespace media {
class OutputWriter;
}

namespace media::ffmpeg {

/// What an index takes for so many packets and streams, without metadata; bytes.
std::int64_t indexBytes(std::int64_t packets, std::int64_t streams);

/// Writes encoded streams into an MP4 or MOV file with the index (moov) in front of the media, in
/// one pass: space for it is reserved when the header is written. Use from one thread at a time.
class Muxer {
public:
    /// Metadata, chapters and time code are those of `info`, cut to the range. `file` and `info`
    /// must outlive the muxer.
    Muxer(OutputWriter& file, FileType type, const SourceInfo& info, const TimeRange& range);
    Muxer(const Muxer&) = delete;
    Muxer& operator=(const Muxer&) = delete;
    ~Muxer();

    /// Adds a stream for an opened encoder, with the source track's language and names; the stream
    /// number. `transform` is written as the display matrix of a video stream.
    int addStream(const AVCodecContext& encoder, const SourceTrack& source,
                  const AffineTransform& transform = {});

    /// To be called once, when all streams are added. `expectedPackets`: of all streams together;
    /// more are allowed, but then the index moves to the end of the file. Throws Error;
    /// WriteRefusal.
    void writeHeader(std::int64_t expectedPackets);

    /// Packets must come in decoding order over all streams; times in `timeBase`. Throws Error;
    /// WriteRefusal.
    void write(AVPacket& packet, int stream, AVRational timeBase);

    /// Completes the file (not its name). Throws Error; WriteRefusal.
    void finish();

private:
    struct Io;

    void addChapters();
    void addTimecode(AVStream& stream, const SourceTrack& source) const;
    void checkIo(int result);
    void turnReservedRoomIntoFreeBox();

    FileType m_type;
    const SourceInfo& m_info;
    TimeRange m_range;
    std::unique_ptr<Io> m_io;
    IoContextPtr m_ioContext;
    OutputContextPtr m_context;
    std::int64_t m_roomBytes = 0;
    std::int64_t m_expectedPackets = 0;
    std::int64_t m_writtenPackets = 0;
};

} // namespace media::ffmpeg
