#pragma once

#include <map>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace brisklet::cli {

/// Arguments sorted into operands and options. Options may stand anywhere before "--", their values
/// behind "=" or as the next argument, whatever that begins with.
class ArgumentList final {
public:
    /// The names of the options that a command takes, with their dashes.
    struct Options {
        std::set<std::string_view> flags;
        std::set<std::string_view> withValue;
    };

    /// Throws UsageError for options that are not among `options`, come twice, or lack a value.
    ArgumentList(std::span<char* const> arguments, const Options& options);

    [[nodiscard]] const std::vector<std::string>& operands() const { return m_operands; }

    [[nodiscard]] bool has(std::string_view option) const { return m_values.contains(option); }

    [[nodiscard]] std::optional<std::string> value(std::string_view option) const;

    /// The value as a finite number or an integer. Throws UsageError if it is not one.
    [[nodiscard]] std::optional<double> number(std::string_view option) const;
    [[nodiscard]] std::optional<int> integer(std::string_view option) const;

private:
    void addOption(const std::string& argument, const char* next, const Options& options,
                   bool& takesNext);

    std::vector<std::string> m_operands;
    std::map<std::string, std::string, std::less<>> m_values;
};

/// `text` as a finite number, with a decimal point in every locale; none if it is not one.
std::optional<double> parseNumber(std::string_view text);

} // namespace brisklet::cli
