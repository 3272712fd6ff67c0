#include "MemoryFile.h"

#include "Media/Error.h"
#include "Media/Module/BuiltInEngine.h"
#include "Media/Threading/Verify.h"

#include <cstdlib>
#include <string>

using namespace media;

namespace {

/// Removed when the fuzzer ends.
const std::filesystem::path& folder() {
    static const std::filesystem::path path = [] {
        std::string name = std::filesystem::temp_directory_path() / "brisklet-fuzz-XXXXXX";
        verify(::mkdtemp(name.data()) != nullptr, "there is a folder for exports");
        return name;
    }();
    static const bool isRegistered = std::atexit([] { std::filesystem::remove_all(path); }) == 0;
    static_cast<void>(isRegistered);
    return path;
}

constexpr int kSide = 64;

VideoComposition small(const AssetTrack& track) {
    const Rect frame{0, 0, track.naturalSize.width, track.naturalSize.height};
    const Rect upright = track.preferredTransform.apply(frame);
    return {
        track.preferredTransform
            .concatenated(AffineTransform::translation(-upright.minX(), -upright.minY()))
            .concatenated(AffineTransform::scale(kSide / upright.width, kSide / upright.height)),
        kSide, kSide, Time{1, 10}};
}

void exportSecond(const std::shared_ptr<const Asset>& asset, Time start) {
    const AssetTrack video = asset->tracks(MediaType::video).front();
    const TimeRange range{start, start + Time{1, 1}};
    Composition composition{asset, CompositionTrack{video, range, video.preferredTransform}, {}};
    for (const AssetTrack& sound : asset->tracks(MediaType::audio))
        composition.audioTracks.push_back({sound, range, {}});
    const EncoderSettings fast{.h264Preset = EncoderPreset::ultrafast};
    const std::filesystem::path output = folder() / "second.mp4";
    try {
        const auto session =
            builtInEngine().makeExportSession(composition, output, FileType::mpeg4, fast);
        session->setVideoComposition(small(video));
        session->run();
    } catch (const Error&) {
        verify(!std::filesystem::exists(output), "what failed leaves nothing behind");
        return;
    }
    verify(std::filesystem::remove(output), "what succeeded is there");
}

} // namespace

/// A whole file as it is edited: opened, shown at some time, a second of it exported.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const MemoryFile file(data, size);
    try {
        const auto asset = builtInEngine().openAsset(file.path(), {});
        if (asset->tracks(MediaType::video).empty())
            return 0;
        constexpr std::size_t kParts = 5;
        const double part = static_cast<double>(size % kParts) / kParts;
        const Time time =
            Time::fromSeconds(asset->duration().seconds() * part, kComparisonTimescale);
        const auto generator = builtInEngine().makeImageGenerator(asset);
        generator->setMaximumSize(kSide, kSide);
        const TimedImage shown = generator->image(time);
        verify(shown.image->width > 0 && shown.image->height > 0, "a picture has a size");
        exportSecond(asset, time);
    } catch (const Error&) {
        // It was told why.
    }
    return 0;
}
