#pragma once

#include "Media/Process/Wire/Channel.h"

#include <cstdint>
#include <functional>
#include <mutex>
#include <stop_token>

namespace media::process {

/// The program’s end of an object that lives in a helper. Calls wait for the answer. One thread at
/// a time, but for the stop token.
class RemoteObject {
public:
    /// Reads what each answer begins with, whether the call succeeded or not.
    using Preamble = std::function<void(MessageReader&)>;
    /// Called for each step that a call in progress reports.
    using Progress = std::function<void(MessageReader&)>;

    explicit RemoteObject(Descriptor socket, Preamble preamble = {});

    /// Calls an operation (an enumeration that both sides know) and returns its answer. Throws what
    /// the operation threw: Error, Cancelled, std::bad_alloc. Throws an Error (decoderStopped) if
    /// the helper is gone or cannot be understood.
    template<typename Operation>
    MessageReader call(Operation operation, MessageWriter arguments, const std::stop_token& stop,
                       const Progress& progress = {}) {
        return callNumbered(static_cast<std::int32_t>(operation), std::move(arguments), stop,
                            progress);
    }

private:
    MessageReader callNumbered(std::int32_t operation, MessageWriter arguments,
                               const std::stop_token& stop, const Progress& progress);
    MessageReader awaitAnswer(std::uint32_t call, const Progress& progress);
    void sendStop(std::uint32_t call);

    Channel m_channel;
    Preamble m_preamble;
    std::uint32_t m_lastCall = 0;
};

} // namespace media::process
