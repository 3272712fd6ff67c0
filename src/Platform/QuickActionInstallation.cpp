#include "Platform/QuickActionInstallation.h"

#include "Platform/FileManagerEntries.h"
#include "Support/QuickAction.h"

#include <QFile>
#include <QStandardPaths>

#include <filesystem>
#include <stdexcept>
#include <system_error>

namespace brisklet::QuickActionInstallation {

namespace {

/// Not the name that the program was called by: menus start it from any folder.
std::filesystem::path ownProgram() {
    std::error_code error;
    std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
    if (error)
        program = QFile::encodeName(QStandardPaths::findExecutable(QStringLiteral("brisklet")))
                      .toStdString();
    if (program.empty())
        throw std::runtime_error("The place of the program couldn't be found out.");
    return program;
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
