#include "Export/ProgressWatcher.h"

#include "Export/AVFoundationExporter.h"
#include "Media/Error.h"
#include "Media/ExportSession.h"
#include "Support/FileUrl.h"
#include "TestSupport/Fixture.h"
#include "TestSupport/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <memory>
#include <stop_token>
#include <string>

namespace {

using namespace brisklet;
using testsupport::TemporaryFolder;

class ProgressWatcherTest : public testing::Test {
protected:
    std::unique_ptr<media::ExportSession> session(double seconds, const std::string& output) {
        const auto source =
            testsupport::makeFixture({.duration = 20, .width = 640, .height = 480}).path;
        const ExportRequest request{.sourceURL = urlOf(source),
                                    .startTime = 0,
                                    .endTime = seconds,
                                    .outputURL = urlOf(m_folder / output)};
        return media::ExportSession::make(
            AVFoundationExporter::composition(media::Asset::open(source), request),
            m_folder / output, media::FileType::mpeg4);
    }

    /// Runs an export long enough for every watcher to look several times: until its own has
    /// reported four times, a tenth of a second apart.
    void letWatchersLook(const std::string& output) {
        const auto clock = session(20, output);
        std::stop_source stopping;
        std::atomic<int> reports = 0;
        const ProgressWatcher watcher(*clock, [&](double) {
            if (++reports == 4)
                stopping.request_stop();
        });
        EXPECT_THROW(clock->run(stopping.get_token()), media::Cancelled);
        EXPECT_GE(reports, 4);
    }

    TemporaryFolder m_folder;
};

TEST_F(ProgressWatcherTest, saysNothingBeforeTheExportBegins) {
    const auto waiting = session(1, "waiting.mp4");
    std::atomic<int> reports = 0;
    const ProgressWatcher watcher(*waiting, [&](double) { ++reports; });
    letWatchersLook("clock.mp4");
    EXPECT_EQ(reports, 0);
}

TEST_F(ProgressWatcherTest, saysNothingAfterTheExportHasEnded) {
    const auto completed = session(0.5, "completed.mp4");
    completed->run();
    ASSERT_EQ(completed->state(), media::ExportSession::State::completed);
    const auto cancelled = session(1, "cancelled.mp4");
    std::stop_source stopping;
    stopping.request_stop();
    EXPECT_THROW(cancelled->run(stopping.get_token()), media::Cancelled);
    const auto failed = session(1, "missing/failed.mp4");
    EXPECT_THROW(failed->run(), media::Error);
    std::atomic<int> reports = 0;
    const auto count = [&](double) { ++reports; };
    const ProgressWatcher one(*completed, count);
    const ProgressWatcher two(*cancelled, count);
    const ProgressWatcher three(*failed, count);
    letWatchersLook("clock.mp4");
    EXPECT_EQ(reports, 0);
}

} // namespace
