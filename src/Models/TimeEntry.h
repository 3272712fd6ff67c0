#pragma once

#include <QStringView>

#include <cstdint>
#include <optional>

namespace brisklet {

/// A place in a video as somebody types it.
struct TimeEntry {
    enum class Kind {
        time,        ///< "1:23.456", "83.456", "1:02:03": `seconds` from the start of the file.
        timeOffset,  ///< "+1.5", "-0:10": `seconds` from the playhead.
        frameOffset, ///< "+10f", "-5f": `frames` from the one shown.
        frameNumber  ///< "#2412": `frames` from the first of the file.
    };

    Kind kind = Kind::time;
    double seconds = 0;
    std::int64_t frames = 0;

    /// None for text that is nothing of that kind. The decimals may follow a comma, the digits be
    /// those of any script; minutes and seconds after a colon are below 60. Any text will do: no
    /// number is too long. The locale doesn't matter.
    static std::optional<TimeEntry> parse(QStringView text);

    friend bool operator==(const TimeEntry&, const TimeEntry&) = default;
};

} // namespace brisklet
