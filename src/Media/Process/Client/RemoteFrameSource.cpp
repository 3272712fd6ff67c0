#include "Media/Process/Client/RemoteFrameSource.h"

#include "Media/Error.h"
#include "Media/Process/Wire/MediaMessages.h"
#include "Media/Process/Wire/Protocol.h"

#include <memory>

namespace media::process {

using playback::CachedFrame;
using playback::PreviewSize;

namespace {

/// Frames that may come for one call: more than what a source holds back at full size.
constexpr std::uint32_t kMostFrames = 4096;

std::optional<Ticks> getOptionalTicks(MessageReader& reader) {
    const bool isThere = reader.getBool();
    const Ticks ticks = getTicks(reader);
    return isThere ? std::optional(ticks) : std::nullopt;
}

constexpr auto kNothing = [](MessageReader&) {};

} // namespace

/// Calls an operation and reads its answer; what the frames that came with it are worth is kept
/// even where it was stopped or failed.
template<typename Read>
auto RemoteFrameSource::call(FrameOperation operation, MessageWriter arguments,
                             const std::stop_token& stop, Read read) {
    try {
        MessageReader answer = m_remote.call(operation, std::move(arguments), stop);
        return read(answer);
    } catch (const BadMessage&) {
        m_remote.giveUp();
    }
}

/// The same with an operation that cannot be stopped.
template<typename Read>
auto RemoteFrameSource::callShort(FrameOperation operation, MessageWriter arguments, Read read) {
    try {
        MessageReader answer = m_remote.callShort(operation, std::move(arguments));
        return read(answer);
    } catch (const BadMessage&) {
        m_remote.giveUp();
    }
}

RemoteFrameSource::RemoteFrameSource(Descriptor socket, Keep keep, RemoteObject::Abandon abandon)
    : m_keep(std::move(keep)),
      m_remote(
          std::move(socket), [this](MessageReader& reader) { readPreamble(reader); },
          std::move(abandon)) {
    const bool isThere =
        callShort(FrameOperation::open, {}, [](MessageReader& answer) { return answer.getBool(); });
    if (!isThere)
        throw Error(ErrorKind::noVideoTrack);
}

void RemoteFrameSource::readPreamble(MessageReader& reader) {
    if (reader.getBool()) {
        m_state.arrivedEnd = getTicks(reader);
        m_state.position = getTicks(reader);
        m_state.passingTicks = getTicks(reader);
        m_state.hasPassed = reader.getBool();
        m_state.decodedCount += reader.get<std::uint64_t>();
        m_state.decoderBytes = reader.get<std::uint64_t>();
    }
    m_waitingFrames = reader.getWithin<std::uint32_t>(0, kMostFrames);
    m_frame.reset();
    if (m_waitingFrames == 0)
        return;
    --m_waitingFrames;
    m_frame = getFrame(reader, m_area);
}

/// Keeps what came with the last answer, and asks for what is left.
void RemoteFrameSource::keepFrames() {
    while (m_frame) {
        m_keep(*std::exchange(m_frame, std::nullopt));
        const std::uint32_t left = m_waitingFrames;
        if (left == 0)
            return;
        callShort(FrameOperation::takeFrame, {}, kNothing);
        // Of one that always has another there would be no end.
        if (m_waitingFrames >= left)
            m_remote.giveUp();
    }
}

playback::DecodingPace::Way RemoteFrameSource::wayTo(Ticks ticks) {
    MessageWriter arguments;
    put(arguments, ticks);
    return callShort(FrameOperation::wayTo, std::move(arguments), [ticks](MessageReader& answer) {
        playback::DecodingPace::Way way{.target = ticks};
        way.start = getOptionalTicks(answer);
        way.isContinued = answer.getBool();
        return way;
    });
}

RemoteFrameSource::Goal RemoteFrameSource::goalNearEnd(TickRange range) {
    MessageWriter arguments;
    put(arguments, range);
    return callShort(FrameOperation::goalNearEnd, std::move(arguments), getGoal);
}

RemoteFrameSource::Outcome RemoteFrameSource::advance(const Goal& goal, PreviewSize size,
                                                      const std::stop_token& stop) {
    MessageWriter arguments;
    put(arguments, goal);
    put(arguments, size);
    const Outcome outcome =
        call(FrameOperation::advance, std::move(arguments), stop, [](MessageReader& answer) {
            return static_cast<Outcome>(
                answer.getWithin<std::int32_t>(0, static_cast<std::int32_t>(Outcome::nothing)));
        });
    keepFrames();
    return outcome;
}

std::optional<Ticks> RemoteFrameSource::advanceNear(Ticks earliest, Ticks latest, PreviewSize size,
                                                    const std::stop_token& stop) {
    MessageWriter arguments;
    put(arguments, earliest);
    put(arguments, latest);
    put(arguments, size);
    const std::optional<Ticks> ticks =
        call(FrameOperation::advanceNear, std::move(arguments), stop, getOptionalTicks);
    keepFrames();
    return ticks;
}

std::shared_ptr<const CachedFrame> RemoteFrameSource::passing(PreviewSize size) {
    MessageWriter arguments;
    put(arguments, size);
    const bool isThere = callShort(FrameOperation::passing, std::move(arguments),
                                   [](MessageReader& answer) { return answer.getBool(); });
    if (!isThere || !m_frame)
        return nullptr;
    return std::make_shared<const CachedFrame>(*std::exchange(m_frame, std::nullopt));
}

void RemoteFrameSource::keepOnePassed(PreviewSize size) {
    MessageWriter arguments;
    put(arguments, size);
    callShort(FrameOperation::keepOnePassed, std::move(arguments), kNothing);
    keepFrames();
}

void RemoteFrameSource::releaseDecoder() {
    callShort(FrameOperation::releaseDecoder, {}, kNothing);
}

} // namespace media::process
