#pragma once

#include "Media/FFmpeg/Demuxer.h"
#include "Media/Threading/Guarded.h"

#include <memory>
#include <stop_token>

namespace media::ffmpeg {

/// Demuxers of one file, for its readers to borrow one after another: the headers of a long video
/// take a while to parse. Any thread.
class DemuxerPool {
public:
    /// `pictures`: of a bare bitstream; null for others.
    DemuxerPool(std::shared_ptr<const SourceFile> file, const AVInputFormat* format,
                std::shared_ptr<const PictureIndex> pictures)
        : m_file(std::move(file)), m_format(format), m_pictures(std::move(pictures)) {}

    /// A demuxer for the caller alone, at no particular position and with no particular selection:
    /// one that was given back, or a new one. Throws Error; Cancelled.
    std::unique_ptr<Demuxer> take(const std::stop_token& stop = {});

    /// Keeps a demuxer for the next reader, or closes it.
    void giveBack(std::unique_ptr<Demuxer> demuxer);

private:
    std::shared_ptr<const SourceFile> m_file;
    const AVInputFormat* m_format;
    std::shared_ptr<const PictureIndex> m_pictures;
    Guarded<std::unique_ptr<Demuxer>> m_idle;
};

} // namespace media::ffmpeg
