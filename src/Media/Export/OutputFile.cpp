#include "Media/Export/OutputFile.h"

#include "Media/Error.h"
#include "Media/FFmpeg/Check.h"
#include "Media/FFmpeg/SourceFile.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <random>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace media {

namespace {

/// So much is written before the disk is asked to start on it: the flush at the end then finds
/// little left to do.
constexpr std::int64_t kWritebackBytes = 8 * 1024 * 1024;

[[noreturn]] void throwWriteError(int code) {
    switch (code) {
    case ENOENT:
    case ENOTDIR:
        throw Error("The folder for the new file doesn’t exist.");
    case EACCES:
    case EPERM:
        throw Error("You don’t have permission to write to this folder.");
    case EROFS:
        throw Error("The disk is write-protected.");
    case EISDIR:
        throw Error("A folder has the name of the new file.");
    case ENAMETOOLONG:
        throw Error("The file name is too long.");
    default:
        throw Error(ffmpeg::sentenceFor(-code));
    }
}

/// The file itself where the destination is a link to one.
std::filesystem::path resolved(const std::filesystem::path& destination) {
    std::error_code ignored;
    if (!std::filesystem::is_symlink(destination, ignored))
        return destination;
    auto target = std::filesystem::weakly_canonical(destination, ignored);
    return ignored ? destination : target;
}

/// Advice only: a file system that does not know it writes when it likes.
void startWriteback(int descriptor, std::int64_t position, std::int64_t count) {
    ::sync_file_range(descriptor, position, count, SYNC_FILE_RANGE_WRITE);
}

std::string randomName() {
    constexpr std::string_view kLetters = "abcdefghijklmnopqrstuvwxyz0123456789";
    std::random_device random;
    std::uniform_int_distribution<std::size_t> letter(0, kLetters.size() - 1);
    std::string name = ".brisklet-";
    for (int i = 0; i < 10; ++i)
        name += kLetters[letter(random)];
    return name + ".part";
}

} // namespace

OutputFile::OutputFile(const std::filesystem::path& destination)
    : m_destination(resolved(destination)) {
    struct stat status = {};
    if (::stat(m_destination.c_str(), &status) == 0) {
        if (S_ISDIR(status.st_mode))
            throwWriteError(EISDIR);
        if (!S_ISREG(status.st_mode))
            throw Error("Something that is not a regular file has the name of the new file.");
    } else if (errno != ENOENT) {
        throwWriteError(errno);
    }
    const std::filesystem::path folder =
        m_destination.has_parent_path() ? m_destination.parent_path() : ".";
    constexpr int kAttempts = 100;
    for (int attempt = 0; m_descriptor < 0 && attempt < kAttempts; ++attempt) {
        m_temporary = folder / randomName();
        m_descriptor = ::open(m_temporary.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (m_descriptor < 0 && errno != EEXIST)
            throwWriteError(errno);
    }
    if (m_descriptor < 0)
        throwWriteError(EEXIST);
}

OutputFile::~OutputFile() {
    discard();
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

void OutputFile::discard() {
    if (!m_temporary.empty())
        ::unlink(m_temporary.c_str());
    m_temporary.clear();
}

int OutputFile::write(const std::uint8_t* data, std::int64_t count) {
    while (count > 0) {
        const ssize_t written =
            ::pwrite(m_descriptor, data, static_cast<std::size_t>(count), m_position);
        if (written < 0) {
            if (errno == EINTR)
                continue;
            return errno;
        }
        data += written;
        count -= written;
        m_position += written;
    }
    m_size = std::max(m_size, m_position);
    if (m_size - m_writebackEnd >= kWritebackBytes) {
        startWriteback(m_descriptor, m_writebackEnd, m_size - m_writebackEnd);
        m_writebackEnd = m_size;
    }
    return 0;
}

void OutputFile::startFlush() {
    startWriteback(m_descriptor, 0, m_size);
}

std::shared_ptr<const ffmpeg::SourceFile> OutputFile::reader() const {
    struct stat status = {};
    const int descriptor = ::fcntl(m_descriptor, F_DUPFD_CLOEXEC, 0);
    if (descriptor < 0)
        throwWriteError(errno);
    if (::fstat(descriptor, &status) != 0) {
        const int code = errno;
        ::close(descriptor);
        throwWriteError(code);
    }
    return std::make_shared<const ffmpeg::SourceFile>(descriptor, m_temporary, status);
}

void OutputFile::commit() {
    if (::fsync(m_descriptor) != 0)
        throwWriteError(errno);
    const int descriptor = std::exchange(m_descriptor, -1);
    if (::close(descriptor) != 0)
        throwWriteError(errno);
    if (::rename(m_temporary.c_str(), m_destination.c_str()) != 0)
        throwWriteError(errno);
    m_temporary.clear();
    // The new name itself is brought to disk too; where that is not possible the file is there
    // all the same.
    const std::filesystem::path folder =
        m_destination.has_parent_path() ? m_destination.parent_path() : ".";
    const int folderDescriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folderDescriptor >= 0) {
        ::fsync(folderDescriptor);
        ::close(folderDescriptor);
    }
}

} // namespace media
