// What the decoding thread is to do next, and what comes of it.
#include "Media/Playback/PlaybackState.h"

#include <algorithm>

namespace media::playback {

namespace {

using std::chrono::milliseconds;

/// Where decoding does not keep up, frames are shown late by as much as this; further behind, those
/// up to the clock are left out. Sound that comes sooner by more than an eighth of a second is
/// noticed (ITU-R BT.1359).
constexpr Ticks kMaxLateness{Ticks::kPerSecond / 10};
/// So far behind, they are left out although the frames come less and less late.
constexpr Ticks kHopelessLateness{Ticks::kPerSecond};
/// On the way to the clock, frames that are passed are shown no closer together than this: what is
/// shown comes evenly, and rendering does not hold decoding up.
constexpr milliseconds kLateFrameInterval{40};
/// Frames that are kept on the way to a target: when it is approached backward more of them will
/// be asked for.
constexpr Ticks kMargin{Ticks::kPerSecond / 4};
constexpr Ticks kBackwardMargin{2 * Ticks::kPerSecond};
/// No more of the cache is taken for them.
constexpr double kMarginOfCache = 0.25;
/// Where many steps wait, as behind a held key, each way from a key frame has to do for as many of
/// them as there is room for: what is not kept has to be decoded again.
constexpr double kMarginOfManySteps = 0.95;
/// After a jump by itself nothing is read ahead for so long: more may be about to happen.
constexpr milliseconds kRest{150};
/// A movement is over where nothing moves for so long.
constexpr milliseconds kLongestPause{700};
/// Between two looks whether the processor is free again.
constexpr milliseconds kRestPause{200};
/// Nothing to wait for but a wake.
constexpr std::chrono::hours kIdle{1};

} // namespace

bool PlaybackState::isCurrent(const DecodeWork& work) const {
    return work.generation == m_generation;
}

DecodeWork PlaybackState::nextDecodeWork(const DecoderStatus& decoder, SteadyTime now) {
    m_statistics.decoded += decoder.decodedCount;
    DecodeWork work;
    work.generation = m_generation;
    work.stop = m_decoding.get_token();
    work.item = m_item;
    work.previewSize = m_previewSize;
    work.imageSize = imageSize();
    if (m_item.get() != decoder.item) {
        work.kind = DecodeWork::Kind::open;
        return work;
    }
    const bool isChosen = m_seek ? chooseSeek(work, decoder)
                                 : chooseStep(work, decoder) || chooseRedraw(work) ||
                                       choosePlaying(work, decoder, now);
    if (!isChosen && !chooseIdle(work, decoder, now)) {
        work.kind = DecodeWork::Kind::wait;
        work.until = nextDecodeLook(decoder, now);
    }
    if (work.kind != DecodeWork::Kind::wait)
        m_isReadingAhead = work.kind == DecodeWork::Kind::readAhead;
    return work;
}

bool PlaybackState::chooseSeek(DecodeWork& work, const DecoderStatus& decoder) {
    if (decoder.canDecode && m_seek->find(m_cache, work.imageSize)) {
        // It may have come there by the way.
        m_deferred.wakes.presenting = true;
        return false;
    }
    m_seek->setNeedsDecoding();
    work.target = m_seek->target();
    work.kind = work.target.isExact() ? DecodeWork::Kind::seek : DecodeWork::Kind::seekNear;
    work.completeFrom = completeFrom(work.target.earliest);
    work.isBackward = m_direction < 0;
    return true;
}

bool PlaybackState::chooseStep(DecodeWork& work, const DecoderStatus& decoder) {
    const std::optional<Ticks> ticks = m_steps.nextTicks();
    if (!ticks)
        return false;
    if (m_cache.find(*ticks, work.imageSize)) {
        m_deferred.wakes.presenting = true;
        return false;
    }
    // What is read ahead has come near already, and keeps all frames that it passes.
    if (m_isReadingAhead && m_direction < 0 && m_readAhead.leadsTo(*ticks, decoder.position))
        return chooseReadAhead(work);
    work.kind = DecodeWork::Kind::step;
    work.target = SeekTarget::exactly(*ticks);
    work.completeFrom = completeFrom(*ticks);
    work.isBackward = m_direction < 0;
    return true;
}

/// Frames from there on are kept on the way to `target`.
Ticks PlaybackState::completeFrom(Ticks target) const {
    const bool hasManySteps = m_direction < 0 && m_steps.areMany();
    const double part = hasManySteps ? kMarginOfManySteps : kMarginOfCache;
    const double room = m_cache.capacityFrames(imageSize()) * m_frameTicks * part;
    Ticks margin(static_cast<std::int64_t>(std::min(room, 1e9)));
    if (!hasManySteps)
        margin = std::min(margin, m_direction < 0 ? kBackwardMargin : kMargin);
    return target - std::min(margin, std::max(target, Ticks(0)));
}

bool PlaybackState::chooseRedraw(DecodeWork& work) {
    const bool isReplacedSoon = isRunningWanted() && !m_queue.hasEnded();
    const Ticks ticks = m_shown.time.ticks();
    if (m_immediate || isShownInSize() || isReplacedSoon || m_notRedrawn == ticks)
        return false;
    if (m_cache.find(ticks, work.imageSize)) {
        m_deferred.wakes.presenting = true;
        return false;
    }
    work.kind = DecodeWork::Kind::redraw;
    work.target = SeekTarget::exactly(ticks);
    return true;
}

bool PlaybackState::choosePlaying(DecodeWork& work, const DecoderStatus& decoder, SteadyTime now) {
    if (!decoder.canDecode || !m_isPictureReady || m_immediate || m_queue.hasEnded())
        return false;
    const Ticks clock = time(now).ticks();
    if (!isRunningWanted()) {
        // Where playing has stopped, the frame at that time is to be shown even if decoding was
        // behind.
        const bool isClockFrameMissing =
            m_queue.isEmpty() && m_steps.isEmpty() && m_shown.range.end <= clock;
        if (!isClockFrameMissing)
            return false;
        m_queue.skipTo(clock);
    } else if (!m_queue.hasRoom()) {
        // Meanwhile decoding comes to where the frames at hand end.
        const Ticks missing = m_cache.coveredUntil(m_queue.next(), work.imageSize);
        work.kind = DecodeWork::Kind::positionDecoder;
        work.target = SeekTarget::exactly(missing);
        return missing != Ticks::forever() && decoder.position != missing &&
               m_unreachable != missing;
    }
    skipLateFrames(clock);
    work.frame = m_cache.find(m_queue.next(), work.imageSize);
    work.target = SeekTarget::exactly(m_queue.next());
    work.kind = work.frame ? DecodeWork::Kind::queue : DecodeWork::Kind::decodeAhead;
    return true;
}

/// Leaves out frames that are to follow while playing, but whose time is over. Those in the cache
/// cost nothing. Decoding goes on to the frame at the clock where it is far behind: on the way the
/// pictures that no other picture needs are not decoded, nor are whole groups once the clock has
/// come to the key frame of the next. Where the frames come less late each time nothing is left
/// out: a decoder that was moved takes a while before it gives out its first.
void PlaybackState::skipLateFrames(Ticks clock) {
    const Ticks first = m_queue.next();
    while (const auto frame = m_cache.find(m_queue.next(), imageSize())) {
        if (frame->range.end > clock)
            break;
        m_queue.skipTo(frame->range.end);
    }
    const Ticks allowed = m_isFallingBehind ? kMaxLateness : kHopelessLateness;
    if (m_queue.next() + allowed < clock) {
        m_queue.skipTo(clock);
        m_isFallingBehind = false;
        m_lateness.reset();
    }
    if (m_frameTicks > 0)
        m_statistics.dropped +=
            static_cast<std::uint64_t>(distance(first, m_queue.next()) / m_frameTicks);
}

bool PlaybackState::chooseIdle(DecodeWork& work, const DecoderStatus& decoder, SteadyTime now) {
    if (!decoder.canDecode)
        return false;
    if (decoder.hasWaitingFrames && !isRunningWanted()) {
        work.kind = DecodeWork::Kind::keepWaitingFrame;
        return true;
    }
    const bool isMoved = isMoving(now);
    if (!isMoved && m_direction < 0)
        m_cache.setFocus(m_shown.time.ticks(), Heading::backward);
    m_readAhead.update(m_readAheadVersion, {.focus = m_shown.time.ticks(),
                                            .direction = m_direction,
                                            .isMoving = isMoved,
                                            .last = m_duration.ticks(),
                                            .frameTicks = m_frameTicks,
                                            .size = work.imageSize});
    if (isReadAheadDue(decoder, now) && m_readAhead.hasRoom(decoder.position) &&
        chooseReadAhead(work))
        return true;
    work.kind = DecodeWork::Kind::releaseDecoder;
    return decoder.isOverBudget && m_readAhead.isDone() && !isRunningWanted();
}

bool PlaybackState::chooseReadAhead(DecodeWork& work) {
    const std::optional<Ticks> ticks = m_readAhead.next();
    if (!ticks)
        return false;
    work.kind = DecodeWork::Kind::readAhead;
    work.target = SeekTarget::exactly(*ticks);
    work.endBehind = m_readAhead.endBehind();
    return true;
}

bool PlaybackState::isReadAheadDue(const DecoderStatus& decoder, SteadyTime now) const {
    if (m_readAhead.isDone() || isRunningWanted() || !m_shown.image || decoder.mustRest)
        return false;
    return m_direction != 0 || now - m_lastJump >= kRest;
}

bool PlaybackState::isMoving(SteadyTime now) const {
    return m_direction != 0 && (!m_steps.isEmpty() || now - m_lastJump < kLongestPause);
}

SteadyTime PlaybackState::nextDecodeLook(const DecoderStatus& decoder, SteadyTime now) const {
    if (isMoving(now) && m_steps.isEmpty())
        return m_lastJump + kLongestPause;
    if (m_readAhead.isDone())
        return now + kIdle;
    const SteadyTime rested = m_lastJump + kRest;
    if (now < rested)
        return rested;
    return decoder.mustRest ? now + kRestPause : now + kIdle;
}

void PlaybackState::frameArrived(const DecodeWork& work, Ticks end) {
    switch (work.kind) {
    case DecodeWork::Kind::redraw:
        // A picture that comes out in another size than it should is not drawn again and again.
        if (isCurrent(work) && !m_cache.find(work.target.earliest, work.imageSize))
            m_notRedrawn = work.target.earliest;
        break;
    case DecodeWork::Kind::readAhead:
        if (m_item == work.item)
            m_readAhead.arrive(end);
        return;
    case DecodeWork::Kind::step:
        if (m_item == work.item)
            m_readAhead.chooseAnew();
        break;
    case DecodeWork::Kind::positionDecoder:
        return;
    default:
        break;
    }
    m_deferred.wakes.presenting = true;
}

void PlaybackState::nearFrameArrived(const DecodeWork& work, Ticks ticks) {
    if (!isCurrent(work) || !m_seek)
        return;
    m_seek->settleOn(ticks);
    m_deferred.wakes.presenting = true;
}

void PlaybackState::nextFrameArrived(const DecodeWork& work, RenderedFrame frame, SteadyTime now) {
    if (!isCurrent(work) || !frame.range.holds(work.target.earliest) || m_immediate ||
        !m_steps.isEmpty())
        return;
    frame.isFromCache = work.kind == DecodeWork::Kind::queue;
    const Ticks clock = time(now).ticks();
    const Ticks lateness = clock - frame.range.begin;
    m_isFallingBehind = m_lateness && lateness >= *m_lateness;
    m_lateness = lateness;
    m_lastFrameReady = now;
    m_queue.push(std::move(frame));
    m_cache.setFocus(clock);
    m_deferred.wakes.presenting = true;
}

bool PlaybackState::wantsLateFrame(const DecodeWork& work, Ticks frame, SteadyTime now) const {
    return isCurrent(work) && isRunningWanted() && m_queue.isEmpty() &&
           frame >= m_shown.range.end && now - m_lastFrameReady >= kLateFrameInterval;
}

void PlaybackState::lateFrameArrived(const DecodeWork& work, RenderedFrame frame, SteadyTime now) {
    if (!isCurrent(work) || m_immediate || !m_queue.isEmpty() || !m_steps.isEmpty() ||
        frame.range.end <= m_shown.range.end)
        return;
    m_lastFrameReady = now;
    m_queue.pushLate(std::move(frame));
    m_deferred.wakes.presenting = true;
}

void PlaybackState::frameFailed(const DecodeWork& work, SteadyTime now) {
    switch (work.kind) {
    case DecodeWork::Kind::seek:
    case DecodeWork::Kind::seekNear:
        if (isCurrent(work) && m_seek)
            endJumpWithoutPicture(now);
        break;
    case DecodeWork::Kind::step:
        if (isCurrent(work))
            m_steps.giveUpRest();
        m_deferred.wakes.presenting = true;
        break;
    case DecodeWork::Kind::redraw:
        if (m_item == work.item)
            m_notRedrawn = work.target.earliest;
        break;
    case DecodeWork::Kind::queue:
    case DecodeWork::Kind::decodeAhead:
        if (isCurrent(work))
            m_queue.end();
        break;
    case DecodeWork::Kind::positionDecoder:
        m_unreachable = work.target.earliest;
        break;
    case DecodeWork::Kind::readAhead:
        if (m_item == work.item)
            m_readAhead.giveUp();
        break;
    case DecodeWork::Kind::wait:
    case DecodeWork::Kind::open:
    case DecodeWork::Kind::keepWaitingFrame:
    case DecodeWork::Kind::releaseDecoder:
        break;
    }
}

/// A seek has gone to where there is no picture: the one on show stays.
void PlaybackState::endJumpWithoutPicture(SteadyTime now) {
    m_seek.reset();
    m_queue.end();
    m_lastJump = now;
    pictureIsReady(now);
    m_immediate = ImmediateFrame{m_shown, true};
    m_deferred.wakes.presenting = true;
}

void PlaybackState::expectArrival(const DecodeWork& work, std::optional<SteadyTime> at) {
    if (isCurrent(work) && m_seek)
        m_seek->expectArrival(at);
}

bool PlaybackState::wantsSubstitute(SteadyTime now) const {
    return m_seek && m_seek->isSubstituteDue(now);
}

void PlaybackState::substituteArrived(const DecodeWork& work,
                                      std::shared_ptr<const CachedFrame> frame, SteadyTime now) {
    if (!m_seek || m_item != work.item)
        return;
    m_seek->setPassedFrame(std::move(frame), now);
    m_deferred.wakes.presenting = true;
}

} // namespace media::playback
