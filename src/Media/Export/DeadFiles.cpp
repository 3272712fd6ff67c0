#include "Media/Export/DeadFiles.h"

#include "Media/Export/FileLock.h"
#include "Media/Export/HiddenName.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <ctime>
#include <dirent.h>
#include <linux/magic.h>
#include <memory>
#include <sys/stat.h>
#include <sys/vfs.h>
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

/// Locks there may not reach the other machines that write into the folder: NFS, CIFS, SMB 2, 9P
/// and FUSE, which stands for sshfs. Not all have a name in <linux/magic.h>.
bool isShared(const Descriptor& file) {
    constexpr std::array<std::uint32_t, 6> kTypes = {
        NFS_SUPER_MAGIC, 0xFF534D42, 0xFE534D42, V9FS_MAGIC, SMB_SUPER_MAGIC, FUSE_SUPER_MAGIC};
    struct statfs status = {};
    return ::fstatfs(file.number(), &status) == 0 &&
           std::ranges::find(kTypes, static_cast<std::uint32_t>(status.f_type)) != kTypes.end();
}

/// A running export writes all the time.
bool isAtRest(const Descriptor& file) {
    constexpr std::time_t kLongestPause = 60 * 60;
    struct stat status = {};
    return ::fstat(file.number(), &status) == 0 &&
           std::time(nullptr) - status.st_mtime > kLongestPause;
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
        if (file.isOpen() && isOurs(file) && (!isShared(file) || isAtRest(file)) &&
            lock(file) == LockResult::locked && isNamed(file, path))
            ::unlink(path.c_str());
    }
}

} // namespace media
