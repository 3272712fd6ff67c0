#include "Support/LeakCheck.h"

#include <QApplication>
#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace {

/// No window outlives the application, so that one that is forgotten is found to be a leak.
int runTests(int argc, char** argv) {
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}

} // namespace

/// Runs the tests under a QApplication that needs no display and that keeps its settings, caches
/// and data in a folder of its own, so that no test reads or changes those of the person who runs
/// it.
int main(int argc, char** argv) {
    const QTemporaryDir home;
    if (!home.isValid())
        return 1;
    for (const char* name : {"XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"})
        qputenv(name, home.path().toLocal8Bit());
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");

    testing::InitGoogleMock(&argc, argv);
    const int status = runTests(argc, argv);
    brisklet::checkForLeaks();
    return status;
}
