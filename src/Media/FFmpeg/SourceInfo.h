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
    /// No packet has a presentation time: pictures are shown one after another, in display order,
    /// at the decoding times.
    bool lacksPresentationTimes = false;
    /// Only reference pictures have no presentation time: it is the decoding time of the next
    /// reference picture, which the demuxer can fill in.
    bool needsGeneratedTimes = false;

    [[nodiscard]] bool isInterlaced() const { return fieldOrder != AV_FIELD_PROGRESSIVE; }
};

struct SourceChapter {
    TimeRange range;
    std::string title;
};

/// Everything that opening a file found out. Immutable once made.
struct SourceInfo {
    /// The demuxer, passed on when the file is opened again so that it is not probed twice.
    const AVInputFormat* format = nullptr;
    /// For bare bitstreams whose pictures can be put in order; null for other files.
    std::shared_ptr<const PictureIndex> pictures;
    /// The container time that is the asset's time 0.
    Time origin;
    Time duration;
    std::vector<SourceTrack> tracks;
    DictionaryPtr metadata;
    std::vector<SourceChapter> chapters;
    /// The timecode of the first picture, "hh:mm:ss:ff"; empty if the file has none.
    std::string timecode;

    /// The track of that stream; aborts if there is none.
    [[nodiscard]] const SourceTrack& track(int streamIndex) const;
};

/// A timestamp of a stream on the asset's time line.
Time assetTime(const SourceInfo& info, const SourceTrack& track, Timestamp timestamp);
/// The timestamp of a stream at a time on the asset's time line, rounded to the nearest.
Timestamp streamTimestamp(const SourceInfo& info, const SourceTrack& track, Time time);

} // namespace media::ffmpeg
