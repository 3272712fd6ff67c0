#include "Media/Process/Server/FrameService.h"

#include "Media/Process/Wire/MediaMessages.h"
#include "Media/Process/Wire/Protocol.h"

#include <optional>
#include <utility>

namespace media::process {

using playback::CachedFrame;
using playback::FrameSource;

namespace {

void putBool(MessageWriter& writer, bool value) {
    writer.put(static_cast<std::uint8_t>(value ? 1 : 0));
}

void putOptional(MessageWriter& writer, std::optional<Ticks> ticks) {
    putBool(writer, ticks.has_value());
    put(writer, ticks.value_or(Ticks()));
}

} // namespace

void FrameService::open(MessageWriter& answer) {
    const auto asset = *m_asset.lock();
    if (!asset)
        throw BadMessage();
    m_source =
        asset->makeFrameSource([this](CachedFrame frame) { m_frames.push_back(std::move(frame)); });
    putBool(answer, m_source != nullptr);
}

FrameSource& FrameService::source() {
    if (!m_source)
        throw BadMessage();
    return *m_source;
}

void FrameService::perform(std::int32_t operation, MessageReader& arguments, MessageWriter& answer,
                           const Report& /*report*/, const std::stop_token& stop) {
    switch (static_cast<FrameOperation>(operation)) {
    case FrameOperation::open:
        return open(answer);
    case FrameOperation::wayTo: {
        const playback::DecodingPace::Way way = source().wayTo(getTicks(arguments));
        putOptional(answer, way.start);
        return putBool(answer, way.isContinued);
    }
    case FrameOperation::goalNearEnd:
        return put(answer, source().goalNearEnd(getTickRange(arguments)));
    case FrameOperation::advance: {
        const FrameSource::Goal goal = getGoal(arguments);
        const FrameSource::Outcome outcome =
            source().advance(goal, getPreviewSize(arguments), stop);
        m_hasPassing = m_hasPassing || outcome == FrameSource::Outcome::onTheWay;
        return answer.put(outcome);
    }
    case FrameOperation::advanceNear: {
        const Ticks earliest = getTicks(arguments);
        const Ticks latest = getTicks(arguments);
        return putOptional(answer,
                           source().advanceNear(earliest, latest, getPreviewSize(arguments), stop));
    }
    case FrameOperation::passing: {
        const auto frame = source().passing(getPreviewSize(arguments));
        putBool(answer, frame != nullptr);
        if (frame)
            m_frames.push_back(*frame);
        return;
    }
    case FrameOperation::keepOnePassed:
        return source().keepOnePassed(getPreviewSize(arguments));
    case FrameOperation::takeFrame:
        return;
    case FrameOperation::releaseDecoder:
        m_hasPassing = false;
        return source().releaseDecoder();
    case FrameOperation::count:
        break;
    }
    throw BadMessage();
}

void FrameService::writePreamble(MessageWriter& answer) {
    putBool(answer, m_source != nullptr);
    if (m_source) {
        put(answer, m_source->arrivedEnd());
        put(answer, m_source->position());
        put(answer, m_hasPassing ? m_source->passingTicks() : Ticks());
        putBool(answer, m_source->hasPassed());
        answer.put(m_source->takeDecodedCount());
        answer.put(std::uint64_t{m_source->decoderBytes()});
    }
    answer.put(static_cast<std::uint32_t>(m_frames.size()));
    if (m_frames.empty())
        return;
    put(answer, m_area, m_frames.front());
    m_frames.pop_front();
}

} // namespace media::process
