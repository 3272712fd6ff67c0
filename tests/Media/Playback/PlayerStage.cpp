#include "PlayerStage.h"

#include "Media/Playback/ThreadedPlayer.h"
#include "TestSupport/NumberedPicture.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>

using media::Time;

namespace {

constexpr std::chrono::seconds kDeadline{60};
/// Conditions may also change without anything being posted.
constexpr std::chrono::milliseconds kLook{5};

} // namespace

media::Executor HandExecutor::executor() {
    return [shared = m_shared](std::function<void()> action) {
        const std::scoped_lock lock(shared->mutex);
        shared->posted.push_back(std::move(action));
        shared->changed.notify_all();
    };
}

void HandExecutor::nudge() {
    const std::scoped_lock lock(m_shared->mutex);
    m_shared->isNudged = true;
    m_shared->changed.notify_all();
}

void HandExecutor::pump() {
    std::deque<std::function<void()>> actions;
    {
        const std::scoped_lock lock(m_shared->mutex);
        actions.swap(m_shared->posted);
    }
    for (const auto& action : actions)
        action();
}

bool HandExecutor::pumpUntil(const std::function<bool()>& isDone) {
    const auto deadline = std::chrono::steady_clock::now() + kDeadline;
    for (;;) {
        pump();
        if (isDone())
            return true;
        if (std::chrono::steady_clock::now() > deadline)
            return false;
        std::unique_lock lock(m_shared->mutex);
        m_shared->changed.wait_for(
            lock, kLook, [this] { return !m_shared->posted.empty() || m_shared->isNudged; });
        m_shared->isNudged = false;
    }
}

void RecordingSink::present(const media::TimedImage& frame) {
    {
        const std::scoped_lock lock(m_mutex);
        m_frames.push_back(frame);
    }
    m_executor.nudge();
}

std::size_t RecordingSink::count() const {
    const std::scoped_lock lock(m_mutex);
    return m_frames.size();
}

std::vector<media::TimedImage> RecordingSink::frames() const {
    const std::scoped_lock lock(m_mutex);
    return m_frames;
}

media::TimedImage RecordingSink::last() const {
    const std::scoped_lock lock(m_mutex);
    return m_frames.empty() ? media::TimedImage{} : m_frames.back();
}

std::optional<int> RecordingSink::number() const {
    return readNumber(last().image);
}

std::vector<int> RecordingSink::numbers() const {
    std::vector<int> numbers;
    for (const media::TimedImage& frame : frames())
        numbers.push_back(readNumber(frame.image).value_or(-1));
    return numbers;
}

void RecordingSink::clear() {
    const std::scoped_lock lock(m_mutex);
    m_frames.clear();
}

std::optional<int> readNumber(const media::ImagePtr& image) {
    if (!image || image->width < 1 || image->height < 1)
        return std::nullopt;
    const auto stride = static_cast<std::size_t>(image->stride);
    std::vector<std::uint8_t> grey;
    for (int y = 0; y < image->height; ++y) {
        for (int x = 0; x < image->width; ++x)
            grey.push_back(image->pixels[static_cast<std::size_t>(y) * stride +
                                         4U * static_cast<std::size_t>(x) + 1]);
    }
    return testsupport::readNumber(grey, image->width, image->height);
}

PlayerStage::PlayerStage()
    : player(std::make_unique<media::ThreadedPlayer>(executor.executor(), device.output())) {
    player->setPreviewSize(160, 120);
    player->setVideoSink(&sink);
    player->setRateHandler(
        [this](float rate) { events.emplace_back(rate == 0 ? "rate 0" : "rate 1"); });
    player->setEndHandler([this](const auto&) {
        events.emplace_back("end");
        ++endCount;
    });
    player->addPeriodicTimeObserver(Time{1, 30}, [this](Time time) {
        events.emplace_back("time");
        times.push_back(time.seconds());
    });
}

PlayerStage::~PlayerStage() {
    device.setBlocking(false);
}

std::shared_ptr<const media::PlayerItem> PlayerStage::open(const std::filesystem::path& path) {
    return std::make_shared<const media::PlayerItem>(media::Asset::open(path));
}

void PlayerStage::load(const std::filesystem::path& path) {
    const std::size_t jumps = times.size();
    player->replaceCurrentItem(open(path));
    EXPECT_TRUE(pumpUntil([&] { return times.size() > jumps && sink.last().image; }));
}

bool PlayerStage::seekAndWait(Time time) {
    std::optional<bool> finished;
    seekExactly(*player, time, [&finished](bool is) { finished = is; });
    EXPECT_TRUE(pumpUntil([&] { return finished.has_value(); }));
    return finished.value_or(false);
}

bool PlayerStage::stepUntilShown(int count, int number) {
    player->step(count);
    return waitForNumber(number);
}

bool PlayerStage::waitForNumber(int number) {
    return pumpUntil([&] { return sink.number() == number; });
}

void seekExactly(media::Player& player, Time time, std::function<void(bool)> done) {
    player.seek(time, Time{}, Time{}, std::move(done));
}

int frameAt(const testsupport::Fixture& fixture, Time time) {
    int number = 0;
    for (const testsupport::NumberedFrame& frame : fixture.frames) {
        if (Time::fromSeconds(frame.seconds, 600).value <= time.ticks().count())
            number = frame.number;
    }
    return number;
}
