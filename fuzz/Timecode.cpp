#include "Media/FFmpeg/Timecode.h"

#include "Media/Threading/Verify.h"

#include <fuzzer/FuzzedDataProvider.h>
#include <limits>

using namespace media;

/// The label of a file's first picture is any text; that of a later one is empty or a label.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider input(data, size);
    constexpr int kMost = std::numeric_limits<int>::max();
    const auto rate = [&] {
        return input.ConsumeBool() ? AVRational{25, 1}
                                   : AVRational{input.ConsumeIntegralInRange(0, kMost),
                                                input.ConsumeIntegralInRange(0, kMost)};
    };
    const AVRational from = rate();
    const AVRational to = rate();
    const Time start{
        input.ConsumeIntegralInRange<std::int64_t>(0, std::numeric_limits<std::int64_t>::max() / 4),
        input.ConsumeIntegralInRange(1, kMost)};
    const std::string label =
        ffmpeg::timecodeAt(input.ConsumeRandomLengthString(64), from, start, to);
    const bool isWhole = ffmpeg::timecodeAt(label, to, Time{0, 1}, to) == label;
    verify(label.empty() || isWhole, "the label is one");
    return 0;
}
