#pragma once

#include <filesystem>
#include <string>

namespace brisklet {

/// A table of what became of real files, written as Markdown when the program ends, into the file
/// that the environment variable BRISKLET_SAMPLE_REPORT names. Without it nothing happens.
class SampleReport {
public:
    struct Export {
        std::filesystem::path source;
        std::filesystem::path output;
        double seconds = 0;
        /// Whether every expectation so far was met.
        bool isRight = false;
    };

    static bool isWanted();

    /// Looks at the export with ffprobe and plays it with mpv.
    static void add(const std::string& name, const Export& exported);
};

} // namespace brisklet
