#include "Media/BytesRead.h"
#include "Media/ChildProcess.h"
#include "Media/ExportFixture.h"
#include "Media/FFmpeg/OpeningTime.h"
#include "Media/Faults.h"
#include "Media/Mp4Boxes.h"
#include "TestSupport/Fixture.h"
#include "TestSupport/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <chrono>
#include <cmath>
#include <sys/resource.h>

/// Made-up files that would keep a program busy for hours, or fill its memory, while they are
/// opened.
namespace media {
namespace {

using testsupport::bigEndian;
using testsupport::inChildProcess;
using testsupport::makeBox;
using testsupport::makeFixture;
using testsupport::replaceBox;
using testsupport::TemporaryFolder;

constexpr auto kNoPicture = "Not one picture in this file can be decoded.";

/// What opening says; empty if it opens.
std::string openError(const std::filesystem::path& path) {
    return errorOf([&] { static_cast<void>(Asset::open(path)); });
}

class OpeningBounds : public testing::Test {
protected:
    ~OpeningBounds() override { ffmpeg::OpeningTime::setLimit(ffmpeg::OpeningTime::kUsualLimit); }

    /// The beginning of a file, of as many bytes as no disk has; nothing of them is stored.
    [[nodiscard]] std::filesystem::path endless(const std::string& beginning) const {
        constexpr std::uintmax_t kBytes = std::uintmax_t{1} << 40;
        writeFile(m_folder / "endless", beginning);
        std::filesystem::resize_file(m_folder / "endless", kBytes);
        return m_folder / "endless";
    }

    /// A video of one track whose sample table is another.
    [[nodiscard]] static std::string videoOf(std::size_t samples, std::size_t bytesOfEach,
                                             std::size_t duration) {
        std::string bytes = contentsOf(makeFixture({.duration = 1, .audioTracks = 0}).path);
        const auto table = [&bytes](const std::string& type, const std::string& payload) {
            replaceBox(bytes, {"moov", "trak", "mdia", "minf", "stbl", type},
                       makeBox(type, bigEndian(0) + payload));
        };
        table("stsz", bigEndian(bytesOfEach) + bigEndian(samples));
        table("stts", bigEndian(1) + bigEndian(samples) + bigEndian(duration));
        table("stsc", bigEndian(1) + bigEndian(1) + bigEndian(samples) + bigEndian(1));
        table("stco", bigEndian(1) + bigEndian(bytes.size()));
        return bytes;
    }

    TemporaryFolder m_folder;
};

/// A segment of unknown length in which nothing follows that the format knows.
TEST_F(OpeningBounds, aHeaderWithoutEndIsAnAnswer) {
    using namespace std::chrono_literals;
    ffmpeg::OpeningTime::setLimit(100ms);
    const std::string header("\x1a\x45\xdf\xa3\x8b\x42\x82\x88matroska"
                             "\x18\x53\x80\x67\x01\xff\xff\xff\xff\xff\xff\xff",
                             28);
    EXPECT_EQ(openError(endless(header)), kNoPicture);
}

TEST_F(OpeningBounds, pointlessDecodingIsGivenUp) {
    using namespace std::chrono_literals;
    const auto before = bytesRead();
    if (!before)
        GTEST_SKIP() << "the system does not tell how much is read";
    constexpr std::size_t kSamples = 1'000'000;
    constexpr std::size_t kBytesOfEach = 4096;
    const std::string beginning = videoOf(kSamples, kBytesOfEach, 512);
    writeFile(m_folder / "zeros.mp4", beginning);
    std::filesystem::resize_file(m_folder / "zeros.mp4",
                                 beginning.size() + kSamples * kBytesOfEach);
    ffmpeg::OpeningTime::setLimit(200ms);
    EXPECT_EQ(openError(m_folder / "zeros.mp4"), kNoPicture);
    EXPECT_LT(*bytesRead() - *before, static_cast<std::int64_t>(kSamples * kBytesOfEach / 2));
}

/// In a process of its own, whose memory is measured.
class MadeUpFile : public OpeningBounds {
protected:
    /// What opening costs and says.
    static std::string answerTo(const std::string& bytes) {
        const TemporaryFolder folder;
        writeFile(folder / "made-up.mp4", bytes);
        return inChildProcess([&folder]() -> std::string {
            const std::string error = openError(folder / "made-up.mp4");
            rusage usage = {};
            ::getrusage(RUSAGE_SELF, &usage);
            constexpr long kKilobytes = 1'000'000;
            if (usage.ru_maxrss > kKilobytes)
                return "much memory";
            return error.empty() ? "" : complaintAbout(error);
        });
    }
};

TEST_F(MadeUpFile, mayClaimAnyNumberOfTracks) {
    std::string bytes = contentsOf(makeFixture({.duration = 1, .audioTracks = 0}).path);
    const auto track = testsupport::findBox(bytes, {"moov", "trak"});
    ASSERT_TRUE(track);
    std::string tracks;
    for (int i = 0; i < 5000; ++i)
        tracks += bytes.substr(track->offset, track->size);
    replaceBox(bytes, {"moov", "trak"}, tracks);
    EXPECT_EQ(answerTo(bytes), "");
}

TEST_F(MadeUpFile, mayNestItsBoxesAtAnyDepth) {
    for (const char* type : {"moov", "trak", "meta", "moof"}) {
        const std::string whole = contentsOf(makeFixture({.duration = 1}).path);
        constexpr std::size_t kDepth = 100'000;
        std::string nested;
        for (std::size_t depth = kDepth; depth > 0; --depth)
            nested += bigEndian(8 * depth) + type;
        EXPECT_EQ(answerTo(whole.substr(0, testsupport::boxesIn(whole).front().size) + nested), "")
            << type;
    }
}

TEST_F(MadeUpFile, mayNestItsElementsAtAnyDepth) {
    std::string bytes("\x1a\x45\xdf\xa3\x8b\x42\x82\x88matroska", 16);
    // Segments, chapters and tags of unknown length in one another.
    for (const char* element : {"\x18\x53\x80\x67\xff", "\x10\x43\xa7\x70\xff", "\xb6\xff"}) {
        for (int depth = 0; depth < 100'000; ++depth)
            bytes += element;
        EXPECT_EQ(answerTo(bytes), "");
    }
}

TEST_F(MadeUpFile, mayClaimAnyLength) {
    constexpr std::size_t kLongest = 0xffffffff;
    for (const std::size_t duration : {std::size_t{0}, std::size_t{0x7fffffff}, kLongest}) {
        for (const std::size_t samples : {std::size_t{1}, std::size_t{100'000}}) {
            writeFile(m_folder / "long.mp4", videoOf(samples, 1, duration));
            const std::string error = failureOf([this] {
                const auto asset = Asset::open(m_folder / "long.mp4");
                EXPECT_GE(asset->duration().seconds(), 0);
                EXPECT_TRUE(std::isfinite(asset->duration().seconds()));
            });
            EXPECT_TRUE(error.empty() || complaintAbout(error).empty()) << error;
        }
    }
}

} // namespace
} // namespace media
