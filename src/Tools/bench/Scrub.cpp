#include "Media/Error.h"
#include "Media/Player.h"
#include "Support/MainThread.h"
#include "Tools/bench/Benchmarks.h"
#include "Tools/bench/Waiting.h"

#include <atomic>
#include <optional>

namespace brisklet::bench {

namespace {

constexpr media::Time kExactly{0, media::kComparisonTimescale};

/// Counts the frames it is shown.
class CountingSink final : public media::VideoSink {
public:
    void present(const media::TimedImage& frame) override {
        if (frame.image)
            ++m_count;
    }

    [[nodiscard]] int count() const { return m_count; }

private:
    std::atomic<int> m_count = 0;
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

} // namespace

ScrubFigures scrub(const std::filesystem::path& source, const std::vector<double>& times,
                   QSize size) {
    CountingSink sink;
    media::Player player(&postToMainThread);
    player.setPreviewSize(size.width(), size.height());
    player.setVideoSink(&sink);
    try {
        player.replaceCurrentItem(std::make_shared<media::PlayerItem>(media::Asset::open(source)));
    } catch (const media::Error& error) {
        throw BenchmarkError(error.what());
    }
    seekTo(player, 0);
    waitUntil([&] { return sink.count() > 0; });

    ScrubFigures figures;
    for (const double time : times)
        figures.seeks.push_back(seekTo(player, time));
    player.setVideoSink(nullptr);
    return figures;
}

} // namespace brisklet::bench
