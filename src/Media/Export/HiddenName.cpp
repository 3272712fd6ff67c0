#include "Media/Export/HiddenName.h"

#include "Media/Export/WriteError.h"

#include <algorithm>
#include <array>
#include <linux/magic.h>
#include <random>
#include <sys/vfs.h>

namespace media {

namespace {

constexpr std::string_view kPrefix = ".brisklet-";
constexpr std::string_view kSuffix = ".part";
constexpr std::string_view kDigits = "0123456789abcdef";
constexpr std::size_t kNumberOfDigits = 16;

/// Whether "A.mp4" and "a.mp4" are one file in that folder, as far as the type of the file system
/// tells.
bool ignoresCase(const std::filesystem::path& folder) {
    // FAT, exFAT, CIFS, SMB 2 and HFS+. Not all of them have a name in <linux/magic.h>.
    constexpr std::array<std::uint32_t, 5> kTypes = {MSDOS_SUPER_MAGIC, 0x2011BAB0, 0xFF534D42,
                                                     0xFE534D42, 0x482B};
    struct statfs status = {};
    return ::statfs(folder.c_str(), &status) == 0 &&
           std::ranges::find(kTypes, static_cast<std::uint32_t>(status.f_type)) != kTypes.end();
}

} // namespace

std::uint64_t numberOf(const std::filesystem::path& destination) {
    std::string name = destination.filename().string();
    if (ignoresCase(folderOf(destination))) {
        std::ranges::transform(name, name.begin(), [](char c) {
            return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
        });
    }
    // FNV-1a, 64 bits.
    std::uint64_t hash = 0xcbf29ce484222325;
    for (const char c : name)
        hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001b3;
    return hash;
}

std::string hiddenName(std::uint64_t number) {
    std::string name(kPrefix);
    for (int shift = 60; shift >= 0; shift -= 4)
        name += kDigits[(number >> shift) & 0xF];
    return name.append(kSuffix);
}

std::string randomHiddenName() {
    std::random_device random;
    return hiddenName(std::uniform_int_distribution<std::uint64_t>()(random));
}

bool isHiddenName(std::string_view name) {
    if (name.size() != kPrefix.size() + kNumberOfDigits + kSuffix.size() ||
        !name.starts_with(kPrefix) || !name.ends_with(kSuffix))
        return false;
    const auto digits = name.substr(kPrefix.size(), kNumberOfDigits);
    return digits.find_first_not_of(kDigits) == std::string_view::npos;
}

} // namespace media
