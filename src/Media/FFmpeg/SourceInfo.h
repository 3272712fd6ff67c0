#pragma once

#include "Media/Asset.h"
#include "Media/FFmpeg/Handles.h"
#include "Media/FFmpeg/HighDynamicRange.h"
#include "Media/FFmpeg/PictureIndex.h"
#include "Media/FFmpeg/Timestamp.h"

#include <memory>
#include <string>
#include <vector>

namespace media::ffmpeg {

/// A track with what readers and the exporter need beyond its public facts.
struct SourceTrack {
    AssetTrack facts;
    AVRational timeBase{1, 1};
    CodecParametersPtr parameters;
    AVRational averageFrameRate{0, 1};
    AVRational sampleAspectRatio{0, 1};
    /// Of the first video track; never "unknown".
    AVFieldOrder fieldOrder = AV_FIELD_PROGRESSIVE;
    HighDynamicRange dynamicRange;
    DictionaryPtr metadata;
    int disposition = 0;
    /// The file's pictures come without presentation times: they are taken to be shown one after
    /// another at their decoding times.
    bool lacksPresentationTimes = false;
    /// Only pictures that others refer to come without a presentation time: theirs is the decoding
    /// time of the next such picture, which the demuxer can fill in.
    bool needsGeneratedTimes = false;

    [[nodiscard]] bool isInterlaced() const { return fieldOrder != AV_FIELD_PROGRESSIVE; }
};

struct SourceChapter {
    TimeRange range;
    std::string title;
};

/// Everything that opening a file found out. Immutable once made.
struct SourceInfo {
    /// Short name of the demuxer, handed to later openings so that nothing is guessed twice.
    const AVInputFormat* format = nullptr;
    /// Of a bare bitstream whose pictures can be put in order; null for others.
    std::shared_ptr<const PictureIndex> pictures;
    /// The container time that is the asset's time 0.
    Time origin;
    Time duration;
    std::vector<SourceTrack> tracks;
    DictionaryPtr metadata;
    std::vector<SourceChapter> chapters;
    /// The label of the first picture, "hh:mm:ss:ff"; empty if the file has no time code.
    std::string timecode;

    /// The track of that stream; aborts if there is none.
    [[nodiscard]] const SourceTrack& track(int streamIndex) const;
};

/// A timestamp of a stream on the asset's time line.
Time assetTime(const SourceInfo& info, const SourceTrack& track, Timestamp timestamp);
/// The timestamp of a stream at a time on the asset's time line, rounded to the nearest.
Timestamp streamTimestamp(const SourceInfo& info, const SourceTrack& track, Time time);

} // namespace media::ffmpeg
