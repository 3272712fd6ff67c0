#pragma once

#include <cstdint>
#include <filesystem>

namespace brisklet {

/// Throws media::Error, with both numbers, if the disk of `output` has clearly too little free
/// space for a file of about `expectedBytes`. An older file there counts as kept: it is only
/// replaced when the new one is complete. Nothing where the disk tells no numbers. May block: call
/// it off the main thread.
void expectSpaceFor(std::int64_t expectedBytes, const std::filesystem::path& output);

} // namespace brisklet
