#include "Media/Export/PictureTrial.h"

#include "Media/Error.h"
#include "Media/Export/TrialBudget.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>

namespace media {

namespace {

/// The B-frames between two others; a place ends with a whole group of these and the picture that
/// they depend on.
constexpr int kMiniGroup = 4;
/// What is encoded at each place: a key frame and a group.
constexpr int kFewest = 1 + kMiniGroup;
/// Around the middles of the thirds of the range: each place begins at the key frame that is
/// cheapest to reach there, within a margin, and ends before the next one begins.
constexpr std::array kPlaces = {3.0 / 6, 1.0 / 6, 5.0 / 6};
constexpr double kPlaceMargin = 1.0 / 12;
constexpr double kPlaceEnd = 1.0 / 4;
/// Of both encoders, in pictures.
constexpr double kKeyFrameDistance = 250;
/// What might be encoded whole, in pixels of all pictures. It is, as long as the rest seems to fit
/// into the budget. Until so many pictures have been encoded that is not known well: the first ones
/// take longer. So much more may be missing then.
constexpr double kWholePixels = 200e6;
constexpr int kCertain = 1 + 3 * kMiniGroup;
constexpr double kDoubt = 1.6;

PicturePath::Options oneThread() {
    PicturePath::Options options;
    options.reader.threads = 1;
    options.encoderThreads = 1;
    return options;
}

/// Adds the trial's processor time during its life to a sum.
class Stopwatch {
public:
    Stopwatch(const TrialBudget& budget, double& sum) : m_budget(budget), m_sum(sum) {}

    Stopwatch(const Stopwatch&) = delete;
    Stopwatch& operator=(const Stopwatch&) = delete;

