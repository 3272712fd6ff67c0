#include "Media/Playback/Transport.h"

namespace media::playback {

Time Transport::time(SteadyTime now) {
    if (!item)
        return Time::invalid();
    const Time time = clock.time(now);
    return time > duration ? duration : time;
}

void Transport::holdClock(Time at) {
    clock.hold(at);
    beginRun();
}

void Transport::beginRun() {
    ++run;
    readySince = std::chrono::steady_clock::now();
    audioWake.raise();
    presenterWake.raise();
}

} // namespace media::playback
