#pragma once

#include "Media/FFmpeg/Descriptor.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <sys/stat.h>
#include <sys/types.h>

namespace media::ffmpeg {

/// A regular file opened for reading, shared by all readers of an asset. Stays readable when the
/// file is renamed or deleted. Immutable; usable on any thread (reads are positional).
class SourceFile {
public:
    /// Throws Error with a sentence for the user if `path` is not a regular file that can be read.
    /// Never blocks on pipes and devices: they are refused.
    static std::shared_ptr<const SourceFile> open(const std::filesystem::path& path);

    /// Of a file that is open already; `path` is only what it is called. Throws Error if it is not
    /// a regular file.
    static std::shared_ptr<const SourceFile> adopt(Descriptor descriptor,
                                                   std::filesystem::path path);

    SourceFile(Descriptor descriptor, std::filesystem::path path, const struct stat& status);
    SourceFile(const SourceFile&) = delete;
    SourceFile& operator=(const SourceFile&) = delete;
    ~SourceFile();

    [[nodiscard]] const std::filesystem::path& path() const { return m_path; }

    /// Another descriptor of it. Throws Error if there are too many.
    [[nodiscard]] Descriptor duplicate() const;

    /// The size now, in bytes; it may change while the file is open.
    [[nodiscard]] std::int64_t size() const;

    /// The size when it was opened, in bytes.
    [[nodiscard]] std::int64_t openedSize() const { return m_openedSize; }

    /// Up to `count` bytes at `offset`; 0 at the end, a negative errno on failure.
    [[nodiscard]] std::int64_t read(std::int64_t offset, std::uint8_t* buffer,
                                    std::int64_t count) const;
    /// Whether `other` leads to this very file (device and inode, links followed).
    [[nodiscard]] bool isSameFileAs(const std::filesystem::path& other) const;

    /// Throws Error if `output` leads to this very file.
    void expectOtherFile(const std::filesystem::path& output) const;

    /// Throws Error if other content was written into the file since it was opened. Only its middle
    /// is looked at: recorders and taggers write at the beginning and at the end of a file whose
    /// pictures stay what they are.
    void expectUnchanged() const;

private:
    /// Up to a page from the middle of what was there at opening.
    [[nodiscard]] std::string middle() const;

    Descriptor m_descriptor;
    std::filesystem::path m_path;
    dev_t m_device;
    ino_t m_inode;
    std::int64_t m_openedSize;
    std::string m_openedMiddle;
};

} // namespace media::ffmpeg
