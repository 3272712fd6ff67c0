#pragma once

#include <atomic>
#include <cstddef>
#include <functional>

namespace media::playback {

/// What one player's decoder holds of the memory that the decoders of all players may hold while
/// they have nothing to do. Those used last keep their pictures, so that they can go on where they
/// are; the others are asked to let go.
class DecoderShare {
public:
    /// What five decoders of 2160p hold on two processors, or twenty of 1080p.
    static constexpr std::size_t kBytesOfAll = std::size_t{768} << 20;

    /// `wake` is called, from any thread that uses another share, when this one becomes too much:
    /// with the lock of all shares held, so that this one cannot go meanwhile. It must not touch
    /// any share, nor wait for a lock under which one is touched.
    explicit DecoderShare(std::function<void()> wake);
    DecoderShare(const DecoderShare&) = delete;
    DecoderShare& operator=(const DecoderShare&) = delete;
    ~DecoderShare();

    /// The decoder was used just now and holds about so many bytes.
    void use(std::size_t bytes);

    /// The decoder holds nothing any more.
    void letGo();

    /// Whether the decoder should let go when it has nothing to do. Any thread.
    [[nodiscard]] bool isTooMuch() const { return m_isTooMuch.load(std::memory_order_relaxed); }

    /// Another bound for all, from the next use on. Any thread.
    static void setBytesOfAll(std::size_t bytes);

private:
    friend class DecoderShares;

    std::function<void()> m_wake;
    std::size_t m_bytes = 0;
    std::atomic<bool> m_isTooMuch = false;
};

} // namespace media::playback
