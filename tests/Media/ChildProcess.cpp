#include "Media/ChildProcess.h"

#include <array>
#include <cerrno>
#include <exception>
#include <fstream>
#include <sched.h>
#include <stdexcept>
#include <sys/mount.h>
#include <sys/wait.h>
#include <system_error>
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

} // namespace

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
