#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>

namespace brisklet {

/// What tells a file from others when its name has changed.
struct FileIdentity {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    /// Bytes.
    std::uint64_t size = 0;

    [[nodiscard]] bool isSameFileAs(const FileIdentity& other) const {
        return device == other.device && inode == other.inode;
    }

    friend bool operator==(const FileIdentity&, const FileIdentity&) = default;
};

/// Of a regular file, links followed; none of anything else. Blocks as the disk does; any thread.
std::optional<FileIdentity> identityOf(const std::filesystem::path& path);

} // namespace brisklet
