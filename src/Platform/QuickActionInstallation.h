#pragma once

/// The Quick Action together with its counterparts in the file managers of Linux. Main thread.
namespace brisklet::QuickActionInstallation {

/// Installs, or brings up to date, the workflow and the file managers' entries: all of them that
/// can be. Throws std::runtime_error afterwards with one line for the user about those that cannot.
/// Where the workflow is not installed in the end no entries are either: nothing would offer to
/// remove them.
void install();

/// Removes all of them that can be; throws likewise.
void uninstall();

} // namespace brisklet::QuickActionInstallation
