#include "Application.h"
#include "Support/LeakCheck.h"
#include "Support/Workers.h"

#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <chrono>
#include <clocale>
#include <cstdio>

namespace {

/// A worker that waits for a disk of a test that does not answer may take longer.
constexpr std::chrono::seconds kLongestWait(3);

/// No window outlives the application, so that one that is forgotten is found to be a leak. Workers
/// end before it, as in the program.
int runTests(int argc, char** argv) {
    const brisklet::Application application(argc, argv);
    const int status = RUN_ALL_TESTS();
    static_cast<void>(brisklet::waitForWorkers(kLongestWait));
    return status;
}

/// Takes on the locale that the tests are to run in, if one is asked for. False where the machine
/// has not got it.
bool takeOnLocale() {
    const QByteArray locale = qgetenv("BRISKLET_TEST_LOCALE");
    if (locale.isEmpty())
        return true;
    qputenv("LC_ALL", locale);
    // NOLINTNEXTLINE(concurrency-mt-unsafe): there is no other thread yet.
    return std::setlocale(LC_ALL, "") != nullptr;
}

} // namespace

/// Runs the tests under a QApplication that needs no display and that keeps its settings, caches
/// and data in a folder of its own, so that no test reads or changes those of the person who runs
/// it.
int main(int argc, char** argv) {
    const QTemporaryDir home;
    if (!home.isValid())
        return 1;
    // libpulse would make a folder in the temporary one for each new configuration, for good.
    for (const char* name : {"XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME",
                             "PULSE_RUNTIME_PATH"})
        qputenv(name, home.path().toLocal8Bit());
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");

    testing::InitGoogleMock(&argc, argv);
    if (!takeOnLocale()) {
        std::puts("[  SKIPPED ] The locale is not installed.");
        return 0;
    }
    const int status = runTests(argc, argv);
    brisklet::checkForLeaks();
    return status;
}
