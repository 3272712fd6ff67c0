#include "Media/ChildProcess.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <dlfcn.h>
#include <exception>
#include <fstream>
#include <sched.h>
#include <stdexcept>
#include <string_view>
#include <sys/mount.h>
#include <sys/wait.h>
#include <system_error>
#include <ucontext.h>
#include <unistd.h>

namespace testsupport {
namespace {

constexpr uid_t kNobody = 65534;

void writeAll(int descriptor, const std::string& text) {
    std::size_t done = 0;
    while (done < text.size()) {
        const ssize_t count = ::write(descriptor, text.data() + done, text.size() - done);
        if (count < 0 && errno != EINTR)
            return;
        done += count > 0 ? static_cast<std::size_t>(count) : 0;
    }
}

std::string readAll(int descriptor) {
    std::string text;
    std::array<char, 4096> buffer;
    for (;;) {
        const ssize_t count = ::read(descriptor, buffer.data(), buffer.size());
        if (count > 0)
            text.append(buffer.data(), static_cast<std::size_t>(count));
        else if (count == 0 || errno != EINTR)
            return text;
    }
}

[[noreturn]] void runAndExit(const std::function<std::string()>& work, int descriptor) {
    std::string result;
    try {
        result = work();
    } catch (const std::exception& exception) {
        result = std::string("exception: ") + exception.what();
    } catch (...) {
        result = "exception";
    }
    writeAll(descriptor, result);
    // Neither the test framework's end of program nor buffers it has filled are the child's.
    ::_exit(0);
}

bool write(const char* path, const std::string& text) {
    std::ofstream file(path);
    file << text;
    return static_cast<bool>(file.flush());
}

/// A mount namespace of our own; for ordinary users in a user namespace where they are root.
bool separateMounts() {
    const uid_t user = ::geteuid();
    const gid_t group = ::getegid();
    if (user != 0) {
        if (::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0)
            return false;
        return write("/proc/self/setgroups", "deny") &&
               write("/proc/self/uid_map", "0 " + std::to_string(user) + " 1") &&
               write("/proc/self/gid_map", "0 " + std::to_string(group) + " 1");
    }
    return ::unshare(CLONE_NEWNS) == 0 &&
           ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

/// Where the processor was, or where it came from if it was sent to nowhere; null if unknown.
// NOLINTBEGIN(performance-no-int-to-ptr): the registers are numbers.
const void* placeOfCrash([[maybe_unused]] const ucontext_t& context) {
#if defined(__x86_64__)
    const auto& registers = context.uc_mcontext.gregs;
    if (registers[REG_RIP] != 0)
        return reinterpret_cast<const void*>(registers[REG_RIP]);
    return *reinterpret_cast<const void* const*>(registers[REG_RSP]);
#elif defined(__aarch64__)
    const auto& registers = context.uc_mcontext;
    constexpr int kLinkRegister = 30;
    return reinterpret_cast<const void*>(registers.pc != 0 ? registers.pc
                                                           : registers.regs[kLinkRegister]);
#else
    return nullptr;
#endif
}

// NOLINTEND(performance-no-int-to-ptr)

void handleCrash(int signal, siginfo_t*, void* context) {
    Dl_info library = {};
    const void* place = placeOfCrash(*static_cast<const ucontext_t*>(context));
    if (place && ::dladdr(place, &library) != 0 && library.dli_fname) {
        const std::string_view path = library.dli_fname;
        const std::string_view name = path.substr(path.rfind('/') + 1);
        if (name.starts_with("libav") || name.starts_with("libsw"))
            ::_exit(kCrashInLibav);
    }
    // Happens again on return, and ends the process.
    std::signal(signal, SIG_DFL);
}

} // namespace

void tellCrashesInLibav() {
    struct sigaction action = {};
    action.sa_sigaction = handleCrash;
    action.sa_flags = SA_SIGINFO;
    for (const int signal : {SIGSEGV, SIGFPE})
        ::sigaction(signal, &action, nullptr);
}

std::string inChildProcess(const std::function<std::string()>& work) {
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0)
        throw std::system_error(errno, std::generic_category(), "pipe");
    const pid_t child = ::fork();
    if (child < 0)
        throw std::system_error(errno, std::generic_category(), "fork");
    if (child == 0) {
        ::close(ends[0]);
        runAndExit(work, ends[1]);
    }
    ::close(ends[1]);
    std::string result = readAll(ends[0]);
    ::close(ends[0]);
    int status = 0;
    while (::waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    if (WIFSIGNALED(status))
        return "signal " + std::to_string(WTERMSIG(status));
    if (WEXITSTATUS(status) != 0)
        return "status " + std::to_string(WEXITSTATUS(status));
    return result;
}

bool dropPrivileges() {
    if (::geteuid() != 0)
        return true;
    return ::setresgid(kNobody, kNobody, kNobody) == 0 &&
           ::setresuid(kNobody, kNobody, kNobody) == 0;
}

bool mountSmallDisk(const std::filesystem::path& folder, std::size_t bytes) {
    const std::string options = "size=" + std::to_string(bytes);
    return separateMounts() && ::mount("tmpfs", folder.c_str(), "tmpfs", 0, options.c_str()) == 0;
}

bool makeReadOnly(const std::filesystem::path& folder) {
    return ::mount("tmpfs", folder.c_str(), "tmpfs", MS_REMOUNT | MS_RDONLY, nullptr) == 0;
}

} // namespace testsupport
