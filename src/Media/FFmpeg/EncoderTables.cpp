#include "Media/FFmpeg/EncoderTables.h"

#include "Media/Threading/Guarded.h"

#include <array>
#include <dlfcn.h>

namespace media::ffmpeg {

namespace {

/// x265_cleanup() of x265.h as the library exports it: the one of its own bit depth, and the one of
/// the build for ten bits that most distributions link into it. libav never calls either. They are
/// looked up because libx265 is known here through libav only.
constexpr std::array kCleanups = {"x265_cleanup", "_ZN10x265_10bit12x265_cleanupEv"};

/// How many shares there are. Locked while tables are freed, so that no encoder is opened
/// meanwhile.
Guarded<int>& shares() {
    static Guarded<int> count;
    return count;
}

void freeTables() {
    for (const char* name : kCleanups) {
        if (void* const symbol = ::dlsym(RTLD_DEFAULT, name))
            reinterpret_cast<void (*)()>(symbol)();
    }
}

} // namespace

EncoderTables::EncoderTables() {
    ++*shares().lock();
}

EncoderTables::~EncoderTables() {
    const auto count = shares().lock();
    if (--*count == 0)
        freeTables();
}

} // namespace media::ffmpeg
