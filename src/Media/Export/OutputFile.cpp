#include "Media/Export/OutputFile.h"

#include "Media/Error.h"
#include "Media/Export/WriteError.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace media {

namespace {

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

} // namespace

OutputFile::OutputFile(const std::filesystem::path& destination)
    : m_destination(checked(resolved(destination))),
      m_file(m_destination, destination),
      m_writer(duplicate()) {}

OutputFile::~OutputFile() = default;

Descriptor OutputFile::duplicate() const {
    Descriptor descriptor(::fcntl(m_file.descriptor(), F_DUPFD_CLOEXEC, 0));
    if (!descriptor.isOpen())
        throwError(errno);
    return descriptor;
}

void OutputFile::discard() {
    m_file.remove();
}

void OutputFile::throwError(int code) const {
    throwWriteError(code, m_destination);
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
