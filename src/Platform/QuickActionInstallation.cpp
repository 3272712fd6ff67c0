#include "Platform/QuickActionInstallation.h"

#include "Platform/Failures.h"
#include "Platform/FileManagerEntries.h"
#include "Support/MainThread.h"
#include "Support/QuickAction/QuickAction.h"

#include <QCoreApplication>
#include <QFile>
#include <QStandardPaths>

#include <filesystem>
#include <stdexcept>
#include <system_error>

namespace brisklet::QuickActionInstallation {

namespace {

/// The absolute path of the program, since menus start it from any folder.
std::filesystem::path ownProgram() {
    std::error_code error;
    std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
    if (error)
        program = QFile::encodeName(QStandardPaths::findExecutable(QStringLiteral("brisklet")))
                      .toStdString();
    if (program.empty())
        throw std::runtime_error(
            QCoreApplication::translate("brisklet::QuickActionInstallation",
                                        "The place of the program couldn’t be found out.")
                .toStdString());
    return program;
}

} // namespace

void install() {
    verifyMainThread();
    Failures failures;
    failures.in(
        [] { FileManagerEntries::install(FileManagerEntries::dataFolder(), ownProgram()); });
    failures.in([] { QuickAction::shared().install(); });
    // Without the workflow nothing would offer to remove the entries.
    if (!QuickAction::shared().isInstalled())
        failures.in([] { FileManagerEntries::uninstall(FileManagerEntries::dataFolder()); });
    failures.throwAny();
}

void uninstall() {
    verifyMainThread();
    Failures failures;
    failures.in([] { QuickAction::shared().uninstall(); });
    failures.in([] { FileManagerEntries::uninstall(FileManagerEntries::dataFolder()); });
    failures.throwAny();
}

} // namespace brisklet::QuickActionInstallation
