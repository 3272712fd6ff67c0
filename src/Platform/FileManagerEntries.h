#pragma once

#include <filesystem>

/// "Trim Video" in the menus of the file managers of Linux: Dolphin, Nautilus, Nemo and Thunar.
/// Each entry is a small file in the user's data folder that starts the program with all selected
/// videos. Files there that this program did not write are neither replaced nor removed. Any
/// thread.
namespace brisklet::FileManagerEntries {

/// The user's data folder ($XDG_DATA_HOME), where file managers look.
std::filesystem::path dataFolder();

/// Writes the entries, which start `program` (an absolute path): all that can be written. Throws
/// std::runtime_error afterwards with a line for the user about those that cannot.
void install(const std::filesystem::path& dataFolder, const std::filesystem::path& program);

/// Removes the entries that install() wrote, and the folders that it leaves empty. Throws likewise
/// about those that cannot be removed.
void uninstall(const std::filesystem::path& dataFolder);

} // namespace brisklet::FileManagerEntries
