#include "Media/FFmpeg/Demuxer.h"

#include "Media/FFmpeg/Bounds.h"
#include "Media/FFmpeg/Check.h"
#include "Media/FFmpeg/ClassicLocale.h"
#include "Media/FFmpeg/ContainerTraits.h"
#include "Media/FFmpeg/OpeningTime.h"

#include <algorithm>
#include <cerrno>

namespace media::ffmpeg {

namespace {

/// Containers that carry their own media. Formats that name other files or addresses (playlists,
/// manifests, scripts, image sequences) are not here, so no content can make one of them run. The
/// "_pipe" formats are single still pictures.
constexpr const char* kContainers =
    "mov,mp4,m4a,3gp,3g2,mj2,matroska,webm,avi,flv,live_flv,kux,mpegts,mpeg,mpegvideo,mxf,ogg,asf,"
    "gif,"
    "dv,nut,rm,ivf,h264,hevc,m4v,h263,h261,av1,obu,vc1,vc1test,wtv,nsv,gxf,roq,smk,bink,"
    "yuv4mpegpipe,apng,cavsvideo,dirac,mlv,mv,film_cpk,thp,4xm,amv,"
    "wav,w64,mp3,aac,flac,aiff,ac3,eac3,dts,dtshd,truehd,mlp,amr,caf,au,ape,tta,wv,mpc,mpc8,tak,"
    "voc,"
    "png_pipe,jpeg_pipe,jpegxl_pipe,bmp_pipe,tiff_pipe,webp_pipe,psd_pipe,gif_pipe,j2k_pipe,jpegls_"
    "pipe,"
    "ppm_pipe,pgm_pipe,pbm_pipe,pam_pipe,qdraw_pipe,sgi_pipe,sunrast_pipe,xbm_pipe,xpm_pipe,"
    "xwd_pipe,exr_pipe,dds_pipe,dpx_pipe,pcx_pipe,photocd_pipe,pictor_pipe,cri_pipe,gem_pipe,vbn_"
    "pipe";

constexpr int kReadBufferBytes = 128 * 1024;

int refuseToOpen(AVFormatContext*, AVIOContext** io, const char*, int, AVDictionary**) {
    *io = nullptr;
    return AVERROR(EPERM);
}

} // namespace

struct Demuxer::Io {
    std::shared_ptr<const SourceFile> file;
    std::int64_t position = 0;
    std::stop_token stop;

    static int read(void* opaque, std::uint8_t* buffer, int count) {
        auto& io = *static_cast<Io*>(opaque);
        if (isStopped(opaque) != 0)
            return AVERROR_EXIT;
        const std::int64_t got = io.file->read(io.position, buffer, count);
        if (got == 0)
            return AVERROR_EOF;
        if (got > 0)
            io.position += got;
        return static_cast<int>(got);
    }

    static std::int64_t seek(void* opaque, std::int64_t offset, int whence) {
        auto& io = *static_cast<Io*>(opaque);
        switch (whence & ~AVSEEK_FORCE) {
        case AVSEEK_SIZE:
            return io.file->size();
        case SEEK_SET:
            io.position = offset;
            return io.position;
        case SEEK_CUR:
            io.position += offset;
            return io.position;
        case SEEK_END:
            io.position = io.file->size() + offset;
            return io.position;
        default:
            return AVERROR(EINVAL);
        }
    }

    static int isStopped(void* opaque) {
        const bool isWanted = !static_cast<Io*>(opaque)->stop.stop_requested();
        return isWanted && !OpeningTime::isUsedUp() ? 0 : 1;
    }
};

namespace {

/// Lends a stop token to the reading callbacks for one call, and forgets the end of file or the
/// interruption that an earlier call met.
template<typename Io>
class CallScope {
public:
    CallScope(Io& io, AVIOContext* context, const std::stop_token& stop) : m_io(io) {
        m_io.stop = stop;
        if (context) {
            context->error = 0;
            context->eof_reached = 0;
        }
    }