    ~Stopwatch() { m_sum += m_budget.used() - m_start; }

private:
    const TrialBudget& m_budget;
    double& m_sum;
    double m_start = m_budget.used();
};

} // namespace

PictureTrial::PictureTrial(const Composition& composition,
                           const std::optional<VideoComposition>& videoComposition,
                           const EncoderSettings& settings, const TrialBudget& budget, double end)
    : m_range(composition.videoTrack->range),
      m_budget(budget),
      m_end(end),
      m_path(composition, videoComposition, settings, oneThread()),
      m_tailStart(m_path.tailStart()) {
    m_expected = m_path.schedule(m_range)->expectedFrames();
    m_rate = videoComposition ? 1 / videoComposition->frameDuration.seconds()
                              : av_q2d(m_path.encoder().context().framerate);
}

void PictureTrial::run(TrialFigures& figures) {
    try {
        tryPlaces();
        m_path.encoder().send(nullptr);
        receive();
    } catch (const Cancelled&) {
        m_budget.expectWanted();
    }
    addTo(figures);
}

void PictureTrial::tryPlaces() {
    if (mayBeWhole()) {
        begin(m_range);
        while (fitsWhole()) {
            if (!tryNext())
                return;
        }
    }
    for (std::size_t i = 0; i < kPlaces.size() && expectedUse() < m_end; ++i) {
        const double now = expectedUse();
        if (const auto place = placeAt(kPlaces.at(i))) {
            begin(*place);
            tryUntil(now + (m_end - now) / static_cast<double>(kPlaces.size() - i));
        }
    }
}

bool PictureTrial::fitsWhole() {
    const int tried = stretch().pictures;
    if (tried < kFewest)
        return true;
    const double left = m_end - expectedUse();
    const double needed = std::max(pictures() - tried, 1.0) * secondsEach();
    return needed <= left * (tried < kCertain ? kDoubt : 1);
}

bool PictureTrial::mayBeWhole() {
    const AVCodecContext& context = m_path.encoder().context();
    return pictures() * context.width * context.height <= kWholePixels;
}

void PictureTrial::tryUntil(double end) {
    while (expectedUse() < m_end) {
        const int tried = stretch().pictures;
        const bool isWholeGroup = tried >= kFewest && (tried - 1) % kMiniGroup == 0;
        if ((isWholeGroup && expectedUse() >= end) || !tryNext())
            return;
    }
}

double PictureTrial::expectedUse() const {
    const auto held = static_cast<double>(m_durations.size() - m_packets.size());
    const auto encoded = static_cast<double>(m_packets.size());
    return m_budget.used() + held * m_encodeSeconds / std::max(encoded, 1.0);
}

double PictureTrial::pictures() const {
    return std::max(m_rate * m_range.duration().seconds(), 1.0);
}

double PictureTrial::secondsEach() const {
    const auto encoded = static_cast<double>(m_packets.size());
    const auto tried = static_cast<double>(m_stretches.back().pictures);
    // Those that the encoder holds back have not taken their time yet.
    return m_decodeSeconds / std::max(m_decoded, 1) + m_transformSeconds / std::max(tried, 1.0) +
           m_encodeSeconds / std::max(encoded, 1.0);
}

std::optional<TimeRange> PictureTrial::placeAt(double middle) {
    const double seconds = m_range.duration().seconds();
    const auto at = [&](double fraction) {
        return Time::fromSeconds(m_range.start.seconds() + fraction * seconds,
                                 kComparisonTimescale);
    };
    const Time earliest = at(middle - kPlaceMargin);
    const Time latest = at(middle + kPlaceMargin);
    m_path.reader().seekNear(earliest.ticks(), latest.ticks(), m_budget.token());
    const DecodedFrame* first = m_path.reader().peek(m_budget.token());
    if (!first)
        return std::nullopt;
    const Time start = Time::fromTicks(std::max(first->ticks, earliest.ticks()));
    const Time end =
        std::min(at(middle + kPlaceEnd), m_range.end, [](Time a, Time b) { return a < b; });
    return start < end ? std::optional(TimeRange{start, end}) : std::nullopt;
}

void PictureTrial::begin(const TimeRange& place) {
    const std::int64_t now = m_stretches.empty() ? 0 : stretch().end;
    m_stretches.push_back({.begin = now, .end = now});
    m_schedule = m_path.schedule(place);
    m_shown.reset();
}

bool PictureTrial::tryNext() {
    Stretch& current = stretch();
    // Getting to the first picture of a place is no part of an export.
    double ignored = 0;
    const bool isFirst = current.pictures == 0;
    std::optional<ScheduledFrame> scheduled;
    {
        const Stopwatch watch(m_budget, isFirst ? ignored : m_decodeSeconds);
        scheduled = m_schedule->next(m_budget.token());
    }
    current.hasEnded = !scheduled;
    if (!scheduled)
        return false;
    m_decoded += isFirst ? 0 : 1;
    {
        const Stopwatch watch(m_budget, m_transformSeconds);
        if (!scheduled->isRepeat || !m_shown)
            m_shown = m_maker.made(*scheduled);
    }
    const ffmpeg::FramePtr frame = ffmpeg::referenced(*m_shown);
    frame->pts = current.begin + scheduled->pts;
    frame->pict_type = isFirst || beginsTail(*scheduled) ? AV_PICTURE_TYPE_I : AV_PICTURE_TYPE_NONE;
    m_durations[frame->pts] = scheduled->duration;
    current.end = frame->pts + scheduled->duration;
    ++current.pictures;
    {
        const Stopwatch watch(m_budget, m_encodeSeconds);
        m_path.encoder().send(frame.get());
    }
    receive();
    return true;
}

bool PictureTrial::beginsTail(const ScheduledFrame& frame) {
    // Only a stretch that begins where the range does can come to its tail.
    if (m_stretches.size() > 1 || !mayBeWhole() || !m_tailStart || frame.pts < *m_tailStart)
        return false;
    m_tailStart.reset();
    return true;
}

void PictureTrial::receive() {
    const Stopwatch watch(m_budget, m_encodeSeconds);
    const ffmpeg::PacketPtr packet = ffmpeg::makePacket();
    while (!m_budget.token().stop_requested() && m_path.encoder().receive(*packet))
        m_packets[packet->pts] = packet->size;
}

void PictureTrial::addTo(TrialFigures& figures) {
    const double unit = av_q2d(m_path.timeBase());
    double shownSeconds = 0;
    for (const auto& [pts, bytes] : m_packets)
        shownSeconds += static_cast<double>(m_durations.at(pts)) * unit;
    for (const Stretch& stretch : m_stretches) {
        // Without its key frame nothing of a place has been measured.
        if (!m_packets.contains(stretch.begin))
            continue;
        TrialPlace place;
        place.keyBytes = m_packets.at(stretch.begin);
        for (auto packet = m_packets.upper_bound(stretch.begin);
             packet != m_packets.end() && packet->first < stretch.end; ++packet) {
            place.laterBytes += packet->second;
            place.laterSeconds += static_cast<double>(m_durations.at(packet->first)) * unit;
        }
        figures.places.push_back(place);
    }
    figures.makers = m_path.usefulMakers();
    figures.keyFrames = pictures() / kKeyFrameDistance + 1 + (m_path.tailStart() ? 1 : 0);
    const auto measured = static_cast<double>(m_packets.size());
    figures.isWhole = m_stretches.size() == 1 && m_stretches.back().hasEnded &&
                      m_packets.size() == m_durations.size();
    // The stated rate of a source of variable rate says little.
    figures.pictures = shownSeconds > 0 ? measured / shownSeconds * figures.seconds : pictures();
    const auto each = [](double seconds, int count) { return seconds / std::max(count, 1); };
    figures.decodeSeconds = each(m_decodeSeconds, m_decoded);
    figures.transformSeconds = each(m_transformSeconds, static_cast<int>(m_durations.size()));
    figures.encodeSeconds = each(m_encodeSeconds, static_cast<int>(m_packets.size()));
}

} // namespace media
