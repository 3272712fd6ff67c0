#include "BriskletApp.h"
#include "CommandLine.h"
#include "Platform/QuickActionInstallation.h"
#include "Support/Workers.h"

#include <QApplication>

#include <cstdio>
#include <exception>
#include <span>

namespace {

constexpr int kWrongUsage = 2;

std::span<const char* const> argumentsOf(int argc, char** argv) {
    const std::span<const char* const> all(argv, argc > 0 ? static_cast<std::size_t>(argc) : 0);
    return all.empty() ? all : all.subspan(1);
}

int installQuickAction() {
    try {
        brisklet::QuickActionInstallation::install();
    } catch (const std::exception& error) {
        std::printf("Quick Action install failed: %s\n", error.what());
        return 1;
    }
    std::puts("Installed Trim Video Quick Action");
    return 0;
}

void setUpApplication() {
    QApplication::setApplicationName(QStringLiteral("brisklet"));
    QApplication::setApplicationDisplayName(QStringLiteral("Brisklet"));
    QApplication::setApplicationVersion(QStringLiteral(BRISKLET_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("com.quorvan.brisklet"));
}

} // namespace

int main(int argc, char** argv) {
    using brisklet::CommandLine;
    // These need no display. Options of Qt's own are still among the arguments here.
    const CommandLine everything = CommandLine::parse(argumentsOf(argc, argv));
    if (everything.installsQuickAction)
        return installQuickAction();
    if (everything.wantsHelp) {
        std::fputs(brisklet::usage().c_str(), stdout);
        return 0;
    }
    if (everything.wantsVersion) {
        std::puts("brisklet " BRISKLET_VERSION);
        return 0;
    }

    QApplication application(argc, argv);
    setUpApplication();
    const CommandLine commandLine = CommandLine::parse(argumentsOf(argc, argv));
    if (commandLine.unknownOption) {
        std::fprintf(stderr, "brisklet: unknown option \"%s\"\n%s",
                     commandLine.unknownOption->c_str(), brisklet::usage().c_str());
        return kWrongUsage;
    }
    brisklet::BriskletApp::openWindows(commandLine.files);
    const int status = QApplication::exec();
    brisklet::waitForWorkers();
    return status;
}
