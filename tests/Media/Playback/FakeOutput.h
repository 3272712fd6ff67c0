#pragma once

#include "Media/Playback/AudioOutput.h"

#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

/// A sound device that the test drives by hand, and the output that a player uses it through.
/// Outlives the player.
class FakeDevice {
public:
    /// The output for one player.
    std::unique_ptr<media::playback::AudioOutput> output();

    /// Whether start() finds a device.
    void setPresent(bool isPresent);
    /// start() does not return before this is lifted.
    void setBlocking(bool isBlocking);
    /// Breaks the stream that is open now.
    void fail();
    /// Plays `frameCount` frames: takes them from the player and lets them be heard. Returns the
    /// left channel; nothing while no stream is open.
    std::vector<float> play(std::size_t frameCount);

    [[nodiscard]] bool isOpen() const;
    /// How many times start() was called, and how many times it opened a stream.
    [[nodiscard]] int startCount() const;
    [[nodiscard]] int openCount() const;

private:
    class Output;

    mutable std::mutex m_mutex;
    std::condition_variable m_unblocked;
    media::playback::AudioSource* m_source = nullptr;
    std::uint64_t m_heard = 0;
    bool m_isPresent = true;
    bool m_isBlocking = false;
    bool m_hasFailed = false;
    int m_startCount = 0;
    int m_openCount = 0;
};

/// Plays a device at the pace of the steady clock, and keeps what was played, for as long as it
/// lives.
class RunningDevice {
public:
    explicit RunningDevice(FakeDevice& device);
    ~RunningDevice() = default;
    RunningDevice(const RunningDevice&) = delete;
    RunningDevice& operator=(const RunningDevice&) = delete;

    /// The left channel of what was played since the last call.
    std::vector<float> takeHeard();

private:
    void run(const std::stop_token& stop);

    FakeDevice& m_device;
    std::mutex m_mutex;
    std::vector<float> m_heard;
    std::jthread m_thread;
};
