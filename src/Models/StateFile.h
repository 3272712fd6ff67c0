#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace brisklet {

/// Small files that the program keeps for itself and that nobody else is to read. Block as the disk
/// does; any thread.

/// Makes the folder, for this user only, unless it is there; false if there is none then.
bool makeStateFolder(const std::filesystem::path& folder);

/// Up to `most` bytes of a file; no bytes where there is no file. None if it can't be read or is no
/// regular file, so that it must not be replaced either.
std::optional<std::string> readStateFile(const std::filesystem::path& path, std::size_t most);

/// Replaces the file in one step: after a crash or a power cut at any moment it is the old or the
/// new one, and from the return on the new one. False, and the old file, if that fails. Only one
/// process may do so at a time.
bool replaceStateFile(const std::filesystem::path& path, std::string_view bytes);

/// Gives the file a second name, in the place of a file that has it. False if that fails.
bool setAsideStateFile(const std::filesystem::path& path, const std::filesystem::path& name);

} // namespace brisklet
