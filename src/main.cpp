#include "Application.h"
#include "BriskletApp.h"
#include "CommandLine.h"
#include "Media/Engine.h"
#include "Models/EditStore.h"
#include "Models/LoadedVideo.h"
#include "Platform/DesktopApplication.h"
#include "Platform/QuickActionInstallation.h"
#include "Support/FileUrl.h"
#include "Support/LeakCheck.h"
#include "Support/LocalizedMessage.h"
#include "Support/TerminalLanguage.h"
#include "Support/Translations.h"
#include "Support/Workers.h"

#include <QDBusConnection>
#include <QIcon>
#include <QTimer>

#include <chrono>
#include <cstdio>
#include <exception>
#include <span>
#include <string>
#include <system_error>
#include <thread>

namespace {

using brisklet::BriskletApp;
using brisklet::CommandLine;
using brisklet::DesktopApplication;

constexpr int kWrongUsage = 2;
constexpr std::chrono::milliseconds kIconDelay(100);

std::span<const char* const> argumentsOf(int argc, char** argv) {
    const std::span<const char* const> all(argv, argc > 0 ? static_cast<std::size_t>(argc) : 0);
    return all.empty() ? all : all.subspan(1);
}

QList<QUrl> filesOf(const CommandLine& commandLine) {
    return {commandLine.files.begin(), commandLine.files.end()};
}

void print(const QString& line) {
    std::puts(qUtf8Printable(line));
}

int installQuickAction() {
    try {
        brisklet::QuickActionInstallation::install();
    } catch (const std::exception& error) {
        //: %1: the reasons. “Quick Action”: the entries in the menus of file managers.
        print(QCoreApplication::translate("brisklet::main", "Quick Action install failed: %1")
                  .arg(brisklet::localizedMessage(error)));
        return 1;
    }
    print(QCoreApplication::translate("brisklet::main", "Installed Trim Video Quick Action"));
    return 0;
}

/// The desktop's own version of the icon where the program is installed. Nothing waits for it, so
/// it is looked for once the window stands.
void showIcon() {
    QApplication::setWindowIcon(
        QIcon::fromTheme(QStringLiteral("com.quorvan.brisklet"),
                         QIcon(QStringLiteral(":/icons/com.quorvan.brisklet.svg"))));
}

void setUpApplication() {
    QApplication::setApplicationName(QStringLiteral("brisklet"));
    QApplication::setApplicationVersion(QStringLiteral(BRISKLET_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("com.quorvan.brisklet"));
}

/// Whether the session's bus started this process; not to be passed on to others.
bool takeStartedByBus() {
    const bool isStartedByBus = qEnvironmentVariableIsSet("DBUS_STARTER_ADDRESS");
    qunsetenv("DBUS_STARTER_ADDRESS");
    qunsetenv("DBUS_STARTER_BUS_TYPE");
    return isStartedByBus;
}

bool hasLocalFile(const CommandLine& commandLine) {
    return !commandLine.files.empty() && brisklet::isOnThisComputer(commandLine.files.front());
}

/// Starts the media engine beside the search for another process of the session. It is wasted if
/// there is one, and saves most of the time that the engine’s own process takes to start if not.
std::jthread startEngine() {
    try {
        return std::jthread([] {
            try {
                static_cast<void>(media::engine());
            } catch (const std::exception&) {
                // Whoever opens the file is told.
            }
        });
    } catch (const std::system_error&) {
        // The system starts no more threads: it is started when it is needed.
        return {};
    }
}

/// Whether another process of the session has taken the files over.
bool handOver(DesktopApplication& session, const CommandLine& commandLine,
              const QVariantMap& launchData) {
    return session.claim(filesOf(commandLine), launchData) == DesktopApplication::Role::handedOver;
}

int run(int& argc, char** argv, const CommandLine& everything) {
    media::chooseEngine(media::EnginePlace::helpers);
    const QVariantMap launchData = DesktopApplication::launchData();
    const bool isStartedByBus = takeStartedByBus();
    // What is unknown here may be an option of Qt's own, with an operand that is no file.
    const bool isPlain = !everything.unknownOption;
    const bool opensAhead = isPlain && hasLocalFile(everything);
    const std::jthread engine = opensAhead ? startEngine() : std::jthread();
    DesktopApplication session(QDBusConnection::sessionBus(), BriskletApp::sessionName());
    if (isPlain && handOver(session, everything, launchData))
        return 0;
    // Beside the making of the window that shows it.
    if (opensAhead)
        brisklet::openVideoAhead(everything.files.front());

    const brisklet::Application application(argc, argv);
    setUpApplication();
    brisklet::installTranslations(brisklet::userCatalogue());
    const CommandLine commandLine = CommandLine::parse(argumentsOf(argc, argv));
    if (commandLine.unknownOption) {
        const std::string message = media::filled(
            QCoreApplication::translate("brisklet::main", "unknown option \"%1\"").toStdString(),
            {*commandLine.unknownOption});
        std::fprintf(stderr, "brisklet: %s\n%s", message.c_str(), brisklet::usage().c_str());
        return kWrongUsage;
    }
    if (!isPlain && handOver(session, commandLine, launchData))
        return 0;
    BriskletApp app;
    app.keepEdits(brisklet::EditStore::userFolder());
    app.launch(filesOf(commandLine), &session,
               isStartedByBus ? BriskletApp::EmptyStart::wait : BriskletApp::EmptyStart::window);
    QTimer::singleShot(kIconDelay, &application, showIcon);
    return brisklet::exitStatusAfterWorkers(QApplication::exec());
}

} // namespace

int main(int argc, char** argv) {
    // These need no display. Options of Qt's own are still among the arguments here.
    const CommandLine everything = CommandLine::parse(argumentsOf(argc, argv));
    if (everything.installsQuickAction) {
        const brisklet::TerminalLanguage language(argc, argv);
        return installQuickAction();
    }
    if (everything.wantsHelp) {
        const brisklet::TerminalLanguage language(argc, argv);
        std::fputs(brisklet::usage().c_str(), stdout);
        return 0;
    }
    if (everything.wantsVersion) {
        std::puts("brisklet " BRISKLET_VERSION);
        return 0;
    }
    int status = 1;
    try {
        status = run(argc, argv, everything);
    } catch (const std::exception& error) {
        const brisklet::TerminalLanguage language(argc, argv);
        const QString message = brisklet::localizedMessage(error);
        // Of one that was thrown before there was a language this is the English text.
        const QString translated =
            QCoreApplication::translate("brisklet::DesktopApplication", message.toUtf8());
        std::fprintf(stderr, "brisklet: %s\n", qUtf8Printable(translated));
    }
    brisklet::checkForLeaks();
    return status;
}
