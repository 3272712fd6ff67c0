#include "Media/Process/Server/SystemCallFilter.h"

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <fcntl.h>
#include <linux/audit.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sched.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>
#include <vector>

namespace media::process {

namespace {

#if defined(__x86_64__)
constexpr std::uint32_t kArchitecture = AUDIT_ARCH_X86_64;
#elif defined(__aarch64__)
constexpr std::uint32_t kArchitecture = AUDIT_ARCH_AARCH64;
#else
constexpr std::uint32_t kArchitecture = 0;
#endif

/// On x86, calls of its third interface (x32) have this bit.
constexpr std::uint32_t kOtherInterface = 0x40000000;

// clang-format off
/// Allowed whatever their arguments are. None opens, names, makes or connects anything.
constexpr std::array kAllowed = {
    // Descriptors that are open.
    long{SYS_read}, long{SYS_write}, long{SYS_readv}, long{SYS_writev}, long{SYS_pread64}, long{SYS_pwrite64}, long{SYS_preadv}, long{SYS_pwritev},
    long{SYS_lseek}, long{SYS_fstat}, long{SYS_close}, long{SYS_close_range}, long{SYS_dup}, long{SYS_dup3}, long{SYS_fsync}, long{SYS_fdatasync},
    long{SYS_sync_file_range}, long{SYS_ftruncate}, long{SYS_fallocate}, long{SYS_fadvise64}, long{SYS_ppoll}, long{SYS_recvmsg},
    long{SYS_sendmsg}, long{SYS_recvfrom}, long{SYS_sendto}, long{SYS_shutdown}, long{SYS_eventfd2}, long{SYS_epoll_create1},
    long{SYS_epoll_ctl}, long{SYS_epoll_pwait},
    // Memory.
    long{SYS_brk}, long{SYS_mmap}, long{SYS_munmap}, long{SYS_mprotect}, long{SYS_mremap}, long{SYS_madvise}, long{SYS_memfd_create},
    long{SYS_mlock}, long{SYS_munlock}, long{SYS_membarrier}, long{SYS_mbind}, long{SYS_get_mempolicy}, long{SYS_set_mempolicy},
    long{SYS_msync}, long{SYS_mincore}, long{SYS_pkey_mprotect},
    // Threads and time.
    long{SYS_futex}, long{SYS_set_robust_list}, long{SYS_get_robust_list}, long{SYS_rseq}, long{SYS_set_tid_address},
    long{SYS_sched_yield}, long{SYS_sched_getaffinity}, long{SYS_sched_getparam}, long{SYS_sched_getscheduler},
    long{SYS_sched_get_priority_max}, long{SYS_sched_get_priority_min}, long{SYS_clock_gettime}, long{SYS_clock_getres},
    long{SYS_clock_nanosleep}, long{SYS_nanosleep}, long{SYS_gettimeofday}, long{SYS_getcpu}, long{SYS_restart_syscall},
    long{SYS_rt_sigaction}, long{SYS_rt_sigprocmask}, long{SYS_rt_sigreturn}, long{SYS_rt_sigpending}, long{SYS_sigaltstack},
    long{SYS_exit}, long{SYS_exit_group},
    // What it may know of itself and of the machine.
    long{SYS_getpid}, long{SYS_gettid}, long{SYS_getppid}, long{SYS_getuid}, long{SYS_geteuid}, long{SYS_getgid}, long{SYS_getegid},
    long{SYS_getrandom}, long{SYS_getrusage}, long{SYS_getpriority}, long{SYS_times}, long{SYS_sysinfo}, long{SYS_uname},
#if defined(__x86_64__)
    long{SYS_poll}, long{SYS_epoll_wait}, long{SYS_dup2}, long{SYS_time}, long{SYS_arch_prctl},
#endif
};
// clang-format on

/// Offsets into what a filter sees. Of arguments the lower half, where numbers lie.
constexpr std::uint32_t kNumber = offsetof(seccomp_data, nr);
constexpr std::uint32_t kArchitectureOf = offsetof(seccomp_data, arch);

constexpr std::uint32_t argument(unsigned index) {
    return static_cast<std::uint32_t>(offsetof(seccomp_data, args) + std::size_t{index} * 8);
}

/// Writes a filter: a list of cases, each of which ends with a verdict or goes on to the next.
class FilterWriter {
public:
    void load(std::uint32_t offset) { add({BPF_LD | BPF_W | BPF_ABS, 0, 0, offset}); }

