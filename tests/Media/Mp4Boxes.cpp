#include "Media/Mp4Boxes.h"

#include <algorithm>
#include <cstdint>
#include <stdexcept>

namespace testsupport {
namespace {

/// The boxes on the way to a path's end, outermost first; fewer than its length if it is not there.
std::vector<Box> boxesOnPath(std::string_view bytes, const std::vector<std::string>& path) {
    std::vector<Box> found;
    std::size_t begin = 0;
    std::size_t end = bytes.size();
    for (const std::string& type : path) {
        const std::vector<Box> boxes = boxesIn(bytes, begin, end);
        const auto box = std::ranges::find(boxes, type, &Box::type);
        if (box == boxes.end())
            break;
        found.push_back(*box);
        begin = box->offset + box->headerSize;
        end = box->offset + box->size;
    }
    return found;
}

} // namespace

std::size_t numberAt(std::string_view bytes, std::size_t at, std::size_t length) {
    std::size_t value = 0;
    for (const char byte : bytes.substr(at, length))
        value = value << 8U | static_cast<std::uint8_t>(byte);
    return value;
}

std::vector<Box> boxesIn(std::string_view bytes, std::size_t begin, std::size_t end) {
    std::vector<Box> boxes;
    while (begin < end) {
        Box box;
        box.offset = begin;
        box.size = numberAt(bytes, begin, 4);
        box.type = bytes.substr(begin + 4, 4);
        if (box.size == 1) {
            box.size = numberAt(bytes, begin + 8, 8);
            box.headerSize = 16;
        } else if (box.size == 0) {
            box.size = end - begin;
        }
        if (box.size < box.headerSize || box.size > end - begin)
            throw std::runtime_error("The box " + box.type + " does not fit where it stands.");
        begin += box.size;
        boxes.push_back(std::move(box));
    }
    return boxes;
}

std::vector<Box> boxesIn(std::string_view bytes) {
    return boxesIn(bytes, 0, bytes.size());
}

std::optional<Box> findBox(std::string_view bytes, const std::vector<std::string>& path) {
    const std::vector<Box> found = boxesOnPath(bytes, path);
    return found.size() == path.size() ? std::optional(found.back()) : std::nullopt;
}

std::string bigEndian(std::size_t value) {
    std::string bytes;
    for (const unsigned shift : {24U, 16U, 8U, 0U})
        bytes += static_cast<char>(value >> shift & 0xFFU);
    return bytes;
}

std::string makeBox(const std::string& type, const std::string& payload) {
    return bigEndian(payload.size() + 8) + type + payload;
}

void replaceBox(std::string& bytes, const std::vector<std::string>& path,
                const std::string& replacement) {
    std::vector<Box> boxes = boxesOnPath(bytes, path);
    if (boxes.size() != path.size())
        throw std::runtime_error("There is no box " + path.back() + ".");
    const Box old = boxes.back();
    boxes.pop_back();
    for (const Box& parent : boxes)
        bytes.replace(parent.offset, 4, bigEndian(parent.size - old.size + replacement.size()));
    bytes.replace(old.offset, old.size, replacement);
}

} // namespace testsupport
