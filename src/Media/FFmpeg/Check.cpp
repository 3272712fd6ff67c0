#include "Media/FFmpeg/Check.h"

#include "Media/FFmpeg/CaughtWarnings.h"
#include "Media/FFmpeg/Handles.h"

#include <array>
#include <cerrno>
#include <mutex>

namespace media::ffmpeg {

namespace {

/// A reason that is no sentence of its own: libav's, or the system's that libav passes on.
Failure libraryReasonOf(int code) {
    if (code == AVERROR_EXTERNAL)
        return {ErrorKind::libraryFailed};
    if (code == AVERROR_PATCHWELCOME)
        return {ErrorKind::notImplemented};
    Failure reason = reasonOf(AVUNERROR(code));
    if (reason.kind == ErrorKind::otherReason) {
        std::array<char, AV_ERROR_MAX_STRING_SIZE> text = {};
        av_strerror(code, text.data(), text.size());
        reason.arguments = {text.data()};
    }
    return reason;
}

} // namespace

void silenceLog() {
    static std::once_flag once;
    std::call_once(once, [] {
        av_log_set_level(AV_LOG_QUIET);
        // Unlike the level it leaves encoders a way to say what they refuse.
        av_log_set_callback(&CaughtWarnings::hear);
    });
}

Failure failureOf(int code) {
    switch (code) {
    case AVERROR_INVALIDDATA:
        return {ErrorKind::notAVideo};
    case AVERROR_DEMUXER_NOT_FOUND:
        return {ErrorKind::unsupportedFormat};
    case AVERROR_DECODER_NOT_FOUND:
        return {ErrorKind::unsupportedCodec};
    case AVERROR_ENCODER_NOT_FOUND:
        return {ErrorKind::encoderMissing};
    case AVERROR_EOF:
        return {ErrorKind::fileEndsTooEarly};
    case AVERROR(ENOMEM):
        return {ErrorKind::notEnoughMemory};
    case AVERROR(ENOSPC):
    case AVERROR(EDQUOT):
        return {ErrorKind::diskFull};
    case AVERROR(EFBIG):
        return {ErrorKind::fileTooLarge};
    case AVERROR(EIO):
        return {ErrorKind::diskError};
    default:
        return becauseOf(ErrorKind::reasonOnly, libraryReasonOf(code));
    }
}

int check(int code) {
    if (code == AVERROR_EXIT)
        throw Cancelled();
    if (code < 0)
        throw Error(failureOf(code));
    return code;
}

} // namespace media::ffmpeg
