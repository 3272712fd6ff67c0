#pragma once

#include <atomic>
#include <cstddef>
#include <functional>

namespace media::playback {

/// One player's part in the memory that the decoders of all players may hold while they have
/// nothing to do. Decoders used last keep their pictures, so that they can go on where they are;
/// the others are to be released.
class DecoderBudget {
public:
    /// What five decoders of 2160p hold on two processors, or twenty of 1080p.
    static constexpr std::size_t kBytesOfAll = std::size_t{768} << 20;

    /// `wake` is called, from any thread that uses another decoder, when this one is to be
    /// released: with the lock of all budgets held, so that this one cannot go meanwhile. It must
    /// not touch any budget, nor wait for a lock under which one is touched.
    explicit DecoderBudget(std::function<void()> wake);
    DecoderBudget(const DecoderBudget&) = delete;
    DecoderBudget& operator=(const DecoderBudget&) = delete;
    ~DecoderBudget();

    /// The decoder was used just now and holds about so many bytes.
    void use(std::size_t bytes);

    /// The decoder holds nothing any more.
    void release();

    /// Whether the decoder is to be released when it has nothing to do. Any thread.
    [[nodiscard]] bool isExceeded() const { return m_isExceeded.load(std::memory_order_relaxed); }

    /// Another bound for all, from the next use on. Any thread.
    static void setBytesOfAll(std::size_t bytes);

private:
    friend class DecoderBudgets;

    std::function<void()> m_wake;
    std::size_t m_bytes = 0;
    std::atomic<bool> m_isExceeded = false;
};

} // namespace media::playback
