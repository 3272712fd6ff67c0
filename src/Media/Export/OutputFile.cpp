#include "Media/Export/OutputFile.h"

#include "Media/Error.h"
#include "Media/Export/WriteError.h"
#include "Media/FFmpeg/SourceFile.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace media {

namespace {

/// How much is written before the kernel is asked to start writing it back to disk, so that little
/// is left for the flush at the end.
constexpr std::int64_t kWritebackBytes = std::int64_t{8} * 1024 * 1024;

/// The file itself where the destination is a link to one.
std::filesystem::path resolved(const std::filesystem::path& destination) {
    std::error_code ignored;
    if (!std::filesystem::is_symlink(destination, ignored))
        return destination;
    auto target = std::filesystem::weakly_canonical(destination, ignored);
    return ignored ? destination : target;
}

/// The destination, if it can become the name of a new file. Throws Error.
std::filesystem::path checked(std::filesystem::path destination) {
    struct stat status = {};
    if (::stat(destination.c_str(), &status) != 0) {
        if (errno != ENOENT)
            throwWriteError(errno, destination);
    } else if (S_ISDIR(status.st_mode)) {
        throwWriteError(EISDIR, destination);
    } else if (!S_ISREG(status.st_mode)) {
        throw Error(ErrorKind::destinationIsNoRegularFile);
    }
    return destination;
}

/// A hint: file systems that do not support it write back when they choose to.
void startWriteback(int descriptor, std::int64_t position, std::int64_t count) {
    ::sync_file_range(descriptor, position, count, SYNC_FILE_RANGE_WRITE);
}

} // namespace

OutputFile::OutputFile(const std::filesystem::path& destination)
    : m_destination(checked(resolved(destination))), m_file(m_destination, destination) {}

OutputFile::~OutputFile() = default;

void OutputFile::discard() {
    m_file.remove();
}

void OutputFile::throwError(int code) const {
    throwWriteError(code, m_destination);
}

int OutputFile::write(const std::uint8_t* data, std::int64_t count) {
    while (count > 0) {
        const ssize_t written =
            ::pwrite(m_file.descriptor(), data, static_cast<std::size_t>(count), m_position);
        if (written < 0) {
            if (errno == EINTR)
                continue;
            return errno;
        }
        // It would be tried for ever.
        if (written == 0)
            return EIO;
        data += written;
        count -= written;
        m_position += written;
    }
    m_size = std::max(m_size, m_position);
    if (m_size - m_writebackEnd >= kWritebackBytes) {
        startWriteback(m_file.descriptor(), m_writebackEnd, m_size - m_writebackEnd);
        m_writebackEnd = m_size;
    }
    return 0;
}

void OutputFile::startFlush() {
    startWriteback(m_file.descriptor(), 0, m_size);
}

std::shared_ptr<const ffmpeg::SourceFile> OutputFile::reader() const {
    struct stat status = {};
    Descriptor descriptor(::fcntl(m_file.descriptor(), F_DUPFD_CLOEXEC, 0));
    if (!descriptor.isOpen() || ::fstat(descriptor.number(), &status) != 0)
        throwError(errno);
    return std::make_shared<const ffmpeg::SourceFile>(std::move(descriptor), m_destination, status);
}

void OutputFile::commit() {
    if (const int error = m_file.takeName(); error != 0)
        throwError(error);
    // The folder's new entry is flushed as well. Where that fails the file is complete all the
    // same.
    const Descriptor folder(
        ::open(folderOf(m_destination).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (folder.isOpen())
        ::fsync(folder.number());
}

} // namespace media
