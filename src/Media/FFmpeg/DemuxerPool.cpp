#include "Media/FFmpeg/DemuxerPool.h"

#include <utility>

namespace media::ffmpeg {

std::unique_ptr<Demuxer> DemuxerPool::take(const std::stop_token& stop) {
    if (auto idle = std::exchange(*m_idle.lock(), nullptr))
        return idle;
    auto demuxer = std::make_unique<Demuxer>(m_file, m_format, stop);
    if (m_pictures)
        demuxer->usePictures(m_pictures);
    return demuxer;
}

void DemuxerPool::giveBack(std::unique_ptr<Demuxer> demuxer) {
    // Others cannot be trusted to come back to a position exactly once they have been elsewhere.
    if (demuxer->statesPresentationTimes())
        *m_idle.lock() = std::move(demuxer);
}

} // namespace media::ffmpeg
