#include "FakeOutput.h"

#include <algorithm>
#include <chrono>
#include <utility>

using media::playback::AudioOutput;
using media::playback::AudioSource;

class FakeDevice::Output final : public AudioOutput {
public:
    explicit Output(FakeDevice& device) : m_device(device) {}

    bool start(AudioSource& source) override {
        std::unique_lock lock(m_device.m_mutex);
        ++m_device.m_startCount;
        m_device.m_unblocked.wait(lock, [this] { return !m_device.m_isBlocking; });
        m_device.m_hasFailed = false;
        m_device.m_heard = 0;
        if (!m_device.m_isPresent)
            return false;
        ++m_device.m_openCount;
        m_device.m_source = &source;
        return true;
    }

    void stop() noexcept override {
        const std::scoped_lock lock(m_device.m_mutex);
        m_device.m_source = nullptr;
    }

    std::optional<std::uint64_t> heardFrames() override {
        const std::scoped_lock lock(m_device.m_mutex);
        return m_device.m_heard;
    }

    bool hasFailed() const override {
        const std::scoped_lock lock(m_device.m_mutex);
        return m_device.m_hasFailed;
    }

private:
    FakeDevice& m_device;
};

std::unique_ptr<AudioOutput> FakeDevice::output() {
    return std::make_unique<Output>(*this);
}

void FakeDevice::setPresent(bool isPresent) {
    const std::scoped_lock lock(m_mutex);
    m_isPresent = isPresent;
}

void FakeDevice::setBlocking(bool isBlocking) {
    const std::scoped_lock lock(m_mutex);
    m_isBlocking = isBlocking;
    m_unblocked.notify_all();
}

void FakeDevice::fail() {
    const std::scoped_lock lock(m_mutex);
    m_hasFailed = true;
}

std::vector<float> FakeDevice::play(std::size_t frameCount) {
    const std::scoped_lock lock(m_mutex);
    if (!m_source || m_hasFailed)
        return {};
    std::vector<float> samples(frameCount * media::playback::kOutputChannels);
    m_source->pull(samples.data(), frameCount);
    m_heard += frameCount;
    std::vector<float> left;
    for (std::size_t i = 0; i < samples.size(); i += media::playback::kOutputChannels)
        left.push_back(samples[i]);
    return left;
}

bool FakeDevice::isOpen() const {
    const std::scoped_lock lock(m_mutex);
    return m_source != nullptr;
}

int FakeDevice::startCount() const {
    const std::scoped_lock lock(m_mutex);
    return m_startCount;
}

int FakeDevice::openCount() const {
    const std::scoped_lock lock(m_mutex);
    return m_openCount;
}

RunningDevice::RunningDevice(FakeDevice& device)
    : m_device(device), m_thread([this](const std::stop_token& stop) { run(stop); }) {}

std::vector<float> RunningDevice::takeHeard() {
    const std::scoped_lock lock(m_mutex);
    return std::exchange(m_heard, {});
}

void RunningDevice::run(const std::stop_token& stop) {
    constexpr std::size_t kFrames = 480;
    constexpr std::chrono::milliseconds kPeriod{10};
    std::mutex mutex;
    std::condition_variable_any pacer;
    auto next = std::chrono::steady_clock::now();
    while (!stop.stop_requested()) {
        const std::vector<float> heard = m_device.play(kFrames);
        {
            const std::scoped_lock lock(m_mutex);
            m_heard.insert(m_heard.end(), heard.begin(), heard.end());
        }
        next += kPeriod;
        std::unique_lock lock(mutex);
        pacer.wait_until(lock, stop, next, [] { return false; });
    }
}
