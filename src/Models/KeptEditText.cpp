#include "Models/KeptEditText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <concepts>
#include <optional>
#include <span>
#include <system_error>
#include <utility>

namespace brisklet {

namespace {

constexpr std::string_view kFormatName = "brisklet-edits ";
constexpr unsigned kFormatVersion = 1;

/// Takes the part of `text` before the next `separator` off it; all of it where there is none.
std::string_view takeUntil(std::string_view& text, char separator) {
    const std::size_t end = text.find(separator);
    const std::string_view part = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    return part;
}

template<typename Number>
std::optional<Number> numberOf(std::string_view text) {
    Number number{};
    const char* const end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number);
    if (result.ec != std::errc() || result.ptr != end)
        return std::nullopt;
    if constexpr (std::floating_point<Number>) {
        if (!std::isfinite(number))
            return std::nullopt;
    }
    return number;
}

template<typename Number>
void append(std::string& text, Number number) {
    std::array<char, 32> digits{};
    const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), number);
    text.append(digits.data(), result.ptr);
}

bool isPlain(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '/' ||
           c == '.' || c == '-' || c == '_';
}

void appendPath(std::string& text, const std::string& path) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    for (const char c : path) {
        if (isPlain(c)) {
            text += c;
            continue;
        }
        const auto byte = static_cast<unsigned char>(c);
        text += {'%', kDigits[byte / 16U], kDigits[byte % 16U]};
    }
}

std::optional<std::string> pathIn(std::string_view text) {
    std::string path;
    while (!text.empty()) {
        const char c = text.front();
        text.remove_prefix(1);
        if (isPlain(c)) {
            path += c;
            continue;
        }
        unsigned char byte = 0;
        if (c != '%' || text.size() < 2)
            return std::nullopt;
        const auto result = std::from_chars(text.data(), text.data() + 2, byte, 16);
        if (result.ec != std::errc() || result.ptr != text.data() + 2 || byte == 0)
            return std::nullopt;
        path += static_cast<char>(byte);
        text.remove_prefix(2);
    }
    const bool isPossible = path.starts_with('/') && path.size() <= KeptEditText::kLongestPath;
    return isPossible ? std::optional(path) : std::nullopt;
}

std::optional<media::Rect> rectIn(std::string_view text) {
    std::array<double, 4> numbers{};
    for (double& number : numbers) {
        const auto read = numberOf<double>(takeUntil(text, ','));
        if (!read)
            return std::nullopt;
        number = *read;
    }
    if (!text.empty())
        return std::nullopt;
    return media::Rect{numbers[0], numbers[1], numbers[2], numbers[3]};
}

template<typename Value>
bool assign(Value& target, const std::optional<Value>& value) {
    if (value)
        target = *value;
    return value.has_value();
}

/// Reads one field into the record; false if its value is none.
bool readField(std::string_view name, std::string_view value, KeptRecord& record) {
    KeptEdit& kept = record.edit;
    Edit& edit = kept.edit;
    if (name == "file") {
        const auto path = pathIn(value);
        kept.file = path.value_or(std::string());
        return path.has_value();
    }
    if (name == "crop") {
        edit.cropRect = rectIn(value);
        return edit.cropRect.has_value();
    }
    if (name == "muted") {
        edit.isMuted = value == "1";
        return value == "0" || value == "1";
    }
    if (name == "turn")
        return assign(edit.rotation, numberOf<int>(value));
    const std::array<std::pair<std::string_view, std::uint64_t*>, 5> wholes{
        {{"id", &kept.id},
         {"session", &record.session},
         {"device", &kept.identity.device},
         {"inode", &kept.identity.inode},
         {"size", &kept.identity.size}}};
    for (const auto& [known, number] : wholes) {
        if (name == known)
            return assign(*number, numberOf<std::uint64_t>(value));
    }
    const std::array<std::pair<std::string_view, double*>, 4> times{{{"duration", &kept.duration},
                                                                     {"start", &edit.trimStart},
                                                                     {"end", &edit.trimEnd},
                                                                     {"playhead", &kept.playhead}}};
    for (const auto& [known, seconds] : times) {
        if (name == known)
            return assign(*seconds, numberOf<double>(value));
    }
    return true;
}

