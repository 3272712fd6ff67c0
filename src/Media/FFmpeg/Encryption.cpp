#include "Media/FFmpeg/Encryption.h"

#include "Media/Error.h"
#include "Media/FFmpeg/ContainerTraits.h"

#include <algorithm>
#include <array>

extern "C" {
#include <libavutil/intreadwrite.h>
}

namespace media::ffmpeg {

namespace {

[[noreturn]] void throwEncrypted() {
    throw Error(ErrorKind::encrypted);
}

/// The sample entries of encrypted tracks: those of Common Encryption and of older shops.
bool isEncryptedEntry(std::uint32_t type) {
    constexpr std::array<std::uint32_t, 4> kTypes = {
        MKTAG('e', 'n', 'c', 'v'), MKTAG('e', 'n', 'c', 'a'), MKTAG('d', 'r', 'm', 'i'),
        MKTAG('d', 'r', 'm', 's')};
    return std::ranges::find(kTypes, type) != kTypes.end();
}

bool hasEntry(const AVDictionary* metadata, const char* key) {
    return av_dict_get(metadata, key, nullptr, 0) != nullptr;
}

/// Walks the boxes of an MP4 or QuickTime file down to its tracks' sample entries. A damaged file
/// ends the walk where its sizes make no sense.
class SampleEntries {
public:
    explicit SampleEntries(const SourceFile& file) : m_file(file) {}

    [[nodiscard]] bool hasEncrypted() { return search(0, m_file.size(), 0); }

private:
    /// The boxes on the way to the sample entries, from the outside in.
    static constexpr std::array<std::uint32_t, 6> kWay = {
        MKTAG('m', 'o', 'o', 'v'), MKTAG('t', 'r', 'a', 'k'), MKTAG('m', 'd', 'i', 'a'),
        MKTAG('m', 'i', 'n', 'f'), MKTAG('s', 't', 'b', 'l'), MKTAG('s', 't', 's', 'd')};
    /// Version, flags and number of entries come before the entries.
    static constexpr std::int64_t kTableHeader = 8;
    /// More than any file has on the way; a crafted one shall not keep anybody busy.
    static constexpr int kMostBoxes = 10'000;

    bool search(std::int64_t position, std::int64_t end, std::size_t depth) {
        while (position < end && m_boxes++ < kMostBoxes) {
            std::array<std::uint8_t, 16> header = {};
            const std::int64_t got = m_file.read(position, header.data(), header.size());
            std::int64_t headerSize = 8;
            if (got < headerSize)
                return false;
            std::int64_t size = AV_RB32(header.data());
            if (size == 1 && got == static_cast<std::int64_t>(header.size())) {
                headerSize = 16;
                size = static_cast<std::int64_t>(AV_RB64(&header[8]));
            } else if (size == 0) {
                size = end - position;
            }
            if (size < headerSize)
                return false;
            // The last one may have been cut off.
            size = std::min(size, end - position);
            const std::uint32_t type = AV_RL32(&header[4]);
            if (depth == kWay.size() && isEncryptedEntry(type))
                return true;
            if (depth < kWay.size() && type == kWay.at(depth)) {
                const bool isTable = depth + 1 == kWay.size();
                const std::int64_t content = position + headerSize + (isTable ? kTableHeader : 0);
                if (search(content, position + size, depth + 1))
                    return true;
            }
            position += size;
        }
        return false;
    }

    const SourceFile& m_file;
    int m_boxes = 0;
};

} // namespace

void expectNoEncryption(const AVFormatContext& context) {
    using Mark = ContainerTraits::EncryptionMark;
    // In other formats the entries are names that anybody may use.
    const Mark mark = containerTraits(*context.iformat).encryptionMark;
    if (mark == Mark::fileMetadata && (hasEntry(context.metadata, "ASF_Protection_Type") ||
                                       hasEntry(context.metadata, "encryption")))
        throwEncrypted();
    for (unsigned i = 0; i < context.nb_streams; ++i) {
        const AVStream& stream = *context.streams[i];
        const AVMediaType type = stream.codecpar->codec_type;
        if (type != AVMEDIA_TYPE_VIDEO && type != AVMEDIA_TYPE_AUDIO)
            continue;
        if (isEncryptedEntry(stream.codecpar->codec_tag) ||
            (mark == Mark::trackMetadata && hasEntry(stream.metadata, "enc_key_id")))
            throwEncrypted();
    }
}

void expectNoEncryption(const AVPacket& packet) {
    if (av_packet_get_side_data(&packet, AV_PKT_DATA_ENCRYPTION_INFO, nullptr))
        throwEncrypted();
}

void expectNoEncryption(const SourceFile& file) {
    if (SampleEntries(file).hasEncrypted())
        throwEncrypted();
}

} // namespace media::ffmpeg
