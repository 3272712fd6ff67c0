#include "Models/TimeEntry.h"

#include "Media/Threading/Verify.h"

#include <QString>

#include <cmath>
#include <cstdint>

using brisklet::TimeEntry;

/// The field for a time: what is accepted is finite, and spaces around it change nothing.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const auto entry = TimeEntry::parse(text);
    media::verify(TimeEntry::parse(u' ' + text + u'\t') == entry, "spaces do not matter");
    if (!entry)
        return 0;
    media::verify(std::isfinite(entry->seconds), "a time is finite");
    const bool isOffset =
        entry->kind == TimeEntry::Kind::timeOffset || entry->kind == TimeEntry::Kind::frameOffset;
    media::verify(isOffset || (entry->seconds >= 0 && entry->frames >= 0), "only offsets go back");
    return 0;
}
