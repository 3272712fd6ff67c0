#include "TestSupport/MediaCache.h"

#include "TestSupport/Process.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <system_error>
#include <unistd.h>

namespace testsupport {
namespace {

/// Holds the lock on one name of the cache against other processes and threads.
class FileLock final {
public:
    explicit FileLock(const std::filesystem::path& path)
        : m_descriptor(::open(path.c_str(), O_CREAT | O_RDWR | O_CLOEXEC, 0644)) {
        if (m_descriptor < 0 || ::flock(m_descriptor, LOCK_EX) != 0)
            throw std::system_error(errno, std::generic_category(), path.string());
    }

    ~FileLock() { ::close(m_descriptor); }

    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

private:
    int m_descriptor;
};

} // namespace

std::filesystem::path
cachedMedia(const std::string& name,
            const std::function<void(const std::filesystem::path& path)>& generate) {
    const std::filesystem::path folder = BRISKLET_TEST_MEDIA_DIR;
    std::filesystem::path path = folder / name;
    if (std::filesystem::exists(path))
        return path;
    std::filesystem::create_directories(folder);
    const FileLock lock(folder / ("." + name + ".lock"));
    if (!std::filesystem::exists(path)) {
        // Only the holder of the lock writes here; what a killed process left is overwritten.
        const std::filesystem::path unfinished = folder / (".unfinished-" + name);
        generate(unfinished);
        std::filesystem::rename(unfinished, path);
    }
    return path;
}

std::filesystem::path cachedMedia(const std::string& name,
                                  const std::vector<std::string>& ffmpegArguments) {
    return cachedMedia(name, [&](const std::filesystem::path& path) {
        std::vector<std::string> arguments = {"ffmpeg", "-nostdin", "-v", "error", "-y"};
        arguments.insert(arguments.end(), ffmpegArguments.begin(), ffmpegArguments.end());
        arguments.push_back("file:" + path.string());
        runProcessOrThrow(arguments);
    });
}

std::optional<std::filesystem::path> sampleMedia(const std::string& name) {
    std::filesystem::path path =
        std::filesystem::path(BRISKLET_SOURCE_DIR) / ".." / "shared" / "media" / name;
    if (!std::filesystem::exists(path))
        return std::nullopt;
    return path;
}

} // namespace testsupport
