#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace testsupport {

/// The file called `name` in the build tree's folder of generated media; `generate` makes it, at
/// the path it is given (same extension), when it is not there yet. Generated once even when
/// several test processes ask at once, and never seen half-written. The name must tell all that the
/// content depends on. Throws what `generate` throws.
std::filesystem::path
cachedMedia(const std::string& name,
            const std::function<void(const std::filesystem::path& path)>& generate);

/// Like above, made by ffmpeg with these arguments before the output path.
std::filesystem::path cachedMedia(const std::string& name,
                                  const std::vector<std::string>& ffmpegArguments);

/// A file of the collection of real-world samples that lies beside the checkout; none where it is
/// absent, in which case the test skips itself and says so.
std::optional<std::filesystem::path> sampleMedia(const std::string& name);

} // namespace testsupport
