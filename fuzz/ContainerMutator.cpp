#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <vector>

/// Changes files by the boxes (ISO BMFF) or elements (EBML) that they consist of, so that the sizes
/// around a change stay right and what lies deep inside is reached. Other files change byte by
/// byte.

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

namespace {

/// A box or an element.
struct Node {
    std::size_t begin = 0;
    std::size_t content = 0; ///< Where its content begins.
    std::size_t end = 0;
    std::size_t sizeAt = 0; ///< Where its size stands, in `sizeBytes` bytes.
    std::size_t sizeBytes = 0;
    bool isElement = false;
    std::vector<std::size_t> parents = {}; ///< Their numbers.
};

using Nodes = std::vector<Node>;

std::uint64_t numberAt(std::string_view bytes, std::size_t at, std::size_t length) {
    std::uint64_t number = 0;
    for (const char byte : bytes.substr(at, length))
        number = number << 8 | static_cast<std::uint8_t>(byte);
    return number;
}

/// What stands in front of the boxes inside a box of this type; none where there are none.
std::optional<std::size_t> headBeforeBoxes(std::string_view type) {
    constexpr std::string_view kPlain = "moov trak mdia minf stbl edts dinf udta mvex moof traf "
                                        "mfra sinf schi ilst tref";
    if (kPlain.find(type) != std::string_view::npos)
        return 0;
    if (type == "meta")
        return 4;
    if (type == "stsd" || type == "dref")
        return 8;
    if (type == "mp4a" || type == "ac-3" || type == "Opus" || type == "fLaC")
        return 28;
    constexpr std::string_view kPictures = "avc1 avc3 hvc1 hev1 av01 vp09 mp4v";
    return kPictures.find(type) != std::string_view::npos ? std::optional<std::size_t>(78)
                                                          : std::nullopt;
}

void addBoxes(std::string_view bytes, std::size_t begin, std::size_t end,
              const std::vector<std::size_t>& parents, Nodes& nodes) {
    while (end - begin >= 8) {
        const bool isLong = numberAt(bytes, begin, 4) == 1 && end - begin >= 16;
        Node node{begin, begin + (isLong ? 16U : 8U), 0, begin + (isLong ? 8U : 0U),
                  isLong ? 8U : 4U};
        const std::uint64_t size = numberAt(bytes, node.sizeAt, node.sizeBytes);
        if (size < node.content - begin || size > end - begin)
            return;
        node.end = begin + size;
        node.parents = parents;
        nodes.push_back(node);
        const auto head = headBeforeBoxes(bytes.substr(begin + 4, 4));
        if (head && *head <= node.end - node.content) {
            std::vector<std::size_t> path = parents;
            path.push_back(nodes.size() - 1);
            addBoxes(bytes, node.content + *head, node.end, path, nodes);
        }
        begin = node.end;
    }
}

/// The elements of Matroska that have others inside (RFC 9559, 5).
bool hasElements(std::uint64_t id) {
    constexpr std::array<std::uint64_t, 24> kIds = {
        0x1a45dfa3, 0x18538067, 0x1549a966, 0x1654ae6b, 0xae,   0xe0,   0xe1,       0x55b0,
        0x1c53bb6b, 0xbb,       0xb7,       0x1f43b675, 0xa0,   0x45b9, 0x1254c367, 0x7373,
        0x1043a770, 0xb6,       0x114d9b74, 0x4dbb,     0x6d80, 0x6240, 0x63c0,     0x67c8};
    return std::ranges::find(kIds, id) != kIds.end();
}

/// How many bytes a number of EBML has, by its first.
std::size_t lengthOf(char first) {
    return static_cast<std::size_t>(__builtin_clz(static_cast<std::uint8_t>(first) | 1U) - 23);
}

void addElements(std::string_view bytes, std::size_t begin, std::size_t end,
                 const std::vector<std::size_t>& parents, Nodes& nodes) {
    while (begin < end) {
        const std::size_t sizeAt = begin + lengthOf(bytes[begin]);
        if (sizeAt >= end || sizeAt + lengthOf(bytes[sizeAt]) > end)
            return;
        Node node{begin,  sizeAt + lengthOf(bytes[sizeAt]), 0,
                  sizeAt, lengthOf(bytes[sizeAt]),          true};
        const std::uint64_t unknown = (std::uint64_t{1} << 7 * node.sizeBytes) - 1;
        const std::uint64_t size = numberAt(bytes, sizeAt, node.sizeBytes) & unknown;
        if (size != unknown && size > end - node.content)
            return;
        node.end = size == unknown ? end : node.content + size;
        node.parents = parents;
        nodes.push_back(node);
        if (hasElements(numberAt(bytes, begin, sizeAt - begin))) {
            std::vector<std::size_t> path = parents;
            path.push_back(nodes.size() - 1);
            addElements(bytes, node.content, node.end, path, nodes);
        }
        begin = node.end;
    }
}

Nodes nodesOf(std::string_view bytes) {
    Nodes nodes;
    if (bytes.starts_with("\x1a\x45\xdf\xa3"))
        addElements(bytes, 0, bytes.size(), {}, nodes);
    else
        addBoxes(bytes, 0, bytes.size(), {}, nodes);
    return nodes;
}

/// Writes that a node has grown or shrunk, where its size has room for that and is known.
void adjustSize(std::string& bytes, const Node& node, std::ptrdiff_t growth) {
    const std::uint64_t marker =
        node.isElement ? std::uint64_t{1} << 7 * node.sizeBytes : std::uint64_t{0};
    const std::uint64_t old = numberAt(bytes, node.sizeAt, node.sizeBytes);
    std::uint64_t size = old + static_cast<std::uint64_t>(growth);
    if (marker != 0 && ((old | marker) == 2 * marker - 1 || (size & marker) == 0))
        return;
    for (std::size_t i = node.sizeBytes; i-- > 0; size >>= 8)
        bytes[node.sizeAt + i] = static_cast<char>(size & 0xff);
}

/// Puts something else in the place of a part of a node's content, or of the whole node.
void replace(std::string& bytes, const Nodes& nodes, const Node& node, std::size_t begin,
             std::size_t end, const std::string& replacement) {
    const auto growth =
        static_cast<std::ptrdiff_t>(replacement.size()) - static_cast<std::ptrdiff_t>(end - begin);
    for (const std::size_t parent : node.parents)
        adjustSize(bytes, nodes[parent], growth);
    if (begin != node.begin)
        adjustSize(bytes, node, growth);
    bytes.replace(begin, end - begin, replacement);
}

/// Numbers at which something overflows, ends or begins.
std::string telling(std::mt19937& random, std::size_t length) {
    constexpr std::array<std::uint64_t, 10> kNumbers = {
        0, 1, 2, 0x7f, 0xff, 0x7fff'ffff, 0xffff'ffff, 0x8000'0000, ~0ULL >> 1, ~0ULL};
    const std::uint64_t number = kNumbers.at(random() % kNumbers.size());
    std::string result(length, '\0');
    for (std::size_t i = 0; i < length; ++i)
        result[length - 1 - i] = static_cast<char>(number >> 8 * std::min<std::size_t>(i, 7));
    return result;
}

/// One change to one node; growing by at most `room` bytes.
void change(std::string& bytes, const Nodes& nodes, std::mt19937& random, std::size_t room) {
    // Of the media itself little is left to find by its container.
    constexpr std::size_t kMostContent = 4096;
    const Node& node = nodes[random() % nodes.size()];
    const std::size_t size = node.end - node.content;
    const std::string whole = bytes.substr(node.begin, node.end - node.begin);
    const std::size_t width = std::array<std::size_t, 4>{1, 2, 4, 8}.at(random() % 4);
    switch (random() % 8) {
    case 0:
        replace(bytes, nodes, node, node.begin, node.end, "");
        return;
    case 1:
        if (whole.size() <= room)
            replace(bytes, nodes, node, node.begin, node.end, whole + whole);
        return;
    case 2: {
        const Node& other = nodes[random() % nodes.size()];
        const std::string copy = bytes.substr(other.begin, other.end - other.begin);
        if (copy.size() <= room)
            replace(bytes, nodes, node, node.begin, node.end, copy);
        return;
    }
    case 3:
        bytes.replace(node.sizeAt, node.sizeBytes, telling(random, node.sizeBytes));
        return;
    case 4:
    case 5: {
        if (size < width)
            return;
        // Numbers in boxes stand at multiples of their width more often than not.
        const std::size_t slots = std::min(size, kMostContent) / width;
        bytes.replace(node.content + random() % slots * width, width, telling(random, width));
        return;
    }
    default: {
        const std::size_t part = std::min(size, kMostContent);
        std::string content = bytes.substr(node.content, part);
        content.resize(part + std::min<std::size_t>(room, 64));
        content.resize(LLVMFuzzerMutate(reinterpret_cast<std::uint8_t*>(content.data()), part,
                                        content.size()));
        replace(bytes, nodes, node, node.content, node.content + part, content);
    }
    }
}

} // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t maxSize, unsigned seed) {
    std::mt19937 random(seed);
    std::string bytes(reinterpret_cast<const char*>(data), size);
    for (unsigned changes = random() % 3 + 1; changes > 0; --changes) {
        const Nodes nodes = nodesOf(bytes);
        if (nodes.empty() || random() % 8 == 0)
            return LLVMFuzzerMutate(data, size, maxSize);
        change(bytes, nodes, random, maxSize - std::min(maxSize, bytes.size()));
    }
    bytes.resize(std::min(bytes.size(), maxSize));
    std::ranges::copy(bytes, reinterpret_cast<char*>(data));
    return bytes.size();
}
