#pragma once

#include "Media/Playback/FrameCache.h"

#include <cstddef>
#include <cstdint>

/// Frames as a player caches them, with no picture worth looking at.

constexpr media::Ticks operator""_ticks(unsigned long long count) {
    return media::Ticks(static_cast<std::int64_t>(count));
}

inline constexpr media::ImageSize kFrameSize{64, 32};
inline constexpr media::ImageSize kOtherFrameSize{128, 64};
/// Of a frame of kFrameSize: luma, and chroma on every second pixel and line.
inline constexpr std::size_t kFrameBytes = 64 * 32 + 2 * 32 * 16;
/// 30 frames a second.
inline constexpr media::Ticks kFrameLength{20};

media::playback::CachedFrame cachedFrame(media::Ticks begin, media::Ticks end,
                                         media::ImageSize size = kFrameSize);

/// Frames of kFrameLength, from the one at `first` up to the one before `end`.
void fillCache(media::playback::FrameCache& cache, const void* source, media::Ticks first,
               media::Ticks end, media::ImageSize size = kFrameSize);
