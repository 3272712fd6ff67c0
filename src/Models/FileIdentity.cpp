#include "Models/FileIdentity.h"

#include <sys/stat.h>

namespace brisklet {

std::optional<FileIdentity> identityOf(const std::filesystem::path& path) {
    struct stat status = {};
    if (::stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    return FileIdentity{.device = std::uint64_t{status.st_dev},
                        .inode = std::uint64_t{status.st_ino},
                        .size = static_cast<std::uint64_t>(status.st_size)};
}

} // namespace brisklet
