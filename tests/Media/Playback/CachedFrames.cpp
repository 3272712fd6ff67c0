#include "CachedFrames.h"

using media::ImageSize;
using media::PreviewPicture;
using media::Ticks;
using media::playback::CachedFrame;

CachedFrame cachedFrame(Ticks begin, Ticks end, ImageSize size) {
    PreviewPicture::Format format;
    format.width = size.width;
    format.height = size.height;
    format.chromaShift = 1;
    return {{begin, end},
            media::Time{begin == Ticks::beginning() ? 0 : begin.count(), Ticks::kPerSecond},
            std::make_shared<PreviewPicture>(format)};
}

void fillCache(media::playback::FrameCache& cache, const void* source, Ticks first, Ticks end,
               ImageSize size) {
    for (Ticks begin = first; begin < end; begin = begin + kFrameLength)
        cache.insert(source, cachedFrame(begin, begin + kFrameLength, size));
}
