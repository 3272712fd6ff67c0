#pragma once

#include "Export/ExportSettings.h"
#include "Media/Geometry.h"
#include "TestSupport/Fixture.h"

#include <optional>
#include <string>
#include <vector>

namespace testsupport {

/// One export of the table that is made in every locale, by the window's model and by the tool.
struct ExportRow {
    std::string name;
    Recipe source;
    /// Seconds
    double start = 0.2;
    double end = 0.8;
    /// In fractions of the picture after the turns.
    std::optional<media::Rect> crop;
    /// Counter-clockwise.
    int quarterTurns = 0;
    bool isMuted = false;
    brisklet::ExportFormat format = brisklet::ExportFormat::mp4;
    brisklet::ExportResolution resolution = brisklet::ExportResolution::original;
};

/// Everything that numbers with a fraction have to do with: settings of both encoders, places and
/// brightness in metadata, and sizes.
inline std::vector<ExportRow> exportTable() {
    const Recipe plain{.duration = 1, .width = 160, .height = 120};
    Recipe placed = plain;
    placed.additionalArguments = {"-metadata", "location=+48.1173+011.5167/"};
    Recipe large = plain;
    large.duration = 0.5;
    large.width = 720;
    large.height = 540;
    Recipe deep = plain;
    deep.codec = VideoCodec::hevcTenBit;
    Recipe bright = deep;
    bright.container = "mov";
    bright.additionalArguments = {
        "-color_primaries",
        "bt2020",
        "-color_trc",
        "smpte2084",
        "-colorspace",
        "bt2020nc",
        "-x265-params",
        "log-level=none:hdr10=1:max-cll=1000,400:"
        "master-display=G(13250,34500)B(7500,3000)R(34000,16000)WP(15635,16450)L(10000000,1)"};
    using brisklet::ExportFormat;
    using brisklet::ExportResolution;
    return {{.name = "plain", .source = plain},
            {.name = "placed", .source = placed},
            {.name = "turned",
             .source = plain,
             .crop = media::Rect{0.125, 0.25, 0.5, 0.625},
             .quarterTurns = 1},
            {.name = "capped",
             .source = large,
             .start = 0.1,
             .end = 0.4,
             .resolution = ExportResolution::sd480},
            {.name = "deep", .source = deep},
            {.name = "bright", .source = bright},
            {.name = "movie", .source = placed, .format = ExportFormat::mov},
            {.name = "muted", .source = plain, .isMuted = true}};
}

/// The name of a row's file.
inline std::string outputName(const ExportRow& row) {
    return row.name + (row.format == brisklet::ExportFormat::mov ? ".mov" : ".mp4");
}

} // namespace testsupport
