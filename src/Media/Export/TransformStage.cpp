#include "Media/Export/TransformStage.h"

#include <algorithm>
#include <utility>

extern "C" {
#include <libavutil/imgutils.h>
#include <libavutil/pixdesc.h>
}

namespace media {

namespace {

/// Decoders have no more threads than that either.
constexpr int kMostWorkers = 16;
/// What all workers together may hold; and so many workers there are all the same, since with
/// pictures that large the work of decoding and encoding them is many times theirs.
constexpr std::int64_t kMostBytes = std::int64_t{768} << 20;
constexpr int kWorkersAtAnySize = 4;

/// The intermediate pictures of a source that is not planar Y′CbCr: all components unpacked, and
/// converted from RGB to 16-bit Y′CbCr.
constexpr std::int64_t kIntermediateBytesPerPixel = 12;

std::int64_t byteCount(AVPixelFormat format, int width, int height) {
    return std::max(av_image_get_buffer_size(format, width, height, 1), 0);
}

bool isPlanarYuv(const AVPixFmtDescriptor& format) {
    return format.flags & AV_PIX_FMT_FLAG_PLANAR && !(format.flags & AV_PIX_FMT_FLAG_RGB);
}

/// What one worker holds at most: the source's picture, deinterlaced too, the one in the making and
/// one of those that wait for the encoder.
std::int64_t bytesPerWorker(const PictureMaking& making, AVPixelFormat format, int width,
                            int height) {
    const AVPixFmtDescriptor* descriptor = av_pix_fmt_desc_get(format);
    const bool isUnpacked = !descriptor || !isPlanarYuv(*descriptor);
    const PictureTransform::Output& output = making.output;
    return (making.deinterlaces ? 2 : 1) * byteCount(format, width, height) +
           2 * byteCount(output.format, output.width, output.height) +
           (isUnpacked ? kIntermediateBytesPerPixel * width * height : 0);
}

} // namespace

int TransformStage::usefulWorkers(const PictureMaking& making, AVPixelFormat format, int width,
                                  int height, int processors) {
    const PictureTransform::Output& output = making.output;
    const bool isHandedOn = format == output.format && width == output.width &&
                            height == output.height && making.toCanvas == AffineTransform{};
    if (isHandedOn)
        return 1;
    const std::int64_t bytes =
        std::max<std::int64_t>(bytesPerWorker(making, format, width, height), 1);
    const std::int64_t fitting = std::max<std::int64_t>(kMostBytes / bytes, kWorkersAtAnySize);
    // Decoding and encoding keep at least one processor busy.
    const int busy = std::clamp(processors - 1, 1, kMostWorkers);
    return static_cast<int>(std::min<std::int64_t>(fitting, busy));
}

TransformStage::TransformStage(const PictureMaking& making, BoundedQueue<ScheduledFrame>& in,
                               BoundedQueue<ScheduledFrame>& out, std::stop_token stop)
    : m_making(making), m_stop(std::move(stop)), m_in(in), m_out(out) {}

void TransformStage::run() {
    PictureMaker maker(m_making);
    while (auto taken = take()) {
        ScheduledFrame& picture = taken->picture;
        ffmpeg::FramePtr made = picture.isRepeat ? nullptr : maker.made(picture);
        picture.frame.reset();
        picture.previous.reset();
        picture.following.reset();
        handOn(std::move(*taken), std::move(made));
    }
    finishAfterLast();
}

std::optional<TransformStage::Numbered> TransformStage::take() {
    const std::lock_guard lock(m_taking);
    auto picture = m_in.pop();
    if (!picture)
        return std::nullopt;
    return Numbered{std::move(*picture), m_takenCount++};
}

void TransformStage::handOn(Numbered taken, ffmpeg::FramePtr made) {
    std::unique_lock lock(m_mutex);
    if (!m_turnEnded.wait(lock, m_stop, [&] { return m_turn == taken.number; }))
        throw Cancelled();
    lock.unlock();
    if (made)
        m_latest = std::move(made);
    taken.picture.frame = ffmpeg::referenced(*m_latest);
    m_out.push(std::move(taken.picture));
    lock.lock();
    ++m_turn;
    m_turnEnded.notify_all();
}

void TransformStage::finishAfterLast() {
    const std::scoped_lock lock(m_taking, m_mutex);
    if (m_turn == m_takenCount)
        m_out.finish();
}

} // namespace media
