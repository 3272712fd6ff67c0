#include "Models/ExportForecaster.h"

#include "Media/Error.h"
#include "Models/EditStateFixture.h"
#include "TestSupport/TemporaryFolder.h"

#include <QCoroTimer>
#include <QKeyEvent>

#include <gmock/gmock.h>

#include <vector>

namespace brisklet {
namespace {

using namespace std::chrono_literals;
using testsupport::pumpPending;
using testsupport::pumpUntil;

constexpr media::ExportForecast kForecast{.bytes = 46'000'000, .seconds = 9};

/// Trials that end when the test says so, and remember what they were asked.
class FakeTrials {
public:
    ExportForecaster::Options options() {
        return {.rest = 20ms, .trial = [this](ExportRequest request, std::stop_token stop) {
                    return run(std::move(request), std::move(stop));
                }};
    }

    std::vector<ExportRequest> requests;
    std::optional<media::ExportForecast> answer = kForecast;
    bool isHeld = false;
    int running = 0;
    int stopped = 0;

private:
    QCoro::Task<std::optional<media::ExportForecast>> run(ExportRequest request,
                                                          std::stop_token stop) {
        requests.push_back(request);
        ++running;
        do {
            co_await QCoro::sleepFor(std::chrono::milliseconds(1));
        } while (isHeld && !stop.stop_requested());
        --running;
        if (stop.stop_requested()) {
            ++stopped;
            throw media::Cancelled();
        }
        std::optional<media::ExportForecast> result = answer;
        co_return result;
    }
};

class ExportForecasterTest : public EditStateFixture {
protected:
    ExportForecasterTest() {
        ExportSettings::shared().setFormat(ExportFormat::mp4);
        ExportSettings::shared().setResolution(ExportResolution::original);
    }

    ~ExportForecasterTest() override { ExportForecasterTest::pumpToEnd(); }

    void pumpToEnd() {
        m_forecaster.reset();
        pumpUntil([this] { return m_trials.running == 0; });
    }

    bool waitForForecast() {
        return pumpUntil([this] { return state().exportForecast().has_value(); });
    }

    /// An input that no widget gets.
    void press() {
        QKeyEvent event(QEvent::KeyPress, Qt::Key_Shift, Qt::ShiftModifier);
        QCoreApplication::sendEvent(&m_receiver, &event);
    }

    QObject m_receiver;
    FakeTrials m_trials;
    std::unique_ptr<ExportForecaster> m_forecaster =
        std::make_unique<ExportForecaster>(m_state, m_trials.options());
};

TEST_F(ExportForecasterTest, asksForNothingWithoutAVideo) {
    QTest::qWait(60);
    EXPECT_TRUE(m_trials.requests.empty());
    EXPECT_FALSE(m_forecaster->isPending());
}

TEST_F(ExportForecasterTest, asksOnceForTheEditAsItIsAndThenRests) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    ASSERT_TRUE(waitForForecast());
    EXPECT_EQ(state().exportForecast(), kForecast);
    EXPECT_FALSE(m_forecaster->isPending());
    QTest::qWait(60);
    ASSERT_EQ(m_trials.requests.size(), 1U);
    EXPECT_EQ(m_trials.requests[0].endTime, 10);
    EXPECT_NE(m_trials.requests[0].asset, nullptr);
}

TEST_F(ExportForecasterTest, asksAgainForWhateverChangesTheFile) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    ASSERT_TRUE(waitForForecast());
    const std::vector<std::function<void()>> changes = {
        [this] { state().setTrimStart(1); },
        [this] { state().setTrimEnd(9); },
        [this] { state().toggleCrop(); },
        [this] { state().rotateLeft(); },
        [this] { state().setMuted(true); },
        [] { ExportSettings::shared().setFormat(ExportFormat::mov); },
        [] { ExportSettings::shared().setResolution(ExportResolution::sd480); }};
    std::size_t asked = 1;
    for (const auto& change : changes) {
        change();
        EXPECT_EQ(state().exportForecast(), std::nullopt);
        ASSERT_TRUE(waitForForecast());
        EXPECT_EQ(m_trials.requests.size(), ++asked);
    }
}

TEST_F(ExportForecasterTest, remembersEditsThatComeBack) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    ASSERT_TRUE(waitForForecast());
    state().setTrimEnd(5);
    m_trials.answer = {.bytes = 5, .seconds = 5};
    ASSERT_TRUE(waitForForecast());
    state().setTrimEnd(10);
    EXPECT_EQ(state().exportForecast(), kForecast);
    state().setTrimEnd(5);
    EXPECT_EQ(state().exportForecast()->bytes, 5);
    EXPECT_EQ(m_trials.requests.size(), 2U);
}

TEST_F(ExportForecasterTest, stopsAtOnceOnInputAndBeginsAgainAfterIt) {
    m_trials.isHeld = true;
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    ASSERT_TRUE(pumpUntil([this] { return m_trials.running == 1; }));
    press();
    ASSERT_TRUE(pumpUntil([this] { return m_trials.stopped == 1; }));
    EXPECT_EQ(state().exportForecast(), std::nullopt);
    m_trials.isHeld = false;
    ASSERT_TRUE(waitForForecast());
    EXPECT_EQ(m_trials.requests.size(), 2U);
}

