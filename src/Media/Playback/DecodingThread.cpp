#include "Media/Playback/DecodingThread.h"

#include "Media/Error.h"
#include "Media/Playback/PlayableAsset.h"
#include "Media/Threading/ProcessorDemand.h"

#include <utility>

namespace media::playback {

namespace {

/// While playing, decoding goes on rather than begins anew at a key frame so close ahead: a decoder
/// with two threads gives out its first picture after the time of six or so, measured at 2160p.
constexpr Ticks kShortestLeap{Ticks::kPerSecond / 2};

using Waiter = SharedPlayback::Waiter;
using Outcome = FrameSource::Outcome;

SteadyTime now() {
    return std::chrono::steady_clock::now();
}

} // namespace

DecodingThread::DecodingThread(SharedPlayback& shared)
    : m_shared(shared), m_budget([&shared] { shared.wake(Waiter::decoding); }) {}

void DecodingThread::run(const std::stop_token& stop) {
    while (!stop.stop_requested()) {
        const DecoderStatus decoder = status();
        const DecodeWork work = m_shared.lock()->nextDecodeWork(decoder, now());
        if (work.kind == DecodeWork::Kind::wait) {
            m_shared.wait(Waiter::decoding, stop, work.until);
            continue;
        }
        perform(work);
        account();
    }
}

DecoderStatus DecodingThread::status() {
    DecoderStatus status;
    status.item = m_item.get();
    status.isOverBudget = m_budget.isExceeded();
    status.mustRest = ProcessorDemand::isHigh();
    if (!m_source)
        return status;
    status.canDecode = true;
    status.hasWaitingFrames = m_source->hasPassed();
    status.position = m_source->position();
    status.decodedCount = std::exchange(m_decodedCount, 0);
    return status;
}

void DecodingThread::perform(const DecodeWork& work) {
    using Kind = DecodeWork::Kind;
    try {
        switch (work.kind) {
        case Kind::wait:
            return;
        case Kind::open:
            return open(work);
        case Kind::seek:
        case Kind::step:
            return seek(work);
        case Kind::seekNear:
            return seekNear(work);
        case Kind::queue:
            return queue(work, *work.frame);
        case Kind::decodeAhead:
            return decodeAhead(work);
        case Kind::redraw:
        case Kind::positionDecoder:
        case Kind::readAhead:
            return advance(work);
        case Kind::keepWaitingFrame:
            m_source->keepOnePassed(work.previewSize);
            return;
        case Kind::releaseDecoder:
            m_source->releaseDecoder();
            m_budget.release();
            m_shared.lock()->decoderReleased();
            return;
        }
    } catch (const Cancelled&) {
        // Something newer is wanted, or the player is being closed.
    } catch (const std::exception&) {
        fail(work);
    }
}

/// What the decoder has done and holds is put down, for all players’ budget too.
void DecodingThread::account() {
    const std::uint64_t count = m_source ? m_source->takeDecodedCount() : 0;
    if (count == 0)
        return;
    m_decodedCount += count;
    m_budget.use(m_source->decoderBytes());
}

void DecodingThread::open(const DecodeWork& work) {
    m_source.reset();
    m_budget.release();
    m_pace = {};
    m_item = work.item;
    if (!m_item)
        return;
    m_source = PlayableAsset::of(m_item->asset())
                   ->makeFrameSource([this, item = m_item.get()](CachedFrame frame) {
                       m_shared.cache().insert(item, std::move(frame));
                   });
}

/// An item that could not be opened for lack of memory or threads is opened when it is looked at
/// again.
bool DecodingThread::hasSource(const DecodeWork& work) {
    if (!m_source)
        open(work);
    return m_source != nullptr;
}

/// What can't be decoded keeps the last picture on show.
void DecodingThread::fail(const DecodeWork& work) {
    m_shared.lock()->frameFailed(work, now());
}

void DecodingThread::seek(const DecodeWork& work) {
    if (!hasSource(work))
        return fail(work);
    const FrameSource::Goal goal{.ticks = work.target.earliest,
                                 .completeFrom = work.completeFrom,
                                 .isUrgent = true,
                                 .isBackward = work.isBackward};
    setOut(work);
    switch (m_source->advance(goal, work.previewSize, work.stop)) {
    case Outcome::onTheWay:
        return showProgress(work);
    case Outcome::nothing:
        return fail(work);
    case Outcome::arrived:
    case Outcome::late:
        m_shared.lock()->frameArrived(work, m_source->arrivedEnd());
        return;
    }
}

/// Where a seek begins, the state is told how long it may take.
void DecodingThread::setOut(const DecodeWork& work) {
    if (work.kind != DecodeWork::Kind::seek || work.generation == m_paceOf)
        return;
    m_paceOf = work.generation;
    m_pace.begin(m_source->wayTo(work.target.earliest), now());
    m_shared.lock()->expectArrival(work, m_pace.arrival());
}

/// Where the way to a target takes long, what lies on it is shown from time to time.
void DecodingThread::showProgress(const DecodeWork& work) {
    if (work.kind != DecodeWork::Kind::seek)
        return;
    m_pace.pass(m_source->passingTicks(), now());
    m_shared.lock()->expectArrival(work, m_pace.arrival());
    if (m_shared.lock()->wantsSubstitute(now())) {
        auto frame = m_source->passing(work.previewSize);
        m_shared.lock()->substituteArrived(work, std::move(frame), now());
    }
}

void DecodingThread::seekNear(const DecodeWork& work) {
    if (!hasSource(work))
        return fail(work);
    const auto ticks = m_source->advanceNear(work.target.earliest, work.target.latest,
                                             work.previewSize, work.stop);
    if (!ticks)
        return fail(work);
    m_shared.lock()->nearFrameArrived(work, *ticks);
}

void DecodingThread::decodeAhead(const DecodeWork& work) {
    const Ticks ticks = work.target.earliest;
    const FrameSource::Goal goal{
        .ticks = ticks, .completeFrom = ticks, .shortestLeap = kShortestLeap};
    switch (m_source->advance(goal, work.previewSize, work.stop)) {
    case Outcome::onTheWay:
        return showLateFrame(work);
    case Outcome::nothing:
        return fail(work);
    case Outcome::arrived:
    case Outcome::late:
        if (const auto frame = m_shared.cache().find(ticks, work.imageSize))
            queue(work, *frame);
        return;
    }
}

/// Where decoding is behind, a frame that it passes is better than none.
void DecodingThread::showLateFrame(const DecodeWork& work) {
    if (!m_shared.lock()->wantsLateFrame(work, m_source->passingTicks(), now()))
        return;
    const auto frame = m_source->passing(work.previewSize);
    RenderedFrame rendered = render(*frame);
    m_shared.lock()->lateFrameArrived(work, std::move(rendered), now());
}

void DecodingThread::queue(const DecodeWork& work, const CachedFrame& frame) {
    RenderedFrame rendered = render(frame);
    m_shared.lock()->nextFrameArrived(work, std::move(rendered), now());
}

void DecodingThread::advance(const DecodeWork& work) {
    // What lies before it is at hand already, and need not be rendered again.
    const bool isPositioning = work.kind == DecodeWork::Kind::positionDecoder;
    const Ticks ticks = isPositioning ? work.target.earliest - Ticks(1) : work.target.earliest;
    FrameSource::Goal goal{.ticks = ticks, .completeFrom = ticks};
    if (isPositioning)
        goal.skipRenderingUntil = work.target.earliest;
    if (work.endBehind)
        goal = m_source->goalNearEnd({ticks, *work.endBehind});
    switch (m_source->advance(goal, work.previewSize, work.stop)) {
    case Outcome::onTheWay:
        return;
    case Outcome::nothing:
        return fail(work);
    case Outcome::arrived:
    case Outcome::late:
        m_shared.lock()->frameArrived(work, m_source->arrivedEnd());
        return;
    }
}

} // namespace media::playback
