#pragma once

#include "Export/ExportSettings.h"
#include "Media/EncoderSettings.h"
#include "Media/Geometry.h"

#include <QUrl>

#include <cstdint>
#include <memory>
#include <optional>

namespace media {
class Asset;
}

namespace brisklet {

/// How far a crop may fall short of the whole picture on each side and still count as none, in
/// fractions of the picture.
inline constexpr double kWholePictureMargin = 0.001;

/// Whether a crop (fractions of the picture) is to be exported as none.
bool coversPicture(const media::Rect& crop);

/// Everything that one export depends on, copied out of the edit and the settings when it starts,
/// so that later changes do not affect it. A plain value.
///
/// The exporter limits the range to the source's duration, and relies on a crop inside the unit
/// square whose area is not 0.
struct ExportRequest {
    QUrl sourceURL;
    /// Seconds from the start of the source.
    double startTime = 0;
    double endTime = 0;
    /// The output has no audio track.
    bool muted = false;
    /// In fractions of the picture as displayed after rotation, origin top left, y downward.
    std::optional<media::Rect> cropRect;
    /// Clockwise, in degrees, read modulo 360; an angle that is no multiple of 90 does not turn.
    int rotation = 0;
    QUrl outputURL;
    ExportFormat format = ExportFormat::mp4;
    /// In pixels; none for no cap.
    std::optional<int> maxShortEdge;
    /// The source as it was opened for the edit, which may have been renamed or deleted since; null
    /// to open it by its name.
    std::shared_ptr<const media::Asset> asset = nullptr;
    /// What the file will take, as far as that is known. The export fails at once if there is
    /// clearly less free space.
    std::optional<std::int64_t> expectedBytes = std::nullopt;
    /// The program always exports with the defaults; measurements change them.
    media::EncoderSettings encoders = {};
};

/// Whether two requests make the same file, wherever they write it to.
bool makeTheSame(const ExportRequest& one, const ExportRequest& other);

} // namespace brisklet
