#pragma once

#include "Media/Composition.h"
#include "Media/EncoderSettings.h"

#include <cstdint>
#include <optional>
#include <stop_token>

namespace media {

/// What an export is expected to come to.
struct ExportForecast {
    /// Of the whole file.
    std::int64_t bytes = 0;
    /// From the start of the export to the finished file, with nothing else running.
    double seconds = 0;

    friend bool operator==(const ExportForecast&, const ExportForecast&) = default;
};

/// Forecasts an export from short trial encodes: through the same filters and the same encoders,
/// at several places of the range, written nowhere. Takes at most about 1.5 s of one processor, on
/// a thread that stands back behind all others, and blocks meanwhile; a range that can be encoded
/// within that is encoded whole. Any thread but the main one.
///
/// None if nothing could be measured within that time. Throws Error as an export of the same would;
/// Cancelled soon after a stop request, or when an export of this process begins meanwhile.
std::optional<ExportForecast>
forecastExport(const Composition& composition,
               const std::optional<VideoComposition>& videoComposition,
               const EncoderSettings& settings = {}, const std::stop_token& stop = {});

} // namespace media
