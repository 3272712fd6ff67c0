#include "Media/Process/Server/Confinement.h"

#include "TestSupport/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <fstream>
#include <functional>
#include <string>
#include <sys/mman.h>
#include <sys/ptrace.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace {

/// Exit statuses of a confined child.
constexpr int kDone = 0;
constexpr int kRefused = 1;

bool isConfinementWhole() {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    return false;
#else
    return true;
#endif
}

/// Runs `attempt` in a confined process: whether it succeeded there. -1 if the process ended by a
/// signal.
int statusOf(const std::function<bool()>& attempt) {
    const pid_t child = ::fork();
    if (child == 0) {
        media::process::confine();
        ::_exit(attempt() ? kDone : kRefused);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

struct Attempt {
    const char* name;
    std::function<bool()> make;
};

void PrintTo(const Attempt& attempt, std::ostream* out) {
    *out << attempt.name;
}

bool opens(const std::string& path, int flags) {
    return ::open(path.c_str(), flags, 0600) >= 0;
}

bool makesSocket(int family, int type) {
    return ::socket(family, type, 0) >= 0;
}

std::string nameOf(const testing::TestParamInfo<Attempt>& info) {
    return info.param.name;
}

class ConfinementRefuses : public testing::TestWithParam<Attempt> {};

TEST_P(ConfinementRefuses, what) {
    if (!isConfinementWhole())
        GTEST_SKIP() << "sanitizers do not work in it";
    // It would succeed, or there is nothing to refuse.
    const pid_t free = ::fork();
    if (free == 0)
        ::_exit(GetParam().make() ? kDone : kRefused);
    int status = 0;
    ::waitpid(free, &status, 0);
    ASSERT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == kDone) << "not even without it";
    EXPECT_EQ(statusOf(GetParam().make), kRefused);
}

INSTANTIATE_TEST_SUITE_P(
    Attempts, ConfinementRefuses,
    testing::Values(Attempt{"aFileForReading", [] { return opens("/etc/passwd", O_RDONLY); }},
                    Attempt{"aFolder", [] { return opens("/", O_RDONLY | O_DIRECTORY); }},
                    Attempt{"aNewFile", [] { return opens("/tmp", O_TMPFILE | O_RDWR); }},
                    Attempt{"aDevice", [] { return opens("/dev/null", O_RDWR); }},
                    Attempt{"itsOwnMemoryAsAFile", [] { return opens("/proc/self/mem", O_RDWR); }},
                    Attempt{"aFileByItsState",
                            [] {
                                struct stat state = {};
                                return ::stat("/etc/passwd", &state) == 0;
                            }},
                    Attempt{"aNewFolder",
                            [] {
                                std::string name = "/tmp/brisklet-confined-XXXXXX";
                                return ::mkdtemp(name.data()) && ::rmdir(name.c_str()) == 0;
                            }},
                    Attempt{"aLocalSocket", [] { return makesSocket(AF_UNIX, SOCK_STREAM); }},
                    Attempt{"aNetworkSocket", [] { return makesSocket(AF_INET, SOCK_STREAM); }},
                    Attempt{"aDatagramSocket", [] { return makesSocket(AF_INET6, SOCK_DGRAM); }},
                    Attempt{"anotherProcess",
                            [] {
                                const pid_t child = ::fork();
                                if (child == 0)
                                    ::_exit(0);
                                return child > 0;
                            }},
                    Attempt{"anotherProgram",
                            [] {
                                std::array<char*, 1> none{};
                                return ::execve("/bin/true", none.data(), none.data()) == 0;
                            }},
                    Attempt{"aSignalToItsParent", [] { return ::kill(::getppid(), 0) == 0; }},
                    Attempt{"aHandleOfItsParent",
                            [] { return ::syscall(SYS_pidfd_open, ::getppid(), 0) >= 0; }},
                    Attempt{"aNewNamespace", [] { return ::unshare(CLONE_NEWUSER) == 0; }},
                    Attempt{"anOwnerForASocketsSignals",
                            [] { return ::fcntl(STDERR_FILENO, F_SETOWN, ::getpid()) == 0; }}),
    nameOf);

TEST(Confinement, leavesThreadsMemoryAndOpenDescriptors) {
    const testsupport::TemporaryFolder folder;
    const auto path = folder / "open.bin";
    std::ofstream(path) << "content";
    const int file = ::open(path.c_str(), O_RDWR | O_CLOEXEC);
    ASSERT_GE(file, 0);
    const int status = statusOf([file] {
        std::array<char, 7> bytes{};
        bool isRight = ::pread(file, bytes.data(), bytes.size(), 0) == 7 && bytes[0] == 'c';
        isRight = isRight && ::pwrite(file, "C", 1, 0) == 1;
        struct stat state = {};
        isRight = isRight && ::fstat(file, &state) == 0 && state.st_size == 7;
        const int memory = ::memfd_create("confined", MFD_CLOEXEC | MFD_ALLOW_SEALING);
        isRight = isRight && memory >= 0 && ::ftruncate(memory, 4096) == 0 &&
                  ::fcntl(memory, F_ADD_SEALS, F_SEAL_SHRINK) == 0;
        bool hasRun = false;
        std::thread([&hasRun] { hasRun = true; }).join();
        return isRight && hasRun;
    });
    EXPECT_EQ(status, kDone);
    ::close(file);
}

TEST(Confinement, leavesAProcessTheRightToEndByAFault) {
    const pid_t child = ::fork();
    if (child == 0) {
        media::process::confine();
        std::abort();
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status));
    EXPECT_EQ(WTERMSIG(status), SIGABRT);
    EXPECT_FALSE(WCOREDUMP(status));
}

} // namespace
