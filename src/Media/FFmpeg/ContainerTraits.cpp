#include "Media/FFmpeg/ContainerTraits.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace media::ffmpeg {

namespace {

struct Row {
    /// The first of the names that libav gives the format.
    std::string_view name;
    ContainerTraits traits;
};

constexpr ContainerTraits kFlash{.isIndexedByPictures = true};
constexpr ContainerTraits kBitstream{.isBareBitstream = true};
constexpr ContainerTraits kOrderedBitstream{.isBareBitstream = true, .hasOrderedPictures = true};

constexpr auto kRows = std::to_array<Row>({
    {"mov",
     {.statesPresentationTimes = true,
      .statesDecodingTimes = true,
      .statesParameters = true,
      .indexesEverySample = true}},
    {"matroska",
     {.statesPresentationTimes = true,
      .isIndexedByPictures = true,
      .countsSoundPriming = true,
      .encryptionMark = ContainerTraits::EncryptionMark::trackMetadata}},
    {"asf", {.encryptionMark = ContainerTraits::EncryptionMark::fileMetadata}},
    {"flv", kFlash},
    {"live_flv", kFlash},
    {"h264", kOrderedBitstream},
    {"hevc", kOrderedBitstream},
    {"mpegvideo", kOrderedBitstream},
    {"m4v", kOrderedBitstream},
    {"h263", kBitstream},
    {"h261", kBitstream},
    {"obu", kBitstream},
    {"vc1", kBitstream},
    {"dirac", kBitstream},
    {"cavsvideo", kBitstream},
});

} // namespace

ContainerTraits containerTraits(const AVInputFormat& format) {
    const std::string_view names(format.name);
    const std::string_view first = names.substr(0, names.find(','));
    const auto* const row = std::ranges::find(kRows, first, &Row::name);
    if (row != kRows.end())
        return row->traits;
    return {.isStillPicture = first.ends_with("_pipe")};
}

} // namespace media::ffmpeg
