#include "Models/EditStateFixture.h"
#include "TestSupport/Inspection.h"
#include "TestSupport/Processes.h"
#include "TestSupport/TemporaryFolder.h"

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <random>
#include <set>
#include <string>
#include <sys/types.h>
#include <unistd.h>
#include <vector>

/// The processes that decode and encode for the program, and what is left when one of them ends.
namespace brisklet {

namespace {

using testsupport::childrenOf;
using testsupport::makeFixture;
using testsupport::pumpPending;
using testsupport::pumpUntil;
using Processes = std::set<pid_t>;

/// The program’s processes that decode or encode.
Processes helpers() {
    Processes all;
    for (const pid_t server : childrenOf(::getpid()))
        all.merge(childrenOf(server));
    return all;
}

Processes without(const Processes& all, const Processes& some) {
    Processes rest;
    std::ranges::set_difference(all, some, std::inserter(rest, rest.end()));
    return rest;
}

class HelpersTest : public EditStateFixture {
protected:
    void SetUp() override {
        if (qgetenv("BRISKLET_ENGINE") != "helpers")
            GTEST_SKIP() << "for an engine with helpers";
    }

    /// Loads a video; the process that decodes it.
    static pid_t loadAndFind(EditState& state, const std::filesystem::path& path) {
        const Processes before = helpers();
        bool isLoaded = false;
        const QObject context;
        QObject::connect(&state, &EditState::editBegan, &context, [&] { isLoaded = true; });
        state.load(urlOf(path));
        EXPECT_TRUE(pumpUntil([&] { return isLoaded && !state.thumbnails().isEmpty(); }));
        const Processes made = without(helpers(), before);
        EXPECT_EQ(made.size(), 1U);
        return made.empty() ? 0 : *made.begin();
    }

    static bool seeks(EditState& state, double seconds) {
        bool isDone = false;
        state.playerController().player()->seek(
            media::Time::fromSeconds(seconds, media::kComparisonTimescale), {}, {},
            [&](bool finished) { isDone = finished; });
        return pumpUntil([&] { return isDone; });
    }

    void operate(EditState& state) {
        const double at = std::uniform_real_distribution<double>(0, 9.9)(m_random);
        switch (m_random() % 6) {
        case 0:
            return state.togglePlayback();
        case 1:
            return state.setTrimStart(at / 3);
        case 2:
            return state.setTrimEnd(5 + at / 3);
        case 3:
            return state.rotateLeft();
        default:
            return state.seek(at);
        }
    }

