#include "Media/Process/Server/SystemCallFilter.h"

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <fcntl.h>
#include <link.h>
#include <linux/audit.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sched.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
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
constexpr auto kAllowed = std::to_array<long>({
    // Descriptors that are open.
    SYS_read, SYS_write, SYS_readv, SYS_writev, SYS_pread64, SYS_pwrite64, SYS_preadv, SYS_pwritev,
    SYS_lseek, SYS_fstat, SYS_close, SYS_close_range, SYS_dup, SYS_dup3, SYS_fsync, SYS_fdatasync,
    SYS_sync_file_range, SYS_ftruncate, SYS_fallocate, SYS_fadvise64, SYS_ppoll, SYS_recvmsg,
    SYS_sendmsg, SYS_shutdown,
    // Memory.
    SYS_brk, SYS_munmap, SYS_mremap, SYS_madvise, SYS_mlock, SYS_munlock, SYS_membarrier,
    SYS_mbind, SYS_get_mempolicy, SYS_set_mempolicy,
    // Threads and time.
    SYS_futex, SYS_set_robust_list, SYS_get_robust_list, SYS_rseq, SYS_set_tid_address,
    SYS_sched_yield, SYS_sched_getaffinity, SYS_sched_getparam, SYS_sched_getscheduler,
    SYS_sched_get_priority_max, SYS_sched_get_priority_min, SYS_clock_gettime, SYS_clock_getres,
    SYS_clock_nanosleep, SYS_nanosleep, SYS_gettimeofday, SYS_getcpu, SYS_restart_syscall,
    SYS_rt_sigaction, SYS_rt_sigprocmask, SYS_rt_sigreturn, SYS_rt_sigpending, SYS_sigaltstack,
    SYS_exit, SYS_exit_group,
    // What it may know of itself and of the machine.
    SYS_getpid, SYS_gettid, SYS_getppid, SYS_getuid, SYS_geteuid, SYS_getgid, SYS_getegid,
    SYS_getrandom, SYS_getrusage, SYS_getpriority, SYS_times, SYS_sysinfo, SYS_uname,
#if defined(__x86_64__)
    SYS_poll, SYS_dup2, SYS_time, SYS_arch_prctl,
#endif
});
// clang-format on

/// Offsets into what a filter sees. Of arguments the lower half, where numbers lie.
constexpr std::uint32_t kNumber = offsetof(seccomp_data, nr);
constexpr std::uint32_t kArchitectureOf = offsetof(seccomp_data, arch);

constexpr std::uint32_t argument(unsigned index) {
    return static_cast<std::uint32_t>(offsetof(seccomp_data, args) + std::size_t{8} * index);
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

    /// Allows a call whose first arguments are these, and refuses it with others.
    template<std::size_t Count>
    void allowWithAll(long call, const std::array<std::uint32_t, Count>& values) {
        add({BPF_JMP | BPF_JEQ | BPF_K, 0, static_cast<std::uint8_t>(1 + 3 * Count),
             static_cast<std::uint32_t>(call)});
        for (unsigned index = 0; index < Count; ++index) {
            load(argument(index));
            whereNot(values[index], SECCOMP_RET_ERRNO | EPERM);
        }
        giveBack(SECCOMP_RET_ALLOW);
    }

    /// Allows a call with none of these bits in an argument, and refuses it with any.
    void allowWithout(long call, unsigned index, std::uint32_t bits) {
        add({BPF_JMP | BPF_JEQ | BPF_K, 0, 4, static_cast<std::uint32_t>(call)});
        load(argument(index));
        whereAny(bits, SECCOMP_RET_ERRNO | EPERM);
        giveBack(SECCOMP_RET_ALLOW);
    }

    [[nodiscard]] sock_fprog program() {
        return {static_cast<unsigned short>(m_filter.size()), m_filter.data()};
    }

private:
    void add(sock_filter step) { m_filter.push_back(step); }

    std::vector<sock_filter> m_filter;
};

/// Whether a library that is loaded wants stacks that can be run as code, as some old assembler
/// does.
bool areStacksExecutable() {
    const auto wantsOne = [](dl_phdr_info* object, std::size_t /*size*/, void* /*data*/) -> int {
        for (int i = 0; i < object->dlpi_phnum; ++i) {
            const auto& header = object->dlpi_phdr[i];
            if (header.p_type == PT_GNU_STACK && (header.p_flags & PF_X) != 0)
                return 1;
        }
        return 0;
    };
    return ::dl_iterate_phdr(wantsOne, nullptr) != 0;
}

/// New threads, as C libraries make them, but no new process and no namespace.
void allowThreads(FilterWriter& writer) {
    constexpr std::uint32_t kThread = CLONE_VM | CLONE_FS | CLONE_FILES | CLONE_SYSVSEM |
                                      CLONE_SIGHAND | CLONE_THREAD | CLONE_SETTLS |
                                      CLONE_PARENT_SETTID | CLONE_CHILD_CLEARTID;
    // Its flags are where no filter can see them; the C library then takes the older call.
    writer.where(SYS_clone3, SECCOMP_RET_ERRNO | ENOSYS);
    writer.allowWith(SYS_clone, 0, std::array{kThread, kThread | CLONE_DETACHED});
}

/// Memory, but no new code: all libraries are loaded. And none of the pages that few systems have,
/// which a reader of shared memory would fault on.
void allowMemory(FilterWriter& writer) {
    const std::uint32_t refused = areStacksExecutable() ? 0 : PROT_EXEC;
    writer.allowWithout(SYS_mmap, 2, refused);
    writer.allowWithout(SYS_mprotect, 2, refused);
    writer.allowWithout(SYS_memfd_create, 1, ~std::uint32_t{MFD_CLOEXEC | MFD_ALLOW_SEALING});
}

/// Signals to itself only, as abort() sends them, and the limits and ranks of its own.
void allowItself(FilterWriter& writer) {
    const auto self = static_cast<std::uint32_t>(::getpid());
    writer.allowWith(SYS_tgkill, 0, std::array{self});
    writer.allowWith(SYS_kill, 0, std::array{self});
    writer.allowWith(SYS_prlimit64, 0, std::array{std::uint32_t{0}});
    // Of the calling thread: which processors it runs on, and behind whom.
    writer.allowWith(SYS_sched_setaffinity, 0, std::array{std::uint32_t{0}});
    // The first argument could make it all processes of the user.
    writer.allowWithAll(SYS_setpriority, std::array{std::uint32_t{PRIO_PROCESS}, std::uint32_t{0}});
    constexpr std::uint32_t kNameMemory = 0x53564d41; // PR_SET_VMA, of Linux 5.17.
    writer.allowWith(SYS_prctl, 0,
                     std::array<std::uint32_t, 3>{PR_SET_NAME, PR_GET_NAME, kNameMemory});
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
    allowMemory(writer);
    allowItself(writer);
    // Not those that make another process’s signals or locks of it, nor F_SETFL: its flags are
    // shared with the program.
    writer.allowWith(SYS_fcntl, 1,
                     std::array<std::uint32_t, 7>{F_DUPFD, F_DUPFD_CLOEXEC, F_GETFD, F_SETFD,
                                                  F_GETFL, F_ADD_SEALS, F_GET_SEALS});
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
