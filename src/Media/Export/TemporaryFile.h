#pragma once

#include "Media/Export/DestinationLock.h"
#include "Media/Export/FileLock.h"

#include <filesystem>

namespace media {

/// The file that an export writes before it gets its final name. While it exists no other export to
/// the same destination can begin, in this process or another.
///
/// Where the file system can it has no name at all, so nothing is left of it when the process is
/// killed. Elsewhere it has a hidden one, derived from the destination’s, and is locked as long as
/// it is open. The lock ends with the process, so a file without a lock is what a killed export has
/// left behind; the next export into that folder removes it. Where the file system has no locks
/// either the name is random, other exports are not kept out, and what is left behind stays. Use
/// from one thread at a time.
class TemporaryFile {
public:
    /// Removes what killed exports have left in the folder, and creates the file for the
    /// destination, which must not be a link. Throws Error: if another export has the destination,
    /// which is then called `shownName`, or if the file can’t be created.
    TemporaryFile(const std::filesystem::path& destination, const std::filesystem::path& shownName);
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    /// Removes it.
    ~TemporaryFile();

    /// Open for reading and writing.
    [[nodiscard]] int descriptor() const { return m_file.number(); }

    /// Removes it at once, which frees the destination. The descriptor stays usable, but what is
    /// written to it is lost.
    void remove();

    /// Flushes it and gives it the destination’s name, in place of an older file there; 0, or the
    /// errno of the failure. The destination is free after that.
    int takeName();

private:
    /// False where the file system can’t create files without a name or name them later.
    bool createUnnamed();
    /// False where only a random name is possible: the file system has no locks, or the derived
    /// name is blocked by something that cannot be removed.
    bool createLocked(const std::filesystem::path& shownName);
    void createUnderRandomName();
    [[nodiscard]] bool create();
    [[nodiscard]] int flush() const;
    [[nodiscard]] int link();
    [[nodiscard]] int rename();

    std::filesystem::path m_destination;
    DestinationLock m_destinationLock;
    /// The hidden name; empty while there is none.
    std::filesystem::path m_path;
    Descriptor m_file;
};

} // namespace media