    void giveBack(std::uint32_t verdict) { add({BPF_RET | BPF_K, 0, 0, verdict}); }

    /// Where the value loaded is this one, the verdict.
    void where(std::uint32_t value, std::uint32_t verdict) {
        add({BPF_JMP | BPF_JEQ | BPF_K, 0, 1, value});
        giveBack(verdict);
    }

    void whereNot(std::uint32_t value, std::uint32_t verdict) {
        add({BPF_JMP | BPF_JEQ | BPF_K, 1, 0, value});
        giveBack(verdict);
    }

    void whereAny(std::uint32_t bits, std::uint32_t verdict) {
        add({BPF_JMP | BPF_JSET | BPF_K, 0, 1, bits});
        giveBack(verdict);
    }

    /// Allows a call with an argument out of a list, and refuses it with another.
    template<std::size_t Count>
    void allowWith(long call, unsigned index, const std::array<std::uint32_t, Count>& values) {
        add({BPF_JMP | BPF_JEQ | BPF_K, 0, static_cast<std::uint8_t>(2 + 2 * Count),
             static_cast<std::uint32_t>(call)});
        load(argument(index));
        for (const std::uint32_t value : values)
            where(value, SECCOMP_RET_ALLOW);
        giveBack(SECCOMP_RET_ERRNO | EPERM);
    }

    /// Allows a call with any of these bits in an argument, and refuses it without.
    void allowIfAny(long call, unsigned index, std::uint32_t bits) {
        add({BPF_JMP | BPF_JEQ | BPF_K, 0, 4, static_cast<std::uint32_t>(call)});
        load(argument(index));
        whereAny(bits, SECCOMP_RET_ALLOW);
        giveBack(SECCOMP_RET_ERRNO | EPERM);
    }

    [[nodiscard]] sock_fprog program() {
        return {static_cast<unsigned short>(m_filter.size()), m_filter.data()};
    }

private:
    void add(sock_filter step) { m_filter.push_back(step); }

    std::vector<sock_filter> m_filter;
};

/// A new thread, but no new process.
void allowThreads(FilterWriter& writer) {
    // Its flags are where no filter can see them; the C library then takes the older call.
    writer.where(SYS_clone3, SECCOMP_RET_ERRNO | ENOSYS);
    writer.allowIfAny(SYS_clone, 0, CLONE_THREAD);
}

FilterWriter makeFilter() {
    FilterWriter writer;
    writer.load(kArchitectureOf);
    writer.whereNot(kArchitecture, SECCOMP_RET_ERRNO | EPERM);
    writer.load(kNumber);
#if defined(__x86_64__)
    writer.whereAny(kOtherInterface, SECCOMP_RET_ERRNO | EPERM);
#endif
    for (const long call : kAllowed)
        writer.where(static_cast<std::uint32_t>(call), SECCOMP_RET_ALLOW);
    allowThreads(writer);
    // The state of an open descriptor, which some C libraries ask for by a call for paths.
    writer.allowIfAny(SYS_newfstatat, 3, AT_EMPTY_PATH);
    // Signals to itself only, as abort() sends them, and the limits and ranks of its own.
    const auto self = static_cast<std::uint32_t>(::getpid());
    writer.allowWith(SYS_tgkill, 0, std::array{self});
    writer.allowWith(SYS_kill, 0, std::array{self});
    writer.allowWith(SYS_prlimit64, 0, std::array{std::uint32_t{0}});
    writer.allowWith(SYS_setpriority, 0, std::array{std::uint32_t{0}});
    writer.allowWith(SYS_fcntl, 1,
                     std::array<std::uint32_t, 8>{F_DUPFD, F_DUPFD_CLOEXEC, F_GETFD, F_SETFD,
                                                  F_GETFL, F_SETFL, F_ADD_SEALS, F_GET_SEALS});
    constexpr std::uint32_t kNameMemory = 0x53564d41; // PR_SET_VMA, of Linux 5.17.
    writer.allowWith(SYS_prctl, 0,
                     std::array<std::uint32_t, 3>{PR_SET_NAME, PR_GET_NAME, kNameMemory});
    writer.giveBack(SECCOMP_RET_ERRNO | EPERM);
    return writer;
}

} // namespace

void filterSystemCalls() noexcept {
    if (kArchitecture == 0)
        return;
    FilterWriter writer = makeFilter();
    const sock_fprog program = writer.program();
    ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program, 0, 0);
}

} // namespace media::process
