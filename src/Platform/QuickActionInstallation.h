#pragma once

/// The Quick Action together with its counterparts in the file managers of Linux. Main thread.
namespace brisklet::QuickActionInstallation {

/// Installs or updates the workflow and the file managers' entries, as many of them as possible.
/// Afterwards throws std::runtime_error with one line for the user if any failed. If the workflow
/// cannot be installed no entries are left either, since nothing would offer to remove them.
void install();

/// Removes as many of them as possible; throws likewise.
void uninstall();

} // namespace brisklet::QuickActionInstallation
