#pragma once

#include "Media/Asset.h"
#include "Media/Error.h"
#include "Media/Image.h"
#include "Media/Playback/FrameCache.h"
#include "Media/Playback/FrameSource.h"
#include "Media/Process/Wire/Message.h"
#include "Media/Process/Wire/SharedArea.h"

#include <optional>
#include <vector>

namespace media::process {

// How the media layer’s values are written into messages, and read. What is read is checked as far
// as the program relies on it; the functions named get… throw BadMessage.

void put(MessageWriter& writer, Time time);
[[nodiscard]] Time getTime(MessageReader& reader);

void put(MessageWriter& writer, Ticks ticks);
[[nodiscard]] Ticks getTicks(MessageReader& reader);

void put(MessageWriter& writer, const TimeRange& range);
[[nodiscard]] TimeRange getTimeRange(MessageReader& reader);

void put(MessageWriter& writer, const TickRange& range);
[[nodiscard]] TickRange getTickRange(MessageReader& reader);

void put(MessageWriter& writer, const AffineTransform& transform);
[[nodiscard]] AffineTransform getTransform(MessageReader& reader);

void put(MessageWriter& writer, const AssetTrack& track);
[[nodiscard]] AssetTrack getTrack(MessageReader& reader);

void put(MessageWriter& writer, const Failure& failure);
[[nodiscard]] Failure getFailure(MessageReader& reader);

void put(MessageWriter& writer, const playback::FrameSource::Goal& goal);
[[nodiscard]] playback::FrameSource::Goal getGoal(MessageReader& reader);

void put(MessageWriter& writer, playback::PreviewSize size);
[[nodiscard]] playback::PreviewSize getPreviewSize(MessageReader& reader);

/// The picture’s bytes go into the area.
void put(MessageWriter& writer, SharedArea& area, const playback::CachedFrame& frame);
[[nodiscard]] playback::CachedFrame getFrame(MessageReader& reader, SharedArea& area);

/// The same with an image; it must not be null.
void put(MessageWriter& writer, SharedArea& area, const TimedImage& image);
[[nodiscard]] TimedImage getImage(MessageReader& reader, SharedArea& area);

/// The same with samples of sound.
void put(MessageWriter& writer, SharedArea& area, std::span<const float> samples);
/// Valid until the area changes.
[[nodiscard]] std::span<const float> getSamples(MessageReader& reader, SharedArea& area);

} // namespace media::process
