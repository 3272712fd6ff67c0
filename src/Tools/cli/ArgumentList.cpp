#include "Tools/cli/ArgumentList.h"

#include "Tools/cli/Arguments.h"
#include "Tools/cli/ToolText.h"

#include <charconv>
#include <cmath>
#include <cstddef>

namespace brisklet::cli {

namespace {

template<typename Number>
std::optional<Number> parsed(std::string_view text) {
    Number number = {};
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number);
    if (result.ec != std::errc() || result.ptr != end)
        return std::nullopt;
    return number;
}

} // namespace

std::optional<double> parseNumber(std::string_view text) {
    const auto number = parsed<double>(text);
    return number && std::isfinite(*number) ? number : std::nullopt;
}

ArgumentList::ArgumentList(std::span<char* const> arguments, const Options& options) {
    bool takesOptions = true;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string argument = arguments[i];
        if (!takesOptions || argument.size() < 2 || argument.front() != '-') {
            m_operands.push_back(argument);
        } else if (argument == "--") {
            takesOptions = false;
        } else {
            bool takesNext = false;
            addOption(argument, i + 1 < arguments.size() ? arguments[i + 1] : nullptr, options,
                      takesNext);
            i += takesNext ? 1 : 0;
        }
    }
}

void ArgumentList::addOption(const std::string& argument, const char* next, const Options& options,
                             bool& takesNext) {
    const std::size_t equals = argument.find('=');
    const std::string name = argument.substr(0, equals);
    const bool isFlag = options.flags.contains(name);
    if (!isFlag && !options.withValue.contains(name))
        throw UsageError(message(ToolText::tr("unknown option %1"), {name}));
    if (isFlag && equals != std::string::npos)
        throw UsageError(message(ToolText::tr("%1 takes no value"), {name}));
    std::string value;
    if (!isFlag && equals != std::string::npos) {
        value = argument.substr(equals + 1);
    } else if (!isFlag) {
        if (!next)
            //: %1: an option, such as “--start”. So it is in what follows.
            throw UsageError(message(ToolText::tr("%1 needs a value"), {name}));
        value = next;
        takesNext = true;
    }
    if (!m_values.emplace(name, value).second)
        throw UsageError(message(ToolText::tr("%1 is given twice"), {name}));
}

std::optional<std::string> ArgumentList::value(std::string_view option) const {
    const auto found = m_values.find(option);
    return found == m_values.end() ? std::nullopt : std::optional(found->second);
}

std::optional<double> ArgumentList::number(std::string_view option) const {
    const auto text = value(option);
    if (!text)
        return std::nullopt;
    const auto result = parseNumber(*text);
    if (!result)
        throw UsageError(
            message(ToolText::tr("%1 needs a number, not \"%2\""), {std::string(option), *text}));
    return result;
}

std::optional<int> ArgumentList::integer(std::string_view option) const {
    const auto text = value(option);
    if (!text)
        return std::nullopt;
    const auto result = parsed<int>(*text);
    if (!result)
        throw UsageError(message(ToolText::tr("%1 needs a whole number, not \"%2\""),
                                 {std::string(option), *text}));
    return result;
}

} // namespace brisklet::cli
