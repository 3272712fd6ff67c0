#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace media {

/// The file names that unfinished exports have in a folder: “.brisklet-”, 16 hexadecimal digits,
/// “.part”. The same in every version of the program.

/// The number of a destination: the same on every machine of a network, and for all spellings that
/// its file system takes for one name.
std::uint64_t numberOf(const std::filesystem::path& destination);

/// The hidden name of that number.
std::string hiddenName(std::uint64_t number);

std::string randomHiddenName();

/// Whether a file name is one of these.
bool isHiddenName(std::string_view name);

} // namespace media
