#pragma once

#include "Tools/cli/Arguments.h"

namespace brisklet::cli {

/// Shows the progress of an export to a person (a bar on standard error, if that is a terminal) or
/// to a program (JSON lines on standard output). Use from one thread at a time.
class ProgressReport final {
public:
    explicit ProgressReport(ExportCommand::Progress kind);
    ProgressReport(const ProgressReport&) = delete;
    ProgressReport& operator=(const ProgressReport&) = delete;
    /// Erases the bar.
    ~ProgressReport();

    void show(double fraction);

private:
    void showBar(double fraction);

    ExportCommand::Progress m_kind;
    bool m_isTerminal;
    bool m_isBarShown = false;
};

} // namespace brisklet::cli
