#include "Media/FFmpeg/Muxer.h"

#include "Media/Export/OutputWriter.h"
#include "Media/FFmpeg/Check.h"
#include "Media/FFmpeg/ClassicLocale.h"
#include "Media/FFmpeg/LibavReleases.h"
#include "Media/FFmpeg/SourceFile.h"
#include "Media/FFmpeg/Timecode.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <string_view>
#include <string>
#include <utility>

extern "C" {
#include <libavutil/avstring.h>
#include <libavutil/intreadwrite.h>
#include <libavutil/opt.h>
}

namespace media::ffmpeg {

namespace {

constexpr int kWriteBufferBytes = 1024 * 1024;
/// The most that one packet takes in the sample tables (stts, ctts, stss, stsz, stsc, co64); bytes.
constexpr std::int64_t kIndexBytesPerPacket = 44;
/// What a track takes besides those; bytes.
constexpr std::int64_t kIndexBytesPerStream = 4096;
/// Everything else in the index: headers, decoder configurations, metadata; bytes.
constexpr std::int64_t kIndexBytes = std::int64_t{32} * 1024;
/// What a metadata entry takes besides its name and its value; bytes.
constexpr std::int64_t kEntryBytes = 64;

/// Whether a metadata key describes the source's container or encoder rather than its content.
bool belongsToTheOldFile(std::string_view key) {
    constexpr std::array<std::string_view, 7> kKeys = {
        "major_brand", "minor_version", "compatible_brands", "encoder", "vendor_id",
        "timecode",    "rotate"};
    // The keys of libav's dictionaries are case-insensitive.
    return std::ranges::any_of(kKeys, [&](const std::string_view old) {
        return std::ranges::equal(key, old, {}, [](char c) { return av_tolower(c); });
    });
}

/// Whether the demuxer repeats an entry under its language, as some do ("title-eng").
bool isRepeatedUnderLanguage(const AVDictionary* source, const AVDictionaryEntry& entry) {
    constexpr std::size_t kSuffix = 4;
    const std::string_view key(entry.key);
    if (key.size() <= kSuffix || key[key.size() - kSuffix] != '-')
        return false;
    const std::string base(key.substr(0, key.size() - kSuffix));
    const AVDictionaryEntry* plain = av_dict_get(source, base.c_str(), nullptr, 0);
    return plain && std::string_view(plain->value) == entry.value;
}

void copyEntries(AVDictionary** target, const AVDictionary* source) {
    const AVDictionaryEntry* entry = nullptr;
    while ((entry = av_dict_get(source, "", entry, AV_DICT_IGNORE_SUFFIX))) {
        if (belongsToTheOldFile(entry->key) || isRepeatedUnderLanguage(source, *entry))
            continue;
        check(av_dict_set(target, entry->key, entry->value, 0));
    }
}

std::int64_t metadataBytes(const AVDictionary* dictionary) {
    std::int64_t bytes = 0;
    const AVDictionaryEntry* entry = nullptr;
    while ((entry = av_dict_get(dictionary, "", entry, AV_DICT_IGNORE_SUFFIX)))
        bytes += static_cast<std::int64_t>(std::string_view(entry->key).size() +
                                           std::string_view(entry->value).size()) +
                 kEntryBytes;
    // Some entries are written in two places.
    return 2 * bytes;
}

/// Whether there are entries that only a table of named keys can hold ("com.apple.…").
bool hasNamedEntries(const AVDictionary* metadata) {
    return av_dict_get(metadata, "com.", nullptr, AV_DICT_IGNORE_SUFFIX) != nullptr;
}

/// QuickTime files number their languages, and libav knows only one of the ISO 639-2 codes for each
/// number.
void useQuickTimeLanguage(AVDictionary*& metadata) {
    constexpr std::array<std::pair<std::string_view, const char*>, 14> kCodes = {{{"fre", "fra"},
                                                                                  {"deu", "ger"},
                                                                                  {"nld", "dut"},
                                                                                  {"swe", "sve"},
                                                                                  {"ell", "gre"},
                                                                                  {"isl", "ice"},
                                                                                  {"zho", "chi"},
                                                                                  {"sqi", "alb"},
                                                                                  {"rum", "ron"},
                                                                                  {"cze", "ces"},
                                                                                  {"slo", "slk"},
                                                                                  {"mkd", "mac"},
                                                                                  {"hrv", "hr "},
                                                                                  {"srp", "sr "}}};
    const AVDictionaryEntry* entry = av_dict_get(metadata, "language", nullptr, 0);
    if (!entry)
        return;
    const auto* const code = std::ranges::find(kCodes, std::string_view(entry->value),
                                               &std::pair<std::string_view, const char*>::first);
    if (code != kCodes.end())
        check(av_dict_set(&metadata, "language", code->second, 0));
}

/// Sets the handler's name to the track's title: players that do not know titles of tracks show the
/// handler.
void nameHandlerByTitle(AVDictionary*& metadata) {
    const AVDictionaryEntry* title = av_dict_get(metadata, "title", nullptr, 0);
    const AVDictionaryEntry* handler = av_dict_get(metadata, "handler_name", nullptr, 0);
    const std::string_view name(handler ? handler->value : "");
    // libav's own names for handlers without one.
    if (title && (name.empty() || name == "SoundHandler" || name == "VideoHandler"))
        check(av_dict_set(&metadata, "handler_name", title->value, 0));
}

/// The movie timescale, which edit lists are written in. The default of milliseconds would round
/// the cut. A multiple of the video's timescale does not, and a fine one rounds audio by next to
/// nothing.
int movieTimescale(AVRational videoTimeBase) {
    constexpr int kFineEnough = 100'000;
    int timescale = videoTimeBase.den;
    while (timescale < kFineEnough)
        timescale *= 2;
    return timescale;
}

void setDisplayMatrix(AVStream& stream, const AffineTransform& transform) {
    if (transform == AffineTransform{})
        return;
    constexpr double kOne = 65536;
    const auto fixed = [](double value) { return static_cast<std::int32_t>(std::lround(value)); };
    const std::array<std::int32_t, 9> matrix = {
        fixed(transform.a * kOne),  fixed(transform.b * kOne),  0,
        fixed(transform.c * kOne),  fixed(transform.d * kOne),  0,
        fixed(transform.tx * kOne), fixed(transform.ty * kOne), 1 << 30};
    std::uint8_t* data = addSideData(stream, AV_PKT_DATA_DISPLAYMATRIX, sizeof matrix);
    std::copy_n(reinterpret_cast<const std::uint8_t*>(matrix.data()), sizeof matrix, data);
}

} // namespace

std::int64_t indexBytes(std::int64_t packets, std::int64_t streams) {
    return kIndexBytes + packets * kIndexBytesPerPacket + streams * kIndexBytesPerStream;
}

struct Muxer::Io {
    OutputWriter& file;
    /// errno of the first write that failed.
    int error = 0;

