#include "Media/ExportFixture.h"

#include "Media/Error.h"
#include "Media/Mp4Boxes.h"
#include "TestSupport/Inspection.h"

#include <algorithm>
#include <chrono>
#include <fstream>
#include <iterator>

namespace media {

testsupport::Fixture longFixture() {
    return testsupport::makeFixture({.duration = 40});
}

Composition compositionOf(const std::shared_ptr<const Asset>& asset, double start, double end) {
    const TimeRange range{Time::fromSeconds(start, kComparisonTimescale),
                          Time::fromSeconds(end, kComparisonTimescale)};
    Composition composition;
    composition.asset = asset;
    const auto pictures = asset->tracks(MediaType::video);
    if (!pictures.empty())
        composition.videoTrack = {pictures[0], range, pictures[0].preferredTransform};
    for (const AssetTrack& track : asset->tracks(MediaType::audio))
        composition.audioTracks.push_back({track, range, {}});
    return composition;
}

Composition compositionOf(const std::shared_ptr<const Asset>& asset) {
    return compositionOf(asset, 0, asset->duration().seconds());
}

VideoComposition renderedAt(const AssetTrack& track, int width, int height, int framesPerSecond) {
    const Rect upright = track.preferredTransform.apply(
        Rect{0, 0, track.naturalSize.width, track.naturalSize.height});
    return {
        track.preferredTransform
            .concatenated(AffineTransform::translation(-upright.minX(), -upright.minY()))
            .concatenated(AffineTransform::scale(width / upright.width, height / upright.height)),
        width, height, Time{1, framesPerSecond}};
}

void exportRange(const std::filesystem::path& source, double start, double end,
                 const std::filesystem::path& output, FileType type) {
    StagedExportSession(compositionOf(Asset::open(source), start, end), output, type).run();
}

std::string errorOf(const std::function<void()>& action) {
    try {
        action();
        return "";
    } catch (const Error& error) {
        return error.what();
    }
}

std::vector<std::string> namesIn(const std::filesystem::path& folder) {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        names.push_back(entry.path().filename().string());
    std::ranges::sort(names);
    return names;
}

std::string contentsOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void writeFile(const std::filesystem::path& path, const std::string& contents) {
    std::ofstream(path, std::ios::binary) << contents;
}

bool waitUntil(const std::function<bool()>& condition) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::minutes(1);
    while (!condition()) {
        if (std::chrono::steady_clock::now() > deadline)
            return false;
        std::this_thread::yield();
    }
    return true;
}

RunningExport::RunningExport(ExportSession& session) : m_session(session) {
    m_thread = std::jthread([this](const std::stop_token& stop) {
        try {
            m_session.run(stop);
        } catch (const Error& error) {
            m_error = error.what();
        } catch (const Cancelled&) {
            m_wasCancelled = true;
        }
    });
}

bool RunningExport::waitForProgress(double fraction) {
    return waitUntil([&] {
        const ExportSession::State state = m_session.state();
        return m_session.progress() >= fraction ||
               (state != ExportSession::State::waiting && state != ExportSession::State::exporting);
    });
}

std::filesystem::path ExportTest::exported(const std::filesystem::path& source, double start,
                                           double end, FileType type) {
    std::filesystem::path output = m_folder / (type == FileType::mpeg4 ? "out.mp4" : "out.mov");
    exportRange(source, start, end, output, type);
    return output;
}

std::filesystem::path ExportTest::exportedAs(const Composition& composition,
                                             const VideoComposition& videoComposition) {
    std::filesystem::path output = m_folder / "out.mp4";
    StagedExportSession session(composition, output, FileType::mpeg4);
    session.setVideoComposition(videoComposition);
    session.run();
    return output;
}

double ExportTest::videoEnd(const std::filesystem::path& path) {
    const std::string bytes = contentsOf(path);
    const auto header = testsupport::findBox(bytes, {"moov", "mvhd"});
    const auto edits = testsupport::findBox(bytes, {"moov", "trak", "edts", "elst"});
    const auto number = [&](std::size_t at) {
        return static_cast<double>(testsupport::numberAt(bytes, at));
    };
    // One edit, versions 0: the duration in it, and the timescale of the movie.
    return number(edits.value().offset + 16) / number(header.value().offset + 20);
}

testsupport::ProbedFields ExportTest::video(const std::filesystem::path& path) {
    return testsupport::probe(path).streamsOf("video").at(0);
}

} // namespace media
