#pragma once

#include "Media/Export/OutputWriter.h"
#include "Media/Export/TemporaryFile.h"

#include <filesystem>

namespace media {

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

    /// What writes its content in this process.
    [[nodiscard]] OutputWriter& writer() { return m_writer; }

    /// Another descriptor of it, to write its content elsewhere. Throws Error.
    [[nodiscard]] Descriptor duplicate() const;

    /// Removes the temporary file at once and lets other exports have the destination. Whatever is
    /// written after that is lost.
    void discard();

    /// Throws the Error for a failure to write, an errno.
    [[noreturn]] void throwError(int code) const;

    /// Throws Error if the data cannot be brought to disk or the file not be given its name.
    void commit();

private:
    std::filesystem::path m_destination;
    TemporaryFile m_file;
    OutputWriter m_writer;
};

} // namespace media
