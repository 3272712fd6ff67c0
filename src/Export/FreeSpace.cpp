#include "Export/FreeSpace.h"

#include "Media/Error.h"
#include "Support/ApproximateFormatting.h"

#include <sys/statvfs.h>
#include <system_error>

namespace brisklet {

namespace {

/// A forecast is within a quarter of the true size in nine cases of ten. With less free than this
/// share of it the export would almost certainly fail.
constexpr double kClearlyTooLittle = 0.7;

/// Where the new file will lie: links lead to the file that is replaced.
std::filesystem::path folderOf(const std::filesystem::path& output) {
    std::error_code ignored;
    const bool isLink = std::filesystem::is_symlink(output, ignored);
    const auto file = isLink ? std::filesystem::weakly_canonical(output, ignored) : output;
    const auto folder = file.parent_path();
    return folder.empty() ? std::filesystem::path(".") : folder;
}

} // namespace

void expectSpaceFor(std::int64_t expectedBytes, const std::filesystem::path& output) {
    struct statvfs status = {};
    if (::statvfs(folderOf(output).c_str(), &status) != 0 || status.f_blocks == 0)
        return;
    const double free = static_cast<double>(status.f_bavail) * static_cast<double>(status.f_frsize);
    if (free >= kClearlyTooLittle * static_cast<double>(expectedBytes))
        return;
    throw media::Error(media::ErrorKind::notEnoughSpace,
                       {approximateSize(expectedBytes).toStdString(),
                        approximateSize(static_cast<std::int64_t>(free)).toStdString()});
}

} // namespace brisklet
