#pragma once

#include "Media/Process/Wire/Channel.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <stop_token>
#include <utility>

namespace media::process {

/// The program’s end of an object that lives in a helper. Calls wait for the answer, but not for
/// ever: a helper that hangs, or cannot be understood, is given up. One thread at a time, but for
/// the stop token.
class RemoteObject {
public:
    /// Reads what each answer begins with, whether the call succeeded or not.
    using Preamble = std::function<void(MessageReader&)>;
    /// Called for each step that a call in progress reports.
    using Progress = std::function<void(MessageReader&)>;

    /// Ends a helper that is given up.
    using Abandon = std::function<void()>;

    /// How long a call waits before the helper is taken to hang.
    struct Patience {
        /// From its stop request on. A disk may have to start turning first.
        std::chrono::milliseconds afterStop{20'000};
        /// In all, if it cannot be stopped.
        std::chrono::milliseconds ofShortCalls{60'000};
    };

    explicit RemoteObject(Descriptor socket, Preamble preamble = {}, Abandon abandon = {});
    RemoteObject(Descriptor socket, Preamble preamble, Abandon abandon, Patience patience);

    /// Calls an operation (an enumeration that both sides know) and returns its answer. Throws what
    /// the operation threw: Error, Cancelled, std::bad_alloc. Throws an Error (decoderStopped) if
    /// the helper is gone or is given up.
    template<typename Operation>
    MessageReader call(Operation operation, MessageWriter arguments, const std::stop_token& stop,
                       const Progress& progress = {}) {
        return callNumbered(static_cast<std::int32_t>(operation), std::move(arguments),
                            Waiting(stop, m_patience.afterStop), progress);
    }

    /// The same with an operation that takes little time and cannot be stopped.
    template<typename Operation>
    MessageReader callShort(Operation operation, MessageWriter arguments) {
        return callNumbered(static_cast<std::int32_t>(operation), std::move(arguments),
                            Waiting(m_patience.ofShortCalls), {});
    }

    /// Has the helper ended and throws the Error (decoderStopped): for answers that are not
    /// understood.
    [[noreturn]] void giveUp() const;

private:
    /// How long a call has waited, and may.
    class Waiting {
    public:
        explicit Waiting(std::chrono::milliseconds most)
            : m_most(most), m_end(std::chrono::steady_clock::now() + most) {}

        Waiting(std::stop_token stop, std::chrono::milliseconds mostAfterStop)
            : m_stop(std::move(stop)), m_most(mostAfterStop) {}

        [[nodiscard]] const std::stop_token& stop() const { return m_stop; }

        [[nodiscard]] bool isOver();

    private:
        std::stop_token m_stop;
        std::chrono::milliseconds m_most;
        std::optional<std::chrono::steady_clock::time_point> m_end;
    };

    MessageReader callNumbered(std::int32_t operation, MessageWriter arguments, Waiting waiting,
                               const Progress& progress);
    bool sendCall(std::uint32_t call, std::int32_t operation, MessageWriter arguments);
    MessageReader awaitAnswer(std::uint32_t call, Waiting& waiting, const Progress& progress);
    Message awaitMessage(Waiting& waiting);
    void sendStop(std::uint32_t call);

    Channel m_channel;
    Preamble m_preamble;
    Abandon m_abandon;
    Patience m_patience;
    std::uint32_t m_lastCall = 0;
};

} // namespace media::process
