#include "CommandLine.h"

#include "Support/FileUrl.h"

#include <QCoreApplication>

#include <string_view>

namespace brisklet {

CommandLine CommandLine::parse(std::span<const char* const> arguments) {
    CommandLine result;
    bool takesOptions = true;
    for (const std::string_view argument : arguments) {
        // Wherever it stands.
        if (argument == "--install-quick-action") {
            result.installsQuickAction = true;
            continue;
        }
        const bool isOption = takesOptions && argument.size() > 1 && argument.front() == '-';
        if (argument.empty())
            continue;
        if (!isOption)
            result.files.push_back(urlOfArgument(argument));
        else if (argument == "--")
            takesOptions = false;
        else if (argument == "--help" || argument == "-h")
            result.wantsHelp = true;
        else if (argument == "--version")
            result.wantsVersion = true;
        else if (!result.unknownOption)
            result.unknownOption = argument;
    }
    return result;
}

std::string usage() {
    //: What --help prints. The options stay as they are; lines have at most 79 letters.
    return QCoreApplication::translate("brisklet::CommandLine",
                                       "Usage: brisklet [VIDEO...]\n"
                                       "Trims videos. Each VIDEO opens in a window of its own.\n"
                                       "\n"
                                       "  --install-quick-action  add \"Trim Video\" to the menus "
                                       "of file managers and exit\n"
                                       "  --help                  print this and exit\n"
                                       "  --version               print the version and exit\n")
        .toStdString();
}

} // namespace brisklet
