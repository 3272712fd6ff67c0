#pragma once

#include "Media/Error.h"

namespace media::ffmpeg {

/// Makes the process's libav libraries quiet: what a file contains is reported to the person who
/// opened it, not to a terminal. Idempotent; any thread.
void silenceLog();

/// What a libav error code means, as a whole sentence.
Failure failureOf(int code);

/// Throws Error(failureOf(code)), or Cancelled for AVERROR_EXIT, if `code` is negative; otherwise
/// returns it.
int check(int code);

} // namespace media::ffmpeg
