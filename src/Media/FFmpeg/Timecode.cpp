#include "Media/FFmpeg/Timecode.h"

#include "Media/FFmpeg/Check.h"

#include <algorithm>
#include <array>
#include <climits>
#include <cmath>

extern "C" {
#include <libavutil/timecode.h>
}

namespace media::ffmpeg {

namespace {

bool isRate(AVRational rate) {
    return rate.num > 0 && rate.den > 0;
}

/// Whether it is as long as "01:02:03:04" or "01:02:03:004" at most, with no more than two digits
/// of hours and no sign. Files can hold any text here, and libav adds up its numbers unchecked.
bool isShort(const std::string& label) {
    constexpr std::size_t kMostLetters = 12;
    constexpr std::size_t kMostHourDigits = 2;
    return label.size() <= kMostLetters && label.find(':') <= kMostHourDigits &&
           label.find('-') == std::string::npos;
}

/// Whether labels of the form given can be counted at the rate, to the nearest whole one a usual
/// one.
bool canCount(const std::string& label, AVRational rate) {
    AVTimecode timecode;
    return isShort(label) && isRate(rate) && av_timecode_check_frame_rate(rate) >= 0 &&
           av_timecode_init_from_string(&timecode, rate, label.c_str(), nullptr) >= 0;
}

/// How many pictures are over at a time, by the rule for the picture at a time.
std::int64_t picturesBefore(Time time, AVRational rate) {
    const double ticks = static_cast<double>(time.ticks().count());
    return static_cast<std::int64_t>(
        std::floor((ticks + 0.5) / kComparisonTimescale * av_q2d(rate)));
}

} // namespace

std::string timecodeAt(const std::string& first, AVRational rate, Time start,
                       AVRational outputRate) {
    silenceLog();
    AVTimecode timecode;
    if (!canCount(first, rate) ||
        av_timecode_init_from_string(&timecode, rate, first.c_str(), nullptr) < 0)
        return {};
    std::array<char, AV_TIMECODE_STR_SIZE> text = {};
    timecode.flags |= AV_TIMECODE_FLAG_24HOURSMAX;
    const std::int64_t pictures = picturesBefore(start, rate);
    if (pictures > INT_MAX - timecode.start)
        return {};
    av_timecode_make_string(&timecode, text.data(), static_cast<int>(pictures));
    std::string label(text.data());
    // Labels are left out to keep up with a clock at 1000/1001 of a whole rate, and only there.
    if (outputRate.den == 1)
        std::ranges::replace(label, ';', ':');
    return canCount(label, outputRate) ? label : std::string();
}

} // namespace media::ffmpeg
