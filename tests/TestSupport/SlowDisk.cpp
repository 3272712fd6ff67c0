#include "TestSupport/SlowDisk.h"

#include <chrono>
#include <csignal>
#include <fstream>
#include <spawn.h>
#include <string>
#include <sys/stat.h>
#include <sys/wait.h>
#include <system_error>
#include <thread>
#include <unistd.h>
#include <vector>

namespace testsupport {
namespace {

pid_t start(std::vector<std::string> arguments) {
    std::vector<char*> pointers;
    for (std::string& argument : arguments)
        pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    pid_t process = -1;
    return ::posix_spawn(&process, pointers[0], nullptr, nullptr, pointers.data(), environ) == 0
               ? process
               : -1;
}

bool hasEnded(pid_t process) {
    return ::waitpid(process, nullptr, WNOHANG) == process;
}

dev_t deviceOf(const std::filesystem::path& path) {
    struct stat status = {};
    return ::stat(path.c_str(), &status) == 0 ? status.st_dev : 0;
}

} // namespace

SlowDisk::SlowDisk(int bytesPerSecond) {
    const dev_t before = deviceOf(m_mountPoint.path());
    m_process = start({BRISKLET_SLOW_DISK, m_content.path().string(), m_mountPoint.path().string(),
                       std::to_string(bytesPerSecond)});
    while (m_process > 0 && deviceOf(m_mountPoint.path()) == before) {
        if (hasEnded(m_process))
            m_process = -1;
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
}

SlowDisk::~SlowDisk() {
    if (m_process <= 0)
        return;
    setStalled(false);
    ::kill(m_process, SIGTERM);
    ::waitpid(m_process, nullptr, 0);
}

std::filesystem::path SlowDisk::holding(const std::filesystem::path& file) const {
    std::filesystem::copy_file(file, m_content / file.filename());
    return m_mountPoint / file.filename();
}

bool SlowDisk::isAwaited() const {
    return std::filesystem::exists(m_content / "awaited");
}

void SlowDisk::setFlag(const char* name, bool isSet) const {
    if (isSet)
        std::ofstream(m_content / name);
    else
        std::filesystem::remove(m_content / name);
}

} // namespace testsupport
