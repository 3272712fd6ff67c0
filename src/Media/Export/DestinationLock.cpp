#include "Media/Export/DestinationLock.h"

#include "Media/Export/HiddenName.h"
#include "Media/Export/WriteError.h"

#include <cstdint>
#include <fcntl.h>

namespace media {

namespace {

struct flock byteLock(short type, std::uint64_t number) {
    struct flock lock = {};
    lock.l_type = type;
    lock.l_whence = SEEK_SET;
    // An offset must not be negative.
    lock.l_start = static_cast<off_t>(number >> 2);
    lock.l_len = 1;
    return lock;
}

/// Locks the byte; false, and not locked, if another has it too.
bool isAloneAt(const Descriptor& folder, std::uint64_t number) {
    struct flock ours = byteLock(F_RDLCK, number);
    if (::fcntl(folder.number(), F_OFD_SETLK, &ours) != 0)
        return true;
    struct flock others = byteLock(F_WRLCK, number);
    if (::fcntl(folder.number(), F_OFD_GETLK, &others) != 0 || others.l_type == F_UNLCK)
        return true;
    ours.l_type = F_UNLCK;
    ::fcntl(folder.number(), F_OFD_SETLK, &ours);
    return false;
}

} // namespace

DestinationLock::DestinationLock(const std::filesystem::path& destination)
    : m_folder(::open(folderOf(destination).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
    if (!m_folder.isOpen())
        return;
    // Two that begin at the same moment see each other, and both try again.
    const std::uint64_t number = numberOf(destination);
    m_isTaken = staysTaken([&] { return !isAloneAt(m_folder, number); });
    if (m_isTaken)
        m_folder.close();
}

} // namespace media
