#pragma once

#include "Media/Threading/ThreadAffinity.h"

#include <clocale>

namespace media::ffmpeg {

/// While it lives, the C library reads and writes numbers on this thread as C does, with a full
/// stop, whatever locale the process has. libav and the encoders behind it read their options, and
/// some places in files, with strtod() and write others with printf().
///
/// One thread, as a local variable.
class ClassicLocale final {
public:
    ClassicLocale() noexcept;
    ~ClassicLocale();
    ClassicLocale(const ClassicLocale&) = delete;
    ClassicLocale& operator=(const ClassicLocale&) = delete;

private:
    ThreadAffinity m_thread;
    ::locale_t m_before;
};

} // namespace media::ffmpeg
