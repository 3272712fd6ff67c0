#include "Media/Playback/SoundQueue.h"

#include <algorithm>

namespace media::playback {

namespace {

/// 2.5 ms at 48 kHz: too short to be missed, long enough not to click.
constexpr float kGainStep = 1.0F / 120;
constexpr float kTailDecay = 0.96F;
constexpr std::int64_t kCapacity = static_cast<std::int64_t>(SoundQueue::kCapacityFrames);

std::size_t slot(std::int64_t frame) {
    return static_cast<std::size_t>(frame) % SoundQueue::kCapacityFrames;
}

} // namespace

SoundQueue::SoundQueue() : m_frames(kCapacityFrames) {}

void SoundQueue::begin() {
    give(false, m_written.load(std::memory_order_relaxed), kAsSoonAsPossible);
}

void SoundQueue::play(std::optional<std::int64_t> at) {
    give(true, m_firstFrame.load(std::memory_order_relaxed), at.value_or(kAsSoonAsPossible));
}

void SoundQueue::give(bool isAudible, std::int64_t firstFrame, std::int64_t at) {
    // Sequentially consistent throughout: orders are rare, and the sequence number must be seen
    // odd before any of the values is seen changed.
    m_sequence.fetch_add(1);
    m_isAudible.store(isAudible);
    m_firstFrame.store(firstFrame);
    m_at.store(at);
    m_sequence.fetch_add(1);
}

std::optional<SoundQueue::Order> SoundQueue::readOrder() const noexcept {
    Order order;
    order.number = m_sequence.load();
    order.isAudible = m_isAudible.load();
    order.firstFrame = m_firstFrame.load();
    order.at = m_at.load();
    if (order.number % 2 != 0 || m_sequence.load() != order.number)
        return std::nullopt;
    return order;
}

std::size_t SoundQueue::write(std::span<const float> samples) {
    const std::int64_t written = m_written.load(std::memory_order_relaxed);
    const std::int64_t room = kCapacity - (written - m_read.load(std::memory_order_acquire));
    const std::int64_t count =
        std::min(room, static_cast<std::int64_t>(samples.size() / kOutputChannels));
    auto source = samples.begin();
    for (std::int64_t i = 0; i < count; ++i, source += kOutputChannels)
        std::copy_n(source, kOutputChannels, m_frames[slot(written + i)].begin());
    m_written.store(written + count, std::memory_order_release);
    return static_cast<std::size_t>(count);
}

std::size_t SoundQueue::queuedFrames() const {
    const std::int64_t first = std::max(m_read.load(std::memory_order_relaxed),
                                        m_firstFrame.load(std::memory_order_relaxed));
    return static_cast<std::size_t>(m_written.load(std::memory_order_relaxed) - first);
}

std::optional<std::int64_t> SoundQueue::firstDeviceFrame() const {
    if (m_answered.load(std::memory_order_acquire) != m_sequence.load(std::memory_order_relaxed))
        return std::nullopt;
    return m_firstDeviceFrame.load(std::memory_order_relaxed);
}

void SoundQueue::reset() {
    begin();
    m_read.store(m_written.load(std::memory_order_relaxed), std::memory_order_relaxed);
    m_order = {};
    m_deviceFrame = 0;
    m_gain = 0;
    m_last = {};
    m_tail = {};
    m_wasQueued = false;
}

void SoundQueue::follow(const Order& order) noexcept {
    m_order = order;
    if (m_wasQueued)
        breakOff();
    if (!order.isAudible)
        return;
    m_start = order.at == kAsSoonAsPossible ? m_deviceFrame : order.at;
    m_firstDeviceFrame.store(m_start, std::memory_order_relaxed);
    m_answered.store(order.number, std::memory_order_release);
}

void SoundQueue::breakOff() noexcept {
    m_tail = m_last;
    m_gain = 0;
    m_wasQueued = false;
}

void SoundQueue::sound(Frame& frame, const Frame* queued, bool isMuted) noexcept {
    if (!queued && m_wasQueued)
        breakOff();
    m_wasQueued = queued != nullptr;
    if (queued)
        m_gain = std::clamp(m_gain + (isMuted ? -kGainStep : kGainStep), 0.0F, 1.0F);
    for (std::size_t channel = 0; channel < frame.size(); ++channel) {
        frame[channel] = m_tail[channel] + (queued ? (*queued)[channel] * m_gain : 0.0F);
        m_tail[channel] *= kTailDecay;
    }
    m_last = frame;
}

void SoundQueue::pull(float* samples, std::size_t frameCount) noexcept {
    const std::optional<Order> order = readOrder();
    if (order && order->number != m_order.number)
        follow(*order);
    // An order in the making ends the run before it: its frames may be dropped already.
    const bool isAudible = order && m_order.isAudible;
    const bool isMuted = m_isMuted.load(std::memory_order_relaxed);
    const std::int64_t written = m_written.load(std::memory_order_acquire);
    std::int64_t next = m_order.firstFrame + (m_deviceFrame - m_start);

    for (std::size_t i = 0; i < frameCount; ++i, ++next) {
        const bool isQueued = isAudible && next >= m_order.firstFrame && next < written;
        Frame frame;
        sound(frame, isQueued ? &m_frames[slot(next)] : nullptr, isMuted);
        samples = std::copy(frame.begin(), frame.end(), samples);
    }
    m_deviceFrame += static_cast<std::int64_t>(frameCount);

    if (!order)
        return;
    const std::int64_t used = isAudible ? std::max(next, m_order.firstFrame) : m_order.firstFrame;
    const std::int64_t read = m_read.load(std::memory_order_relaxed);
    m_read.store(std::max(read, std::min(used, written)), std::memory_order_release);
}

} // namespace media::playback
