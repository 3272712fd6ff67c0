#include "Media/Module/BuiltInEngine.h"

#include "Media/Error.h"
#include "Media/FFmpeg/DemuxerPool.h"
#include "Media/FFmpeg/Encryption.h"
#include "Media/FFmpeg/Inspection.h"
#include "Media/FFmpeg/SourceFile.h"
#include "Media/FFmpeg/SourceInfo.h"
#include "Media/Playback/CubebOutput.h"

#include <malloc.h>
#include <utility>

namespace media {

namespace {

/// Blocks from this size on are mapped by themselves and given back to the system as soon as they
/// are free. Without a fixed size glibc raises it to that of the largest picture seen so far, and
/// freed pictures leave holes in its heaps. Bytes.
constexpr int kMappedBlockBytes = 1024 * 1024;

std::unique_ptr<ffmpeg::Demuxer> openDemuxer(const std::shared_ptr<const ffmpeg::SourceFile>& file,
                                             const std::stop_token& stop) {
    try {
        return std::make_unique<ffmpeg::Demuxer>(file, nullptr, stop);
    } catch (const Error&) {
        // libav gives up on some encrypted files as if they were damaged.
        ffmpeg::expectNoEncryption(*file);
        throw;
    }
}

class BuiltInEngine final : public Engine {
public:
    BuiltInEngine() { ::mallopt(M_MMAP_THRESHOLD, kMappedBlockBytes); }

    [[nodiscard]] std::shared_ptr<const Asset> openAsset(const std::filesystem::path& path,
                                                         std::stop_token stop) const override {
        auto file = ffmpeg::SourceFile::open(path);
        auto demuxer = openDemuxer(file, stop);
        auto info = std::make_unique<ffmpeg::SourceInfo>(ffmpeg::inspect(*demuxer, *file, stop));
        auto demuxers = std::make_unique<ffmpeg::DemuxerPool>(file, info->format, info->pictures);
        demuxers->giveBack(std::move(demuxer));
        return std::make_shared<const Asset>(std::move(file), std::move(info), std::move(demuxers));
    }

    [[nodiscard]] std::shared_ptr<Player> makePlayer(Executor executor) const override {
        return std::make_shared<Player>(std::move(executor),
                                        std::make_unique<playback::CubebOutput>());
    }

    [[nodiscard]] std::unique_ptr<ImageGenerator>
    makeImageGenerator(std::shared_ptr<const Asset> asset) const override {
        return std::make_unique<ImageGenerator>(std::move(asset));
    }

    [[nodiscard]] std::unique_ptr<ExportSession>
    makeExportSession(Composition composition, std::filesystem::path outputPath, FileType fileType,
                      EncoderSettings settings) const override {
        return std::make_unique<ExportSession>(std::move(composition), std::move(outputPath),
                                               fileType, std::move(settings));
    }
};

} // namespace

const Engine& builtInEngine() {
    static const BuiltInEngine engine;
    return engine;
}

} // namespace media
