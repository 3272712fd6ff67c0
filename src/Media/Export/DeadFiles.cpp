#include "Media/Export/DeadFiles.h"

#include "Media/Export/FileLock.h"
#include "Media/Export/HiddenName.h"

#include <string>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <vector>

namespace media {

namespace {

std::vector<std::filesystem::path> hiddenFilesIn(const std::filesystem::path& folder) {
    std::vector<std::filesystem::path> paths;
    std::error_code ignored;
    std::filesystem::directory_iterator entry(folder, ignored);
    for (; !ignored && entry != std::filesystem::directory_iterator(); entry.increment(ignored)) {
        if (isHiddenName(entry->path().filename().native()))
            paths.push_back(entry->path());
    }
    return paths;
}

bool isOurs(const Descriptor& file) {
    struct stat status = {};
    return ::fstat(file.number(), &status) == 0 && S_ISREG(status.st_mode) &&
           status.st_uid == ::geteuid();
}

} // namespace

void removeDeadFiles(const std::filesystem::path& folder) {
    for (const std::filesystem::path& path : hiddenFilesIn(folder)) {
        const Descriptor file = openCarefully(path);
        // Whoever creates, renames or removes such a file has its lock, so the name stays this
        // file's from here to its removal.
        if (file.isOpen() && isOurs(file) && lock(file) == LockResult::locked &&
            isNamed(file, path))
            ::unlink(path.c_str());
    }
}

} // namespace media
