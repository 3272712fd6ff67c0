#include "Media/FFmpeg/CaughtWarnings.h"

#include "Media/FFmpeg/Check.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <exception>

extern "C" {
#include <libavutil/log.h>
}

namespace media::ffmpeg {

namespace {

/// Whoever keeps the warnings of this thread.
thread_local CaughtWarnings* listener = nullptr;

/// Names of settings are made of these.
bool isPartOfName(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-' ||
           c == '_';
}

bool holdsName(std::string_view line, std::string_view name) {
    for (std::size_t at = line.find(name); at != std::string_view::npos;
         at = line.find(name, at + 1)) {
        const std::size_t end = at + name.size();
        if ((at == 0 || !isPartOfName(line[at - 1])) &&
            (end == line.size() || !isPartOfName(line[end])))
            return true;
    }
    return false;
}

} // namespace

CaughtWarnings::CaughtWarnings() : m_outer(listener) {
    silenceLog();
    listener = this;
}

CaughtWarnings::~CaughtWarnings() {
    m_thread.check();
    listener = m_outer;
}

bool CaughtWarnings::mention(std::string_view name) const {
    m_thread.check();
    return !name.empty() && std::ranges::any_of(m_lines, [name](const std::string& line) {
        return holdsName(line, name);
    });
}

void CaughtWarnings::hear(void* /*object*/, int level, const char* format,
                          std::va_list arguments) noexcept {
    // The bits above are a colour.
    constexpr int kLevelMask = 0xff;
    if (listener == nullptr || (level & kLevelMask) > AV_LOG_WARNING)
        return;
    std::array<char, 1024> line = {};
    std::vsnprintf(line.data(), line.size(), format, arguments);
    try {
        listener->m_lines.emplace_back(line.data());
    } catch (const std::exception&) {
        // Without memory for a line there is none for an encoder either, which says so.
        return;
    }
}

} // namespace media::ffmpeg
