// Measures the offset between picture and sound: plays a video with a click at every whole second,
// records the monitor of the sound device, and compares when each click is heard with when the
// frame of that second is handed to the sink.
//
//     av-sync SECONDS [MONITOR]
//
// Needs a PulseAudio server; MONITOR is the source to listen to (default: @DEFAULT_MONITOR@).
// Prints one line of JSON; the offsets are in milliseconds, positive where the sound is late. The
// recording is accurate to about its fragment size (5 ms).

#include "Media/Player.h"
#include "TestSupport/ClickTrack.h"
#include "TestSupport/Fixture.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <cmath>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <iostream>
#include <limits>
#include <map>
#include <memory>
#include <mutex>
#include <stdexcept>
#include <string>
#include <thread>

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kRate = 48000;

double secondsNow() {
    return std::chrono::duration<double>(Clock::now().time_since_epoch()).count();
}

/// When each frame was handed over, by its presentation time in whole milliseconds.
class TimingSink final : public media::VideoSink {
public:
    void present(const media::TimedImage& frame) override {
        const std::scoped_lock lock(m_mutex);
        if (frame.image)
            m_shownAt[std::lround(frame.time.seconds() * 1000)] = secondsNow();
    }

    [[nodiscard]] std::map<long, double> shownAt() const {
        const std::scoped_lock lock(m_mutex);
        return m_shownAt;
    }

private:
    mutable std::mutex m_mutex;
    std::map<long, double> m_shownAt;
};

/// Records a source for as long as it lives.
class Recorder {
public:
    explicit Recorder(const std::string& source)
        : m_pipe(popen(("exec parec --format=float32le --channels=1 --rate=48000 --latency-msec=5 "
                        "--device='" +
                        source + "' 2>/dev/null")
                           .c_str(),
                       "r")),
          m_thread([this](const std::stop_token& stop) { run(stop); }) {
        if (!m_pipe)
            throw std::runtime_error("parec cannot be started");
    }

    Recorder(const Recorder&) = delete;
    Recorder& operator=(const Recorder&) = delete;

    ~Recorder() {
        m_thread.request_stop();
        m_thread.join();
        pclose(m_pipe);
    }

    /// When each click was heard.
    std::vector<double> clicks() {
        const std::scoped_lock lock(m_mutex);
        std::vector<double> times;
        for (const std::size_t index : testsupport::findClicks(m_samples, kRate))
            times.push_back(timeOf(index));
        return times;
    }

private:
    struct Arrival {
        std::size_t sampleCount;
        double time;
    };

    void run(const std::stop_token& stop) {
        std::array<float, 240> block{};
        while (!stop.stop_requested()) {
            const std::size_t count = fread(block.data(), sizeof(float), block.size(), m_pipe);
            const double time = secondsNow();
            if (count == 0)
                return;
            const std::scoped_lock lock(m_mutex);
            m_samples.insert(m_samples.end(), block.begin(),
                             block.begin() + static_cast<std::ptrdiff_t>(count));
            m_arrivals.push_back({m_samples.size(), time});
        }
    }

    /// A block arrives after its last sample was played, with a varying delay: the least delayed
    /// block within some seconds gives the time of the samples around it.
    [[nodiscard]] double timeOf(std::size_t index) const {
        constexpr std::size_t kAround = 2 * kRate;
        double earliest = std::numeric_limits<double>::infinity();
        for (const Arrival& arrival : m_arrivals) {
            const bool isNear =
                arrival.sampleCount + kAround > index && arrival.sampleCount < index + kAround;
            if (isNear)
                earliest = std::min(earliest, arrival.time -
                                                  static_cast<double>(arrival.sampleCount) / kRate);
        }
        return earliest + static_cast<double>(index) / kRate;
    }

    std::FILE* m_pipe;
    std::mutex m_mutex;
    std::vector<float> m_samples;
    std::vector<Arrival> m_arrivals;
    std::jthread m_thread;
};

/// The player's owner: runs what is posted until the time is up.
class Owner {
public:
    media::Executor executor() {
        return [this](std::function<void()> action) {
            const std::scoped_lock lock(m_mutex);
            m_posted.push_back(std::move(action));
            m_changed.notify_all();
        };
    }

    void runFor(std::chrono::duration<double> duration) {
        const auto end = Clock::now() + std::chrono::duration_cast<Clock::duration>(duration);
        std::unique_lock lock(m_mutex);
        while (m_changed.wait_until(lock, end, [this] { return !m_posted.empty(); })) {
            const auto action = std::move(m_posted.front());
            m_posted.pop_front();
            lock.unlock();
            action();
            lock.lock();
        }
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<std::function<void()>> m_posted;
};

double median(std::vector<double> values) {
    if (values.empty())
        return std::numeric_limits<double>::quiet_NaN();
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/// For each second the click that was heard nearest to its frame, minus the frame; milliseconds.
std::vector<double> differences(const std::map<long, double>& shownAt,
                                const std::vector<double>& clicks) {
    std::vector<double> result;
    for (const auto& [milliseconds, shown] : shownAt) {
        if (milliseconds % 1000 != 0 || milliseconds == 0 || clicks.empty())
            continue;
        const double heard =
            *std::min_element(clicks.begin(), clicks.end(), [shown = shown](double a, double b) {
                return std::abs(a - shown) < std::abs(b - shown);
            });
        if (std::abs(heard - shown) < 0.5)
            result.push_back((heard - shown) * 1000);
    }
    return result;
}

void report(const std::vector<double>& all, const media::Player::Statistics& statistics) {
    const auto [least, greatest] = std::minmax_element(all.begin(), all.end());
    const std::ptrdiff_t tenth = std::max<std::ptrdiff_t>(1, std::ssize(all) / 10);
    std::cout << "{\"clicks\": " << all.size() << ", \"median\": " << median(all)
              << ", \"beyond20\": "
              << std::count_if(all.begin(), all.end(), [](double d) { return std::abs(d) > 20; })
              << ", \"min\": " << *least << ", \"max\": " << *greatest
              << ", \"firstTenth\": " << median({all.begin(), all.begin() + tenth})
              << ", \"lastTenth\": " << median({all.end() - tenth, all.end()})
              << ", \"shown\": " << statistics.shown << ", \"late\": " << statistics.late
              << ", \"dropped\": " << statistics.dropped << "}\n";
}

void measure(double seconds, const std::string& monitor) {
    const testsupport::Fixture film =
        testsupport::makeFixture({.duration = std::ceil(seconds) + 1, .groupOfPictures = 250});
    Owner owner;
    TimingSink sink;
    const auto player = media::Player::make(owner.executor());
    player->setVideoSink(&sink);
    player->replaceCurrentItem(
        std::make_shared<const media::PlayerItem>(media::Asset::open(film.path)));
    Recorder recorder(monitor);
    owner.runFor(std::chrono::seconds(1));
    player->play();
    owner.runFor(std::chrono::duration<double>(seconds));
    player->pause();
    owner.runFor(std::chrono::seconds(1));
    const std::vector<double> all = differences(sink.shownAt(), recorder.clicks());
    if (all.empty())
        throw std::runtime_error("no click was heard");
    report(all, player->statistics());
    player->setVideoSink(nullptr);
}

} // namespace

int main(int argc, char** argv) {
    const double seconds = argc > 1 ? std::atof(argv[1]) : 0;
    if (seconds < 2) {
        std::cerr << "Usage: av-sync SECONDS [MONITOR]\n";
        return 2;
    }
    try {
        measure(seconds, argc > 2 ? argv[2] : "@DEFAULT_MONITOR@");
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
    return 0;
}
