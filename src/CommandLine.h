#pragma once

#include <QUrl>

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace brisklet {

/// What the program was started with.
struct CommandLine {
    /// In the order given. The bytes of the names are kept as they are.
    std::vector<QUrl> files;
    bool wantsHelp = false;
    bool wantsVersion = false;
    /// Installs the Quick Action instead of opening a window.
    bool installsQuickAction = false;
    /// The first argument that is no option of the program.
    std::optional<std::string> unknownOption;

    /// `arguments` without the program's own name. "--" ends the options. Relative names are taken
    /// from the current folder; URLs are taken too, of files elsewhere as well.
    static CommandLine parse(std::span<const char* const> arguments);
};

/// What --help prints.
std::string usage();

} // namespace brisklet
