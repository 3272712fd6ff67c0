#pragma once

#include <set>
#include <sys/types.h>

namespace testsupport {

/// Whether there is a process of that number that has not ended.
bool isRunning(pid_t process);

/// The processes that this one has started and that have not ended.
std::set<pid_t> childrenOf(pid_t parent);

} // namespace testsupport
