#include "Media/Process/Client/ForkServer.h"
#include "Media/Process/Client/RemoteAsset.h"
#include "TestSupport/Fixture.h"
#include "TestSupport/Processes.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <map>
#include <string>
#include <system_error>
#include <unistd.h>

namespace media::process {
namespace {

/// What each descriptor of a process leads to, as the system calls it; none if it does not say.
std::map<int, std::string> descriptorsOf(pid_t process) {
    std::map<int, std::string> descriptors;
    std::error_code error;
    for (const auto& entry :
         std::filesystem::directory_iterator("/proc/" + std::to_string(process) + "/fd", error)) {
        const auto target = std::filesystem::read_symlink(entry.path(), error);
        if (!error)
            descriptors[std::stoi(entry.path().filename())] = target;
    }
    return descriptors;
}

/// The program that it works for may have been started from a terminal.
TEST(HelperDescriptors, leadToItsVideoAndToTheProgramOnly) {
    const auto path = testsupport::makeFixture({.duration = 1}).path;
    ForkServer server(BRISKLET_ENGINE_PROGRAM);
    const auto another = RemoteAsset::open(server, path, {});
    const auto asset = RemoteAsset::open(server, path, {});
    const auto pictures = asset->makeFrameSource([](const playback::CachedFrame&) {});
    for (const pid_t forking : testsupport::childrenOf(::getpid())) {
        for (const pid_t helper : testsupport::childrenOf(forking)) {
            const auto descriptors = descriptorsOf(helper);
            if (descriptors.empty())
                GTEST_SKIP() << "only the superuser is told";
            for (const auto& [number, target] : descriptors) {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
                // Where sanitizers say what they find.
                if (number == STDERR_FILENO)
                    continue;
#endif
                if (number <= STDERR_FILENO)
                    EXPECT_EQ(target, "/dev/null") << number;
                else
                    EXPECT_TRUE(target == path || target.starts_with("socket:") ||
                                target.starts_with("/memfd:"))
                        << number << ": " << target;
            }
        }
    }
}

} // namespace
} // namespace media::process
