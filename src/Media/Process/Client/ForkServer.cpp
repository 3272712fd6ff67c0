#include "Media/Process/Client/ForkServer.h"

#include "Media/Error.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace media::process {

namespace {

/// The descriptor under which the server finds its channel.
constexpr int kServersDescriptor = 3;

/// How often who waits for an answer looks whether it is to stop.
constexpr std::chrono::milliseconds kLook{50};

class SpawnActions {
public:
    SpawnActions() {
        ::posix_spawn_file_actions_init(&m_actions);
        ::posix_spawnattr_init(&m_attributes);
        // Of its own session, so that a terminal's Ctrl-C is the program's alone.
        ::posix_spawnattr_setflags(&m_attributes, POSIX_SPAWN_SETSID);
    }

    SpawnActions(const SpawnActions&) = delete;
    SpawnActions& operator=(const SpawnActions&) = delete;

    ~SpawnActions() {
        ::posix_spawn_file_actions_destroy(&m_actions);
        ::posix_spawnattr_destroy(&m_attributes);
    }

    /// 0, or the errno of the failure.
    int spawn(const std::filesystem::path& program, int socket, pid_t& process) {
        ::posix_spawn_file_actions_adddup2(&m_actions, socket, kServersDescriptor);
        std::string name = program.filename();
        const std::array<char*, 2> arguments{name.data(), nullptr};
        return ::posix_spawn(&process, program.c_str(), &m_actions, &m_attributes, arguments.data(),
                             environ);
    }

private:
    posix_spawn_file_actions_t m_actions{};
    posix_spawnattr_t m_attributes{};
};

/// Another build may greet in another way.
bool isOfThisBuild(Message greeting) {
    try {
        return MessageReader(std::move(greeting)).getText() == BRISKLET_ENGINE_INTERFACE;
    } catch (const BadMessage&) {
        return false;
    }
}

/// Waits until the process, which has been killed, is gone.
void await(pid_t process) {
    while (::waitpid(process, nullptr, 0) < 0 && errno == EINTR) {
    }
}

} // namespace

/// Has the server to itself as long as it lives.
class ForkServer::Turn {
public:
    /// Throws Cancelled when stopped.
    Turn(ForkServer& server, const std::stop_token& stop) : m_server(server) {
        std::unique_lock lock(server.m_mutex);
        if (!server.m_isFree.wait(lock, stop, [&server] { return !server.m_isTaken; }))
            throw Cancelled();
        server.m_isTaken = true;
    }

    Turn(const Turn&) = delete;
    Turn& operator=(const Turn&) = delete;

    ~Turn() {
        const std::scoped_lock lock(m_server.m_mutex);
        m_server.m_isTaken = false;
        m_server.m_isFree.notify_one();
    }

private:
    ForkServer& m_server;
};

ForkServer::ForkServer(std::filesystem::path program, std::chrono::milliseconds longestSilence)
    : m_program(std::move(program)), m_longestSilence(longestSilence) {
    start();
}

ForkServer::~ForkServer() {
    if (!m_server.channel)
        return;
    // It leads a group of its own. A helper that hangs would not notice the end of the program.
    ::kill(-m_server.process, SIGKILL);
    await(m_server.process);
}

void ForkServer::start() {
    auto [ours, theirs] = Channel::makePair();
    SpawnActions actions;
    if (const int error = actions.spawn(m_program, theirs.number(), m_server.process); error != 0)
        throw Error(becauseOf(ErrorKind::engineNotFound, reasonOf(error)));
    m_server.channel.emplace(std::move(ours));
    m_server.isKnown = false;
    m_server.unreadAnswers = 0;
}

/// Its helpers are not to notice: it ends those when its channel does.
void ForkServer::giveUp() {
    ::kill(m_server.process, SIGKILL);
    await(m_server.process);
    m_server.channel.reset();
}

/// None if it is gone, or silent.
std::optional<Message> ForkServer::answer(const std::stop_token& stop) {
    const auto end = std::chrono::steady_clock::now() + m_longestSilence;
    while (!m_server.channel->waitFor(kLook)) {
        if (stop.stop_requested())
            throw Cancelled();
        if (std::chrono::steady_clock::now() >= end)
            return std::nullopt;
    }
    return m_server.channel->receive();
}

/// The first thing that it says is what it was built of. False if it is gone.
bool ForkServer::meet(const std::stop_token& stop) {
    std::optional<Message> greeting = answer(stop);
    if (!greeting) {
        giveUp();
        return false;
    }
    if (isOfThisBuild(std::move(*greeting))) {
        m_server.isKnown = true;
        return true;
    }
    giveUp();
    throw Error(ErrorKind::updatedMeanwhile);
}

/// The helpers that these bring end at once: nobody keeps their channels. False if the server is
/// gone.
bool ForkServer::skipUnread(const std::stop_token& stop) {
    for (; m_server.unreadAnswers > 0; --m_server.unreadAnswers) {
        if (!answer(stop)) {
            giveUp();
            return false;
        }
    }
    return true;
}

/// Null if the server is gone.
std::shared_ptr<HelperProcess> ForkServer::ask(const std::stop_token& stop) {
    // The answer brings a descriptor. Without room for it there would be no answer.
    Descriptor room(::fcntl(m_server.channel->number(), F_DUPFD_CLOEXEC, 0));
    if (!room.isOpen())
        throw Error(becauseOf(ErrorKind::unreadableFile, reasonOf(errno)));
    auto [ours, theirs] = Channel::makePair();
    MessageWriter writer;
    writer.put(std::uint8_t{0});
    writer.put(std::move(theirs));
    room.close();
    std::optional<Message> message;
    if (m_server.channel->send(writer.message())) {
        ++m_server.unreadAnswers;
        message = answer(stop);
    }
    if (!message) {
        giveUp();
        return nullptr;
    }
    --m_server.unreadAnswers;
    try {
        MessageReader reader(std::move(*message));
        if (!reader.getBool())
            throw Error(ErrorKind::noMoreThreads);
        return std::make_shared<HelperProcess>(reader.getDescriptor(), std::move(ours));
    } catch (const BadMessage&) {
        giveUp();
        return nullptr;
    }
}

std::shared_ptr<HelperProcess> ForkServer::fork(const std::stop_token& stop) {
    const Turn turn(*this, stop);
    // Whoever had ended it, a second one is asked too.
    for (int attempt = 0; attempt < 2; ++attempt) {
        if (!m_server.channel)
            start();
        if ((!m_server.isKnown && !meet(stop)) || !skipUnread(stop))
            continue;
        if (auto helper = ask(stop))
            return helper;
    }
    // One that ends before it can say a word lacks its libraries.
    throw Error(m_server.isKnown ? ErrorKind::decoderStopped : ErrorKind::incompleteInstallation);
}

} // namespace media::process
