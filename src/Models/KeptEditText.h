#pragma once

#include "Models/KeptEdit.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace brisklet {

/// One edit in the file of kept edits.
struct KeptRecord {
    KeptEdit edit;
    /// The running program in one of whose windows the edit is open; 0 for none.
    std::uint64_t session = 0;

    friend bool operator==(const KeptRecord&, const KeptRecord&) = default;
};

/// What stands in a file of kept edits.
struct KeptEditText {
    /// The most bytes and the most edits that are read; writers keep within them.
    static constexpr std::size_t kMostBytes = std::size_t{4} << 20;
    static constexpr std::size_t kMostRecords = 256;
    /// The longest path, bytes: that of the system.
    static constexpr std::size_t kLongestPath = 4096;

    /// In the order in which they were changed, the latest last.
    std::vector<KeptRecord> records;
    /// The file was written by a later release of the program, which alone can read it.
    bool isNewer = false;
    /// Something in it could not be read, and is not among the records.
    bool isDamaged = false;

    /// Reads the bytes of a file; never fails. Numbers do not depend on the locale. What is read is
    /// possible: times are finite and in order, the crop lies in the picture, the path is absolute.
    ///
    /// The text is a line that names the format, and a line per edit of fields "name=value" with
    /// spaces between them. In paths each byte but those of plain names is written as %XX, so a
    /// name may hold any. Unknown fields are skipped.
    static KeptEditText parse(std::string_view bytes);

    /// The text that parse() reads; leaves out what could not be, and the oldest records
    /// beyond kMostRecords.
    static std::string format(const std::vector<KeptRecord>& records);
};

} // namespace brisklet
