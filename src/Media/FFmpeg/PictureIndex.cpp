#include "Media/FFmpeg/PictureIndex.h"

#include "Media/FFmpeg/CodedPictures.h"
#include "Media/FFmpeg/ContainerTraits.h"
#include "Media/FFmpeg/Decoder.h"
#include "Media/FFmpeg/Demuxer.h"
#include "Media/FFmpeg/DisplayOrder.h"

#include <algorithm>

namespace media::ffmpeg {

namespace {

constexpr AVRational kUsualFrameRate{25, 1};
/// Above this a frame rate is taken to be a tick rate.
constexpr double kHighestFrameRate = 1000;
/// More pictures than that, a day and a half of 60 a second, only a made-up file has: it is taken
/// to end there.
constexpr std::size_t kMostPackets = 8'000'000;

/// The codec of a bitstream whose packets tell the order of their pictures.
std::optional<AVCodecID> orderedCodec(const AVFormatContext& context) {
    if (!containerTraits(*context.iformat).hasOrderedPictures || context.nb_streams != 1)
        return std::nullopt;
    return context.streams[0]->codecpar->codec_id;
}

/// Learns the frame rate of a stream. Of what its headers state only a decoder tells in the same
/// way in all releases of libav. Its first picture is enough.
class StatedFrameRate {
public:
    explicit StatedFrameRate(const AVStream& stream)
        : m_decoder(*stream.codecpar, stream.time_base, 1) {
        // What the demuxer assumes is not stated.
        m_decoder.context().framerate = {0, 1};
    }

    void add(const AVPacket& packet) {
        if (m_hasPicture || m_packets++ >= kMostPacketsToDecode)
            return;
        m_decoder.send(&packet);
        m_hasPicture = m_decoder.receive(*m_frame) == Decoder::Status::frame;
    }

    /// `stream` is that of the demuxer as it stands by now.
    [[nodiscard]] AVRational value(const AVStream& stream) {
        // What MPEG-4 states is how finely its clock ticks; libavformat looks at the pictures.
        const bool isClock = stream.codecpar->codec_id == AV_CODEC_ID_MPEG4;
        const AVRational rate = isClock ? stream.r_frame_rate : m_decoder.context().framerate;
        const bool isKnown = rate.num > 0 && rate.den > 0 && av_q2d(rate) <= kHighestFrameRate;
        return isKnown ? rate : kUsualFrameRate;
    }

private:
    /// A damaged stream may begin with many that do not decode.
    static constexpr int kMostPacketsToDecode = 64;

    Decoder m_decoder;
    FramePtr m_frame = makeFrame();
    int m_packets = 0;
    bool m_hasPicture = false;
};

/// Collects the packets of a bitstream and gives each its times in the end.
class Collection {
public:
    void add(const AVPacket& packet, const CodedPicture& picture) {
        PictureIndex::Entry entry;
        entry.position = packet.pos;
        entry.isKey = (packet.flags & AV_PKT_FLAG_KEY) != 0;
        if (picture.isSecondField && !m_entries.empty()) {
            // The fields of one frame share a place in the order, each adds half a frame to it.
            m_slots.push_back(m_slots.back());
            m_order.extendLast(picture.halves);
            entry.isKey = false;
        } else {
            m_slots.push_back(m_order.add(picture));
        }
        m_entries.push_back(entry);
    }

    [[nodiscard]] std::size_t size() const { return m_entries.size(); }

    std::shared_ptr<const PictureIndex> indexed(AVRational frameRate, AVRational timeBase) {
        if (m_entries.empty())
            return nullptr;
        const AVRational half{frameRate.den, 2 * frameRate.num};
        const auto inTimeBase = [&](std::int64_t halves) {
            return av_rescale_q(halves, half, timeBase);
        };
        const std::vector<DisplayOrder::Place> places = m_order.finish();
        for (std::size_t i = 0; i < m_entries.size(); ++i) {
            const DisplayOrder::Place& place = places[m_slots[i]];
            PictureIndex::Entry& entry = m_entries[i];
            entry.dts = Timestamp(inTimeBase(place.decodedAt - m_order.delay()));
            entry.duration = inTimeBase(place.halves);
            if (place.shownAt)
                entry.pts = Timestamp(inTimeBase(*place.shownAt));
        }
        return std::make_shared<const PictureIndex>(std::move(m_entries), frameRate,
                                                    Timestamp(inTimeBase(m_order.end())));
    }

private:
    std::vector<PictureIndex::Entry> m_entries;
    /// By packet: the number of its picture.
    std::vector<std::size_t> m_slots;
    DisplayOrder m_order;
};

} // namespace

PictureIndex::PictureIndex(std::vector<Entry> entries, AVRational frameRate, Timestamp end)
    : m_entries(std::move(entries)), m_frameRate(frameRate), m_end(end) {
    std::ranges::copy_if(m_entries, std::back_inserter(m_keyFrames),
                         [](const Entry& entry) { return entry.isKey && entry.pts; });
    std::ranges::stable_sort(m_keyFrames, {}, &Entry::pts);
}

std::shared_ptr<const PictureIndex> PictureIndex::read(Demuxer& demuxer,
                                                       const std::stop_token& stop) {
    const auto codec = orderedCodec(demuxer.context());
    if (!codec || !CodedPictures::canRead(*codec))
        return nullptr;
    const AVStream& stream = *demuxer.context().streams[0];
    CodedPictures pictures(*stream.codecpar);
    StatedFrameRate frameRate(stream);
    Collection collection;
    demuxer.reopen(stop);
    const PacketPtr packet = makePacket();
    while (collection.size() < kMostPackets &&
           demuxer.read(*packet, stop) == Demuxer::Status::packet) {
        frameRate.add(*packet);
        if (const auto picture = pictures.next(*packet))
            collection.add(*packet, *picture);
        av_packet_unref(packet.get());
    }
    const AVStream& reopened = *demuxer.context().streams[0];
    return collection.indexed(frameRate.value(reopened), reopened.time_base);
}

bool PictureIndex::stamp(AVPacket& packet) const {
    const auto entry = std::ranges::lower_bound(m_entries, packet.pos, {}, &Entry::position);
    const bool isKnown = entry != m_entries.end() && entry->position == packet.pos;
    packet.pts = isKnown ? valueOf(entry->pts) : AV_NOPTS_VALUE;
    packet.dts = isKnown ? entry->dts.value() : AV_NOPTS_VALUE;
    packet.duration = isKnown ? entry->duration : 0;
    return !isKnown || entry->pts;
}

const PictureIndex::Entry* PictureIndex::keyFrameShownBefore(Timestamp pts) const {
    const auto after = std::ranges::upper_bound(m_keyFrames, std::optional(pts), {}, &Entry::pts);
    return after == m_keyFrames.begin() ? nullptr : &*std::prev(after);
}

const PictureIndex::Entry* PictureIndex::keyFrameDecodedBefore(Timestamp dts) const {
    const auto after = std::ranges::upper_bound(m_keyFrames, dts, {}, &Entry::dts);
    return after == m_keyFrames.begin() ? nullptr : &*std::prev(after);
}

} // namespace media::ffmpeg
