#include "Media/Export/DeadFiles.h"

#include "Media/Export/FileLock.h"
#include "Media/Export/HiddenName.h"

#include <dirent.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace media {

namespace {

struct CloseFolder {
    void operator()(DIR* folder) const { ::closedir(folder); }
};

/// Not by std::filesystem, whose iterator ends the program where memory runs out.
std::vector<std::filesystem::path> hiddenFilesIn(const std::filesystem::path& path) {
    std::vector<std::filesystem::path> paths;
    const std::unique_ptr<DIR, CloseFolder> folder(::opendir(path.c_str()));
    while (const dirent* entry = folder ? ::readdir(folder.get()) : nullptr) {
        if (isHiddenName(entry->d_name))
            paths.push_back(path / entry->d_name);
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
