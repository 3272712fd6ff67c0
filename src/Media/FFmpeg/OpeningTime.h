#pragma once

#include <chrono>

namespace media::ffmpeg {

/// Limits the processor time that a file may take before it yields a picture: a made-up or damaged
/// one can keep libav busy for hours. For the thread that makes it, while it lives. What is spent
/// on decoding counts as that of one processor, however many threads the decoder has; waiting for a
/// disk does not count.
class OpeningTime final {
public:
    /// Opening has three steps that are limited: reading the headers, finding out what they leave
    /// open, and decoding the first picture. A minute in all.
    static constexpr std::chrono::seconds kUsualLimit{20};

    OpeningTime();
    OpeningTime(const OpeningTime&) = delete;
    OpeningTime& operator=(const OpeningTime&) = delete;
    ~OpeningTime();

    /// Whether it is used up on the calling thread; false while that has no limit.
    static bool isUsedUp();
    /// Throws Error if it is.
    static void expectLeft();

    /// For tests; of those made from now on in any thread.
    static void setLimit(std::chrono::nanoseconds limit);

    /// Work of a decoder, which has threads of its own, while it lives.
    class Decoding final {
    public:
        Decoding();
        Decoding(const Decoding&) = delete;
        Decoding& operator=(const Decoding&) = delete;
        ~Decoding();

    private:
        std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
        std::chrono::nanoseconds m_process;
        std::chrono::nanoseconds m_thread;
    };

private:
    [[nodiscard]] std::chrono::nanoseconds used() const;

    OpeningTime* m_outer;
    std::chrono::nanoseconds m_limit;
    std::chrono::nanoseconds m_start;
    /// Of the decoder's own threads.
    std::chrono::nanoseconds m_others{};
};

} // namespace media::ffmpeg
