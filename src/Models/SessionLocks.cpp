#include "Models/SessionLocks.h"

#include <QRandomGenerator>

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <limits>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace brisklet {

namespace {

using namespace std::chrono_literals;

/// Who changes the folder has this byte of the file locked; a running session that of its number.
constexpr std::uint64_t kChangeByte = 0;
constexpr std::uint64_t kLastByte = std::numeric_limits<std::int64_t>::max() - 1;
/// Writing a small file takes a disk a second at the very most.
constexpr auto kLongestWait = 2s;
constexpr auto kPause = 5ms;

struct flock lockOf(std::uint64_t byte, short type) {
    struct flock lock = {};
    lock.l_type = type;
    lock.l_whence = SEEK_SET;
    lock.l_start = static_cast<off_t>(byte);
    lock.l_len = 1;
    return lock;
}

/// Locks of an open file rather than of a process, which would lose them with any descriptor of the
/// file. 0, or the error.
int setLock(int descriptor, std::uint64_t byte, short type) {
    struct flock lock = lockOf(byte, type);
    return ::fcntl(descriptor, F_OFD_SETLK, &lock) == 0 ? 0 : errno;
}

bool isHeldElsewhere(int error) {
    return error == EAGAIN || error == EACCES || error == EINTR;
}

} // namespace

SessionLocks::SessionLocks(std::filesystem::path file)
    : m_file(std::move(file)),
      m_session(1 + QRandomGenerator::system()->generate64() % (kLastByte - 1)) {}

SessionLocks::~SessionLocks() {
    closeFile();
}

void SessionLocks::closeFile() {
    if (m_descriptor >= 0)
        ::close(std::exchange(m_descriptor, -1));
}

/// The file may have been removed since, as when somebody empties the folder.
bool SessionLocks::openFile() {
    struct stat named = {};
    struct stat open = {};
    const bool isNamed = ::stat(m_file.c_str(), &named) == 0;
    if (m_descriptor >= 0 && isNamed && ::fstat(m_descriptor, &open) == 0 &&
        named.st_dev == open.st_dev && named.st_ino == open.st_ino)
        return true;
    closeFile();
    m_descriptor = ::open(m_file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOCTTY | O_NONBLOCK,
                          S_IRUSR | S_IWUSR);
    return m_descriptor >= 0;
}

bool SessionLocks::lock() {
    if (!openFile())
        return false;
    const auto end = std::chrono::steady_clock::now() + kLongestWait;
    for (;;) {
        const int error = setLock(m_descriptor, kChangeByte, F_WRLCK);
        if (!isHeldElsewhere(error))
            break;
        if (std::chrono::steady_clock::now() > end)
            return false;
        std::this_thread::sleep_for(kPause);
    }
    setLock(m_descriptor, m_session, F_WRLCK);
    return true;
}

void SessionLocks::unlock() {
    setLock(m_descriptor, kChangeByte, F_UNLCK);
}

bool SessionLocks::isRunning(std::uint64_t session) const {
    if (session == m_session)
        return true;
    if (session == 0 || session > kLastByte)
        return false;
    struct flock lock = lockOf(session, F_WRLCK);
    return ::fcntl(m_descriptor, F_OFD_GETLK, &lock) == 0 && lock.l_type != F_UNLCK;
}

} // namespace brisklet
