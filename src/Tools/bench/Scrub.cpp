#include "Media/Error.h"
#include "Media/Player.h"
#include "Media/Threading/Guarded.h"
#include "Support/MainThread.h"
#include "Tools/bench/Benchmarks.h"
#include "Tools/bench/Waiting.h"

#include <QTimer>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <optional>

namespace brisklet::bench {

namespace {

constexpr media::Time kExactly{0, media::kComparisonTimescale};

constexpr std::chrono::microseconds kKeyRepeat(1'000'000 / kRepeatsPerSecond);

/// Notes when it was shown a frame first. Any thread.
class FirstFrameSink final : public media::VideoSink {
public:
    void present(const media::TimedImage& frame) override {
        const auto first = m_first.lock();
        if (frame.image && !*first)
            *first = Clock::now();
    }

    void forget() { m_first.lock()->reset(); }

    [[nodiscard]] std::optional<Clock::time_point> first() { return *m_first.lock(); }

private:
    media::Guarded<std::optional<Clock::time_point>> m_first;
};

double milliseconds(Clock::duration duration) {
    return std::chrono::duration<double, std::milli>(duration).count();
}

double seekTo(media::Player& player, double seconds) {
    std::optional<bool> isFinished;
    Clock::time_point end;
    const auto start = Clock::now();
    player.seek(media::Time::fromSeconds(seconds, media::kComparisonTimescale), kExactly, kExactly,
                [&](bool finished) {
                    end = Clock::now();
                    isFinished = finished;
                });
    waitUntil([&] { return isFinished.has_value(); });
    if (!*isFinished)
        throw BenchmarkError("A seek was given up.");
    return milliseconds(end - start);
}

/// Leaves the player alone for that many seconds.
void restFor(double seconds) {
    bool isOver = false;
    QTimer::singleShot(std::chrono::duration_cast<std::chrono::milliseconds>(
                           std::chrono::duration<double>(seconds)),
                       [&isOver] { isOver = true; });
    waitUntil([&isOver] { return isOver; });
}

/// A paused player with a file, on its first frame.
class PausedPlayer {
public:
    PausedPlayer(const std::filesystem::path& source, QSize size)
        : m_player(media::Player::make(&postToMainThread)) {
        m_player->setPreviewSize(size.width(), size.height());
        m_player->setVideoSink(&m_sink);
        try {
            m_player->replaceCurrentItem(
                std::make_shared<media::PlayerItem>(media::Asset::open(source)));
        } catch (const media::Error& error) {
            throw BenchmarkError(error.what());
        }
        seekTo(*m_player, 0);
        waitUntil([&] { return m_sink.first().has_value(); });
    }

    PausedPlayer(const PausedPlayer&) = delete;
    PausedPlayer& operator=(const PausedPlayer&) = delete;

    ~PausedPlayer() { m_player->setVideoSink(nullptr); }

    media::Player& player() { return *m_player; }

    FirstFrameSink& sink() { return m_sink; }

private:
    FirstFrameSink m_sink;
    std::shared_ptr<media::Player> m_player;
};

} // namespace

ScrubFigures scrub(const std::filesystem::path& source, const std::vector<double>& times,
                   QSize size) {
    PausedPlayer paused(source, size);
    ScrubFigures figures;
    for (const double time : times) {
        paused.sink().forget();
        const auto start = Clock::now();
        figures.seeks.push_back(seekTo(paused.player(), time));
        // Without a picture a seek that finds none is done all the same.
        const auto shown = paused.sink().first();
        figures.glances.push_back(shown ? milliseconds(*shown - start) : figures.seeks.back());
    }
    return figures;
}

ScrubFigures step(const std::filesystem::path& source, double from, int count, QSize size) {
    PausedPlayer paused(source, size);
    media::Player& player = paused.player();
    seekTo(player, from);
    int jumps = 0;
    player.addPeriodicTimeObserver(media::Time{1, 30}, [&jumps](media::Time) { ++jumps; });
    ScrubFigures figures;
    for (int i = 0; i < std::abs(count); ++i) {
        const auto start = Clock::now();
        player.step(count < 0 ? -1 : 1);
        waitUntil([&] { return jumps > i; });
        figures.seeks.push_back(milliseconds(Clock::now() - start));
    }
    return figures;
}

HoldFigures hold(const std::filesystem::path& source, double from, int count, double rest,
                 QSize size) {
    PausedPlayer paused(source, size);
    media::Player& player = paused.player();
    seekTo(player, from);
    restFor(rest);
    const auto total = static_cast<std::size_t>(std::abs(count));
    std::vector<Clock::time_point> asked;
    std::vector<double> taken;
    player.addPeriodicTimeObserver(media::Time{1, 30}, [&](media::Time) {
        if (taken.size() < asked.size())
            taken.push_back(milliseconds(Clock::now() - asked[taken.size()]));
    });
    const auto begin = Clock::now();
    QTimer key;
    key.setTimerType(Qt::PreciseTimer);
    QObject::connect(&key, &QTimer::timeout, &key, [&] {
        while (asked.size() < total && Clock::now() >= begin + asked.size() * kKeyRepeat) {
            asked.push_back(Clock::now());
            player.step(count < 0 ? -1 : 1);
        }
    });
    key.start(1);
    waitUntil([&] { return taken.size() == total; });
    const auto settled = taken.begin() + kRepeatsPerSecond;
    return {.first = *std::max_element(taken.begin(), settled), .steps = {settled, taken.end()}};
}

} // namespace brisklet::bench