    testsupport::TemporaryFolder m_folder;
    std::mt19937 m_random{20};
};

TEST_F(HelpersTest, endAtRandomAndNobodyElseNotices) {
    constexpr int kOperations = 200;
    const auto neighbour = std::make_shared<EditState>();
    const auto video = makeFixture(kTenSeconds).path;
    pid_t decoder = loadAndFind(state(), video);
    const pid_t neighbours =
        loadAndFind(*neighbour, makeFixture({.duration = 10, .width = 480}).path);
    int ended = 0;
    for (int i = 0; i < kOperations; ++i) {
        operate(state());
        if (m_random() % 4 != 0) {
            pumpPending();
            continue;
        }
        const Edit edit = state().edit();
        ++ended;
        ASSERT_EQ(::kill(decoder, SIGKILL), 0);
        ASSERT_TRUE(pumpUntil([&] { return state().isVideoLost(); })) << "operation " << i;
        EXPECT_TRUE(state().isOpenAgainOffered());
        ASSERT_TRUE(seeks(*neighbour, i % 10)) << "the other video goes on";
        const Processes before = helpers();
        state().openAgain();
        ASSERT_TRUE(pumpUntil([&] { return !state().isVideoLost(); })) << "operation " << i;
        EXPECT_EQ(state().edit(), edit);
        const Processes made = without(helpers(), before);
        ASSERT_FALSE(made.empty());
        decoder = *made.begin();
        ASSERT_TRUE(seeks(state(), i % 10));
    }
    EXPECT_GT(ended, 30);
    EXPECT_EQ(state().errorMessage(), std::nullopt);
    EXPECT_FALSE(neighbour->isVideoLost());
    EXPECT_TRUE(helpers().contains(neighbours));
}

TEST_F(HelpersTest, ofAVideoMayEndWhileItIsExported) {
    const pid_t decoder = loadAndFind(state(), makeFixture(kTenSeconds).path);
    state().exportTo(urlOf(m_folder / "out.mp4"));
    ASSERT_TRUE(pumpUntil([&] { return state().exportProgress().value_or(1) > 0.05; }));
    ASSERT_EQ(::kill(decoder, SIGKILL), 0);
    ASSERT_TRUE(pumpUntil([&] { return state().isVideoLost(); }));
    ASSERT_TRUE(pumpUntil([&] { return !state().exportProgress(); }));
    EXPECT_EQ(state().errorMessage(), std::nullopt);
    EXPECT_EQ(testsupport::readNumberedFrames(m_folder / "out.mp4").size(), 300U);
}

TEST_F(HelpersTest, ofAnExportMayEndAtAnyMoment) {
    ASSERT_NE(loadAndFind(state(), makeFixture({.duration = 20, .width = 960}).path), 0);
    for (const double moment : {0.0, 0.2, 0.5}) {
        const Processes before = helpers();
        state().exportTo(urlOf(m_folder / "out.mp4"));
        // Forecasts are helpers too.
        ASSERT_TRUE(pumpUntil([&] {
            if (state().exportProgress().value_or(0) >= moment) {
                for (const pid_t encoder : without(helpers(), before))
                    ::kill(encoder, SIGKILL);
            }
            return !state().exportProgress();
        }));
        ASSERT_TRUE(state().errorMessage());
        EXPECT_NE(state().errorMessage()->indexOf(
                      QStringLiteral("The video encoder has stopped unexpectedly.")),
                  -1)
            << state().errorMessage()->toStdString();
        EXPECT_TRUE(std::filesystem::is_empty(m_folder.path()));
        state().clearErrorMessage();
    }
    state().exportTo(urlOf(m_folder / "out.mp4"));
    ASSERT_TRUE(pumpUntil([&] { return !state().exportProgress(); }));
    EXPECT_EQ(state().errorMessage(), std::nullopt);
    EXPECT_FALSE(state().isVideoLost());
}

TEST_F(HelpersTest, areForkedFromAnotherProcessIfThatIsGone) {
    const pid_t decoder = loadAndFind(state(), makeFixture(kTenSeconds).path);
    for (const pid_t server : childrenOf(::getpid()))
        ::kill(server, SIGKILL);
    ASSERT_TRUE(testsupport::isRunning(decoder));
    EXPECT_TRUE(seeks(state(), 7)) << "a video that is open needs it no more";
    const auto another = std::make_shared<EditState>();
    EXPECT_NE(loadAndFind(*another, makeFixture({.duration = 10, .width = 480}).path), 0);
    EXPECT_TRUE(seeks(*another, 3));
}

TEST_F(HelpersTest, areConfined) {
    const pid_t decoder = loadAndFind(state(), makeFixture(kTenSeconds).path);
    std::map<std::string, std::string> facts;
    std::ifstream file("/proc/" + std::to_string(decoder) + "/status");
    for (std::string line; std::getline(file, line);)
        facts[line.substr(0, line.find(':'))] = line.substr(line.find('\t') + 1);
    EXPECT_EQ(facts["NoNewPrivs"], "1");
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
    EXPECT_EQ(facts["Seccomp"], "2") << "filtered";
#endif
}

TEST_F(HelpersTest, ofClosedVideosAreGone) {
    auto closed = std::make_shared<EditState>();
    const pid_t decoder = loadAndFind(*closed, makeFixture(kTenSeconds).path);
    closed.reset();
    EXPECT_TRUE(pumpUntil([&] { return !helpers().contains(decoder); }));
}

TEST_F(HelpersTest, thatIsStoppedKeepsNobodyWaiting) {
    auto closed = std::make_shared<EditState>();
    const pid_t decoder = loadAndFind(*closed, makeFixture(kTenSeconds).path);
    ASSERT_NE(loadAndFind(state(), makeFixture({.duration = 10, .width = 480}).path), 0);
    ASSERT_EQ(::kill(decoder, SIGSTOP), 0);
    closed->seek(3);
    closed->seek(8);
    EXPECT_TRUE(seeks(state(), 4)) << "the other video goes on";
    closed.reset();
    EXPECT_TRUE(pumpUntil([&] { return !helpers().contains(decoder); }));
    EXPECT_TRUE(seeks(state(), 6));
}

} // namespace

} // namespace brisklet
