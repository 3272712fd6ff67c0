#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The boxes that MP4 and MOV files are made of, looked at as bytes.
namespace testsupport {

struct Box {
    std::string type;
    std::size_t offset = 0; ///< Of its header in the file.
    std::size_t size = 0;   ///< With its header.
    std::size_t headerSize = 8;
};

/// The boxes from byte `begin` to byte `end`, in order. Throws std::runtime_error where they do not
/// fill that space exactly.
std::vector<Box> boxesIn(std::string_view bytes, std::size_t begin, std::size_t end);

/// Those at the top of a file.
std::vector<Box> boxesIn(std::string_view bytes);

/// The first box that a path such as {"moov", "trak", "tkhd"} leads to.
std::optional<Box> findBox(std::string_view bytes, const std::vector<std::string>& path);

/// A box of this type around `payload`.
std::string makeBox(const std::string& type, const std::string& payload);

/// 4 bytes, most significant first.
std::string bigEndian(std::size_t value);

/// The number in `length` bytes, most significant first.
std::size_t numberAt(std::string_view bytes, std::size_t at, std::size_t length = 4);

/// Puts another box in the place of the one that `path` leads to; the boxes around it grow or
/// shrink along. Offsets into the media are not changed: it must lie in front.
void replaceBox(std::string& bytes, const std::vector<std::string>& path,
                const std::string& replacement);

} // namespace testsupport
