#pragma once

#include <cstddef>
#include <filesystem>

namespace testsupport {

/// While it lives, videos are opened in such a way that they can be lost: as if a process of their
/// own decoded them, which can end. Those opened before are not affected. One at a time.
class LosableVideos final {
public:
    LosableVideos();
    LosableVideos(const LosableVideos&) = delete;
    LosableVideos& operator=(const LosableVideos&) = delete;
    ~LosableVideos();

    /// Loses the open ones of that file, on another thread, and returns when their owners have been
    /// told.
    static void lose(const std::filesystem::path& path);
    /// How many were opened.
    [[nodiscard]] static std::size_t openedCount();
    /// Loses each of those that will be opened before anyone can ask to be told.
    static void loseWhenOpened();
};

} // namespace testsupport
