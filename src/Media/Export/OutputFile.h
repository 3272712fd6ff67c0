#pragma once

#include "Media/Export/TemporaryFile.h"

#include <cstdint>
#include <filesystem>
#include <memory>

namespace media {

namespace ffmpeg {
class SourceFile;
}

/// A file that appears under its final name only when it is complete.
///
/// Written to a TemporaryFile in the destination's folder; commit() flushes it to disk and gives it
/// the destination's name, replacing an older file there. Destroyed without commit(), it leaves
/// nothing behind. Use from one thread at a time.
class OutputFile {
public:
    /// Creates the temporary file. Throws Error (a sentence for the user) if the folder is missing
    /// or not writable, if the destination is something else than a regular file, or if another
    /// export, of this process or another, is writing there.
    explicit OutputFile(const std::filesystem::path& destination);
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;
    ~OutputFile();

    /// Writes at the current position; 0, or the errno of the failure.
    int write(const std::uint8_t* data, std::int64_t count);

    void seek(std::int64_t position) { m_position = position; }

    [[nodiscard]] std::int64_t position() const { return m_position; }

    [[nodiscard]] std::int64_t size() const { return m_size; }

    /// Starts to write back to disk what is not there yet, so that commit() waits less.
    void startFlush();

    /// What has been written so far, opened for reading. Throws Error.
    [[nodiscard]] std::shared_ptr<const ffmpeg::SourceFile> reader() const;

    /// Removes the temporary file at once and lets other exports have the destination. Whatever is
    /// written after that is lost.
    void discard();

    /// Throws the Error for a failure of write().
    [[noreturn]] void throwError(int code) const;

    /// Throws Error if the data cannot be brought to disk or the file not be given its name.
    void commit();

private:
    std::filesystem::path m_destination;
    TemporaryFile m_file;
    std::int64_t m_position = 0;
    std::int64_t m_size = 0;
    std::int64_t m_writebackEnd = 0;
};

} // namespace media