TEST_F(ExportForecasterTest, doesNotBeginWhileThereIsInput) {
    m_forecaster.reset();
    ExportForecaster::Options options = m_trials.options();
    options.rest = 400ms;
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    m_forecaster = std::make_unique<ExportForecaster>(m_state, options);
    for (int i = 0; i < 30; ++i) {
        press();
        QTest::qWait(20);
    }
    EXPECT_TRUE(m_trials.requests.empty());
    EXPECT_TRUE(waitForForecast());
}

TEST_F(ExportForecasterTest, waitsWhileItPlays) {
    m_trials.isHeld = true;
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    ASSERT_TRUE(pumpUntil([this] { return m_trials.running == 1; }));
    state().togglePlayback();
    ASSERT_TRUE(pumpUntil([this] { return m_trials.stopped == 1 && state().isPlaying(); }));
    QTest::qWait(60);
    EXPECT_EQ(m_trials.requests.size(), 1U);
    m_trials.isHeld = false;
    state().togglePlayback();
    EXPECT_TRUE(waitForForecast());
}

TEST_F(ExportForecasterTest, waitsWhileAnotherWindowPlays) {
    const auto other = std::make_shared<EditState>();
    const ExportForecaster others(other, m_trials.options());
    other->load(urlOf(testsupport::makeFixture(kTenSeconds).path));
    ASSERT_TRUE(pumpUntil([&] { return other->exportForecast().has_value(); }));
    other->togglePlayback();
    ASSERT_TRUE(pumpUntil([&] { return other->isPlaying(); }));
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    QTest::qWait(60);
    EXPECT_EQ(state().exportForecast(), std::nullopt);
    other->togglePlayback();
    EXPECT_TRUE(waitForForecast());
}

TEST_F(ExportForecasterTest, triesForOneWindowAtATime) {
    m_trials.isHeld = true;
    const auto other = std::make_shared<EditState>();
    const ExportForecaster others(other, m_trials.options());
    other->load(urlOf(testsupport::makeFixture(kTenSeconds).path));
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    ASSERT_TRUE(pumpUntil([&] { return !other->thumbnails().isEmpty(); }));
    QTest::qWait(60);
    EXPECT_EQ(m_trials.running, 1);
    m_trials.isHeld = false;
    EXPECT_TRUE(waitForForecast());
    EXPECT_TRUE(pumpUntil([&] { return other->exportForecast().has_value(); }));
}

TEST_F(ExportForecasterTest, doesNotAskAgainWhereNothingCanBeTold) {
    m_trials.answer = std::nullopt;
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    ASSERT_TRUE(pumpUntil([this] { return !m_forecaster->isPending(); }));
    QTest::qWait(60);
    EXPECT_EQ(m_trials.requests.size(), 1U);
    EXPECT_EQ(state().exportForecast(), std::nullopt);
}

TEST_F(ExportForecasterTest, forgetsTheVideoBefore) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    ASSERT_TRUE(waitForForecast());
    const std::weak_ptr<const media::Asset> before = m_trials.requests[0].asset;
    m_trials.requests.clear();
    state().load(urlOf(testsupport::makeFixture({.duration = 2}).path));
    ASSERT_TRUE(pumpUntil([this] { return state().duration() < 5; }));
    ASSERT_TRUE(waitForForecast());
    ASSERT_EQ(m_trials.requests.size(), 1U);
    EXPECT_NEAR(m_trials.requests[0].endTime, 2, 0.1);
    // The open file of the video before is not held any longer.
    EXPECT_TRUE(pumpUntil([&] { return before.expired(); }));
}

TEST_F(ExportForecasterTest, mayGoWhileATrialRuns) {
    m_trials.isHeld = true;
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    ASSERT_TRUE(pumpUntil([this] { return m_trials.running == 1; }));
    m_forecaster.reset();
    EXPECT_TRUE(pumpUntil([this] { return m_trials.stopped == 1; }));
}

TEST_F(ExportForecasterTest, encodesByItself) {
    m_forecaster = std::make_unique<ExportForecaster>(
        m_state, ExportForecaster::Options{.rest = 20ms, .trial = {}});
    ASSERT_TRUE(loadAndWait({.duration = 1}));
    ASSERT_TRUE(waitForForecast());
    const testsupport::TemporaryFolder folder;
    const auto forecast = static_cast<double>(state().exportForecast()->bytes);
    state().exportTo(urlOf(folder / "out.mp4"));
    ASSERT_TRUE(pumpUntil([this] { return !state().exportProgress(); }));
    EXPECT_NEAR(static_cast<double>(std::filesystem::file_size(folder / "out.mp4")), forecast,
                0.12 * forecast);
}

} // namespace
} // namespace brisklet
