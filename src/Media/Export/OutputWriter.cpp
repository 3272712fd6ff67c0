#include "Media/Export/OutputWriter.h"

#include "Media/FFmpeg/FileState.h"
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

/// A hint: file systems that do not support it write back when they choose to.
void startWriteback(int descriptor, std::int64_t position, std::int64_t count) {
    ::sync_file_range(descriptor, position, count, SYNC_FILE_RANGE_WRITE);
}

} // namespace

int OutputWriter::write(const std::uint8_t* data, std::int64_t count) {
    while (count > 0) {
        const ssize_t written =
            ::pwrite(m_file.number(), data, static_cast<std::size_t>(count), m_position);
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
        startWriteback(m_file.number(), m_writebackEnd, m_size - m_writebackEnd);
        m_writebackEnd = m_size;
    }
    return 0;
}

void OutputWriter::startFlush() {
    startWriteback(m_file.number(), 0, m_size);
}

std::shared_ptr<const ffmpeg::SourceFile> OutputWriter::reader() const {
    struct stat status = {};
    Descriptor descriptor(::fcntl(m_file.number(), F_DUPFD_CLOEXEC, 0));
    if (!descriptor.isOpen() || readState(descriptor, status) != 0)
        throw WriteRefusal(errno);
    return std::make_shared<const ffmpeg::SourceFile>(std::move(descriptor),
                                                      std::filesystem::path(), status);
}

} // namespace media
