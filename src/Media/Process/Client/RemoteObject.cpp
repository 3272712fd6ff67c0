#include "Media/Process/Client/RemoteObject.h"

#include "Media/Error.h"
#include "Media/Process/Wire/MediaMessages.h"
#include "Media/Process/Wire/Protocol.h"

#include <new>
#include <optional>
#include <utility>

namespace media::process {

RemoteObject::RemoteObject(Descriptor socket, Preamble preamble)
    : m_channel(std::move(socket)), m_preamble(std::move(preamble)) {}

MessageReader RemoteObject::callNumbered(std::int32_t operation, MessageWriter arguments,
                                         const std::stop_token& stop, const Progress& progress) {
    const std::uint32_t call = ++m_lastCall;
    try {
        MessageWriter writer;
        writer.put(call);
        writer.put(operation);
        writer.append(std::move(arguments));
        if (!m_channel.send(writer.message()))
            throw Error(ErrorKind::decoderStopped);
        const std::stop_callback onStop(stop, [this, call] { sendStop(call); });
        return awaitAnswer(call, progress);
    } catch (const BadMessage&) {
        throw Error(ErrorKind::decoderStopped);
    }
}

MessageReader RemoteObject::awaitAnswer(std::uint32_t call, const Progress& progress) {
    for (;;) {
        std::optional<Message> message = m_channel.receive();
        if (!message)
            throw Error(ErrorKind::decoderStopped);
        MessageReader reader(std::move(*message));
        if (reader.get<std::uint32_t>() != call)
            throw BadMessage();
        const auto answer = reader.getEnum(Answer::count);
        if (answer == Answer::progress) {
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
