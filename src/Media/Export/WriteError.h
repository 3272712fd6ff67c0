#pragma once

#include <filesystem>

namespace media {

/// Throws the Error that says why the new file can't be written, and which folder or file is meant.
/// `code` is an errno.
[[noreturn]] void throwWriteError(int code, const std::filesystem::path& destination);

/// The folder of a file, also where the path is the file's name alone.
std::filesystem::path folderOf(const std::filesystem::path& file);

} // namespace media