    static int write(void* opaque, WrittenByte* data, int count) {
        auto& io = *static_cast<Io*>(opaque);
        if (io.error == 0)
            io.error = io.file.write(data, count);
        return io.error == 0 ? count : -io.error;
    }

    static std::int64_t seek(void* opaque, std::int64_t offset, int whence) {
        auto& io = *static_cast<Io*>(opaque);
        switch (whence & ~AVSEEK_FORCE) {
        case AVSEEK_SIZE:
            return io.file.size();
        case SEEK_SET:
            io.file.seek(offset);
            return offset;
        default:
            return AVERROR(EINVAL);
        }
    }
};

Muxer::Muxer(OutputWriter& file, FileType type, const SourceInfo& info, const TimeRange& range)
    : m_type(type), m_info(info), m_range(range), m_io(new Io{file}) {
    silenceLog();
    auto* buffer = static_cast<unsigned char*>(allocated(av_malloc(kWriteBufferBytes)));
    m_ioContext.reset(allocated(avio_alloc_context(buffer, kWriteBufferBytes, 1, m_io.get(),
                                                   nullptr, &Io::write, &Io::seek)));
    AVFormatContext* context = nullptr;
    check(avformat_alloc_output_context2(&context, nullptr, type == FileType::mpeg4 ? "mp4" : "mov",
                                         nullptr));
    m_context.reset(context);
    m_context->pb = m_ioContext.get();
    m_context->flags |= AVFMT_FLAG_CUSTOM_IO;
    copyEntries(&m_context->metadata, info.metadata.get());
    addChapters();
}

Muxer::~Muxer() = default;

void Muxer::addChapters() {
    for (const SourceChapter& chapter : m_info.chapters) {
        const Time start =
            std::max(chapter.range.start, m_range.start, [](Time a, Time b) { return a < b; });
        const Time end =
            std::min(chapter.range.end, m_range.end, [](Time a, Time b) { return a < b; });
        if (!(start < end))
            continue;
        auto* result = static_cast<AVChapter*>(allocated(av_mallocz(sizeof(AVChapter))));
        int count = static_cast<int>(m_context->nb_chapters);
        if (av_dynarray_add_nofree(&m_context->chapters, &count, result) < 0) {
            av_free(result);
            throw std::bad_alloc();
        }
        m_context->nb_chapters = static_cast<unsigned>(count);
        constexpr std::int32_t kMilliseconds = 1000;
        result->id = count;
        result->time_base = {1, kMilliseconds};
        result->start = (start - m_range.start).rescaled(kMilliseconds).value;
        result->end = (end - m_range.start).rescaled(kMilliseconds).value;
        if (!chapter.title.empty())
            check(av_dict_set(&result->metadata, "title", chapter.title.c_str(), 0));
    }
}

int Muxer::addStream(const AVCodecContext& encoder, const SourceTrack& source,
                     const AffineTransform& transform) {
    AVStream* stream = allocated(avformat_new_stream(m_context.get(), nullptr));
    check(avcodec_parameters_from_context(stream->codecpar, &encoder));
    stream->time_base = encoder.time_base;
    stream->avg_frame_rate = encoder.framerate;
    stream->sample_aspect_ratio = encoder.sample_aspect_ratio;
    stream->disposition = source.disposition & AV_DISPOSITION_DEFAULT;
    copyEntries(&stream->metadata, source.metadata.get());
    nameHandlerByTitle(stream->metadata);
    if (encoder.codec_type == AVMEDIA_TYPE_VIDEO) {
        setDisplayMatrix(*stream, transform);
        check(av_opt_set_int(m_context->priv_data, "movie_timescale",
                             movieTimescale(encoder.time_base), 0));
        attach(*stream, source.dynamicRange);
        addTimecode(*stream, source);
    }
    if (m_type == FileType::quickTimeMovie)
        useQuickTimeLanguage(stream->metadata);
    return stream->index;
}

void Muxer::addTimecode(AVStream& stream, const SourceTrack& source) const {
    const std::string code =
        timecodeAt(m_info.timecode, source.averageFrameRate, m_range.start, stream.avg_frame_rate);
    if (!code.empty())
        check(av_dict_set(&stream.metadata, "timecode", code.c_str(), 0));
}

void Muxer::writeHeader(std::int64_t expectedPackets) {
    m_expectedPackets = expectedPackets;
    m_roomBytes = indexBytes(expectedPackets, m_context->nb_streams) +
                  metadataBytes(m_context->metadata) +
                  static_cast<std::int64_t>(m_context->nb_chapters) * 1024;
    for (unsigned i = 0; i < m_context->nb_streams; ++i)
        m_roomBytes += metadataBytes(m_context->streams[i]->metadata);
    // Chapter titles are written both to the chapter list and to the chapter track.
    for (unsigned i = 0; i < m_context->nb_chapters; ++i)
        m_roomBytes += 2 * metadataBytes(m_context->chapters[i]->metadata);
    m_roomBytes = std::min<std::int64_t>(m_roomBytes, std::numeric_limits<int>::max());
    checkIo(av_opt_set_int(m_context->priv_data, "moov_size", m_roomBytes, 0));
    if (hasNamedEntries(m_context->metadata))
        checkIo(av_opt_set(m_context->priv_data, "movflags", "+use_metadata_tags", 0));
    const ClassicLocale classic;
    checkIo(avformat_write_header(m_context.get(), nullptr));
    // The index is written at the very end, with all that is known by then.
    check(av_dict_set(&m_context->metadata, "encoder", "Brisklet " BRISKLET_VERSION, 0));
}

void Muxer::write(AVPacket& packet, int stream, AVRational timeBase) {
    packet.stream_index = stream;
    av_packet_rescale_ts(&packet, timeBase, m_context->streams[stream]->time_base);
    ++m_writtenPackets;
    checkIo(av_write_frame(m_context.get(), &packet));
}

void Muxer::finish() {
    if (m_writtenPackets > m_expectedPackets) {
        turnReservedRoomIntoFreeBox();
        checkIo(av_opt_set_int(m_context->priv_data, "moov_size", 0, 0));
    }
    const ClassicLocale classic;
    checkIo(av_write_trailer(m_context.get()));
    avio_flush(m_ioContext.get());
    checkIo(m_ioContext->error);
}

void Muxer::turnReservedRoomIntoFreeBox() {
    // The reserved space begins after the file's first box.
    avio_flush(m_ioContext.get());
    std::array<std::uint8_t, 4> size = {};
    const auto wanted = static_cast<std::int64_t>(size.size());
    if (m_io->file.reader()->read(0, size.data(), wanted) != wanted)
        check(AVERROR(EIO));
    const std::int64_t end = avio_tell(m_ioContext.get());
    avio_seek(m_ioContext.get(), AV_RB32(size.data()), SEEK_SET);
    avio_wb32(m_ioContext.get(), static_cast<unsigned>(m_roomBytes));
    avio_wl32(m_ioContext.get(), MKTAG('f', 'r', 'e', 'e'));
    avio_seek(m_ioContext.get(), end, SEEK_SET);
}

void Muxer::checkIo(int result) {
    if (m_io->error != 0)
        throw WriteRefusal(m_io->error);
    check(result);
}

} // namespace media::ffmpeg
