#include "Media/Export/WriteError.h"

#include "Media/Error.h"
#include "Media/FFmpeg/FileName.h"

#include <cerrno>
#include <string>
#include <system_error>

namespace media {

namespace {

std::string folderNameOf(const std::filesystem::path& file) {
    std::error_code ignored;
    const auto folder = std::filesystem::absolute(folderOf(file), ignored).lexically_normal();
    return ffmpeg::shownName(folder);
}

} // namespace

std::filesystem::path folderOf(const std::filesystem::path& file) {
    return file.has_parent_path() ? file.parent_path() : ".";
}

void throwWriteError(int code, const std::filesystem::path& destination) {
    std::error_code ignored;
    if (code == ENOENT && std::filesystem::is_directory(folderOf(destination), ignored))
        throw Error(ErrorKind::newFileRemoved);
    switch (code) {
    case ENOENT:
    case ENOTDIR:
        throw Error(ErrorKind::folderMissing, {folderNameOf(destination)});
    case EACCES:
    case EPERM:
        throw Error(ErrorKind::noPermissionToWrite, {folderNameOf(destination)});
    case EROFS:
        throw Error(ErrorKind::writeProtected, {folderNameOf(destination)});
    case EISDIR:
        throw Error(ErrorKind::destinationIsFolder);
    case ENAMETOOLONG:
        throw Error(ErrorKind::newNameTooLong);
    case EIO:
        throw Error(ErrorKind::diskErrorWhileWriting);
    case ENOSPC:
    case EDQUOT:
        throw Error(ErrorKind::diskFull);
    case EFBIG:
        throw Error(ErrorKind::fileTooLarge);
    case ENOMEM:
        throw Error(ErrorKind::notEnoughMemory);
    default:
        throw Error(becauseOf(ErrorKind::newFileNotWritten, reasonOf(code)));
    }
}

} // namespace media
