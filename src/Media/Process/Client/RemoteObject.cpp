#include "Media/Process/Client/RemoteObject.h"

#include "Media/Error.h"
#include "Media/Process/Wire/MediaMessages.h"
#include "Media/Process/Wire/Protocol.h"

#include <new>
#include <optional>
#include <utility>

namespace media::process {

namespace {

/// How often a call that waits looks whether it has waited for too long.
constexpr std::chrono::milliseconds kLook{100};

} // namespace

bool RemoteObject::Waiting::isOver() {
    const auto now = std::chrono::steady_clock::now();
    if (!m_end && m_stop.stop_requested())
        m_end = now + m_most;
    return m_end && now >= *m_end;
}

RemoteObject::RemoteObject(Descriptor socket, Preamble preamble, Abandon abandon)
    : RemoteObject(std::move(socket), std::move(preamble), std::move(abandon), Patience()) {}

RemoteObject::RemoteObject(Descriptor socket, Preamble preamble, Abandon abandon, Patience patience)
    : m_channel(std::move(socket)),
      m_preamble(std::move(preamble)),
      m_abandon(std::move(abandon)),
      m_patience(patience) {}

void RemoteObject::giveUp() const {
    if (m_abandon)
        m_abandon();
    throw Error(ErrorKind::decoderStopped);
}

MessageReader RemoteObject::callNumbered(std::int32_t operation, MessageWriter arguments,
                                         Waiting waiting, const Progress& progress) {
    const std::uint32_t call = ++m_lastCall;
    if (!sendCall(call, operation, std::move(arguments)))
        throw Error(ErrorKind::decoderStopped);
    const std::stop_callback onStop(waiting.stop(), [this, call] { sendStop(call); });
    try {
        return awaitAnswer(call, waiting, progress);
    } catch (const BadMessage&) {
        giveUp();
    }
}

/// False if the helper is gone, or if the arguments are too long.
bool RemoteObject::sendCall(std::uint32_t call, std::int32_t operation, MessageWriter arguments) {
    try {
        MessageWriter writer;
        writer.put(call);
        writer.put(operation);
        writer.append(std::move(arguments));
        return m_channel.send(writer.message());
    } catch (const BadMessage&) {
        return false;
    }
}

Message RemoteObject::awaitMessage(Waiting& waiting) {
    while (!m_channel.waitFor(kLook)) {
        if (waiting.isOver())
            giveUp();
    }
    std::optional<Message> message = m_channel.receive();
    if (!message)
        throw Error(ErrorKind::decoderStopped);
    return std::move(*message);
}

MessageReader RemoteObject::awaitAnswer(std::uint32_t call, Waiting& waiting,
                                        const Progress& progress) {
    for (;;) {
        MessageReader reader(awaitMessage(waiting));
        if (reader.get<std::uint32_t>() != call)
            throw BadMessage();
        const auto answer = reader.getEnum(Answer::count);
        if (answer == Answer::progress) {
            // One that only ever reports would keep the caller for ever.
            if (waiting.isOver())
                giveUp();
            if (progress)
                progress(reader);
            continue;
        }
        std::optional<Failure> failure;
        if (answer == Answer::failure)
            failure = getFailure(reader);
        if (m_preamble)
            m_preamble(reader);
        if (failure)
            throw Error(std::move(*failure));
        if (answer == Answer::cancelled)
            throw Cancelled();
        if (answer == Answer::outOfMemory)
            throw std::bad_alloc();
        return reader;
    }
}

void RemoteObject::sendStop(std::uint32_t call) {
    try {
        MessageWriter writer;
        writer.put(call);
        writer.put(std::int32_t{kStopOperation});
        // A helper that does not read any more has no need of it.
        static_cast<void>(m_channel.send(writer.message()));
    } catch (const std::bad_alloc&) {
        // The call goes on to its end, then.
    }
}

} // namespace media::process
