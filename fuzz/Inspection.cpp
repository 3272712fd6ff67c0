#include "MemoryFile.h"

#include "Media/Error.h"
#include "Media/Module/BuiltInEngine.h"
#include "Media/Threading/Verify.h"

#include <cmath>

using namespace media;

namespace {

void expectPossible(const AssetTrack& track) {
    verify(track.startTime.isNumeric() && track.startTime >= Time{0, 1}, "tracks begin in time");
    if (track.type == MediaType::audio) {
        verify(track.channels > 0 && track.sampleRate > 0, "a sound can be heard");
        return;
    }
    verify(std::isfinite(track.naturalSize.width) && track.naturalSize.width >= 0, "a width");
    verify(track.preferredTransform.determinant() != 0, "the transform can be undone");
    verify(track.nominalFrameRate >= 0 && track.nominalFrameRate <= 1000, "a frame rate");
    verify(track.frameCount == 0 || track.frameDistance > Time{0, 1}, "distances lead on");
}

} // namespace

/// Opening a file: demuxing, edit lists, the facts of its tracks, the first picture. It says no, or
/// what it says is possible.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const MemoryFile file(data, size);
    try {
        const auto asset = builtInEngine().openAsset(file.path(), {});
        verify(asset->duration().isNumeric() && asset->duration() >= Time{0, 1}, "it has a length");
        for (const MediaType type : {MediaType::video, MediaType::audio}) {
            for (const AssetTrack& track : asset->tracks(type))
                expectPossible(track);
        }
    } catch (const Error&) {
        // It was told why.
    }
    return 0;
}
