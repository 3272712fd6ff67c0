#pragma once

namespace media::playback {

/// Largest size of the delivered frames in pixels; 0 leaves a side free.
struct PreviewSize {
    int width = 0;
    int height = 0;
    friend bool operator==(const PreviewSize&, const PreviewSize&) = default;
};

} // namespace media::playback
