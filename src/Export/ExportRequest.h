#pragma once

#include "Export/ExportSettings.h"
#include "Media/Geometry.h"

#include <QUrl>

#include <memory>
#include <optional>

namespace media {
class Asset;
}

namespace brisklet {

/// Everything that one export needs, copied out of the edit when it starts, so that later edits do
/// not touch it. A plain value.
///
/// The exporter relies on startTime < endTime, within the source's duration, and on a crop inside
/// the unit square with an area; it does not repair other crops.
struct ExportRequest {
    QUrl sourceURL;
    /// Seconds from the start of the source.
    double startTime = 0;
    double endTime = 0;
    /// The output has no audio track.
    bool muted = false;
    /// In fractions of the picture as displayed after rotation, origin top left, y downward.
    std::optional<media::Rect> cropRect;
    /// Clockwise, in degrees, read modulo 360; other turns than quarter turns do not turn.
    int rotation = 0;
    QUrl outputURL;
    ExportFormat format = ExportFormat::mp4;
    /// In pixels; none for no cap.
    std::optional<int> maxShortEdge;
    /// The source as it was opened for the edit, whatever has become of its name since; null to
    /// have it opened by its name.
    std::shared_ptr<const media::Asset> asset = nullptr;
};

} // namespace brisklet
