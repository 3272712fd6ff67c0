#pragma once

#include "Media/Threading/ThreadAffinity.h"

#include <cstdarg>
#include <string>
#include <string_view>
#include <vector>

namespace media::ffmpeg {

/// Keeps what libav complains about on this thread while it lives: warnings and worse. Some
/// encoders say nowhere else that they did not take a setting.
///
/// One thread, as a local variable; the innermost one hears.
class CaughtWarnings final {
public:
    CaughtWarnings();
    ~CaughtWarnings();
    CaughtWarnings(const CaughtWarnings&) = delete;
    CaughtWarnings& operator=(const CaughtWarnings&) = delete;

    /// Whether one of them has `name` in it, as a word of its own.
    [[nodiscard]] bool mention(std::string_view name) const;

    /// The process's log callback: what nobody keeps is dropped. Any thread.
    [[gnu::format(printf, 3, 0)]] static void hear(void* object, int level, const char* format,
                                                   std::va_list arguments) noexcept;

private:
    ThreadAffinity m_thread;
    std::vector<std::string> m_lines;
    CaughtWarnings* m_outer;
};

} // namespace media::ffmpeg
