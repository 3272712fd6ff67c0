#pragma once

#include "Models/Edit.h"
#include "Models/FileIdentity.h"

#include <cstdint>
#include <filesystem>

namespace brisklet {

/// An edit and all it takes to bring it back later.
struct KeptEdit {
    /// Random; the same for as long as the same edit of the same video goes on, however often it is
    /// brought back. Never 0.
    std::uint64_t id = 0;
    /// Absolute.
    std::filesystem::path file;
    FileIdentity identity;
    /// Of the file, seconds.
    double duration = 0;
    Edit edit;
    /// Seconds.
    double playhead = 0;

    friend bool operator==(const KeptEdit&, const KeptEdit&) = default;
};

} // namespace brisklet
