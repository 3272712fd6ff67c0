#pragma once

#include "Media/FFmpeg/Descriptor.h"

#include <filesystem>

namespace media {

enum class LockResult { locked, taken, impossible };

/// Locks an open file (flock), without waiting. The lock ends when all descriptors of this opening
/// are closed, at the latest with the process.
LockResult lock(const Descriptor& file);

/// Opens what has that name without following links and without ever waiting for it. Not open, with
/// errno set, if that fails.
Descriptor openCarefully(const std::filesystem::path& path);

/// Whether the open file is a regular one and still has that name.
bool isNamed(const Descriptor& file, const std::filesystem::path& path);

/// Whether another program, or another opening in this one, has locked the file of that name.
bool isLocked(const std::filesystem::path& path);

/// Calls `isTaken` until it says no; others hold some locks for a moment only. True if it still
/// says yes after some 50 ms.
template<typename Predicate>
bool staysTaken(Predicate isTaken);

/// Waits for a short time of random length.
void waitAMoment();

template<typename Predicate>
bool staysTaken(Predicate isTaken) {
    for (int attempt = 0; attempt < 10; ++attempt) {
        if (!isTaken())
            return false;
        waitAMoment();
    }
    return true;
}

} // namespace media
