#include "Media/FFmpeg/SourceFile.h"

#include "Media/Error.h"
#include "Media/FFmpeg/FileName.h"
#include "Media/FFmpeg/FileState.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace media::ffmpeg {

namespace {

[[noreturn]] void throwOpenError(int code) {
    switch (code) {
    case ENOENT:
    case ENOTDIR:
        throw Error(ErrorKind::fileMissing);
    case EACCES:
    case EPERM:
        throw Error(ErrorKind::noPermissionToRead);
    case ENAMETOOLONG:
        throw Error(ErrorKind::fileNameTooLong);
    case ELOOP:
        throw Error(ErrorKind::brokenLink);
    case ENXIO:
    case ENODEV:
        throw Error(ErrorKind::notARegularFile);
    default:
        throw Error(becauseOf(ErrorKind::unreadableFile, reasonOf(code)));
    }
}

} // namespace

std::shared_ptr<const SourceFile> SourceFile::open(const std::filesystem::path& path) {
    // Looked at before it is opened: opening a device can have effects of its own.
    struct stat status = {};
    if (::stat(path.c_str(), &status) != 0)
        throwOpenError(errno);
    if (S_ISDIR(status.st_mode))
        throw Error(ErrorKind::isAFolder);
    if (!S_ISREG(status.st_mode))
        throw Error(ErrorKind::notARegularFile);
    // Without O_NONBLOCK a pipe put in the file's place meanwhile would block for ever.
    Descriptor descriptor(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    if (!descriptor.isOpen())
        throwOpenError(errno);
    return adopt(std::move(descriptor), path);
}

std::shared_ptr<const SourceFile> SourceFile::adopt(Descriptor descriptor,
                                                    std::filesystem::path path) {
    struct stat status = {};
    if (readState(descriptor, status) != 0 || !S_ISREG(status.st_mode))
        throw Error(ErrorKind::notARegularFile);
    if (status.st_size == 0)
        throw Error(ErrorKind::fileEmpty);
    return std::make_shared<const SourceFile>(std::move(descriptor), std::move(path), status);
}

SourceFile::SourceFile(Descriptor descriptor, std::filesystem::path path, const struct stat& status)
    : m_descriptor(std::move(descriptor)),
      m_path(std::move(path)),
      m_device(status.st_dev),
      m_inode(status.st_ino),
      m_openedSize(status.st_size),
      m_openedMiddle(middle()) {}

SourceFile::~SourceFile() = default;

Descriptor SourceFile::duplicate() const {
    Descriptor descriptor(::fcntl(m_descriptor.number(), F_DUPFD_CLOEXEC, 0));
    if (!descriptor.isOpen())
        throwOpenError(errno);
    return descriptor;
}

std::int64_t SourceFile::size() const {
    struct stat status = {};
    return readState(m_descriptor, status) == 0 ? std::int64_t{status.st_size} : 0;
}

std::int64_t SourceFile::read(std::int64_t offset, std::uint8_t* buffer, std::int64_t count) const {
    for (;;) {
        const ssize_t got =
            ::pread(m_descriptor.number(), buffer, static_cast<std::size_t>(count), offset);
        if (got >= 0)
            return got;
        if (errno != EINTR)
            return -errno;
    }
}

std::string SourceFile::middle() const {
    constexpr std::int64_t kBytes = 4096;
    std::string bytes(kBytes, '\0');
    const std::int64_t offset = std::max<std::int64_t>(0, (m_openedSize - kBytes) / 2);
    // One page is wanted; a slow disk shall not read ahead for it.
    ::posix_fadvise(m_descriptor.number(), 0, 0, POSIX_FADV_RANDOM);
    const std::int64_t got = read(offset, reinterpret_cast<std::uint8_t*>(bytes.data()), kBytes);
    ::posix_fadvise(m_descriptor.number(), 0, 0, POSIX_FADV_NORMAL);
    bytes.resize(static_cast<std::size_t>(std::max<std::int64_t>(0, got)));
    return bytes;
}

void SourceFile::expectUnchanged() const {
    const bool wasHole = m_openedMiddle.find_first_not_of('\0') == std::string::npos;
    const std::string now = wasHole ? m_openedMiddle : middle();
    // What cannot be read is told by whoever needs it.
    if (now.size() == m_openedMiddle.size() && now != m_openedMiddle)
        throw Error(ErrorKind::fileChanged, {shownName(m_path)});
}

void SourceFile::expectOtherFile(const std::filesystem::path& output) const {
    if (isSameFileAs(output))
        throw Error(ErrorKind::exportOverItself);
}

bool SourceFile::isSameFileAs(const std::filesystem::path& other) const {
    struct stat status = {};
    return ::stat(other.c_str(), &status) == 0 && status.st_dev == m_device &&
           status.st_ino == m_inode;
}

} // namespace media::ffmpeg
