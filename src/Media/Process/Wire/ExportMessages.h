#pragma once

#include "Media/Composition.h"
#include "Media/EncoderSettings.h"
#include "Media/ExportForecast.h"
#include "Media/ExportSession.h"
#include "Media/Process/Wire/Message.h"

#include <memory>
#include <optional>

namespace media::process {

// How what an export is made of is written into messages, and read; as MediaMessages.h. The
// functions named get… throw BadMessage.

/// Its tracks, but not the asset.
void put(MessageWriter& writer, const Composition& composition);
/// A composition of this asset’s tracks.
[[nodiscard]] Composition getComposition(MessageReader& reader, std::shared_ptr<const Asset> asset);

void put(MessageWriter& writer, const std::optional<VideoComposition>& videoComposition);
[[nodiscard]] std::optional<VideoComposition> getVideoComposition(MessageReader& reader);

void put(MessageWriter& writer, const EncoderSettings& settings);
[[nodiscard]] EncoderSettings getSettings(MessageReader& reader);

void put(MessageWriter& writer, const std::optional<ExportForecast>& forecast);
[[nodiscard]] std::optional<ExportForecast> getForecast(MessageReader& reader);

} // namespace media::process
