#include "Platform/QuickActionInstallation.h"

#include "Platform/FileManagerEntries.h"
#include "Support/QuickAction.h"

#include <filesystem>

namespace brisklet::QuickActionInstallation {

namespace {

/// Not the name that the program was called by: menus start it from any folder.
std::filesystem::path ownProgram() {
    return std::filesystem::read_symlink("/proc/self/exe");
}

} // namespace

void install() {
    FileManagerEntries::install(FileManagerEntries::dataFolder(), ownProgram());
    QuickAction::shared().install();
}

void uninstall() {
    QuickAction::shared().uninstall();
    FileManagerEntries::uninstall(FileManagerEntries::dataFolder());
}

} // namespace brisklet::QuickActionInstallation
