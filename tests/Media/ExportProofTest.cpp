#include "Media/Export/ExportProof.h"

#include "Media/ExportFixture.h"
#include "Media/FFmpeg/SourceFile.h"
#include "Media/Mp4Boxes.h"
#include "TestSupport/Fixture.h"
#include "TestSupport/Inspection.h"

#include <gmock/gmock.h>

#include <fcntl.h>
#include <unistd.h>

/// A file that is not what was planned is found out before it gets its name.
namespace media {
namespace {

using testing::ElementsAre;
using testsupport::Fixture;
using testsupport::makeFixture;
using testsupport::TemporaryFolder;
using testsupport::VideoCodec;

constexpr const char* kSentence = "The new file was damaged while it was written.";

/// The plan of an export of all of a fixture, by what ffprobe counts in its result.
ExportPlan planOf(const std::filesystem::path& path, Time duration) {
    ExportPlan plan{{}, duration};
    for (const auto& stream : testsupport::probe(path).streams) {
        const bool isVideo = stream.text("codec_type") == "video";
        plan.tracks.push_back({isVideo ? MediaType::video : MediaType::audio,
                               static_cast<std::int64_t>(stream.number("nb_frames").value())});
    }
    return plan;
}

class ExportProof : public ExportTest {
protected:
    /// Exports three seconds of numbered pictures with sound.
    void makeExport(VideoCodec codec, FileType type) {
        const Fixture fixture = makeFixture({.codec = codec, .container = "mkv"});
        m_path = exported(fixture.path, 0.5, 3.5, type);
        m_plan = planOf(m_path, Time{3, 1});
        m_bytes = contentsOf(m_path);
    }

    [[nodiscard]] std::string verdict() const { return verdict(m_plan); }

    [[nodiscard]] std::string verdict(const ExportPlan& plan) const {
        return errorOf([&] { proveExport(ffmpeg::SourceFile::open(m_path), plan); });
    }

    /// What is said of the file with other bytes in the place of some of its own.
    [[nodiscard]] std::string verdictWith(std::size_t offset, const std::string& bytes) const {
        std::string damaged = m_bytes;
        damaged.replace(offset, bytes.size(), bytes);
        writeFile(m_path, damaged);
        return verdict();
    }

    std::filesystem::path m_path;
    ExportPlan m_plan;
    std::string m_bytes;
};

TEST_F(ExportProof, acceptsWhatIsAsPlanned) {
    for (const VideoCodec codec : {VideoCodec::h264, VideoCodec::hevcTenBit}) {
        for (const FileType type : {FileType::mpeg4, FileType::quickTimeMovie}) {
            makeExport(codec, type);
            EXPECT_EQ(verdict(), "");
        }
    }
}

TEST_F(ExportProof, refusesAnyOtherPlan) {
    makeExport(VideoCodec::h264, FileType::mpeg4);
    ExportPlan other = m_plan;
    other.tracks[0].samples += 1;
    EXPECT_EQ(verdict(other), kSentence);
    other = m_plan;
    other.tracks[1].samples -= 1;
    EXPECT_EQ(verdict(other), kSentence);
    other = m_plan;
    other.tracks.push_back(other.tracks[1]);
    EXPECT_EQ(verdict(other), kSentence);
    other = m_plan;
    other.tracks.pop_back();
    EXPECT_EQ(verdict(other), kSentence);
    other = m_plan;
    other.duration = Time{301, 100};
    EXPECT_EQ(verdict(other), kSentence);
}

TEST_F(ExportProof, refusesAFileThatIsCutShort) {
    makeExport(VideoCodec::h264, FileType::mpeg4);
    for (const std::size_t kept : {m_bytes.size() - 1, m_bytes.size() / 2, std::size_t{100}}) {
        writeFile(m_path, m_bytes.substr(0, kept));
        EXPECT_EQ(verdict(), kSentence) << kept;
    }
}

TEST_F(ExportProof, refusesAFileWithoutItsIndex) {
    makeExport(VideoCodec::h264, FileType::mpeg4);
    const auto index = testsupport::findBox(m_bytes, {"moov"}).value();
    EXPECT_EQ(verdictWith(index.offset, std::string(index.size, '\0')), kSentence);
    EXPECT_EQ(verdictWith(index.offset + 4, "gone"), kSentence);
}

TEST_F(ExportProof, refusesPicturesThatDoNotDecode) {
    constexpr std::size_t kDamage = 2000;
    for (const VideoCodec codec : {VideoCodec::h264, VideoCodec::hevcTenBit}) {
        makeExport(codec, FileType::mpeg4);
        const auto media = testsupport::findBox(m_bytes, {"mdat"}).value();
        const std::size_t first = media.offset + media.headerSize;
        const std::size_t last = m_bytes.size() - kDamage;
        EXPECT_EQ(verdictWith(first, std::string(kDamage, '\0')), kSentence);
        EXPECT_EQ(verdictWith(first, std::string(kDamage, '\x5a')), kSentence);
        EXPECT_EQ(verdictWith(last, std::string(kDamage, '\0')), kSentence);
        EXPECT_EQ(verdictWith(last, std::string(kDamage, '\x5a')), kSentence);
    }
}

/// The unfinished file of an export in this process: it may have no name.
std::filesystem::path unfinishedFileIn(const std::filesystem::path& folder) {
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
        std::error_code closedMeanwhile;
        const std::filesystem::path file =
            std::filesystem::read_symlink(entry.path(), closedMeanwhile);
        if (file.parent_path() == folder)
            return entry.path();
    }
    return {};
}

/// A disk that forgets: what has been written at the beginning is gone before the end is reached.
TEST(UnprovenExport, isAnErrorAndLeavesNothing) {
    const TemporaryFolder folder;
    writeFile(folder / "out.mp4", "old");
    const auto asset = Asset::open(longFixture().path);
    StagedExportSession session(compositionOf(asset), folder / "out.mp4", FileType::mpeg4);
    RunningExport running(session);
    ASSERT_TRUE(running.waitForProgress(0.5));
    const std::filesystem::path partial = unfinishedFileIn(folder.path());
    const std::size_t written = std::filesystem::file_size(partial);
    ASSERT_GT(written, 0U);
    const int descriptor = ::open(partial.c_str(), O_WRONLY | O_CLOEXEC);
    ASSERT_GE(descriptor, 0);
    const std::string nothing(written, '\0');
    EXPECT_EQ(::pwrite(descriptor, nothing.data(), nothing.size(), 0),
              static_cast<ssize_t>(nothing.size()));
    ::close(descriptor);
    running.join();
    EXPECT_EQ(running.error(), kSentence);
    EXPECT_EQ(session.state(), ExportSession::State::failed);
    EXPECT_THAT(namesIn(folder.path()), ElementsAre("out.mp4"));
    EXPECT_EQ(contentsOf(folder / "out.mp4"), "old");
}

} // namespace
} // namespace media
