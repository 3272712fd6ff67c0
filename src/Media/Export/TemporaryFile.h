#pragma once

#include <filesystem>

namespace media {

/// The hidden file in which an export to one destination grows, alone: while it is there no other
/// export to that destination begins, in this process or in another.
///
/// Its name follows from the destination's, and it is locked while it is open, so that the lock
/// dies with the process and what a killed export left behind is known as such, and removed. Where
/// the file system has no locks the name is a random one, and nobody is kept away. Use from one
/// thread at a time.
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

    /// Removes it at once, which frees the destination; the descriptor goes on into nowhere.
    void remove();

    /// Gives it the destination's name, in place of an older file there; 0, or the errno of the
    /// failure. The destination is free after that.
    int takeName();

private:
    /// False where others, or a lack of locks, leave only random names.
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
