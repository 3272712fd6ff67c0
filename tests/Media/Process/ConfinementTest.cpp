#include "Media/Process/Server/Confinement.h"
#include "Media/Process/Server/FileFence.h"

#include "TestSupport/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <fstream>
#include <functional>
#include <sched.h>
#include <string>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/uio.h>
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

/// Runs `attempt` in a process of its own behind such walls: whether it succeeded there. -1 if the
/// process ended by a signal.
int statusBehind(const std::function<void()>& walls, const std::function<bool()>& attempt) {
    const pid_t child = ::fork();
    if (child == 0) {
        walls();
        ::_exit(attempt() ? kDone : kRefused);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

int statusOf(const std::function<bool()>& attempt) {
    return statusBehind(&media::process::confine, attempt);
}

int statusInTheOpen(const std::function<bool()>& attempt) {
    return statusBehind([] {}, attempt);
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

bool succeeds(long result) {
    return result >= 0;
}

bool readsMemoryOf(pid_t process) {
    char own = 0;
    static char theirs = 0;
    const iovec to{&own, 1};
    const iovec from{&theirs, 1};
    return ::process_vm_readv(process, &to, 1, &from, 1, 0) == 1;
}

bool setsProcessorsOfItsParent() {
    cpu_set_t processors;
    return ::sched_getaffinity(::getppid(), sizeof processors, &processors) == 0 &&
           ::sched_setaffinity(::getppid(), sizeof processors, &processors) == 0;
}

bool makesCode() {
    constexpr std::size_t kPage = 4096;
    return ::mmap(nullptr, kPage, PROT_READ | PROT_EXEC, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0) !=
           MAP_FAILED;
}

bool makesMemoryCode() {
    constexpr std::size_t kPage = 4096;
    void* const page =
        ::mmap(nullptr, kPage, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    return ::mprotect(page, kPage, PROT_READ | PROT_EXEC) == 0;
}

bool readsStateByName() {
    struct stat state = {};
    return ::syscall(SYS_newfstatat, AT_FDCWD, "/etc/passwd", &state, AT_EMPTY_PATH) == 0;
}

std::string nameOf(const testing::TestParamInfo<Attempt>& info) {
    return info.param.name;
}

class ConfinementRefuses : public testing::TestWithParam<Attempt> {};

TEST_P(ConfinementRefuses, what) {
    if (!isConfinementWhole())
        GTEST_SKIP() << "sanitizers do not work in it";
    if (statusInTheOpen(GetParam().make) != kDone)
        GTEST_SKIP() << "it does not succeed without it either";
    EXPECT_EQ(statusOf(GetParam().make), kRefused);
}

INSTANTIATE_TEST_SUITE_P(
    Attempts, ConfinementRefuses,
    testing::Values(
        Attempt{"aFileForReading", [] { return opens("/etc/passwd", O_RDONLY); }},
        Attempt{"aFolder", [] { return opens("/", O_RDONLY | O_DIRECTORY); }},
        Attempt{"aNewFile", [] { return opens("/tmp", O_TMPFILE | O_RDWR); }},
        Attempt{"aDevice", [] { return opens("/dev/null", O_RDWR); }},
        Attempt{"itsOwnMemoryAsAFile", [] { return opens("/proc/self/mem", O_RDWR); }},
        Attempt{"aFileByItsState",
                [] {
                    struct stat state = {};
                    return ::stat("/etc/passwd", &state) == 0;
                }},
        Attempt{"aFileByItsStateInAnotherWay", &readsStateByName},
        Attempt{"anotherFolderToWorkIn", [] { return succeeds(::chdir("/")); }},
        Attempt{"aNewFolder",
                [] {
                    std::string name = "/tmp/brisklet-confined-XXXXXX";
                    return ::mkdtemp(name.data()) && ::rmdir(name.c_str()) == 0;
                }},
        Attempt{"aLocalSocket", [] { return makesSocket(AF_UNIX, SOCK_STREAM); }},
        Attempt{"aNetworkSocket", [] { return makesSocket(AF_INET, SOCK_STREAM); }},
        Attempt{"aDatagramSocket", [] { return makesSocket(AF_INET6, SOCK_DGRAM); }},
        Attempt{"aPairOfSockets",
                [] {
                    std::array<int, 2> ends{};
                    return succeeds(::socketpair(AF_UNIX, SOCK_STREAM, 0, ends.data()));
                }},
        Attempt{"aSocketOfTheKernel", [] { return makesSocket(AF_NETLINK, SOCK_RAW); }},
        Attempt{"aSocketOfTheMachineAround", [] { return makesSocket(AF_VSOCK, SOCK_STREAM); }},
        Attempt{"aRing",
                [] {
                    return succeeds(
                        ::syscall(SYS_io_uring_setup, 1, std::array<char, 256>{}.data()));
                }},
        Attempt{"secretMemory", [] { return succeeds(::syscall(SYS_memfd_secret, 0)); }},
        Attempt{"hugePages", [] { return succeeds(::memfd_create("huge", MFD_HUGETLB)); }},
        Attempt{"faultsOfItsOwn", [] { return succeeds(::syscall(SYS_userfaultfd, 1)); }},
        Attempt{"newCode", &makesCode}, Attempt{"codeOfItsMemory", &makesMemoryCode},
        Attempt{"toBeTraced",
                [] { return succeeds(::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr)); }},
        Attempt{"theMemoryOfItsParent", [] { return readsMemoryOf(::getppid()); }},
        Attempt{"theRankOfItsParent",
                [] {
                    return succeeds(::setpriority(PRIO_PROCESS, static_cast<id_t>(::getppid()), 0));
                }},
        Attempt{"theProcessorsOfItsParent", &setsProcessorsOfItsParent},
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
        Attempt{"otherFlagsOfAnOpenFile",
                [] { return succeeds(::fcntl(STDERR_FILENO, F_SETFL, O_NONBLOCK)); }},
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
        isRight = isRight && ::syscall(SYS_fstat, file, &state) == 0 && state.st_size == 7;
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

#if defined(__x86_64__)
/// The processor takes calls in three ways, of which a filter of numbers may know only one.
TEST(Confinement, knowsTheOtherWaysToCallTheSystem) {
    if (!isConfinementWhole())
        GTEST_SKIP() << "sanitizers do not work in it";
    EXPECT_EQ(statusOf([] {
                  constexpr long kOtherInterface = 0x40000000;
                  return ::syscall(kOtherInterface | SYS_getpid) == -1 && errno == EPERM;
              }),
              kDone);
    const auto getNumberAsOfOld = [] {
        constexpr int kGetPid = 20;
        int result = 0;
        asm volatile("int $0x80" : "=a"(result) : "a"(kGetPid) : "memory");
        return result;
    };
    if (statusInTheOpen([&] { return getNumberAsOfOld() == ::getpid(); }) != kDone)
        GTEST_SKIP() << "this kernel does not know the calls of 32 bits";
    EXPECT_EQ(statusOf([&] { return getNumberAsOfOld() == -EPERM; }), kDone);
}
#endif

/// Each wall is to stand by itself: kernels may lack the other.
TEST(FileFence, isEnoughForFiles) {
    constexpr long kAskVersion = 1;
    if (::syscall(SYS_landlock_create_ruleset, nullptr, 0, kAskVersion) < 1)
        GTEST_SKIP() << "this kernel has no Landlock";
    const testsupport::TemporaryFolder folder;
    const auto path = folder / "open.bin";
    std::ofstream(path) << "content";
    const int file = ::open(path.c_str(), O_RDWR | O_CLOEXEC);
    const auto fence = [] {
        ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
        media::process::fenceOffFiles();
    };
    const auto isRefused = [](int result) { return result < 0 && errno == EACCES; };
    const auto isFenced = [&] {
        char byte = 0;
        return isRefused(::open(path.c_str(), O_RDONLY)) &&
               isRefused(::open("/dev/null", O_WRONLY)) &&
               isRefused(::open("/", O_RDONLY | O_DIRECTORY)) &&
               isRefused(::mkdir((folder / "new").c_str(), 0700)) &&
               isRefused(::unlink(path.c_str())) && ::pread(file, &byte, 1, 0) == 1 &&
               ::pwrite(file, "C", 1, 0) == 1 && ::ftruncate(file, 1) == 0;
    };
    EXPECT_EQ(statusInTheOpen(isFenced), kRefused);
    EXPECT_EQ(statusBehind(fence, isFenced), kDone);
    ::close(file);
}

} // namespace
