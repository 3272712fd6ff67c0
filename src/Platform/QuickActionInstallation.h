#pragma once

/// The Quick Action together with its counterparts in the file managers of Linux. Main thread.
namespace brisklet::QuickActionInstallation {

/// Installs, or brings up to date, the workflow and the file managers' entries. Throws
/// std::runtime_error with a sentence for the user.
void install();

/// Removes both; throws likewise. Where the workflow cannot be removed nothing else is.
void uninstall();

} // namespace brisklet::QuickActionInstallation
