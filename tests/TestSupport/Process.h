#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <vector>

namespace testsupport {

/// What a finished program left behind.
struct ProcessResult {
    int exitStatus = -1; ///< As from exit(); 128 + n when signal n ended the program.
    std::string output;  ///< Its standard output, which may be binary.
    std::string errors;  ///< Its standard error.

    bool succeeded() const { return exitStatus == 0; }
};

/// Fills the next piece of a program's standard input; an empty piece ends it.
using InputSource = std::function<std::string()>;

/// What a program is to be run with, besides its name and arguments.
struct ProcessOptions {
    InputSource input;                                ///< Without one the input is empty.
    std::chrono::seconds limit{240};                  ///< After it the program is killed.
    std::vector<std::string> additionalEnvironment{}; ///< "NAME=value" each, winning over ours.
};

/// Runs a program, found on PATH, to its end. Never through a shell. Throws std::runtime_error when
/// it cannot be started or exceeds its limit; its exit status is the caller's to judge. Blocks; may
/// be called from any thread.
ProcessResult runProcess(const std::vector<std::string>& arguments,
                         const ProcessOptions& options = {});

/// Like runProcess, and throws std::runtime_error with the standard error unless the status is 0.
ProcessResult runProcessOrThrow(const std::vector<std::string>& arguments,
                                const ProcessOptions& options = {});

} // namespace testsupport
