#include "Media/Playback/PlaybackState.h"

#include <algorithm>
#include <cmath>

namespace media::playback {

namespace {

using std::chrono::milliseconds;

/// Stands in for a duration that is not known: ten years.
constexpr Time kUnknownDuration{std::int64_t{315'360'000} * Ticks::kPerSecond, Ticks::kPerSecond};
/// How long a seek may take before something else is shown meanwhile: that is there soon enough to
/// be taken for the answer, and does not flash up where the frame itself comes little later.
constexpr milliseconds kEarliestSubstitute{50};
constexpr milliseconds kLatestSubstitute{80};
/// Seeks that follow one another faster, and not farther apart (ticks), tell a direction.
constexpr milliseconds kLongestPauseInDrag{500};
constexpr double kFarthestInDrag = 3.0 * Ticks::kPerSecond;
/// Where the picture has stood still for so long somebody may have looked at it.
constexpr milliseconds kShortestRest{150};
/// Frames per second of an item that does not say.
constexpr double kUsualFrameRate = 25;

bool isTime(Time time) {
    return time.isNumeric() || time.value != 0;
}

Time clamped(Time time, Time duration) {
    const Time start{0, Ticks::kPerSecond};
    if (time < start)
        return start;
    return time > duration ? duration : time;
}

Ticks clampedTicks(Time time, Time last) {
    return std::clamp(time.ticks(), Ticks(0), last.ticks());
}

} // namespace

PlaybackState::PlaybackState(FrameCache& cache) : m_cache(cache) {
    m_clock.hold(Time::invalid());
}

ImageSize PlaybackState::imageSize() const {
    return fittedSize(m_pictureSize, m_previewSize.width, m_previewSize.height);
}

bool PlaybackState::isShownInSize() const {
    return !m_shown.image || ImageSize{m_shown.image->width, m_shown.image->height} == imageSize();
}

Time PlaybackState::time(SteadyTime now) {
    if (!m_item)
        return Time::invalid();
    const Time time = m_clock.time(now);
    return time > m_duration ? m_duration : time;
}

/// Stops the clock at `at`; what sounds is void.
void PlaybackState::holdClock(Time at, SteadyTime now) {
    m_clock.hold(at);
    ++m_run;
    m_readySince = now;
    m_deferred.wakes.sound = true;
    m_deferred.wakes.presenting = true;
}

void PlaybackState::pictureIsReady(SteadyTime now) {
    m_isPictureReady = true;
    m_readySince = now;
    m_deferred.wakes.sound = true;
}

void PlaybackState::stopSound() {
    m_deferred.staleWork.push_back(std::exchange(m_sound, std::stop_source()));
}

void PlaybackState::stopWork() {
    m_deferred.staleWork.push_back(m_decoding);
    m_deferred.staleWork.push_back(m_sound);
}

void PlaybackState::replaceItem(std::shared_ptr<const PlayerItem> item, SteadyTime now) {
    m_deferred.oldItem = std::exchange(m_item, std::move(item));
    m_deferred.oldImage = std::exchange(m_shown, {}).image;
    m_duration = m_item ? m_item->asset()->duration() : Time{};
    if (!m_duration.isNumeric())
        m_duration = kUnknownDuration;
    const auto tracks =
        m_item ? m_item->asset()->tracks(MediaType::video) : std::vector<AssetTrack>();
    m_pictureSize = tracks.empty() ? Size{1, 1} : orientedSize(tracks.front());
    const auto rate = tracks.empty() ? 0.0 : static_cast<double>(tracks.front().nominalFrameRate);
    m_frameTicks = Ticks::kPerSecond / (rate > 0 ? rate : kUsualFrameRate);
    m_immediate.reset();
    m_seek.reset();
    m_notRedrawn.reset();
    m_readAhead.restart();
    m_cache.begin(m_item.get());
    beginGeneration(m_item ? Time{} : Time::invalid(), {}, now);
    m_direction = 0;
    m_deferred.staleWork.push_back(std::exchange(m_decoding, std::stop_source()));
}

std::optional<std::uint64_t> PlaybackState::beginSeek(Time time, Time toleranceBefore,
                                                      Time toleranceAfter, SteadyTime now) {
    if (!m_item || !isTime(time))
        return std::nullopt;
    const Time target = clamped(time, m_duration);
    const SeekTarget window{clampedTicks(target - toleranceBefore, m_duration),
                            clampedTicks(target + toleranceAfter, m_duration)};
    noteDirection(window, now);
    noteRest(now);
    beginGeneration(target, window, now);
    return m_generation;
}

void PlaybackState::noteDirection(SeekTarget target, SteadyTime now) {
    const Ticks from = m_seek ? m_seek->target().earliest : m_shown.range.begin;
    const bool isDrag = now - m_lastJump < kLongestPauseInDrag &&
                        distance(target.earliest, from) <= kFarthestInDrag;
    m_direction = !isDrag ? 0 : target.earliest < from ? -1 : 1;
}

/// The picture is about to move. Where it has rested it may be wanted again.
void PlaybackState::noteRest(SteadyTime now) {
    const bool isStill =
        m_shown.image && !m_seek && m_steps.isEmpty() && !m_immediate && !isRunningWanted();
    if (isStill && now - m_readySince >= kShortestRest)
        m_cache.addPlaceOfRest(std::max(m_shown.time.ticks(), m_shown.range.begin));
}

/// Everything that holds for the generation before is void; the threads turn to the new one. A
/// seek overtakes one that is on its way: what it was allowed to show meanwhile is due no later.
void PlaybackState::beginGeneration(Time at, SeekTarget target, SteadyTime now) {
    ++m_generation;
    ++m_readAheadVersion;
    m_seek.emplace(target, m_seek ? m_seek->substituteTimes()
                                  : PendingSeek::SubstituteTimes{now + kEarliestSubstitute,
                                                                 now + kLatestSubstitute});
    m_steps.clear();
    m_queue.dropFrames();
    m_immediate.reset();
    m_isPictureReady = false;
    m_unreachable.reset();
    m_lateness.reset();
    m_isFallingBehind = true;
    m_hasEnded = false;
    m_observers.forgetPending();
    m_cache.setFocus(target.earliest, m_direction < 0 ? Heading::backward : Heading::anywhere);
    holdClock(at, now);
    stopSound();
    m_deferred.wakes.decoding = true;
}

void PlaybackState::beginStep(int count, SteadyTime now) {
    if (count == 0 || !m_item)
        return;
    noteRest(now);
    m_hasEnded = false;
    m_steps.push(count);
    m_direction = count < 0 ? -1 : 1;
    m_deferred.wakes.presenting = true;
    m_deferred.wakes.decoding = true;
}

void PlaybackState::setPlaying(bool isPlaying, SteadyTime now) {
    if (m_isPlaying == isPlaying)
        return;
    const Time at = time(now);
    noteRest(now);
    m_isPlaying = isPlaying;
    m_hasEnded = false;
    if (!isPlaying)
        m_lastEnd = {};
    holdClock(at, now);
    stopSound();
    m_deferred.wakes.decoding = true;
}

void PlaybackState::setPreviewSize(PreviewSize size) {
    m_previewSize = size;
    m_notRedrawn.reset();
    m_deferred.wakes.presenting = true;
    m_deferred.wakes.decoding = true;
}

void PlaybackState::setSink(VideoSink* sink) {
    m_sink = sink;
    m_isRedeliveryWanted = sink != nullptr;
    m_deferred.wakes.presenting = true;
}

void PlaybackState::setPointsOfInterest(const std::vector<Time>& times) {
    std::vector<Ticks> ticks;
    for (const Time time : times) {
        if (m_item && isTime(time))
            ticks.push_back(clampedTicks(time, m_duration));
    }
    if (ticks == m_cache.pointsOfInterest())
        return;
    m_cache.setPointsOfInterest(std::move(ticks));
    ++m_readAheadVersion;
    m_deferred.wakes.decoding = true;
}

void PlaybackState::addObserver(Player::Token token, Time interval, SteadyTime now) {
    m_observers.add(token, interval, time(now));
    m_deferred.wakes.presenting = true;
}

std::vector<Player::Token> PlaybackState::acceptTick(const PlaybackEvent& event) {
    if (event.generation != m_generation)
        return {};
    return m_observers.takePending();
}

bool PlaybackState::acceptJump(const PlaybackEvent& event) const {
    return event.generation == m_generation && m_item;
}

std::optional<PlaybackState::End> PlaybackState::acceptEnd(const PlaybackEvent& event) {
    if (event.generation != m_generation || event.endCount != m_endCount || !m_hasEnded)
        return std::nullopt;
    m_hasEnded = false;
    return End{m_item, std::exchange(m_isPlaying, false)};
}

std::optional<SoundRun> PlaybackState::nextSoundRun(std::uint64_t number, SteadyTime now) {
    if (number == m_run)
        return std::nullopt;
    return SoundRun{m_run, m_item, time(now), isRunningWanted(), m_lastEnd, m_sound.get_token()};
}

SoundStart PlaybackState::soundStart(std::uint64_t run) const {
    if (run != m_run || !m_isPictureReady)
        return SoundStart::notYet;
    return m_clock.isRunning() ? SoundStart::late : SoundStart::now;
}

bool PlaybackState::soundHeard(std::uint64_t run, bool isDriving, Time heard, SteadyTime when) {
    const bool wasRunning = m_clock.isRunning();
    if (run != m_run || !isRunningWanted() || (wasRunning && !isDriving))
        return false;
    m_clock.correct(heard, when);
    if (!wasRunning)
        m_deferred.wakes.presenting = true;
    return true;
}

void PlaybackState::runWithoutSound(std::uint64_t run, SteadyTime now) {
    if (run != m_run || !isRunningWanted() || !m_isPictureReady || m_clock.isRunning())
        return;
    m_clock.run(now);
    m_deferred.wakes.presenting = true;
}

} // namespace media::playback
