#include "FaultySystem/FaultySystem.h"
#include "Models/EditKeeper.h"
#include "Models/EditStateFixture.h"
#include "Models/KeptEditText.h"
#include "TestSupport/TemporaryFolder.h"

#include <atomic>
#include <cerrno>
#include <fstream>
#include <sstream>

/// The system starts no more threads, at any moment of a load, of an edit and of an export.
namespace brisklet {

namespace {

using testsupport::pumpUntil;
using testsupport::SystemAnswer;
using testsupport::SystemCall;

/// While it lives, threads are refused: that with the number, counted from 0, or all from it on.
class RefusedThreads {
public:
    enum class Which { one, allFrom };

    RefusedThreads(Which which, int number) {
        testsupport::setSystemJudge([this, which, number](const SystemCall& call) {
            if (call.kind != SystemCall::Kind::startThread)
                return SystemAnswer{};
            const int here = m_count++;
            const bool isRefused = which == Which::one ? here == number : here >= number;
            return SystemAnswer{.error = isRefused ? EAGAIN : 0};
        });
    }

    RefusedThreads(const RefusedThreads&) = delete;
    RefusedThreads& operator=(const RefusedThreads&) = delete;

    ~RefusedThreads() { testsupport::setSystemJudge({}); }

    /// Whether it came to that.
    [[nodiscard]] bool haveReached(int number) const { return m_count > number; }

private:
    std::atomic<int> m_count = 0;
};

class ThreadFaultsTest : public EditStateFixture {
protected:
    using Which = RefusedThreads::Which;

    /// Loads a video while threads are refused; whether it came to that.
    bool loadRefusing(Which which, int number) {
        const RefusedThreads refused(which, number);
        state().load(urlOf(m_video));
        SCOPED_TRACE(number);
        EXPECT_TRUE(pumpUntil([this] {
            return state().errorMessage() || (state().videoURL() && !state().isMakingThumbnails());
        }));
        if (const auto message = state().errorMessage()) {
            EXPECT_TRUE(message->startsWith(QStringLiteral("Couldn't open “")) &&
                        message->endsWith(u'.'))
                << message->toStdString();
        }
        return refused.haveReached(number);
    }

    /// A window of its own each time.
    void renew() {
        m_state->clearErrorMessage();
        m_state.reset();
        waitForWorkers();
        testsupport::pumpPending();
        m_state = std::make_shared<EditState>();
        m_state->setFilePanels(m_panels);
    }

    std::filesystem::path m_video = testsupport::makeFixture({.duration = 2}).path;
    testsupport::TemporaryFolder m_folder;
};

TEST_F(ThreadFaultsTest, aVideoThatGetsNoThreadsOpensTheNextTime) {
    for (const Which which : {Which::one, Which::allFrom}) {
        int number = 0;
        while (loadRefusing(which, number)) {
            SCOPED_TRACE(number);
            // In the same window, whatever was left of the first attempt.
            state().clearErrorMessage();
            ASSERT_TRUE(loadAndWait(m_video));
            ++number;
            renew();
        }
        EXPECT_GT(number, 3);
        RecordProperty("points", number);
        renew();
    }
}

TEST_F(ThreadFaultsTest, anExportThatGetsNoThreadsIsASentence) {
    ASSERT_TRUE(loadAndWait(m_video));
    state().setTrimEnd(0.5);
    const auto output = m_folder / "out.mp4";
    int number = 0;
    for (bool isReached = true; isReached; ++number) {
        SCOPED_TRACE(number);
        {
            const RefusedThreads refused(Which::allFrom, number);
            state().exportTo(urlOf(output));
            ASSERT_TRUE(pumpUntil([this] { return !state().exportProgress(); }));
            isReached = refused.haveReached(number);
        }
        EXPECT_NE(std::filesystem::exists(output), state().errorMessage().has_value());
        state().clearErrorMessage();
        std::filesystem::remove(output);
    }
    EXPECT_GT(number, 3);
    RecordProperty("points", number);
    state().exportTo(urlOf(output));
    ASSERT_TRUE(pumpUntil([this] { return !state().exportProgress(); }));
    EXPECT_TRUE(std::filesystem::exists(output));
}

TEST_F(ThreadFaultsTest, anEditIsKeptAllTheSame) {
    EditKeeper keeper(m_folder / "state");
    keeper.watch(m_state);
    ASSERT_TRUE(loadAndWait(m_video));
    const RefusedThreads refused(Which::allFrom, 0);
    state().setTrimStart(1);
    const auto onDisk = [this] {
        std::stringstream text;
        text << std::ifstream(m_folder / "state" / "edits").rdbuf();
        return KeptEditText::parse(text.str()).records;
    };
    ASSERT_TRUE(pumpUntil([&onDisk] { return !onDisk().empty(); }));
    EXPECT_EQ(onDisk().front().edit.edit.trimStart, 1);
}

} // namespace
} // namespace brisklet
