#include "PlaybackRig.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

using namespace std::chrono_literals;
using media::ImageSize;
using media::Ticks;
using media::Time;
using media::playback::CachedFrame;
using media::playback::DecodeWork;
using media::playback::Delivery;
using media::playback::FrameToShow;
using media::playback::PlaybackEvent;
using media::playback::Presentation;
using media::playback::RenderedFrame;

namespace {

/// More than any moment asks for; beyond it the state machine turns in circles.
constexpr int kMostRounds = 10'000;

class FrameAsset final : public media::Asset {
public:
    explicit FrameAsset(int frameCount) : m_duration{frameCount * kFrameLength.count(), 600} {}

    [[nodiscard]] const std::filesystem::path& path() const override { return m_path; }

    [[nodiscard]] Time duration() const override { return m_duration; }

    [[nodiscard]] std::vector<media::AssetTrack> tracks(media::MediaType type) const override {
        if (type != media::MediaType::video)
            return {};
        media::AssetTrack track;
        track.naturalSize = {128, 64};
        track.nominalFrameRate = 30;
        return {track};
    }

    void setLossHandler(std::function<void()> /*handler*/) const override {}

private:
    std::filesystem::path m_path;
    Time m_duration;
};

} // namespace

std::shared_ptr<const media::PlayerItem> makeItem(int frameCount) {
    return std::make_shared<const media::PlayerItem>(
        std::make_shared<const FrameAsset>(frameCount));
}

RenderedFrame renderedFrame(const CachedFrame& frame) {
    media::Image image;
    image.width = frame.size().width;
    image.height = frame.size().height;
    return {std::make_shared<const media::Image>(std::move(image)), frame.time, frame.range, false};
}

PlaybackRig::PlaybackRig(std::size_t cacheBytes) : cache(cacheBytes) {
    state.setPreviewSize({kFrameSize.width, kFrameSize.height});
    state.setSink(&m_sink);
    settle();
    m_shown.clear();
}

void PlaybackRig::load(int count) {
    item = makeItem(count);
    frameCount = count;
    state.replaceItem(item, now);
    settle();
    pass(1s);
    events.clear();
    m_shown.clear();
}

CachedFrame PlaybackRig::frameAt(Ticks ticks, ImageSize size) const {
    const auto number =
        std::clamp<std::int64_t>(ticks.count() / kFrameLength.count(), 0, frameCount - 1);
    const Ticks begin(number * kFrameLength.count());
    CachedFrame frame = cachedFrame(begin, begin + kFrameLength, size);
    if (number == 0)
        frame.range.begin = Ticks::beginning();
    if (number == frameCount - 1)
        frame.range.end = Ticks::forever();
    return frame;
}

int PlaybackRig::numberOf(const RenderedFrame& frame) {
    return frame.image ? static_cast<int>(frame.time.ticks().count() / kFrameLength.count()) : -1;
}

bool PlaybackRig::decode() {
    const DecodeWork work = nextWork();
    decoder.decodedCount = 0;
    if (work.kind == DecodeWork::Kind::wait)
        return false;
    perform(work);
    return true;
}

void PlaybackRig::decodeAll() {
    for (int round = 0; decode(); ++round) {
        if (round == kMostRounds)
            throw std::logic_error("Decoding never comes to rest.");
    }
}

void PlaybackRig::perform(const DecodeWork& work) {
    if (const auto meanwhile = std::exchange(duringDecode, nullptr))
        meanwhile();
    switch (work.kind) {
    case DecodeWork::Kind::open:
        decoder.item = work.item.get();
        decoder.canDecode = work.item != nullptr;
        decoder.hasWaitingFrames = false;
        decoder.position = Ticks::beginning();
        break;
    case DecodeWork::Kind::queue:
        state.nextFrameArrived(work, renderedFrame(*work.frame), now);
        break;
    case DecodeWork::Kind::keepWaitingFrame:
        decoder.hasWaitingFrames = false;
        break;
    case DecodeWork::Kind::releaseDecoder:
        decoder.isOverBudget = false;
        state.decoderReleased();
        break;
    default:
        decodeFrame(work);
        break;
    }
}

void PlaybackRig::decodeFrame(const DecodeWork& work) {
    const CachedFrame frame = frameAt(work.target.middle(), work.imageSize);
    if (!decoder.canDecode || damaged.contains(numberOf(renderedFrame(frame)))) {
        state.frameFailed(work, now);
        return;
    }
    ++decoder.decodedCount;
    decoder.position = frame.range.end;
    cache.insert(work.item.get(), frame);
    if (work.kind == DecodeWork::Kind::decodeAhead)
        state.nextFrameArrived(work, renderedFrame(frame), now);
    else if (work.kind == DecodeWork::Kind::seekNear)
        state.nearFrameArrived(work, frame.time.ticks());
    else
        state.frameArrived(work, frame.range.end);
}

void PlaybackRig::present() {
    Presentation next = state.nextPresentation(now);
    for (int round = 0; !std::holds_alternative<SteadyTime>(next); ++round) {
        if (round == kMostRounds)
            throw std::logic_error("Presenting never comes to rest.");
        if (const auto* frame = std::get_if<FrameToShow>(&next)) {
            if (const auto meanwhile = std::exchange(duringRender, nullptr))
                meanwhile();
            next = state.frameRendered(*frame, renderedFrame(frame->frame), now);
            continue;
        }
        const Delivery delivery = std::get<Delivery>(next);
        if (onDelivery)
            onDelivery(delivery);
        if (delivery.picture)
            m_shown.push_back(shownFrame());
        m_reported.insert(m_reported.end(), delivery.events.begin(), delivery.events.end());
        next = state.delivered(now);
    }
}

void PlaybackRig::answer() {
    for (const PlaybackEvent& event : std::exchange(m_reported, {})) {
        switch (event.kind) {
        case PlaybackEvent::Kind::tick:
            if (!state.acceptTick(event).empty())
                events.emplace_back("tick");
            break;
        case PlaybackEvent::Kind::jump:
            if (!state.acceptJump(event))
                break;
            events.emplace_back("jump");
            arrivedGenerations.push_back(event.generation);
            break;
        case PlaybackEvent::Kind::end:
            if (!state.acceptEnd(event))
                break;
            events.emplace_back("end");
            ++endCount;
            break;
        }
    }
}

void PlaybackRig::letSoundWork() {
    if (const auto run = state.nextSoundRun(m_run, now))
        m_run = run->number;
    if (!hasSound)
        state.runWithoutSound(m_run, now);
}

void PlaybackRig::settle() {
    for (int i = 0; i < 3; ++i) {
        decodeAll();
        present();
        letSoundWork();
        answer();
    }
}

void PlaybackRig::pass(std::chrono::milliseconds time) {
    for (auto each = 0ms; each < time; each += 1ms) {
        now += 1ms;
        settle();
    }
}

std::uint64_t PlaybackRig::seek(int frame) {
    const Time time{frame * kFrameLength.count(), 600};
    return state.beginSeek(time, Time{}, Time{}, now).value();
}

std::vector<int> PlaybackRig::takeShown() {
    return std::exchange(m_shown, {});
}
