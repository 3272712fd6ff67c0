#pragma once

#include <filesystem>

namespace media {

/// The hidden file that an export writes before it gets its final name. While it is locked no other
/// export to the same destination can begin, in this process or another.
///
/// Its name is derived from the destination's, and it is locked as long as it is open. The lock
/// ends with the process, so a file without a lock is what a killed export has left behind, and is
/// removed. Where the file system has no locks the name is random and other exports are not kept
/// out. Use from one thread at a time.
class TemporaryFile {
public:
    /// Creates and locks it beside the destination, which must not be a link. Throws Error: if
    /// another export has it, which names the destination as `shownName`, or if it can't be
    /// created.
    TemporaryFile(const std::filesystem::path& destination, const std::filesystem::path& shownName);
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    /// Removes it.
    ~TemporaryFile();

    /// Open for reading and writing.
    [[nodiscard]] int descriptor() const { return m_descriptor; }

    [[nodiscard]] const std::filesystem::path& path() const { return m_path; }

    /// Removes it at once, which frees the destination. The descriptor stays usable, but what is
    /// written to it is lost.
    void remove();

    /// Gives it the destination's name, in place of an older file there; 0, or the errno of the
    /// failure. The destination is free after that.
    int takeName();

private:
    /// False where only a random name is possible: the file system has no locks, or the derived
    /// name is blocked by something that cannot be removed.
    bool createLocked(const std::filesystem::path& shownName);
    void createUnlocked();
    [[nodiscard]] bool create();
    [[nodiscard]] bool openLeftover();
    void close();

    std::filesystem::path m_destination;
    std::filesystem::path m_path;
    int m_descriptor = -1;
};

} // namespace media