    CallScope(const CallScope&) = delete;
    CallScope& operator=(const CallScope&) = delete;

    ~CallScope() { m_io.stop = {}; }

private:
    Io& m_io;
};

} // namespace

Demuxer::Demuxer(std::shared_ptr<const SourceFile> file, const AVInputFormat* format,
                 const std::stop_token& stop)
    : m_io(std::make_unique<Io>()) {
    silenceLog();
    m_io->file = std::move(file);
    auto* buffer = static_cast<unsigned char*>(allocated(av_malloc(kReadBufferBytes)));
    m_ioContext.reset(allocated(avio_alloc_context(buffer, kReadBufferBytes, 0, m_io.get(),
                                                   &Io::read, nullptr, &Io::seek)));
    const CallScope scope(*m_io, m_ioContext.get(), stop);
    AVFormatContext* context = allocated(avformat_alloc_context());
    context->pb = m_ioContext.get();
    context->io_open = &refuseToOpen;
    context->interrupt_callback = {&Io::isStopped, m_io.get()};
    context->format_whitelist = av_strdup(kContainers);
    context->protocol_whitelist = av_strdup("file");
    const ClassicLocale classic;
    const OpeningTime time;
    // On failure libav frees the context and sets it to null. No name is handed over: only content
    // counts.
    const int result = avformat_open_input(&context, "", format, nullptr);
    m_context.reset(context);
    if (stop.stop_requested())
        throw Cancelled();
    OpeningTime::expectLeft();
    if (result < 0)
        checkSource();
    // The probing of formats that are not accepted ends in an argument error.
    check(result == AVERROR(EINVAL) ? AVERROR_INVALIDDATA : result);
}

Demuxer::~Demuxer() = default;

void Demuxer::findStreamInfo(const std::stop_token& stop) {
    const CallScope scope(*m_io, m_ioContext.get(), stop);
    const ClassicLocale classic;
    const OpeningTime time;
    std::vector<AVDictionary*> options(m_context->nb_streams);
    for (AVDictionary*& each : options)
        av_dict_set_int(&each, "max_pixels", kMostPixels, 0);
    const int result = avformat_find_stream_info(m_context.get(), options.data());
    for (AVDictionary*& each : options)
        av_dict_free(&each);
    if (stop.stop_requested())
        throw Cancelled();
    OpeningTime::expectLeft();
    check(result);
    m_hasStreamInfo = true;
}

void Demuxer::generatePresentationTimes() {
    m_context->flags |= AVFMT_FLAG_GENPTS;
}

void Demuxer::usePictures(std::shared_ptr<const PictureIndex> pictures) {
    m_pictures = std::move(pictures);
    moveTo(m_pictures->first());
}

bool Demuxer::statesPresentationTimes() const {
    return m_pictures || containerTraits(*m_context->iformat).statesPresentationTimes;
}

bool Demuxer::canOnlyReadOn() const {
    return !m_pictures && containerTraits(*m_context->iformat).isBareBitstream;
}

std::optional<Timestamp> Demuxer::keyFrameBefore(int streamIndex, Timestamp timestamp) const {
    if (m_pictures) {
        const PictureIndex::Entry* key = m_pictures->keyFrameDecodedBefore(timestamp);
        return key ? std::optional(key->dts) : std::nullopt;
    }
    const AVIndexEntry* entry = avformat_index_get_entry_from_timestamp(
        m_context->streams[streamIndex], timestamp.value(), AVSEEK_FLAG_BACKWARD);
    return entry ? std::optional(Timestamp(entry->timestamp)) : std::nullopt;
}

void Demuxer::moveTo(const PictureIndex::Entry& entry) {
    avformat_flush(m_context.get());
    // A failure shows when the next packet is read.
    avio_seek(m_ioContext.get(), entry.position, SEEK_SET);
}

void Demuxer::selectOnly(const std::vector<int>& streamIndexes) {
    for (unsigned i = 0; i < m_context->nb_streams; ++i) {
        const bool wanted =
            std::ranges::find(streamIndexes, static_cast<int>(i)) != streamIndexes.end();
        m_context->streams[i]->discard = wanted ? AVDISCARD_DEFAULT : AVDISCARD_ALL;
    }
}

Demuxer::Status Demuxer::read(AVPacket& packet, const std::stop_token& stop) {
    const CallScope scope(*m_io, m_ioContext.get(), stop);
    // Some demuxers answer damage with an error and go on behind it at the next call.
    constexpr int kMostErrorsInARow = 64;
    for (int errors = 0; errors < kMostErrorsInARow;) {
        if (stop.stop_requested())
            throw Cancelled();
        const int result = av_read_frame(m_context.get(), &packet);
        if (result >= 0) {
            // Streams that turn up in mid-file were never selected.
            const bool isSelected =
                m_context->streams[packet.stream_index]->discard != AVDISCARD_ALL;
            if (isSelected && (!m_pictures || m_pictures->stamp(packet)))
                return Status::packet;
            av_packet_unref(&packet);
            continue;
        }
        if (stop.stop_requested())
            throw Cancelled();
        OpeningTime::expectLeft();
        checkSource();
        if (result == AVERROR_EOF || result == AVERROR_INVALIDDATA || m_ioContext->eof_reached) {
            if (result != AVERROR_INVALIDDATA || m_ioContext->eof_reached)
                return Status::endOfFile;
            ++errors;
            continue;
        }
        if (result == AVERROR(EAGAIN)) {
            ++errors;
            continue;
        }
        check(result);
    }
    return Status::endOfFile;
}

void Demuxer::checkSource() const {
    // libav takes every failed read for the end of the file.
    const int error = m_ioContext->error;
    if (error == AVERROR(EIO))
        throw Error(ErrorKind::diskErrorWhileReading);
    if (error < 0 && error != AVERROR_EOF && error != AVERROR_EXIT)
        throw Error(becauseOf(ErrorKind::unreadableVideo, failureOf(error)));
    if (m_io->file->size() < m_io->file->openedSize())
        throw Error(ErrorKind::videoCutShort);
}

bool Demuxer::seek(int streamIndex, Timestamp timestamp, const std::stop_token& stop) {
    const CallScope scope(*m_io, m_ioContext.get(), stop);
    if (m_pictures) {
        const PictureIndex::Entry* key = m_pictures->keyFrameShownBefore(timestamp);
        if (key)
            moveTo(*key);
        return key != nullptr;
    }
    const int result =
        av_seek_frame(m_context.get(), streamIndex, timestamp.value(), AVSEEK_FLAG_BACKWARD);
    if (stop.stop_requested())
        throw Cancelled();
    return result >= 0;
}

void Demuxer::reopen(const std::stop_token& stop) {
    if (m_pictures) {
        const CallScope scope(*m_io, m_ioContext.get(), stop);
        moveTo(m_pictures->first());
        return;
    }
    std::vector<enum AVDiscard> discards;
    for (unsigned i = 0; i < m_context->nb_streams; ++i)
        discards.push_back(m_context->streams[i]->discard);
    Demuxer fresh(m_io->file, m_context->iformat, stop);
    fresh.m_context->flags |= m_context->flags & AVFMT_FLAG_GENPTS;
    if (m_hasStreamInfo)
        fresh.findStreamInfo(stop);
    for (std::size_t i = 0; i < discards.size() && i < fresh.m_context->nb_streams; ++i)
        fresh.m_context->streams[i]->discard = discards[i];
    m_context = std::move(fresh.m_context);
    m_ioContext = std::move(fresh.m_ioContext);
    m_io = std::move(fresh.m_io);
    m_hasStreamInfo = fresh.m_hasStreamInfo;
}

} // namespace media::ffmpeg
