#pragma once

#include <filesystem>

/// "Trim Video" in the menus of the file managers of Linux: Dolphin, Nautilus, Nemo and Thunar.
/// Each entry is a small file in the user's data folder that starts the program with all selected
/// videos. Files there that this program did not write are neither replaced nor removed. Any
/// thread.
namespace brisklet::FileManagerEntries {

/// The user's data folder ($XDG_DATA_HOME), where file managers look.
std::filesystem::path dataFolder();

/// Writes as many of the entries as possible; they start `program` (an absolute path). Afterwards
/// throws std::runtime_error with a line for the user if any could not be written.
void install(const std::filesystem::path& dataFolder, const std::filesystem::path& program);

/// Removes the entries that install() wrote, and folders that become empty. Throws likewise if any
/// could not be removed.
void uninstall(const std::filesystem::path& dataFolder);

} // namespace brisklet::FileManagerEntries
