#pragma once

#include "Media/Export/StagedExportSession.h"
#include "TestSupport/Fixture.h"
#include "TestSupport/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>
#include <thread>
#include <vector>

namespace media {

/// Takes long enough to export that there is time to interfere.
testsupport::Fixture longFixture();

/// The range of the first video track and of all audio tracks; seconds.
Composition compositionOf(const std::shared_ptr<const Asset>& asset, double start, double end);

/// All of them, from beginning to end.
Composition compositionOf(const std::shared_ptr<const Asset>& asset);

/// Renders the whole upright picture at `width` × `height` square pixels.
VideoComposition renderedAt(const AssetTrack& track, int width, int height, int framesPerSecond);

/// Opens the file and exports a range of it.
void exportRange(const std::filesystem::path& source, double start, double end,
                 const std::filesystem::path& output, FileType type = FileType::mpeg4);

/// The sentence of the Error that `action` throws; empty if it throws none. Whatever else it
/// throws goes through.
std::string errorOf(const std::function<void()>& action);

/// The names of all that lies in the folder, hidden files too, in alphabetical order.
std::vector<std::string> namesIn(const std::filesystem::path& folder);

std::string contentsOf(const std::filesystem::path& path);

void writeFile(const std::filesystem::path& path, const std::string& contents);

/// Waits, without rest, until the condition holds; false if it still does not after a minute.
bool waitUntil(const std::function<bool()>& condition);

/// Runs an export on a thread of its own and lets the test act while it is on its way. The session
/// must outlive it.
class RunningExport {
public:
    explicit RunningExport(ExportSession& session);

    /// Waits until the export has come so far or is over; false if neither happens in a minute.
    bool waitForProgress(double fraction);

    void requestStop() { m_thread.request_stop(); }

    void join() { m_thread.join(); }

    /// After join(): the sentence of its failure; empty without one.
    [[nodiscard]] const std::string& error() const { return m_error; }

    /// After join().
    [[nodiscard]] bool wasCancelled() const { return m_wasCancelled; }

private:
    ExportSession& m_session;
    std::string m_error;
    bool m_wasCancelled = false;
    std::jthread m_thread;
};

/// Exports into a folder of its own.
class ExportTest : public testing::Test {
protected:
    /// Exports a range, in seconds, and hands back where it is.
    std::filesystem::path exported(const std::filesystem::path& source, double start, double end,
                                   FileType type = FileType::mpeg4);

    std::filesystem::path exportedAs(const Composition& composition,
                                     const VideoComposition& videoComposition);

    /// When the picture ends, by the file's edit list; seconds.
    static double videoEnd(const std::filesystem::path& path);

    static testsupport::ProbedFields video(const std::filesystem::path& path);

    testsupport::TemporaryFolder m_folder;
};

} // namespace media