/// Rounding may let a crop reach a little beyond the picture.
bool isPossible(const media::Rect& crop) {
    constexpr double kRounding = 1e-9;
    return crop.width > 0 && crop.height > 0 &&
           media::Rect{0, 0, 1, 1}.insetBy(-kRounding, -kRounding).contains(crop);
}

bool isPossible(const KeptEdit& kept) {
    const Edit& edit = kept.edit;
    constexpr std::array kTurns{0, 90, 180, 270};
    const bool isFinite =
        std::isfinite(kept.duration) && std::isfinite(edit.trimEnd) && std::isfinite(kept.playhead);
    return isFinite && kept.id != 0 && !kept.file.empty() && kept.duration >= 0 &&
           edit.trimStart >= 0 && edit.trimStart <= edit.trimEnd && kept.playhead >= 0 &&
           std::ranges::find(kTurns, edit.rotation) != kTurns.end() &&
           (!edit.cropRect || isPossible(*edit.cropRect));
}

std::optional<KeptRecord> recordIn(std::string_view line) {
    KeptRecord record;
    while (!line.empty()) {
        std::string_view value = takeUntil(line, ' ');
        const std::string_view name = takeUntil(value, '=');
        if (!readField(name, value, record))
            return std::nullopt;
    }
    return isPossible(record.edit) ? std::optional(record) : std::nullopt;
}

std::string lineOf(const KeptRecord& record) {
    const KeptEdit& kept = record.edit;
    const Edit& edit = kept.edit;
    std::string line;
    const auto add = [&line](std::string_view name, auto number) {
        line.append(name);
        append(line, number);
    };
    add("id=", kept.id);
    add(" session=", record.session);
    line += " file=";
    appendPath(line, kept.file.string());
    add(" device=", kept.identity.device);
    add(" inode=", kept.identity.inode);
    add(" size=", kept.identity.size);
    add(" duration=", kept.duration);
    add(" start=", edit.trimStart);
    add(" end=", edit.trimEnd);
    if (const auto& crop = edit.cropRect) {
        add(" crop=", crop->x);
        add(",", crop->y);
        add(",", crop->width);
        add(",", crop->height);
    }
    add(" turn=", edit.rotation);
    line += edit.isMuted ? " muted=1" : " muted=0";
    add(" playhead=", kept.playhead);
    return line + '\n';
}

} // namespace

KeptEditText KeptEditText::parse(std::string_view bytes) {
    KeptEditText result;
    if (bytes.empty())
        return result;
    const bool isTooLong = bytes.size() > kMostBytes;
    std::string_view heading = takeUntil(bytes, '\n');
    const bool hasName = heading.starts_with(kFormatName);
    heading.remove_prefix(hasName ? kFormatName.size() : 0);
    const auto version = numberOf<unsigned>(heading);
    result.isNewer = hasName && version && *version > kFormatVersion;
    result.isDamaged = !hasName || !version || *version == 0 || isTooLong;
    if (result.isNewer || result.isDamaged)
        return result;
    while (!bytes.empty() && result.records.size() < kMostRecords) {
        // The last line of a file that was cut off would be read wrongly.
        const bool isWhole = bytes.find('\n') != std::string_view::npos;
        const auto record = recordIn(takeUntil(bytes, '\n'));
        if (isWhole && record)
            result.records.push_back(*record);
        else
            result.isDamaged = true;
    }
    result.isDamaged = result.isDamaged || !bytes.empty();
    return result;
}

std::string KeptEditText::format(const std::vector<KeptRecord>& records) {
    std::string text(kFormatName);
    append(text, kFormatVersion);
    text += '\n';
    const std::size_t count = std::min(records.size(), kMostRecords);
    for (const KeptRecord& record : std::span(records).last(count)) {
        if (isPossible(record.edit))
            text += lineOf(record);
    }
    return text;
}

} // namespace brisklet
