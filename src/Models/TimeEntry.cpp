#include "Models/TimeEntry.h"

#include <algorithm>
#include <charconv>
#include <string>
#include <string_view>

namespace brisklet {

namespace {

/// Of a whole number: more could exceed what the types hold.
constexpr std::size_t kMostDigits = 15;

/// The text in the letters of the grammar; none if it has others.
std::optional<std::string> inPlainLetters(QStringView text) {
    constexpr QChar kArabicDecimalSeparator(0x066b);
    constexpr QChar kMinus(0x2212);
    std::string result;
    for (const QChar letter : text) {
        if (const int digit = letter.digitValue(); digit >= 0)
            result += static_cast<char>('0' + digit);
        else if (letter == u',' || letter == kArabicDecimalSeparator)
            result += '.';
        else if (letter == kMinus)
            result += '-';
        else if (letter == u'F')
            result += 'f';
        else if (QStringView(u".:+-#f").contains(letter))
            result += letter.toLatin1();
        else
            return std::nullopt;
    }
    return result;
}

bool hasDigitsOnly(std::string_view text) {
    return std::ranges::all_of(text, [](char letter) { return letter >= '0' && letter <= '9'; });
}

std::optional<std::int64_t> wholeNumber(std::string_view text) {
    if (text.empty() || text.size() > kMostDigits || !hasDigitsOnly(text))
        return std::nullopt;
    std::int64_t result = 0;
    std::from_chars(text.data(), text.data() + text.size(), result);
    return result;
}

/// With decimals or without; the digits on one side of the point may be missing.
std::optional<double> decimalNumber(std::string_view text) {
    const std::string_view whole = text.substr(0, text.find('.'));
    const std::string_view decimals = text.substr(std::min(text.size(), whole.size() + 1));
    if ((whole.empty() && decimals.empty()) || whole.size() > kMostDigits ||
        !hasDigitsOnly(whole) || !hasDigitsOnly(decimals))
        return std::nullopt;
    std::string digits = "0";
    digits.append(whole).append(".").append(decimals).append("0");
    double result = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), result);
    return result;
}

/// Hours and minutes, where there are any, and seconds.
std::optional<double> clockTime(std::string_view text) {
    constexpr int kMostParts = 3;
    constexpr double kPerUnit = 60;
    double total = 0;
    for (int part = 0; part < kMostParts; ++part) {
        const std::size_t colon = text.find(':');
        const bool isLast = colon == std::string_view::npos;
        std::optional<double> value;
        if (isLast)
            value = decimalNumber(text);
        else if (const auto whole = wholeNumber(text.substr(0, colon)))
            value = static_cast<double>(*whole);
        if (!value || (part > 0 && *value >= kPerUnit))
            return std::nullopt;
        total = total * kPerUnit + *value;
        if (isLast)
            return total;
        text.remove_prefix(colon + 1);
    }
    return std::nullopt;
}

std::optional<TimeEntry> offset(int sign, std::string_view text) {
    if (text.ends_with('f')) {
        const auto frames = wholeNumber(text.substr(0, text.size() - 1));
        if (!frames)
            return std::nullopt;
        return TimeEntry{.kind = TimeEntry::Kind::frameOffset, .frames = sign * *frames};
    }
    const auto seconds = clockTime(text);
    if (!seconds)
        return std::nullopt;
    return TimeEntry{.kind = TimeEntry::Kind::timeOffset, .seconds = sign * *seconds};
}

} // namespace

std::optional<TimeEntry> TimeEntry::parse(QStringView text) {
    const auto letters = inPlainLetters(text.trimmed());
    if (!letters || letters->empty())
        return std::nullopt;
    const std::string_view rest = std::string_view(*letters).substr(1);
    switch (letters->front()) {
    case '+':
        return offset(1, rest);
    case '-':
        return offset(-1, rest);
    case '#': {
        const auto number = wholeNumber(rest);
        return number ? std::optional(TimeEntry{.kind = Kind::frameNumber, .frames = *number})
                      : std::nullopt;
    }
    default: {
        const auto seconds = clockTime(*letters);
        return seconds ? std::optional(TimeEntry{.kind = Kind::time, .seconds = *seconds})
                       : std::nullopt;
    }
    }
}

} // namespace brisklet
