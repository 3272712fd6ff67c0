#include "Media/FFmpeg/ClassicLocale.h"

namespace media::ffmpeg {

namespace {

/// Made once and kept. Null, and so without effect, only where there is no memory for it.
::locale_t classic() noexcept {
    static const ::locale_t locale = ::newlocale(LC_ALL_MASK, "C", nullptr);
    return locale;
}

} // namespace

ClassicLocale::ClassicLocale() noexcept : m_before(::uselocale(classic())) {}

ClassicLocale::~ClassicLocale() {
    m_thread.check();
    ::uselocale(m_before);
}

} // namespace media::ffmpeg
