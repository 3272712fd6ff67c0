#include "Media/Error.h"
#include "Support/FileNames.h"
#include "Support/LocalizedMessage.h"
#include "Support/TerminalLanguage.h"
#include "Support/Workers.h"
#include "Tools/cli/Arguments.h"
#include "Tools/cli/Commands.h"
#include "Tools/cli/Interruption.h"

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <span>
#include <string>
#include <type_traits>
#include <variant>

namespace {

using namespace brisklet::cli;

constexpr int kDone = 0;
constexpr int kFailed = 1;
constexpr int kWrongUsage = 2;
constexpr int kInterrupted = 130;

/// A failure is reported in exactly one line, also if the text of a library has several. What the
/// user has typed says nothing to the terminal.
void tell(std::string message) {
    std::ranges::replace(message, '\n', ' ');
    const QString line = brisklet::legible(QString::fromStdString(message));
    std::fprintf(stderr, "%s\n", line.toStdString().c_str());
}

int perform(const HelpCommand&) {
    std::fputs(fullUsage().c_str(), stdout);
    return kDone;
}

int perform(const VersionCommand&) {
    std::puts("brisklet-cli " BRISKLET_VERSION);
    return kDone;
}

template<typename Work>
int perform(const Work& command) {
    const Interruption interruption;
    try {
        run(command, interruption.token());
        return kDone;
    } catch (const media::Cancelled&) {
        // Encoders may still be winding down, and must not outlive main().
        return brisklet::exitStatusAfterWorkers(kInterrupted);
    } catch (const std::exception& error) {
        // After an interruption, failures that it caused are not reported.
        if (interruption.token().stop_requested())
            return kInterrupted;
        tell(brisklet::localizedMessage(error).toStdString());
        return kFailed;
    }
}

} // namespace

int main(int argc, char** argv) {
    const brisklet::TerminalLanguage language(argc, argv);
    const std::span<char* const> all(argv, argc > 0 ? static_cast<std::size_t>(argc) : 0);
    try {
        const Command command = parseArguments(all.subspan(std::min<std::size_t>(1, all.size())));
        return std::visit([](const auto& chosen) { return perform(chosen); }, command);
    } catch (const UsageError& error) {
        tell(std::string("brisklet-cli: ") + error.what());
        std::fputs(shortUsage().c_str(), stderr);
        return kWrongUsage;
    } catch (const std::exception& error) {
        tell(std::string("brisklet-cli: ") + brisklet::localizedMessage(error).toStdString());
        return kFailed;
    }
}
