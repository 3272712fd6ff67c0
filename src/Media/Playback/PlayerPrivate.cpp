#include "Media/Playback/PlayerPrivate.h"

#include <pthread.h>

#include <algorithm>
#include <cmath>
#include <chrono>
#include <system_error>

namespace media {

namespace {

using playback::PlaybackEvent;
using playback::SteadyTime;
using playback::Transport;

/// Stands in for a duration that is not known: ten years.
constexpr Time kUnknownDuration{std::int64_t{315'360'000} * kComparisonTimescale,
                                kComparisonTimescale};
/// How long a seek may take before something else is shown meanwhile.
constexpr std::chrono::milliseconds kPatience{50};
/// Seeks that follow one another faster, and not farther apart (1/600 s), tell a direction.
constexpr std::chrono::milliseconds kLongestPauseInDrag{500};
constexpr double kFarthestInDrag = 3.0 * kComparisonTimescale;
/// Far more than any work takes before it looks whether it is to stop, unless it reads from a disk
/// that does not answer.
constexpr std::chrono::milliseconds kLongestFarewell{500};

SteadyTime now() {
    return std::chrono::steady_clock::now();
}

/// A time as a count of ticks from 0 to `last`.
std::int64_t clampedTicks(Time time, Time last) {
    return std::clamp<std::int64_t>(time.ticks().count(), 0, last.ticks().count());
}

/// The earliest and the latest frame time that a seek accepts.
playback::SeekRequest seekRequest(Time target, Time before, Time after, Time duration) {
    return {clampedTicks(target - before, duration), clampedTicks(target + after, duration)};
}

Size pictureSize(const PlayerItem* item) {
    const auto tracks = item ? item->asset()->tracks(MediaType::video) : std::vector<AssetTrack>();
    return tracks.empty() ? Size{1, 1} : orientedSize(tracks.front());
}

Time clamped(Time time, Time duration) {
    const Time start{0, kComparisonTimescale};
    if (time < start)
        return start;
    return time > duration ? duration : time;
}

bool isTime(Time time) {
    return time.isNumeric() || time.value != 0;
}

} // namespace

Player::Private::Private(Executor executor, std::unique_ptr<playback::AudioOutput> output)
    : m_executor(std::move(executor)),
      m_video(m_playback),
      m_audio(m_playback, std::move(output)),
      m_presenter(m_playback, [this](const PlaybackEvent& event) {
          post([event](Private& self) { self.handle(event); });
      }) {
    transport()->clock.hold(Time::invalid());
}

void Player::Private::start() {
    *m_runningThreads.lock() = 3;
    startThread("player-video", [this](const std::stop_token& stop) { m_video.work(stop); });
    startThread("player-audio", [this](const std::stop_token& stop) { m_audio.work(stop); });
    startThread("player-present", [this](const std::stop_token& stop) { m_presenter.work(stop); });
}

void Player::Private::startThread(const char* name,
                                  std::function<void(const std::stop_token&)> work) {
    m_threads.emplace_back([this, work = std::move(work)](const std::stop_token& stop) {
        work(stop);
        const auto running = m_runningThreads.lock();
        --*running;
        m_threadEnded.notify_all();
    });
    pthread_setname_np(m_threads.back().native_handle(), name);
}

void Player::Private::close() {
    m_isAlive = false;
    setVideoSink(nullptr);
    *m_executor.lock() = nullptr;
    for (std::jthread& thread : m_threads)
        thread.request_stop();
    StaleWork work;
    {
        auto access = transport();
        work = {access->videoWork, access->audioWork};
    }
    work.stop();
    if (waitForThreads())
        joinThreads();
    else
        leaveThreadsBehind();
}

void Player::Private::leaveThreadsBehind() {
    try {
        std::thread([self = shared_from_this()] { self->joinThreads(); }).detach();
    } catch (const std::system_error&) {
        joinThreads();
    }
}

bool Player::Private::waitForThreads() {
    auto running = m_runningThreads.lock();
    return m_threadEnded.wait_for(running.lock(), kLongestFarewell, [&] { return *running == 0; });
}

void Player::Private::joinThreads() {
    for (std::jthread& thread : m_threads)
        thread.join();
}

void Player::Private::replaceCurrentItem(std::shared_ptr<const PlayerItem> item) {
    abandonSeek();
    StaleWork stale;
    playback::ReadyFrame shown;
    {
        auto access = transport();
        const Time duration = item ? item->asset()->duration() : Time{};
        access->duration = duration.isNumeric() ? duration : kUnknownDuration;
        access->pictureSize = pictureSize(item.get());
        access->item.swap(item);
        access->immediate.reset();
        access->seek.reset();
        access->direction = 0;
        std::swap(access->shown, shown);
        m_playback.cache.begin(access->item.get());
        stale.audio = beginJump(*access, access->item ? Time{} : Time::invalid(), {});
        stale.video = std::exchange(access->videoWork, std::stop_source());
        access->direction = 0;
    }
    stale.stop();
}

/// Everything that holds for the time before is void; the threads turn to the new one. Gives what
/// stops the sound of before; the video thread looks after each frame what is wanted.
std::stop_source Player::Private::beginJump(Transport& transport, Time target,
                                            playback::SeekRequest request) {
    noteDirection(transport, request);
    ++transport.generation;
    if (!transport.seek)
        transport.substituteAt = now() + kPatience;
    transport.seek = request;
    transport.steps.clear();
    transport.step.reset();
    transport.upcoming.clear();
    transport.isPictureReady = false;
    transport.passing.reset();
    m_playback.cache.setFocus(request.earliest);
    transport.hasEnded = false;
    for (playback::TickObserver& observer : transport.observers)
        observer.isDue = false;
    transport.holdClock(target);
    transport.videoWake.raise();
    return std::exchange(transport.audioWork, std::stop_source());
}

void Player::Private::noteDirection(Transport& transport, playback::SeekRequest request) {
    const std::int64_t from = transport.seek ? transport.seek->earliest : transport.shown.begin;
    const double distance = static_cast<double>(request.earliest) - static_cast<double>(from);
    const bool isDrag =
        now() - transport.lastJump < kLongestPauseInDrag && std::abs(distance) <= kFarthestInDrag;
    transport.direction = !isDrag ? 0 : distance < 0 ? -1 : 1;
}

void Player::Private::setPlaying(bool isPlaying) {
    if (transport()->isPlaying == isPlaying)
        return;
    // Before any thread can act on it, so that an end that follows at once is reported after it.
    reportRate(isPlaying ? 1.0F : 0.0F);
    StaleWork stale;
    {
        auto access = transport();
        const Time time = access->time(now());
        access->isPlaying = isPlaying;
        access->hasEnded = false;
        if (!isPlaying)
            access->lastEnd = {};
        access->holdClock(time);
        access->videoWake.raise();
        stale.audio = std::exchange(access->audioWork, std::stop_source());
    }
    stale.stop();
}

void Player::Private::seek(Time time, Time before, Time after, std::function<void(bool)> done) {
    StaleWork stale;
    PendingSeek seek{0, std::move(done)};
    {
        auto access = transport();
        if (access->item && isTime(time)) {
            const Time target = clamped(time, access->duration);
            stale.audio =
                beginJump(*access, target, seekRequest(target, before, after, access->duration));
            seek.generation = access->generation;
        }
    }
    stale.stop();
    if (seek.generation != 0)
        abandonSeek();
    m_pendingSeek = std::move(seek);
    if (m_pendingSeek->generation == 0)
        abandonSeek();
}

void Player::Private::abandonSeek() {
    const std::optional<PendingSeek> seek = std::exchange(m_pendingSeek, std::nullopt);
    if (seek && seek->done)
        post([done = seek->done](Private&) { done(false); });
}

void Player::Private::finishSeek(std::uint64_t generation) {
    if (!m_pendingSeek || m_pendingSeek->generation != generation)
        return;
    const std::optional<PendingSeek> seek = std::exchange(m_pendingSeek, std::nullopt);
    if (seek->done)
        seek->done(true);
}

void Player::Private::step(int count) {
    setPlaying(false);
    auto access = transport();
    if (count == 0 || !access->item)
        return;
    access->hasEnded = false;
    access->steps.push_back(count);
    access->direction = count < 0 ? -1 : 1;
    access->presenterWake.raise();
    access->videoWake.raise();
}

void Player::Private::setVideoSink(VideoSink* sink) {
    auto access = transport();
    m_playback.sinkIsFree.wait(access.lock(), [&] { return !access->isPresenting; });
    access->sink = sink;
    access->isRedeliveryWanted = sink != nullptr;
    access->presenterWake.raise();
}

void Player::Private::setPointsOfInterest(const std::vector<Time>& times) {
    std::vector<std::int64_t> ticks;
    auto access = transport();
    for (const Time time : times) {
        if (access->item && isTime(time))
            ticks.push_back(clampedTicks(time, access->duration));
    }
    if (ticks == m_playback.cache.pointsOfInterest())
        return;
    m_playback.cache.setPointsOfInterest(std::move(ticks));
    ++access->interests;
    access->videoWake.raise();
}

} // namespace media
