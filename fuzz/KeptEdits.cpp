#include "Media/Threading/Verify.h"
#include "Models/KeptEditText.h"

#include <cstdint>

using brisklet::KeptEditText;

/// The file of kept edits: whatever was read is written and read again the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto read = KeptEditText::parse({reinterpret_cast<const char*>(data), size});
    media::verify(read.records.size() <= KeptEditText::kMostRecords, "not too many records");
    const auto again = KeptEditText::parse(KeptEditText::format(read.records));
    media::verify(!again.isDamaged && !again.isNewer, "what was written is whole");
    media::verify(again.records == read.records, "what was written is read");
    return 0;
}
