#pragma once

#include <array>
#include <string>

namespace testsupport {

/// Names of files that something could take for more than a name: markup, placeholders, mnemonics,
/// a line break, a turned direction, a command to a terminal, bytes that are no text; and the
/// longest one.
inline std::array<std::string, 9> oddNames() {
    return {"<b>x<b>&amp;<a href='x'>.mp4",
            "&File.mp4",
            "%1 %n %2.mp4",
            "a[*]b.mp4",
            "a\nb.mp4",
            "\u202Egpj.mp4",
            "\x1b[31m.mp4",
            "\xff\xfe\xc3.mp4",
            std::string(251, 'x') + ".mp4"};
}

} // namespace testsupport
