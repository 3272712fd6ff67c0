#include "Tools/cli/Files.h"

#include "Media/Error.h"
#include "Support/FileUrl.h"
#include "Support/LocalizedMessage.h"
#include "Tools/cli/Commands.h"
#include "Tools/cli/ToolText.h"

#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <memory>
#include <system_error>

namespace brisklet::cli {

namespace {

struct Close {
    void operator()(std::FILE* file) const noexcept { std::fclose(file); }
};

std::string reasonText(int code) {
    return localizedReason({code, std::generic_category()}).toStdString();
}

[[noreturn]] void throwWriteError(const std::filesystem::path& path, int code) {
    throw CommandError(
        message(ToolText::tr("Couldn’t write “%1”: %2."), {shownName(path), reasonText(code)}));
}

} // namespace

std::string shownName(const std::filesystem::path& path) {
    return brisklet::shownName(urlOf(path)).toStdString();
}

std::shared_ptr<const media::Asset> openSource(const std::filesystem::path& path,
                                               const std::stop_token& stop) {
    try {
        return media::Asset::open(path, stop);
    } catch (const media::Error& error) {
        //: %1: the file’s name; %2: the reason, a whole sentence.
        throw CommandError(message(ToolText::tr("Couldn't open “%1”: %2"),
                                   {shownName(path), localizedMessage(error).toStdString()}));
    }
}

void writeFile(const std::filesystem::path& path, const QByteArray& content) {
    std::unique_ptr<std::FILE, Close> file(std::fopen(path.c_str(), "wbe"));
    if (!file)
        throwWriteError(path, errno);
    const auto size = static_cast<std::size_t>(content.size());
    // A full disk may show only when the rest of the buffer is written.
    if (std::fwrite(content.constData(), 1, size, file.get()) != size ||
        std::fflush(file.get()) != 0)
        throwWriteError(path, errno);
    if (std::fclose(file.release()) != 0)
        throwWriteError(path, errno);
}

void writeToStandardOutput(const QByteArray& content) {
    const auto size = static_cast<std::size_t>(content.size());
    if (std::fwrite(content.constData(), 1, size, stdout) != size || std::fflush(stdout) != 0)
        throw CommandError(
            message(ToolText::tr("Couldn’t write the answer: %1."), {reasonText(errno)}));
}

} // namespace brisklet::cli
