#pragma once

namespace media::process {

// What the program and its helpers say to each other. A call is a message of its number, an
// operation and arguments; the answer is one of the same number, an Answer, and what that brings
// with it. While a call runs the helper may send any number of answers that report progress. What
// belongs to which operation is written down by who writes it and who reads it: the class named
// Remote… on the program’s side, and the one named …Service in the helper.

/// In place of an operation: the call of that number is to stop.
inline constexpr int kStopOperation = -1;

enum class Answer {
    success,
    failure, ///< A Failure follows.
    cancelled,
    outOfMemory,
    progress,
    count,
};

/// What a helper can be asked to make; each object has a channel of its own.
enum class ObjectKind {
    asset,
    frameSource,
    soundReader,
    imageGenerator,
    exportSession,
    exportForecast,
    count,
};

enum class AssetOperation { open, count };
enum class FrameOperation {
    open,
    wayTo,
    goalNearEnd,
    advance,
    advanceNear,
    passing,
    keepOnePassed,
    takeFrame,
    releaseDecoder,
    count,
};
enum class SoundOperation { open, seek, next, count };
enum class StillOperation { image, images, take, count };
enum class ExportOperation { run, count };
enum class ForecastOperation { run, count };

} // namespace media::process
