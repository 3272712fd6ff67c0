#pragma once

#include "Media/FFmpeg/Descriptor.h"

#include <cstdint>
#include <memory>
#include <stdexcept>

namespace media {

namespace ffmpeg {
class SourceFile;
}

/// The system refuses to take what an export writes. Whoever knows what the new file is called
/// makes a sentence of it.
class WriteRefusal final : public std::runtime_error {
public:
    /// `code` is an errno.
    explicit WriteRefusal(int code) : std::runtime_error("Writing was refused."), m_code(code) {}

    [[nodiscard]] int code() const noexcept { return m_code; }

private:
    int m_code;
};

/// Writes the content of a new file, whose name and place are another’s business. Use from one
/// thread at a time.
class OutputWriter {
public:
    /// `file` is open for reading and writing, and empty.
    explicit OutputWriter(Descriptor file) : m_file(std::move(file)) {}

    /// Writes at the current position; 0, or the errno of the failure.
    int write(const std::uint8_t* data, std::int64_t count);

    void seek(std::int64_t position) { m_position = position; }

    [[nodiscard]] std::int64_t position() const { return m_position; }

    [[nodiscard]] std::int64_t size() const { return m_size; }

    /// Starts to write back to disk what is not there yet, so that less is left to wait for.
    void startFlush();

    /// What has been written so far, opened for reading. Throws WriteRefusal.
    [[nodiscard]] std::shared_ptr<const ffmpeg::SourceFile> reader() const;

private:
    Descriptor m_file;
    std::int64_t m_position = 0;
    std::int64_t m_size = 0;
    std::int64_t m_writebackEnd = 0;
};

} // namespace media
