#pragma once

#include "Media/Export/FileLock.h"

#include <filesystem>

namespace media {

/// Keeps other exports of this machine away from a destination, without a file: a read lock on one
/// byte of the folder itself, whose offset is the destination's number. Folders can't be locked for
/// writing, so it asks afterwards whether it is alone. Ends with the process at the latest.
class DestinationLock {
public:
    explicit DestinationLock(const std::filesystem::path& destination);

    /// Whether another export has the destination. False where the folder can't be locked.
    [[nodiscard]] bool isTaken() const { return m_isTaken; }

    void release() { m_folder.close(); }

private:
    Descriptor m_folder;
    bool m_isTaken = false;
};

} // namespace media
