#include "Models/KeptVideo.h"

#include "Media/Error.h"
#include "Support/FileUrl.h"
#include "Support/Workers.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <system_error>
#include <vector>

namespace brisklet {

namespace {

namespace fs = std::filesystem;

/// Of a folder with more files only so many are looked at.
constexpr std::size_t kMostFiles = 100'000;
/// Releases of the media libraries may compute durations a little differently. Seconds.
constexpr double kSameDuration = 0.01;

/// A file that may be the one looked for, and what speaks for it.
struct Candidate {
    fs::path path;
    bool hasName = false;
    bool isSameFile = false;
    bool hasSize = false;

    /// Whether it is the one without looking into it.
    [[nodiscard]] bool isCertain() const { return isSameFile && hasSize; }

    [[nodiscard]] int weight() const { return 4 * isSameFile + 2 * hasSize + hasName; }
};

std::optional<Candidate> candidateAt(const fs::path& path, const KeptEdit& kept) {
    const auto identity = identityOf(path);
    if (!identity)
        return std::nullopt;
    return Candidate{.path = path,
                     .hasName = path == kept.file,
                     .isSameFile = identity->isSameFileAs(kept.identity),
                     .hasSize = identity->size == kept.identity.size};
}

/// The most likely first.
std::vector<Candidate> candidatesFor(const KeptEdit& kept, const std::stop_token& stop) {
    const auto named = candidateAt(kept.file, kept);
    if (named && named->isCertain())
        return {*named};
    std::vector<Candidate> result;
    std::error_code ignored;
    fs::directory_iterator entry(kept.file.parent_path(), ignored);
    for (std::size_t count = 0; entry != fs::directory_iterator() && count < kMostFiles; ++count) {
        if (stop.stop_requested())
            throw media::Cancelled();
        const auto candidate = candidateAt(entry->path(), kept);
        if (candidate && candidate->weight() > 0)
            result.push_back(*candidate);
        entry.increment(ignored);
    }
    std::ranges::stable_sort(result, std::ranges::greater(), &Candidate::weight);
    return result;
}

/// None if it can't be opened or is another video.
std::optional<LoadedVideo> loadIfSame(const fs::path& path, const KeptEdit& kept,
                                      const std::stop_token& stop) {
    try {
        LoadedVideo video = loadVideo(path, stop);
        if (std::abs(video.duration - kept.duration) <= kSameDuration)
            return video;
    } catch (const media::Error&) {
        return std::nullopt;
    }
    return std::nullopt;
}

[[noreturn]] void throwNotFound(const fs::path& file) {
    std::error_code ignored;
    const fs::path folder = file.parent_path();
    if (!fs::is_directory(folder, ignored))
        throw media::Error(media::ErrorKind::keptFolderMissing, {folder.string()});
    if (fs::exists(fs::symlink_status(file, ignored)))
        throw media::Error(media::ErrorKind::keptNameTaken);
    throw media::Error(media::ErrorKind::keptFileGone, {folder.string()});
}

KeptVideo findAndLoad(const KeptEdit& kept, const std::stop_token& stop) {
    // Known by size and duration alone. Of two such files neither is it for certain: cameras make
    // parts of equal size and length.
    std::optional<KeptVideo> copy;
    for (const Candidate& candidate : candidatesFor(kept, stop)) {
        if (candidate.isCertain())
            return {urlOf(candidate.path), loadVideo(candidate.path, stop)};
        auto video = loadIfSame(candidate.path, kept, stop);
        if (video && (candidate.isSameFile || candidate.hasName))
            return {urlOf(candidate.path), std::move(*video)};
        if (video && copy)
            throwNotFound(kept.file);
        if (video)
            copy = KeptVideo{urlOf(candidate.path), std::move(*video)};
    }
    if (copy)
        return std::move(*copy);
    throwNotFound(kept.file);
}

} // namespace

QCoro::Task<KeptVideo> openKeptVideo(const KeptEdit& kept, const std::stop_token& stop) {
    return runOnWorker([kept, stop] { return findAndLoad(kept, stop); });
}

} // namespace brisklet
