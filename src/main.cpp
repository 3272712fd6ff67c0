#include "BriskletApp.h"
#include "CommandLine.h"
#include "Platform/QuickActionInstallation.h"
#include "Support/Workers.h"

#include <QApplication>
#include <QDBusConnection>

#include <cstdio>
#include <exception>
#include <span>

namespace {

using brisklet::CommandLine;

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
    QApplication::setApplicationVersion(QStringLiteral(BRISKLET_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("com.quorvan.brisklet"));
}

/// Reads what the launcher says about this start, and keeps it from the programs that this one
/// starts.
brisklet::LaunchRequest launchRequest() {
    brisklet::LaunchRequest request;
    request.platformData = brisklet::DesktopApplication::launchData();
    request.isStartedByBus = qEnvironmentVariableIsSet("DBUS_STARTER_ADDRESS");
    qunsetenv("DBUS_STARTER_ADDRESS");
    qunsetenv("DBUS_STARTER_BUS_TYPE");
    return request;
}

int run(brisklet::LaunchRequest request, const CommandLine& commandLine) {
    request.files = {commandLine.files.begin(), commandLine.files.end()};
    try {
        brisklet::BriskletApp app;
        if (app.launch(request, QDBusConnection::sessionBus()))
            return QApplication::exec();
    } catch (const std::exception& error) {
        std::fprintf(stderr, "brisklet: %s\n", error.what());
        return 1;
    }
    return 0;
}

} // namespace

int main(int argc, char** argv) {
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

    const brisklet::LaunchRequest request = launchRequest();
    QApplication application(argc, argv);
    setUpApplication();
    const CommandLine commandLine = CommandLine::parse(argumentsOf(argc, argv));
    if (commandLine.unknownOption) {
        std::fprintf(stderr, "brisklet: unknown option \"%s\"\n%s",
                     commandLine.unknownOption->c_str(), brisklet::usage().c_str());
        return kWrongUsage;
    }
    const int status = run(request, commandLine);
    brisklet::waitForWorkers();
    return status;
}
