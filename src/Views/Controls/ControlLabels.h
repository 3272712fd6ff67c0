#pragma once

#include "Export/ExportSettings.h"
#include "Media/ExportForecast.h"
#include "Media/Geometry.h"

#include <QString>

#include <optional>

namespace brisklet {

/// The size of a crop in pixels of the picture as displayed, such as "1536×864", rounded to whole
/// pixels with halves away from zero; empty without a crop. `picture` is in pixels, `crop` in
/// fractions of it.
QString cropLabel(media::Size picture, const std::optional<media::Rect>& crop);

/// The title of the export button: "Export MP4…", "Export MOV · 720p…".
QString exportLabel(ExportFormat format, ExportResolution resolution);

/// What an export comes to, as one line: "00:12.3 · 1706 × 960 · about 46 MB · about 9 s". Its size
/// and time are left out as long as there is no forecast.
QString forecastLabel(double seconds, media::Size picture,
                      const std::optional<media::ExportForecast>& forecast);

} // namespace brisklet
