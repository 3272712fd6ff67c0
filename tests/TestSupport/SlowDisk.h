#pragma once

#include "TestSupport/TemporaryFolder.h"

#include <filesystem>
#include <sys/types.h>

namespace testsupport {

/// A file system that hands files out as slowly as it is told, or not at all for a while. It takes
/// new files too, but has neither links nor files without a name. Gone with this object, whatever
/// still waits for it.
class SlowDisk final {
public:
    /// Mounts it. See isThere() for whether that went well.
    explicit SlowDisk(int bytesPerSecond);
    ~SlowDisk();
    SlowDisk(const SlowDisk&) = delete;
    SlowDisk& operator=(const SlowDisk&) = delete;

    /// False where the helper program was not built or no file system can be mounted.
    bool isThere() const { return m_process > 0; }

    /// Where it is mounted.
    const std::filesystem::path& path() const { return m_mountPoint.path(); }

    /// The folder whose files it shows.
    const std::filesystem::path& behind() const { return m_content.path(); }

    /// Puts a copy of the file onto it; its path there.
    std::filesystem::path holding(const std::filesystem::path& file) const;

    /// Whether whoever reads from it has to wait.
    void setStalled(bool isStalled) const { setFlag("stalled", isStalled); }

    /// Whether somebody has had to wait for it.
    bool isAwaited() const;

    /// Whether reading from it fails.
    void setBroken(bool isBroken) const { setFlag("broken", isBroken); }

    /// Whether nobody may look at what is on it, not even the administrator.
    void setPrivate(bool isPrivate) const { setFlag("private", isPrivate); }

private:
    void setFlag(const char* name, bool isSet) const;

    TemporaryFolder m_content;
    TemporaryFolder m_mountPoint;
    pid_t m_process = -1;
};

} // namespace testsupport
