#include "TestSupport/Process.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <stdexcept>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace testsupport {
namespace {

using Clock = std::chrono::steady_clock;

class Descriptor final {
public:
    Descriptor() = default;

    explicit Descriptor(int descriptor) : m_descriptor(descriptor) {}

    ~Descriptor() { close(); }

    Descriptor(Descriptor&& other) noexcept : m_descriptor(std::exchange(other.m_descriptor, -1)) {}

    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(m_descriptor, other.m_descriptor);
        return *this;
    }

    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int value() const { return m_descriptor; }

    bool isOpen() const { return m_descriptor >= 0; }

    void close() {
        if (isOpen())
            ::close(std::exchange(m_descriptor, -1));
    }

private:
    int m_descriptor = -1;
};

struct Pipe {
    Descriptor readEnd;
    Descriptor writeEnd;
};

Pipe makePipe() {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0)
        throw std::system_error(errno, std::generic_category(), "pipe2");
    return {Descriptor(ends[0]), Descriptor(ends[1])};
}

std::vector<char*> pointersTo(std::vector<std::string>& strings) {
    std::vector<char*> pointers;
    pointers.reserve(strings.size() + 1);
    for (std::string& string : strings)
        pointers.push_back(string.data());
    pointers.push_back(nullptr);
    return pointers;
}

std::vector<std::string> environmentWith(const std::vector<std::string>& additions) {
    std::vector<std::string> environment = additions;
    // What programs tell is compared with English, whatever the language of the person is.
    const auto isLanguage = [](const std::string& entry) { return entry.starts_with("LANGUAGE="); };
    if (std::ranges::none_of(environment, isLanguage))
        environment.emplace_back("LANGUAGE=en");
    for (char** entry = environ; *entry != nullptr; ++entry) {
        const std::string name = std::string(*entry).substr(0, std::string(*entry).find('=') + 1);
        bool isReplaced = false;
        for (const std::string& addition : additions)
            isReplaced = isReplaced || addition.starts_with(name);
        isReplaced = isReplaced || name == "LANGUAGE=";
        if (!isReplaced)
            environment.emplace_back(*entry);
    }
    return environment;
}

/// One running program and our ends of its three pipes.
class Child final {
public:
    Child(std::vector<std::string> arguments, const ProcessOptions& options);
    ~Child();
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;

    ProcessResult finish();

private:
    void exchangeOnce();
    void feed();
    static bool drain(Descriptor& descriptor, std::string& into);
    int wait();
    void throwIfLate();

    const ProcessOptions& m_options;
    const Clock::time_point m_deadline;
    const std::string m_name;
    pid_t m_pid = -1;
    Descriptor m_input;
    Descriptor m_output;
    Descriptor m_errors;
    std::string m_pendingInput;
    ProcessResult m_result;
};

Child::Child(std::vector<std::string> arguments, const ProcessOptions& options)
    : m_options(options), m_deadline(Clock::now() + options.limit), m_name(arguments.at(0)) {
    // A program that ends before it has read all its input must not end us.
    std::signal(SIGPIPE, SIG_IGN);

    Pipe input = makePipe();
    Pipe output = makePipe();
    Pipe errors = makePipe();

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, input.readEnd.value(), STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions, output.writeEnd.value(), STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&actions, errors.writeEnd.value(), STDERR_FILENO);
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    sigset_t defaults;
    sigemptyset(&defaults);
    sigaddset(&defaults, SIGPIPE);
    posix_spawnattr_setsigdefault(&attributes, &defaults);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGDEF);

    std::vector<std::string> environment = environmentWith(options.additionalEnvironment);
    const int error = posix_spawnp(&m_pid, m_name.c_str(), &actions, &attributes,
                                   pointersTo(arguments).data(), pointersTo(environment).data());
    posix_spawn_file_actions_destroy(&actions);
    posix_spawnattr_destroy(&attributes);
    if (error != 0) {
        m_pid = -1;
        throw std::system_error(error, std::generic_category(), "Cannot start " + m_name);
    }

    m_input = std::move(input.writeEnd);
    m_output = std::move(output.readEnd);
    m_errors = std::move(errors.readEnd);
    ::fcntl(m_input.value(), F_SETFL, O_NONBLOCK);
    if (!m_options.input)
        m_input.close();
}

Child::~Child() {
    if (m_pid > 0) {
        ::kill(m_pid, SIGKILL);
        wait();
    }
}

ProcessResult Child::finish() {
    while (m_output.isOpen() || m_errors.isOpen())
        exchangeOnce();
    m_result.exitStatus = wait();
    return std::move(m_result);
}

void Child::exchangeOnce() {
    throwIfLate();
    std::array<pollfd, 3> polled{{{m_output.value(), POLLIN, 0},
                                  {m_errors.value(), POLLIN, 0},
                                  {m_input.value(), POLLOUT, 0}}};
    if (::poll(polled.data(), polled.size(), 1000) < 0 && errno != EINTR)
        throw std::system_error(errno, std::generic_category(), "poll");
    if (polled[0].revents != 0 && !drain(m_output, m_result.output))
        m_output.close();
    if (polled[1].revents != 0 && !drain(m_errors, m_result.errors))
        m_errors.close();
    if (polled[2].revents != 0)
        feed();
}

void Child::feed() {
    if (m_pendingInput.empty())
        m_pendingInput = m_options.input();
    if (m_pendingInput.empty()) {
        m_input.close();
        return;
    }
    const ssize_t written = ::write(m_input.value(), m_pendingInput.data(), m_pendingInput.size());
    if (written >= 0)
        m_pendingInput.erase(0, static_cast<std::size_t>(written));
    else if (errno != EAGAIN && errno != EINTR)
        m_input.close();
}

bool Child::drain(Descriptor& descriptor, std::string& into) {
    std::array<char, 65536> buffer;
    const ssize_t count = ::read(descriptor.value(), buffer.data(), buffer.size());
    if (count > 0)
        into.append(buffer.data(), static_cast<std::size_t>(count));
    return count > 0 || (count < 0 && errno == EINTR);
}

int Child::wait() {
    int status = 0;
    while (::waitpid(m_pid, &status, 0) < 0 && errno == EINTR) {
    }
    m_pid = -1;
    return WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
}

void Child::throwIfLate() {
    if (Clock::now() > m_deadline)
        throw std::runtime_error(m_name + " did not end in time. " + m_result.errors);
}

} // namespace

ProcessResult runProcess(const std::vector<std::string>& arguments, const ProcessOptions& options) {
    return Child(arguments, options).finish();
}

ProcessResult runProcessOrThrow(const std::vector<std::string>& arguments,
                                const ProcessOptions& options) {
    ProcessResult result = runProcess(arguments, options);
    if (result.succeeded())
        return result;
    std::string message;
    for (const std::string& argument : arguments)
        message += argument + ' ';
    throw std::runtime_error(message + "ended with status " + std::to_string(result.exitStatus) +
                             ": " + result.errors);
}

} // namespace testsupport
