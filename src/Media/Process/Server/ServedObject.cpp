#include "Media/Process/Server/ServedObject.h"

#include "Media/Error.h"
#include "Media/MemoryReturn.h"
#include "Media/Process/Wire/MediaMessages.h"
#include "Media/Process/Wire/Protocol.h"

#include <chrono>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <new>
#include <optional>
#include <system_error>
#include <thread>
#include <utility>

namespace media::process {

namespace {

/// A call that has been received.
struct Call {
    std::uint32_t number = 0;
    std::int32_t operation = 0;
    MessageReader arguments;
    std::stop_source stop;
};

/// Hands calls from the thread that receives them to the one that performs them.
class CallQueue {
public:
    void put(Call call) {
        const std::scoped_lock lock(m_mutex);
        m_latest = call.number;
        m_stop = call.stop;
        m_next.emplace(std::move(call));
        m_isThere.notify_one();
    }

    void stop(std::uint32_t number) {
        std::unique_lock lock(m_mutex);
        if (number != m_latest)
            return;
        std::stop_source source = m_stop;
        lock.unlock();
        source.request_stop();
    }

    void close() {
        std::unique_lock lock(m_mutex);
        m_isClosed = true;
        m_isThere.notify_one();
        std::stop_source source = m_stop;
        lock.unlock();
        source.request_stop();
    }

    /// The next call; none once it is closed. Calls `rest` once if there is none for a while.
    template<typename Rest>
    std::optional<Call> take(Rest rest) {
        constexpr std::chrono::seconds kWhile{1};
        const auto isDue = [this] { return m_next || m_isClosed; };
        std::unique_lock lock(m_mutex);
        if (!m_isThere.wait_for(lock, kWhile, isDue)) {
            lock.unlock();
            rest();
            lock.lock();
            m_isThere.wait(lock, isDue);
        }
        if (m_isClosed)
            return std::nullopt;
        return std::exchange(m_next, std::nullopt);
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_isThere;
    std::optional<Call> m_next;
    /// Of the call that was put in last.
    std::uint32_t m_latest = 0;
    std::stop_source m_stop;
    bool m_isClosed = false;
};

/// What a call came to.
struct Result {
    Answer answer = Answer::success;
    std::optional<Failure> failure;
};

/// Calls `work` and makes an answer of whatever it throws.
template<typename Work>
Result resultOf(Work work) {
    try {
        work();
        return {};
    } catch (const Cancelled&) {
        return {Answer::cancelled, std::nullopt};
    } catch (const Error& error) {
        return {Answer::failure, error.failure()};
    } catch (const std::bad_alloc&) {
        return {Answer::outOfMemory, std::nullopt};
    } catch (const std::system_error& error) {
        if (error.code() == std::errc::resource_unavailable_try_again)
            return {Answer::failure, Failure{ErrorKind::noMoreThreads}};
        throw;
    }
}

void perform(Channel& channel, Service& service, Call& call) {
    MessageWriter body;
    const Service::Report report = [&](MessageWriter progress) {
        MessageWriter writer;
        writer.put(call.number);
        writer.put(Answer::progress);
        writer.append(std::move(progress));
        static_cast<void>(channel.send(writer.message()));
    };
    const Result result = resultOf([&] {
        service.perform(call.operation, call.arguments, body, report, call.stop.get_token());
    });
    MessageWriter writer;
    writer.put(call.number);
    writer.put(result.answer);
    if (result.failure)
        put(writer, *result.failure);
    service.writePreamble(writer);
    if (result.answer == Answer::success)
        writer.append(std::move(body));
    // A program that was stopped for a while finds the connection full of reports, and then waits
    // for this.
    static_cast<void>(channel.sendWaiting(writer.message()));
}

void receiveCalls(Channel& channel, CallQueue& queue) {
    while (auto message = channel.receive()) {
        MessageReader reader(std::move(*message));
        const auto number = reader.get<std::uint32_t>();
        const auto operation = reader.get<std::int32_t>();
        if (operation == kStopOperation)
            queue.stop(number);
        else
            queue.put({number, operation, std::move(reader), {}});
    }
}

} // namespace

void serve(Descriptor socket, std::unique_ptr<Service> service) noexcept {
    // What is thrown here has no other to tell it to: the helper ends, and the program says so.
    Channel channel(std::move(socket));
    CallQueue queue;
    std::jthread worker([&] {
        // What large pictures leave free would be kept for hours.
        while (auto call = queue.take(&returnFreedMemory))
            perform(channel, *service, *call);
        service.reset();
    });
    receiveCalls(channel, queue);
    queue.close();
}

} // namespace media::process
