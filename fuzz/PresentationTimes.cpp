#include "Media/FFmpeg/PresentationTimes.h"

#include "Media/FFmpeg/PrevailingRate.h"
#include "Media/Threading/Verify.h"

#include <cmath>
#include <fuzzer/FuzzedDataProvider.h>
#include <limits>
#include <vector>

using namespace media::ffmpeg;

/// The times of pictures and the distances between them, from whatever timestamps a file has.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider input(data, size);
    constexpr int kMost = std::numeric_limits<int>::max();
    SourceInfo info;
    SourceTrack track;
    track.timeBase = {input.ConsumeIntegralInRange(1, kMost),
                      input.ConsumeIntegralInRange(1, kMost)};
    track.facts.nominalFrameRate = input.ConsumeFloatingPointInRange(0.0F, 1000.0F);
    track.lacksPresentationTimes = input.ConsumeBool();
    info.origin = timeOf(Timestamp(input.ConsumeIntegral<std::int64_t>()), track.timeBase);

    PresentationTimes times(info, track);
    const PacketPtr packet = makePacket();
    const FramePtr frame = makeFrame();
    std::vector<Timestamp> all;
    media::Time last = media::Time::negativeInfinity();
    while (input.remaining_bytes() > 0) {
        packet->dts = input.ConsumeIntegral<std::int64_t>();
        frame->pts = input.ConsumeIntegral<std::int64_t>();
        times.notePacket(*packet);
        const media::Time time = times.next(*frame);
        media::verify(time.isNumeric() && time >= last, "no picture comes before the last");
        last = time;
        static_cast<void>(nearestTimestamp(time, track.timeBase));
        static_cast<void>(time.ticks());
        all.emplace_back(frame->pts);
    }
    const auto rate = rateBetweenGaps(all, track.timeBase);
    media::verify(!rate || (std::isfinite(*rate) && *rate > 0), "a rate is one");
    const auto distance = constantDistance(all);
    media::verify(!distance || *distance > 0, "a distance leads on");
    return 0;
}
