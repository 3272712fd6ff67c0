#pragma once

#include "Media/Composition.h"
#include "Media/EncoderSettings.h"
#include "Media/Error.h"
#include "Media/Image.h"
#include "Media/Playback/FrameCache.h"
#include "Media/Playback/FrameSource.h"

namespace media::process {

// Whether two values are the same in everything that they consist of: invalid times and NaN are the
// same as themselves, and 1/2 s is another time than 2/4 s. A member that is added to a class has
// to be named in SameValues.cpp before that compiles again.

bool isSame(Time a, Time b);
bool isSame(const TimeRange& a, const TimeRange& b);
bool isSame(const AssetTrack& a, const AssetTrack& b);
bool isSame(const Failure& a, const Failure& b);
bool isSame(const playback::FrameSource::Goal& a, const playback::FrameSource::Goal& b);
bool isSame(const playback::CachedFrame& a, const playback::CachedFrame& b);
bool isSame(const TimedImage& a, const TimedImage& b);
/// But for the asset.
bool isSame(const Composition& a, const Composition& b);
bool isSame(const VideoComposition& a, const VideoComposition& b);
bool isSame(const EncoderSettings& a, const EncoderSettings& b);

} // namespace media::process
