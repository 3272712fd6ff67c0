#include "Media/Playback/SoundThread.h"

#include "Media/Error.h"
#include "Media/Playback/PlayableAsset.h"

#include <algorithm>

namespace media::playback {

namespace {

using std::chrono::milliseconds;

/// What is kept queued: enough for the thread to be late by that much.
constexpr std::size_t kQueuedFrames = kOutputSampleRate * 3 / 4;
/// Between two looks at the device while playing.
constexpr milliseconds kRound{10};
constexpr milliseconds kIdle{3'600'000};
/// A device whose position stands for so long is taken for gone.
constexpr milliseconds kStalled{1000};
/// How long the device stays open after the end of an item, so that a loop starts at once.
constexpr milliseconds kLinger{1000};
constexpr milliseconds kFirstRetry{1000};
constexpr milliseconds kLastRetry{60'000};
/// A position that took longer to ask for says nothing about when it was true.
constexpr milliseconds kExactReading{4};
/// How far ahead of the running clock sound is prepared that is to fall in with it.
constexpr milliseconds kHeadStart{250};

SteadyTime now() {
    return std::chrono::steady_clock::now();
}

nanoseconds duration(std::int64_t frames) {
    return nanoseconds(frames * kNanoTimescale / kOutputSampleRate);
}

std::int64_t frameCount(nanoseconds duration) {
    return duration.count() * kOutputSampleRate / kNanoTimescale;
}

Time later(Time time, nanoseconds by) {
    return Time{(toNanoseconds(time) + by).count(), kNanoTimescale};
}

} // namespace

SoundThread::SoundThread(SharedPlayback& shared, std::unique_ptr<AudioOutput> output)
    : m_shared(shared), m_output(std::move(output)), m_retryDelay(kFirstRetry) {}

void SoundThread::run(const std::stop_token& stop) {
    while (!stop.stop_requested()) {
        if (takeRun())
            beginRun();
        const Pause pause = m_run.isWanted ? serve() : idle();
        m_shared.wait(SharedPlayback::Waiter::sound, stop, now() + pause);
    }
    closeOutput();
}

bool SoundThread::takeRun() {
    std::optional<SoundRun> run = m_shared.lock()->nextSoundRun(m_run.number, now());
    if (!run)
        return false;
    m_run = std::move(*run);
    return true;
}

void SoundThread::beginRun() {
    m_queue.begin();
    m_isPlaced = false;
    m_isDriving = false;
    m_isStale = false;
    if (!m_run.isWanted) {
        m_closeAt = m_run.lastEnd + kLinger;
        if (m_item != m_run.item) {
            m_block = {};
            m_reader.reset();
            m_item.reset();
        }
        return;
    }
    m_lastMoved = now();
    openReader();
    prepare(m_run.start);
}

SoundThread::Pause SoundThread::idle() {
    if (!m_isOpen)
        return kIdle;
    const SteadyTime time = now();
    if (time < m_closeAt)
        return std::chrono::ceil<Pause>(m_closeAt - time);
    closeOutput();
    return kIdle;
}

SoundThread::Pause SoundThread::serve() {
    if (!m_reader) {
        runSteadily();
        return kIdle;
    }
    if (!m_isOpen && now() < m_retryAt) {
        runSteadily();
        m_isStale = true;
        return std::max(kRound, std::chrono::ceil<Pause>(m_retryAt - now()));
    }
    if (m_isPlaced && !m_isDriving && isClockRunning())
        m_isStale = true;
    if (m_isStale)
        prepare(later(clockTime(), kHeadStart));
    fill();
    if (!m_isPlaced)
        place();
    if (!m_isOpen && (m_isPlaced || isClockRunning()) && !openOutput())
        return kRound;
    if (m_isOpen)
        drive();
    return kRound;
}

void SoundThread::openReader() {
    if (m_item == m_run.item)
        return;
    m_item = m_run.item;
    m_block = {};
    m_reader.reset();
    try {
        m_reader = PlayableAsset::of(m_item->asset())->makeSoundReader();
    } catch (const std::exception&) {
        // Without sound the item is silent.
    }
}

/// Begins the queue anew with the sound at `at`.
void SoundThread::prepare(Time at) {
    m_queue.begin();
    m_start = at;
    m_isPlaced = false;
    m_isDriving = false;
    m_isStale = false;
    m_block = {};
    m_isAtEnd = false;
    if (!m_reader)
        return;
    try {
        m_reader->seek(at, m_run.stop);
    } catch (const std::exception&) {
        // Given up for a newer run, or unreadable: silence until then.
        m_isAtEnd = true;
    }
}

void SoundThread::fill() {
    try {
        while (!m_isAtEnd && m_queue.queuedFrames() < kQueuedFrames) {
            if (m_block.empty())
                m_block = m_reader->next(m_run.stop);
            if (m_block.empty())
                m_isAtEnd = true;
            else if (!writeBlock())
                return;
        }
    } catch (const std::exception&) {
        m_isAtEnd = true;
    }
}

/// Whether the whole block found room.
bool SoundThread::writeBlock() {
    m_block = m_block.subspan(m_queue.write(m_block) * kOutputChannels);
    return m_block.empty();
}

void SoundThread::place() {
    const SoundStart start = m_shared.lock()->soundStart(m_run.number);
    if (start == SoundStart::late)
        placeIntoRunningClock();
    if (start != SoundStart::now)
        return;
    m_queue.play();
    m_isPlaced = true;
}

void SoundThread::placeIntoRunningClock() {
    const std::optional<std::uint64_t> heard = m_isOpen ? m_output->heardFrames() : std::nullopt;
    // Before its position moves it is not known when a new device will be heard.
    if (!heard || *heard == 0)
        return;
    const nanoseconds ahead = toNanoseconds(m_start) - toNanoseconds(clockTime());
    m_queue.play(static_cast<std::int64_t>(*heard) + frameCount(ahead));
    m_isPlaced = true;
    m_isDriving = true;
}

bool SoundThread::openOutput() {
    if (!m_output->start(m_queue)) {
        giveUpOutput();
        runSteadily();
        return false;
    }
    m_isOpen = true;
    m_lastHeard = 0;
    m_lastMoved = now();
    return true;
}

void SoundThread::closeOutput() {
    m_output->stop();
    m_queue.reset();
    m_isOpen = false;
    m_isPlaced = false;
    m_isDriving = false;
}

/// The clock goes on as it ran; the device is tried again after a while.
void SoundThread::giveUpOutput() {
    closeOutput();
    m_isStale = true;
    m_retryAt = now() + m_retryDelay;
    m_retryDelay = std::min(2 * m_retryDelay, kLastRetry);
}

void SoundThread::drive() {
    const SteadyTime before = now();
    const std::optional<std::uint64_t> heard = m_output->heardFrames();
    const SteadyTime after = now();
    if (m_output->hasFailed() || hasStalled(heard.value_or(m_lastHeard), after)) {
        giveUpOutput();
        runSteadily();
        return;
    }
    const std::optional<std::int64_t> first = m_queue.firstDeviceFrame();
    if (!m_isPlaced || !heard || !first || after - before > kExactReading)
        return;
    const std::int64_t frames = static_cast<std::int64_t>(*heard) - *first;
    if (frames <= 0)
        return;
    const Time time = later(m_start, duration(frames));
    const SteadyTime when = before + (after - before) / 2;
    if (m_shared.lock()->soundHeard(m_run.number, m_isDriving, time, when))
        m_isDriving = true;
}

bool SoundThread::hasStalled(std::uint64_t heard, SteadyTime time) {
    if (heard != m_lastHeard) {
        m_lastHeard = heard;
        m_lastMoved = time;
        m_retryDelay = kFirstRetry;
    }
    return time - m_lastMoved > kStalled;
}

/// Lets the clock run without a device, as soon as the picture is there.
void SoundThread::runSteadily() {
    m_shared.lock()->runWithoutSound(m_run.number, now());
}

Time SoundThread::clockTime() {
    return m_shared.lock()->time(now());
}

} // namespace media::playback
