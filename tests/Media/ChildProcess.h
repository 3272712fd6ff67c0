#pragma once

#include <filesystem>
#include <functional>
#include <string>

namespace testsupport {

/// Runs `work` in a forked copy of this process, which it may change as it likes (its user, its
/// mounts), and hands back what it returned; "exception: …" when it threw, "signal n" when it was
/// ended by one. To be called while this process has one thread only.
std::string inChildProcess(const std::function<std::string()>& work);

/// A child that crashes in the code of libav ends with "status 77" from now on, any other crash as
/// before: some of its functions use memory that they did not get. Only where the processor's
/// registers are known (x86-64, ARM64).
inline constexpr int kCrashInLibav = 77;
void tellCrashesInLibav();

/// Makes this process one of an ordinary user, to whom permissions apply. False where that is not
/// possible; true where it is none of the superuser's anyway.
bool dropPrivileges();

/// Mounts a file system of `bytes` in memory onto `folder`, seen by this process only. False where
/// that is not permitted.
bool mountSmallDisk(const std::filesystem::path& folder, std::size_t bytes);

/// Makes the file system that mountSmallDisk put there read-only.
bool makeReadOnly(const std::filesystem::path& folder);

} // namespace testsupport
