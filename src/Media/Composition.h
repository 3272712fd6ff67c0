#pragma once

#include "Media/Asset.h"
#include "Media/Geometry.h"
#include "Media/Time.h"

#include <memory>
#include <optional>
#include <vector>

namespace media {

/// A time range of one track of an asset, shown from time 0 of the composition.
struct CompositionTrack {
    AssetTrack source;
    TimeRange range;
    /// Video: orientation written to the file when there is no video composition.
    AffineTransform preferredTransform;
};

/// What an export reads: a range of one video track and of any number of audio tracks of one
/// asset. Plain data.
struct Composition {
    std::shared_ptr<const Asset> asset;
    std::optional<CompositionTrack> videoTrack;
    std::vector<CompositionTrack> audioTracks;

    /// The length of the longest inserted range; 0 without tracks.
    [[nodiscard]] Time duration() const;
};

/// How the pictures of a composition are rendered: one transform from the track's natural frame
/// (y down) into a canvas of `renderSize` square pixels, at a constant frame rate.
struct VideoComposition {
    AffineTransform transform;
    /// Even and at least 2 in both directions.
    int renderWidth = 2;
    int renderHeight = 2;
    /// 1 / frames per second.
    Time frameDuration{1, 30};
};

/// A side of a picture as it is encoded: even, rounded down, and at least 2; pixels.
constexpr int evenAtLeastTwo(int side) {
    return side < 2 ? 2 : side - side % 2;
}

} // namespace media
