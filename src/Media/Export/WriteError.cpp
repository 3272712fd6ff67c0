#include "Media/Export/WriteError.h"

#include "Media/Error.h"
#include "Media/FFmpeg/Check.h"
#include "Media/FFmpeg/FileName.h"

#include <cerrno>
#include <string>
#include <system_error>

namespace media {

namespace {

std::string quotedFolderOf(const std::filesystem::path& file) {
    std::error_code ignored;
    const auto folder = std::filesystem::absolute(folderOf(file), ignored).lexically_normal();
    return ffmpeg::quoted(folder);
}

} // namespace

std::filesystem::path folderOf(const std::filesystem::path& file) {
    return file.has_parent_path() ? file.parent_path() : ".";
}

void throwWriteError(int code, const std::filesystem::path& destination) {
    std::error_code ignored;
    if (code == ENOENT && std::filesystem::is_directory(folderOf(destination), ignored))
        throw Error("The unfinished new file was removed by another program.");
    switch (code) {
    case ENOENT:
    case ENOTDIR:
        throw Error("The folder " + quotedFolderOf(destination) +
                    " for the new file doesn’t exist.");
    case EACCES:
    case EPERM:
        throw Error("You don’t have permission to write to the folder " +
                    quotedFolderOf(destination) + ".");
    case EROFS:
        throw Error("The disk with the folder " + quotedFolderOf(destination) +
                    " is write-protected.");
    case EISDIR:
        throw Error("A folder has the name of the new file.");
    case ENAMETOOLONG:
        throw Error("The name of the new file is too long.");
    case EIO:
        throw Error("The disk reported an error while the new file was being written.");
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
    case ENOMEM:
        throw Error(ffmpeg::sentenceFor(-code));
    default:
        throw Error("The new file can’t be written: " + ffmpeg::sentenceFor(-code));
    }
}

} // namespace media
