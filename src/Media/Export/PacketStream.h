#pragma once

#include "Media/Export/BoundedQueue.h"
#include "Media/FFmpeg/Handles.h"

namespace media {

/// The queue of encoded packets of one output stream, and where the muxer writes them.
struct PacketStream {
    PacketStream(std::size_t capacity, std::stop_token stop) : packets(capacity, std::move(stop)) {}

    BoundedQueue<ffmpeg::PacketPtr> packets;
    AVRational timeBase{1, 1};
    int muxerStream = 0;
};

} // namespace media
