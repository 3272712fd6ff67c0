#include "Media/Export/FileLock.h"

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <random>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>

namespace media {

LockResult lock(const Descriptor& file) {
    while (::flock(file.number(), LOCK_EX | LOCK_NB) != 0) {
        if (errno != EINTR)
            return errno == EWOULDBLOCK ? LockResult::taken : LockResult::impossible;
    }
    return LockResult::locked;
}

Descriptor openCarefully(const std::filesystem::path& path) {
    constexpr int kCarefully = O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY;
    Descriptor file(::open(path.c_str(), O_RDWR | kCarefully));
    // Another user's file may be readable only, which is enough to try its lock.
    if (!file.isOpen() && errno == EACCES)
        file = Descriptor(::open(path.c_str(), O_RDONLY | kCarefully));
    return file;
}

bool isNamed(const Descriptor& file, const std::filesystem::path& path) {
    struct stat opened = {};
    struct stat named = {};
    return ::fstat(file.number(), &opened) == 0 && ::lstat(path.c_str(), &named) == 0 &&
           S_ISREG(opened.st_mode) && opened.st_dev == named.st_dev &&
           opened.st_ino == named.st_ino;
}

bool isLocked(const std::filesystem::path& path) {
    const Descriptor file = openCarefully(path);
    return file.isOpen() && lock(file) == LockResult::taken;
}

void waitAMoment() {
    std::random_device random;
    const int ms = std::uniform_int_distribution<int>(1, 9)(random);
    std::this_thread::sleep_for(std::chrono::milliseconds(ms));
}

} // namespace media
