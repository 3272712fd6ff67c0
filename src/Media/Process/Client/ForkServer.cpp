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

/// A server that does not answer for so long is taken for stopped. Loading the engine takes a
/// twentieth of a second, and many seconds from a slow disk.
constexpr std::chrono::seconds kLongestSilence{20};

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

} // namespace

ForkServer::ForkServer(std::filesystem::path program) : m_program(std::move(program)) {
    start(*m_server.lock());
}

void ForkServer::start(Server& server) const {
    auto [ours, theirs] = Channel::makePair();
    SpawnActions actions;
    if (const int error = actions.spawn(m_program, theirs.number(), server.process); error != 0)
        throw Error(becauseOf(ErrorKind::engineNotFound, reasonOf(error)));
    server.channel.emplace(std::move(ours));
    server.isKnown = false;
}

void ForkServer::giveUp(Server& server) {
    server.channel.reset();
    ::kill(server.process, SIGKILL);
    while (::waitpid(server.process, nullptr, 0) < 0 && errno == EINTR) {
    }
}

/// None if it is gone, or silent.
std::optional<Message> ForkServer::answerOf(Server& server) {
    if (!server.channel->waitFor(kLongestSilence))
        return std::nullopt;
    return server.channel->receive();
}

/// The first thing that it says is what it was built of. False if it is gone.
bool ForkServer::meet(Server& server) {
    std::optional<Message> message = answerOf(server);
    if (!message) {
        giveUp(server);
        return false;
    }
    if (isOfThisBuild(std::move(*message))) {
        server.isKnown = true;
        return true;
    }
    giveUp(server);
    throw Error(ErrorKind::updatedMeanwhile);
}

/// Null if the server is gone.
std::shared_ptr<HelperProcess> ForkServer::ask(Server& server) {
    // The answer brings a descriptor. Without room for it there would be no answer.
    Descriptor room(::fcntl(server.channel->number(), F_DUPFD_CLOEXEC, 0));
    if (!room.isOpen())
        throw Error(becauseOf(ErrorKind::unreadableFile, reasonOf(errno)));
    auto [ours, theirs] = Channel::makePair();
    MessageWriter writer;
    writer.put(std::uint8_t{0});
    writer.put(std::move(theirs));
    room.close();
    std::optional<Message> message;
    if (server.channel->send(writer.message()))
        message = answerOf(server);
    if (!message) {
        giveUp(server);
        return nullptr;
    }
    MessageReader answer(std::move(*message));
    if (!answer.getBool())
        throw Error(ErrorKind::noMoreThreads);
    return std::make_shared<HelperProcess>(answer.getDescriptor(), std::move(ours));
}

ForkServer::~ForkServer() {
    const auto server = m_server.lock();
    if (server->channel)
        giveUp(*server);
}

std::shared_ptr<HelperProcess> ForkServer::fork() {
    const auto server = m_server.lock();
    // Whoever had ended it, a second one is asked too.
    for (int attempt = 0; attempt < 2; ++attempt) {
        if (!server->channel)
            start(*server);
        if (!server->isKnown && !meet(*server))
            continue;
        if (auto helper = ask(*server))
            return helper;
    }
    // One that ends before it can say a word lacks its libraries.
    throw Error(server->isKnown ? ErrorKind::decoderStopped : ErrorKind::incompleteInstallation);
}

} // namespace media::process
