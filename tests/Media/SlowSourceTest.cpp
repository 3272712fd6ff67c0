#include "Media/Error.h"
#include "Media/ExportFixture.h"
#include "Media/Playback/PlayerStage.h"
#include "TestSupport/Fixture.h"
#include "TestSupport/Inspection.h"
#include "TestSupport/SlowDisk.h"
#include "TestSupport/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <memory>

/// Sources on a disk that is slow, does not answer, or breaks while they are read.
namespace media {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testsupport::makeFixture;
using testsupport::SlowDisk;
using testsupport::TemporaryFolder;

class SlowSource : public testing::Test {
protected:
    void SetUp() override {
        if (!m_disk.isThere())
            GTEST_SKIP() << "no file system of our own can be mounted here";
    }

    static constexpr int kBytesPerSecond = 1'000'000;

    /// Takes about half as long to read as to play: most of it is unread when an export has begun.
    static testsupport::Recipe large(double seconds) {
        return {.container = "mov",
                .duration = seconds,
                .audioTracks = 2,
                .additionalArguments = {"-c:a", "pcm_s32le"}};
    }

    SlowDisk m_disk{kBytesPerSecond};
    TemporaryFolder m_folder;
};

TEST_F(SlowSource, isExportedAsIfItWereFast) {
    const auto source = m_disk.holding(makeFixture(large(4)).path);
    exportRange(source, 0.5, 3.5, m_folder / "out.mp4");
    const auto frames = testsupport::readNumberedFrames(m_folder / "out.mp4");
    ASSERT_EQ(frames.size(), 90U);
    for (std::size_t i = 0; i < frames.size(); ++i)
        EXPECT_EQ(frames[i].number, static_cast<int>(i) + 15);
    for (const int track : {0, 1})
        EXPECT_EQ(testsupport::readClicks(m_folder / "out.mp4", track).size(), 3U);
}

TEST_F(SlowSource, thatBreaksIsAnErrorAndLeavesNothing) {
    const auto asset = Asset::open(m_disk.holding(makeFixture(large(20)).path));
    writeFile(m_folder / "out.mp4", "old");
    StagedExportSession session(compositionOf(asset), m_folder / "out.mp4", FileType::mpeg4);
    RunningExport running(session);
    ASSERT_TRUE(running.waitForProgress(0.1));
    m_disk.setBroken(true);
    running.join();
    EXPECT_EQ(running.error(), "The disk reported an error while the video was being read.");
    EXPECT_TRUE(contentsOf(m_folder / "out.mp4") == "old");
    EXPECT_THAT(namesIn(m_folder.path()), ElementsAre("out.mp4"));
}

TEST_F(SlowSource, thatDoesNotAnswerDoesNotHoldUpACancellation) {
    const auto asset = Asset::open(m_disk.holding(makeFixture(large(20)).path));
    StagedExportSession session(compositionOf(asset), m_folder / "out.mp4", FileType::mpeg4);
    RunningExport running(session);
    ASSERT_TRUE(running.waitForProgress(0.1));
    m_disk.setStalled(true);
    running.requestStop();
    // For as long as the disk does not answer there would be no end to this.
    running.join();
    EXPECT_TRUE(running.wasCancelled());
    EXPECT_THAT(namesIn(m_folder.path()), IsEmpty());
    m_disk.setStalled(false);
}

TEST_F(SlowSource, thatDoesNotAnswerDoesNotHoldUpAClosingPlayer) {
    PlayerStage stage;
    stage.load(m_disk.holding(makeFixture(large(20)).path));
    const std::weak_ptr<const PlayerItem> item = stage.player->currentItem();
    m_disk.setStalled(true);
    seekExactly(*stage.player, Time::fromSeconds(15, kComparisonTimescale));
    stage.player->play();
    ASSERT_TRUE(waitUntil([&] { return m_disk.isAwaited(); }));
    stage.player.reset();
    EXPECT_FALSE(item.expired()) << "nobody waits for the disk";
    m_disk.setStalled(false);
    EXPECT_TRUE(waitUntil([&] { return item.expired(); })) << "what was left behind stays";
}

} // namespace
} // namespace media
