#pragma once

#include "Media/Geometry.h"
#include "Media/Time.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <stop_token>
#include <string>
#include <vector>

namespace media {

enum class MediaType { video, audio };

/// Colour description by the names FFmpeg prints ("bt709", "smpte2084", "tv", "left" …); empty
/// where the file does not say.
struct ColorDescription {
    std::string primaries;
    std::string transfer;
    std::string matrix;
    std::string range;
    std::string chromaLocation;
};

/// One video or audio track of an asset: plain facts, copied freely.
struct AssetTrack {
    MediaType type = MediaType::video;
    /// Index of the stream in the container.
    int streamIndex = 0;
    /// Short codec name ("h264", "aac").
    std::string codec;
    /// ISO 639-2 language code; empty if the file names none.
    std::string language;
    /// Presentation time of the track's first frame or sample, on the asset's time line (>= 0).
    Time startTime;

    /// Video: coded size with the pixel aspect ratio applied to the width; pixels.
    Size naturalSize;
    /// Video: size of the coded picture in samples.
    int codedWidth = 0;
    int codedHeight = 0;
    /// Video: turns the natural picture upright; from the container's display matrix, identity
    /// without one. y grows downward.
    AffineTransform preferredTransform;
    /// Video: frames per second; 0 if unknown. `float` is precise enough for a nominal rate.
    float nominalFrameRate = 0;
    /// Video: the distance from each frame to the next, and how many there are, where the
    /// container's index proves that all distances are the same; otherwise invalid and 0.
    Time frameDistance = Time::invalid();
    std::int64_t frameCount = 0;
    /// Video: name of the pixel format ("yuv420p10le").
    std::string pixelFormat;
    int bitsPerComponent = 8;
    ColorDescription color;

    /// Audio.
    int channels = 0;
    int sampleRate = 0;
};

/// An opened media file: facts about its tracks, and the source that readers share.
///
/// Opening reads the file's headers, and its tail where the duration is in doubt, and makes sure
/// that its first picture decodes. Only the named file is ever read: nothing that the file points
/// at is opened. The file stays open as long as the asset or any reader of it lives, so renaming
/// or deleting it meanwhile does no harm. Immutable; usable on any thread.
class Asset {
public:
    /// Throws Error (a sentence for the user) if the file cannot be opened or read as video or
    /// audio, or if it has a video track of which not one picture decodes; Cancelled if `stop` is
    /// requested meanwhile. Blocks: call it off the main thread.
    static std::shared_ptr<const Asset> open(const std::filesystem::path& path,
                                             std::stop_token stop = {});

    Asset(const Asset&) = delete;
    Asset& operator=(const Asset&) = delete;
    virtual ~Asset() = default;

    [[nodiscard]] virtual const std::filesystem::path& path() const = 0;
    /// From time 0, the earliest presentation time of any track, to the latest end of any track.
    [[nodiscard]] virtual Time duration() const = 0;
    /// The tracks of one type in file order. Cover pictures and timed thumbnails are not among
    /// them.
    [[nodiscard]] virtual std::vector<AssetTrack> tracks(MediaType type) const = 0;

    /// Calls `handler` once, on any thread, when the process that decodes this asset has ended
    /// unexpectedly: no picture and no sound of it can be had any more. At once if that has
    /// happened already; never for an asset that is decoded in this process. Replaces the one
    /// before; empty: none, and after that returns the old one is not being called.
    virtual void setLossHandler(std::function<void()> handler) const = 0;

protected:
    Asset() = default;
};

/// The size of a track's picture turned upright (|width| and |height| of the transformed frame).
Size orientedSize(const AssetTrack& track);

} // namespace media
