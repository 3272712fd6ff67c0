#include "Media/Export/TemporaryFile.h"

#include "Media/Error.h"
#include "Media/Export/WriteError.h"
#include "Media/FFmpeg/FileName.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <fcntl.h>
#include <linux/magic.h>
#include <random>
#include <string>
#include <string_view>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>
#include <utility>

namespace media {

namespace {

/// How often creating the file is tried while others create and remove files of that name; each
/// of them costs one attempt at most.
constexpr int kAttempts = 100;

/// Whether "A.mp4" and "a.mp4" are one file in that folder, as far as the type of the file system
/// tells.
bool ignoresCase(const std::filesystem::path& folder) {
    // FAT, exFAT, CIFS, SMB 2 and HFS+. Not all of them have a name in <linux/magic.h>.
    constexpr std::array<std::uint32_t, 5> kTypes = {MSDOS_SUPER_MAGIC, 0x2011BAB0, 0xFF534D42,
                                                     0xFE534D42, 0x482B};
    struct statfs status = {};
    return ::statfs(folder.c_str(), &status) == 0 &&
           std::ranges::find(kTypes, static_cast<std::uint32_t>(status.f_type)) != kTypes.end();
}

std::string temporaryName(std::uint64_t number) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::string digits;
    for (int shift = 60; shift >= 0; shift -= 4)
        digits += kDigits[(number >> shift) & 0xF];
    return ".brisklet-" + digits + ".part";
}

/// The name that belongs to a destination. Always of the same length, however long that name is.
std::string nameFor(const std::filesystem::path& destination) {
    std::string name = destination.filename().string();
    if (ignoresCase(folderOf(destination))) {
        std::ranges::transform(name, name.begin(), [](char c) {
            return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
        });
    }
    // FNV-1a, 64 bits: the same in every version of the program and on every machine of a network.
    std::uint64_t hash = 0xcbf29ce484222325;
    for (const char c : name)
        hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001b3;
    return temporaryName(hash);
}

std::string randomName() {
    std::random_device random;
    return temporaryName(std::uniform_int_distribution<std::uint64_t>()(random));
}

enum class LockResult { locked, taken, impossible };

LockResult lock(int descriptor) {
    while (::flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
        if (errno != EINTR)
            return errno == EWOULDBLOCK ? LockResult::taken : LockResult::impossible;
    }
    return LockResult::locked;
}

/// Whether the open file is a regular one and still has that name.
bool isNamed(int descriptor, const std::filesystem::path& path) {
    struct stat opened = {};
    struct stat named = {};
    return ::fstat(descriptor, &opened) == 0 && ::lstat(path.c_str(), &named) == 0 &&
           S_ISREG(opened.st_mode) && opened.st_dev == named.st_dev &&
           opened.st_ino == named.st_ino;
}

} // namespace

TemporaryFile::TemporaryFile(const std::filesystem::path& destination,
                             const std::filesystem::path& shownName)
    : m_destination(destination) {
    if (!createLocked(shownName))
        createUnlocked();
}

TemporaryFile::~TemporaryFile() {
    remove();
    close();
}

bool TemporaryFile::createLocked(const std::filesystem::path& shownName) {
    m_path = folderOf(m_destination) / nameFor(m_destination);
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        const bool isNew = create();
        if (!isNew && !openLeftover()) {
            // The other export has just finished and renamed it.
            if (errno == ENOENT)
                continue;
            return false;
        }
        const LockResult result = lock(m_descriptor);
        if (result == LockResult::taken) {
            close();
            throw Error(ErrorKind::beingExported, {ffmpeg::shownName(shownName)});
        }
        if (result == LockResult::impossible) {
            if (isNew)
                ::unlink(m_path.c_str());
            close();
            return false;
        }
        // Before it was locked another export may have renamed or removed it.
        const bool isOurs = isNamed(m_descriptor, m_path);
        if (isOurs && isNew)
            return true;
        const bool isStuck = isOurs && ::unlink(m_path.c_str()) != 0;
        close();
        if (isStuck)
            return false;
    }
    return false;
}

void TemporaryFile::createUnlocked() {
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        m_path = folderOf(m_destination) / randomName();
        if (create())
            return;
    }
    throwWriteError(EEXIST, m_destination);
}

/// False if something has that name already; throws Error if the file can't be created.
bool TemporaryFile::create() {
    m_descriptor = ::open(m_path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (m_descriptor < 0 && errno != EEXIST)
        throwWriteError(errno, m_destination);
    return m_descriptor >= 0;
}

/// Opens what has the name; false, with errno set, if that fails. It need not be a file of ours.
bool TemporaryFile::openLeftover() {
    constexpr int kCarefully = O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY;
    m_descriptor = ::open(m_path.c_str(), O_RDWR | kCarefully);
    // Another user's file may be readable only, which is enough to try its lock.
    if (m_descriptor < 0 && errno == EACCES)
        m_descriptor = ::open(m_path.c_str(), O_RDONLY | kCarefully);
    return m_descriptor >= 0;
}

void TemporaryFile::remove() {
    if (!m_path.empty())
        ::unlink(m_path.c_str());
    m_path.clear();
}

int TemporaryFile::takeName() {
    if (::fsync(m_descriptor) != 0)
        return errno;
    // Some network disks tell of failed writes only when a file is closed, and the lock has to hold
    // until the file has its name.
    const int second = ::fcntl(m_descriptor, F_DUPFD_CLOEXEC, 0);
    if (second < 0 || ::close(second) != 0)
        return errno;
    if (::rename(m_path.c_str(), m_destination.c_str()) != 0)
        return errno;
    m_path.clear();
    close();
    return 0;
}

void TemporaryFile::close() {
    if (m_descriptor >= 0)
        ::close(std::exchange(m_descriptor, -1));
}

} // namespace media
