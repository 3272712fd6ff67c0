#pragma once

#include "Media/ExportForecast.h"

namespace media {

/// As forecastExport(). The trial encodes run on a thread that this starts and waits for.
std::optional<ExportForecast> runTrial(const Composition& composition,
                                       const std::optional<VideoComposition>& videoComposition,
                                       const EncoderSettings& settings,
                                       const std::stop_token& stop);

} // namespace media
