#include "PlayerStage.h"

#include "Media/ExportFixture.h"
#include "Media/Playback/FrameCache.h"
#include "Media/Playback/PlayableAsset.h"
#include "Media/Threading/ProcessorDemand.h"
#include "TestSupport/TemporaryFolder.h"

#include <gtest/gtest.h>

/// What a player decodes before anybody asks for it, and when it does not.
namespace {

using media::Ticks;
using media::Time;
using testsupport::Fixture;
using testsupport::makeFixture;

std::uint64_t decodedBy(const PlayerStage& stage) {
    return stage.player->statistics().decoded;
}

Fixture longGroups() {
    return makeFixture({.duration = 12, .groupOfPictures = 250, .bFrames = 3, .audioTracks = 0});
}

TEST(PlayerReadAhead, readsAheadOfAJumpAndAroundThePointsOfInterest) {
    const Fixture fixture = longGroups();
    PlayerStage stage;
    stage.load(fixture.path);
    const std::uint64_t before = decodedBy(stage);
    stage.player->setPointsOfInterest({Time{6000, 600}});
    ASSERT_TRUE(stage.pumpUntil([&] { return decodedBy(stage) >= before + 60 + 45; }))
        << "two seconds ahead of the first frame, and one and a half around the point";
    // What was read ahead is there at once.
    const std::uint64_t fromCache = stage.player->statistics().fromCache;
    for (const Time time : {Time{6000, 600}, Time{6100, 600}, Time{300, 600}})
        ASSERT_TRUE(stage.seekAndWait(time));
    EXPECT_EQ(stage.player->statistics().fromCache, fromCache + 3);
}

// A step back over a key frame took as long as decoding the whole group before it: where frames
// behind the playhead are read, those that it comes to first came last.
TEST(PlayerReadAhead, beginsBehindThePlayheadAtTheLastKeyFrame) {
    const Fixture fixture = longGroups();
    media::playback::FrameCache cache;
    const auto asset = media::Asset::open(fixture.path);
    cache.begin(asset.get());
    const auto source = media::playback::PlayableAsset::of(asset)->makeFrameSource(
        [&](media::playback::CachedFrame frame) { cache.insert(asset.get(), std::move(frame)); });
    const media::playback::PreviewSize size{640, 480};
    constexpr Ticks kKeyFrame(5000);
    const auto goal = source->goalNearEnd({Ticks(2400), Ticks(6400)});
    while (source->advance(goal, size, {}) == media::playback::FrameSource::Outcome::onTheWay)
        ASSERT_LT(source->passingTicks(), Ticks(6400));
    const auto frame = cache.find(kKeyFrame, cache.nearest(kKeyFrame)->size());
    ASSERT_TRUE(frame);
    EXPECT_EQ(frame->range.begin, kKeyFrame);
    EXPECT_GE(cache.coveredUntil(kKeyFrame, frame->size()), source->arrivedEnd())
        << "every frame on the way is kept";
    EXPECT_LT(source->takeDecodedCount(), 20U) << "nothing of the group before";
    EXPECT_EQ(source->goalNearEnd({Ticks(2400), kKeyFrame}).ticks, Ticks(2400));
    EXPECT_GT(source->goalNearEnd({Ticks(2400), kKeyFrame + Ticks(200)}).completeFrom, Ticks(2400))
        << "a few frames are read before the group that the way to them does not need";
}

TEST(PlayerReadAhead, restsWhileAnExportRunsAndGoesOnAfterwards) {
    const Fixture source = media::longFixture();
    const testsupport::TemporaryFolder folder;
    media::StagedExportSession session(media::compositionOf(media::Asset::open(source.path)),
                                       folder / "exported.mp4", media::FileType::mpeg4);
    const Fixture fixture = longGroups();
    PlayerStage stage;
    media::RunningExport running(session);
    ASSERT_TRUE(running.waitForProgress(0.01));
    stage.load(fixture.path);
    ASSERT_TRUE(stage.seekAndWait(Time{3000, 600}));
    const std::uint64_t wanted = decodedBy(stage);
    ASSERT_TRUE(running.waitForProgress(0.6));
    const std::uint64_t meanwhile = decodedBy(stage);
    const bool wasStillRunning = media::ProcessorDemand::isHigh();
    running.requestStop();
    running.join();
    ASSERT_TRUE(wasStillRunning);
    // The frame that arrived may not have been counted yet.
    EXPECT_LE(meanwhile, wanted + 1) << "nothing was asked for meanwhile";
    EXPECT_TRUE(stage.pumpUntil([&] { return decodedBy(stage) >= wanted + 60; }))
        << "nobody has to touch the player for it to go on";
}

} // namespace
