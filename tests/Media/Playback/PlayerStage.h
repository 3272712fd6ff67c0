#pragma once

#include "FakeOutput.h"
#include "Media/Player.h"
#include "TestSupport/Fixture.h"

#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

/// Stands in for the owner's event loop: what is posted runs when the test pumps.
class HandExecutor {
public:
    [[nodiscard]] media::Executor executor();

    /// Runs what is posted until `isDone` holds; false where it does not within a generous time.
    bool pumpUntil(const std::function<bool()>& isDone);
    /// Runs what has been posted by now.
    void pump();
    /// Lets a waiting pump look at its condition again. Any thread.
    void nudge();

private:
    struct Shared {
        std::mutex mutex;
        std::condition_variable changed;
        std::deque<std::function<void()>> posted;
        bool isNudged = false;
    };

    /// The executor may be called after its player and its stage are gone.
    std::shared_ptr<Shared> m_shared = std::make_shared<Shared>();
};

/// Keeps every frame that it is shown.
class RecordingSink final : public media::VideoSink {
public:
    explicit RecordingSink(HandExecutor& executor) : m_executor(executor) {}

    void present(const media::TimedImage& frame) override;

    [[nodiscard]] std::size_t count() const;
    [[nodiscard]] std::vector<media::TimedImage> frames() const;
    /// The number that the last frame shows; none without a frame or a readable one.
    [[nodiscard]] std::optional<int> number() const;
    /// Every number shown so far, -1 where there is none.
    [[nodiscard]] std::vector<int> numbers() const;
    [[nodiscard]] media::TimedImage last() const;
    void clear();

private:
    HandExecutor& m_executor;
    mutable std::mutex m_mutex;
    std::vector<media::TimedImage> m_frames;
};

/// The number that a numbered picture shows.
std::optional<int> readNumber(const media::ImagePtr& image);

/// A player with a sink, a device and a record of all it reports.
class PlayerStage {
public:
    PlayerStage();
    ~PlayerStage();
    PlayerStage(const PlayerStage&) = delete;
    PlayerStage& operator=(const PlayerStage&) = delete;

    /// Opens the file as the player's item and waits for its first frame.
    void load(const std::filesystem::path& path);
    /// Seeks exactly and waits for the answer; whether it was finished.
    bool seekAndWait(media::Time time);
    /// Steps and waits until the sink shows `number`.
    bool stepUntilShown(int count, int number);

    bool pumpUntil(const std::function<bool()>& isDone) { return executor.pumpUntil(isDone); }

    bool waitForNumber(int number);

    static std::shared_ptr<const media::PlayerItem> open(const std::filesystem::path& path);

    HandExecutor executor;
    FakeDevice device;
    RecordingSink sink{executor};
    std::unique_ptr<media::Player> player;
    /// What was reported, in order: "rate 1", "end", "time".
    std::vector<std::string> events;
    std::vector<double> times;
    int endCount = 0;
};

/// Exactly then.
void seekExactly(media::Player& player, media::Time time, std::function<void(bool)> done = {});

/// The rule by which a time chooses a frame: times are compared in 1/600 s, a frame shows until
/// the next begins, the first before and the last after.
int frameAt(const testsupport::Fixture& fixture, media::Time time);
