#include "Media/FFmpeg/Check.h"

#include "Media/FFmpeg/CaughtWarnings.h"
#include "Media/FFmpeg/Handles.h"

#include <array>
#include <cerrno>
#include <mutex>

namespace media::ffmpeg {

void silenceLog() {
    static std::once_flag once;
    std::call_once(once, [] {
        av_log_set_level(AV_LOG_QUIET);
        // Unlike the level it leaves encoders a way to say what they refuse.
        av_log_set_callback(&CaughtWarnings::hear);
    });
}

std::string sentenceFor(int code) {
    switch (code) {
    case AVERROR_INVALIDDATA:
        return "It is not a video file, or it is damaged.";
    case AVERROR_DEMUXER_NOT_FOUND:
        return "Its format isn’t supported.";
    case AVERROR_DECODER_NOT_FOUND:
        return "Its video codec isn’t supported.";
    case AVERROR_ENCODER_NOT_FOUND:
        return "An encoder that the export needs isn’t installed.";
    case AVERROR_EOF:
        return "The file ends too early.";
    case AVERROR(ENOMEM):
        return "There is not enough memory.";
    case AVERROR(ENOSPC):
    case AVERROR(EDQUOT):
        return "There is not enough space on the disk.";
    case AVERROR(EFBIG):
        return "The file would be too large for this disk.";
    case AVERROR(EIO):
        return "The disk reported an error.";
    default: {
        std::array<char, AV_ERROR_MAX_STRING_SIZE> text = {};
        av_strerror(code, text.data(), text.size());
        return std::string(text.data()) + ".";
    }
    }
}

int check(int code) {
    if (code == AVERROR_EXIT)
        throw Cancelled();
    if (code < 0)
        throw Error(sentenceFor(code));
    return code;
}

} // namespace media::ffmpeg
