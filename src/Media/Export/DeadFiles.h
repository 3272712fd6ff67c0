#pragma once

#include <filesystem>

namespace media {

/// Removes the hidden files that killed exports have left in the folder: regular files of this
/// user, under names of ours, which no running export has locked. What cannot be locked, as on file
/// systems without locks, stays; so does, on file systems that other machines may share, what was
/// written to within the last hour.
void removeDeadFiles(const std::filesystem::path& folder);

} // namespace media
