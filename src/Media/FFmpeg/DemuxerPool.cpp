#include "Media/FFmpeg/DemuxerPool.h"

#include "Media/FFmpeg/SourceInfo.h"

#include <utility>

namespace media::ffmpeg {

std::unique_ptr<Demuxer> DemuxerPool::take(const std::stop_token& stop) {
    if (auto idle = std::exchange(*m_idle.lock(), nullptr))
        return idle;
    return std::make_unique<Demuxer>(m_file, m_format, stop);
}

void DemuxerPool::giveBack(std::unique_ptr<Demuxer> demuxer) {
    // Others cannot be trusted to come back to a position exactly once they have been elsewhere.
    if (statesPresentationTimes(*m_format))
        *m_idle.lock() = std::move(demuxer);
}

} // namespace media::ffmpeg
