#pragma once

#include <cstdint>
#include <filesystem>

namespace brisklet {

/// What several processes that share a folder need to agree: a lock for the one that changes it,
/// and a sign for each that shows the others that it still runs. Both are locks of the system on an
/// empty file, so they end with their process, however it ends. Not thread-safe.
class SessionLocks final {
public:
    /// Creates nothing yet.
    explicit SessionLocks(std::filesystem::path file);
    ~SessionLocks();
    SessionLocks(const SessionLocks&) = delete;
    SessionLocks& operator=(const SessionLocks&) = delete;

    /// The number of this session: random, never 0.
    [[nodiscard]] std::uint64_t session() const { return m_session; }

    /// Waits for the lock, and shows from now on that this session runs. False if the file can't be
    /// made, or if another process keeps the lock for longer than anything takes. Where the file
    /// system knows no locks everything counts as locked.
    [[nodiscard]] bool lock();
    /// To be called after each lock() that gave true.
    void unlock();

    /// Whether that session still runs; also true of this one. Only while locked.
    [[nodiscard]] bool isRunning(std::uint64_t session) const;

private:
    bool openFile();
    void closeFile();

    std::filesystem::path m_file;
    std::uint64_t m_session;
    int m_descriptor = -1;
};

} // namespace brisklet
