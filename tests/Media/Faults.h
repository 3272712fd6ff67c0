#pragma once

#include "FaultySystem/FaultySystem.h"

#include <functional>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace media {

/// One way in which a call to the system goes wrong.
struct FaultKind {
    const char* name;
    testsupport::SystemAnswer answer;

    friend void PrintTo(const FaultKind& kind, std::ostream* out) { *out << kind.name; }
};

/// All of them, for the calls of an export.
std::vector<FaultKind> faultKinds();

/// What goes wrong while something runs.
struct FaultPlan {
    /// Only calls of this kind are counted; without one, all.
    std::optional<testsupport::SystemCall::Kind> kind;
    /// The number of the call that goes wrong, counted from 0; negative for none.
    long number = -1;
    testsupport::SystemAnswer answer;
    /// Whether the file system can create files that have no name.
    bool hasUnnamedFiles = true;
};

/// Runs `action` under a plan; the kinds of the calls that were counted, in their order. Exceptions
/// go through.
std::vector<testsupport::SystemCall::Kind> runWithFault(const FaultPlan& plan,
                                                        const std::function<void()>& action);

/// The sentence of whatever exception `action` throws; empty if it throws none.
std::string failureOf(const std::function<void()>& action);

/// The threads and open files of this process. What was opened before and is open afterwards is
/// the same.
class Leftovers {
public:
    Leftovers();

    /// What is there now and was not when this was made, or is missing; empty if nothing is.
    /// libx264 leaves the threads it has started when it can’t start the next, under the name of
    /// the program.
    [[nodiscard]] std::string complaint() const;

private:
    std::vector<std::string> m_before;
};

/// Why this is no sentence for a person; empty if it is one.
std::string complaintAbout(const std::string& sentence);

} // namespace media
