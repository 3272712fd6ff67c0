#include "Media/Export/TemporaryFile.h"

#include "Media/Error.h"
#include "Media/Export/DeadFiles.h"
#include "Media/Export/HiddenName.h"
#include "Media/Export/WriteError.h"
#include "Media/FFmpeg/FileName.h"

#include <cerrno>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace media {

namespace {

/// How often creating the file is tried while others create and remove files of that name; each
/// of them costs one attempt at most.
constexpr int kAttempts = 100;

/// As for every new file: the umask takes away from it.
constexpr mode_t kPermissions = 0666;

[[noreturn]] void throwTaken(const std::filesystem::path& shownName) {
    throw Error(ErrorKind::beingExported, {ffmpeg::shownName(shownName)});
}

Descriptor openUnnamed(const std::filesystem::path& folder) {
    return Descriptor(::open(folder.c_str(), O_RDWR | O_TMPFILE | O_CLOEXEC, kPermissions));
}

/// Gives an unnamed file a name; 0, or the errno of the failure.
int linkTo(const Descriptor& file, const std::filesystem::path& path) {
    // Without privileges a file is linked by its descriptor in no other way.
    const std::string opened = "/proc/self/fd/" + std::to_string(file.number());
    for (;;) {
        if (::linkat(AT_FDCWD, opened.c_str(), AT_FDCWD, path.c_str(), AT_SYMLINK_FOLLOW) == 0)
            return 0;
        const int error = errno;
        if (isNamed(file, path))
            return 0;
        if (error != EINTR)
            return error;
    }
}

/// Whether a file without a name can get one later. Security modules may refuse that, and it shall
/// not be at the end of a long export that this is found out.
bool canBeNamedLater(const std::filesystem::path& folder) {
    const Descriptor file = openUnnamed(folder);
    if (!file.isOpen() || lock(file) != LockResult::locked)
        return false;
    const std::filesystem::path path = folder / randomHiddenName();
    return linkTo(file, path) == 0 && ::unlink(path.c_str()) == 0;
}

} // namespace

TemporaryFile::TemporaryFile(const std::filesystem::path& destination,
                             const std::filesystem::path& shownName)
    : m_destination(destination), m_destinationLock(destination) {
    if (m_destinationLock.isTaken())
        throwTaken(shownName);
    removeDeadFiles(folderOf(m_destination));
    // Those that do not lock the folder have a hidden file: other versions, other machines.
    m_path = folderOf(m_destination) / hiddenName(numberOf(m_destination));
    if (staysTaken([this] { return isLocked(m_path); }))
        throwTaken(shownName);
    if (!createUnnamed() && !createLocked(shownName))
        createUnderRandomName();
}

TemporaryFile::~TemporaryFile() {
    remove();
}

bool TemporaryFile::createUnnamed() {
    if (!canBeNamedLater(folderOf(m_destination)))
        return false;
    m_file = openUnnamed(folderOf(m_destination));
    // For the moment in which it has a hidden name.
    if (!m_file.isOpen() || lock(m_file) != LockResult::locked)
        return false;
    m_path.clear();
    return true;
}

bool TemporaryFile::createLocked(const std::filesystem::path& shownName) {
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        const bool isNew = create();
        if (!isNew)
            m_file = openCarefully(m_path);
        if (!m_file.isOpen()) {
            // The other export has just finished and renamed it.
            if (errno == ENOENT)
                continue;
            return false;
        }
        LockResult result = LockResult::taken;
        const bool isTaken = staysTaken([&] {
            result = lock(m_file);
            return result == LockResult::taken;
        });
        if (isTaken)
            throwTaken(shownName);
        if (result == LockResult::impossible) {
            if (isNew)
                ::unlink(m_path.c_str());
            return false;
        }
        // Before it was locked another export may have renamed or removed it.
        const bool isOurs = isNamed(m_file, m_path);
        if (isOurs && isNew)
            return true;
        if (isOurs && ::unlink(m_path.c_str()) != 0)
            return false;
    }
    return false;
}

void TemporaryFile::createUnderRandomName() {
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        m_path = folderOf(m_destination) / randomHiddenName();
        if (!create())
            continue;
        // Before it is locked, another export may take it for a dead one.
        const LockResult result = lock(m_file);
        if (result == LockResult::impossible ||
            (result == LockResult::locked && isNamed(m_file, m_path)))
            return;
    }
    throwWriteError(EEXIST, m_destination);
}

/// False if something has that name already; throws Error if the file can’t be created.
bool TemporaryFile::create() {
    m_file =
        Descriptor(::open(m_path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, kPermissions));
    if (!m_file.isOpen() && errno != EEXIST)
        throwWriteError(errno, m_destination);
    return m_file.isOpen();
}

void TemporaryFile::remove() {
    if (!m_path.empty())
        ::unlink(m_path.c_str());
    m_path.clear();
    m_destinationLock.release();
}

int TemporaryFile::takeName() {
    int error = flush();
    if (error == 0 && m_path.empty())
        error = link();
    if (error == 0 && !m_path.empty())
        error = rename();
    if (error == 0) {
        m_file.close();
        m_destinationLock.release();
    }
    return error;
}

int TemporaryFile::flush() const {
    while (::fsync(m_file.number()) != 0) {
        if (errno != EINTR)
            return errno;
    }
    // Some network disks tell of failed writes only when a file is closed, and the lock has to hold
    // until the file has its name.
    const int second = ::fcntl(m_file.number(), F_DUPFD_CLOEXEC, 0);
    return second < 0 || ::close(second) != 0 ? errno : 0;
}

/// Gives it the destination’s name, or a hidden one if that is not free.
int TemporaryFile::link() {
    int error = linkTo(m_file, m_destination);
    for (int attempt = 0; error == EEXIST && attempt < kAttempts; ++attempt) {
        const std::filesystem::path path = folderOf(m_destination) / randomHiddenName();
        error = linkTo(m_file, path);
        if (error == 0)
            m_path = path;
    }
    return error;
}

/// From the hidden name to the destination’s.
int TemporaryFile::rename() {
    while (::rename(m_path.c_str(), m_destination.c_str()) != 0) {
        const int error = errno;
        // What a network disk has done may be reported as a failure of its repetition.
        if (isNamed(m_file, m_destination))
            break;
        if (error != EINTR)
            return error;
    }
    m_path.clear();
    return 0;
}

} // namespace media
