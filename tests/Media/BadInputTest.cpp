#include "Media/ChildProcess.h"
#include "Media/Error.h"
#include "Media/ExportFixture.h"
#include "Media/Pictures/DecodingImageGenerator.h"
#include "Media/Reading/VideoReader.h"
#include "TestSupport/Fixture.h"
#include "TestSupport/MediaCache.h"
#include "TestSupport/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <csignal>
#include <cstdint>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

/// Sources that are no video, not whole or not there, and exports that cannot end well: each is
/// told in one sentence and leaves nothing behind.
namespace media {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testsupport::cachedMedia;
using testsupport::Fixture;
using testsupport::inChildProcess;
using testsupport::makeFixture;
using testsupport::TemporaryFolder;

constexpr auto kDamaged = "It is not a video file, or it is damaged.";
constexpr auto kNotRegular = "It is not a regular file.";
constexpr auto kCutShort = "The video was cut short while it was being read.";

std::string openError(const std::filesystem::path& path) {
    return errorOf([&] { static_cast<void>(Asset::open(path)); });
}

/// Of many bytes, so that none of it is in a buffer already when it is taken away.
Fixture largeFixture(const char* container) {
    return makeFixture({.container = container,
                        .duration = 12,
                        .additionalArguments = {"-crf", "-1", "-b:v", "2M", "-minrate", "2M",
                                                "-maxrate", "2M", "-bufsize", "1M", "-x264-params",
                                                "nal-hrd=cbr:b-adapt=0:open-gop=0"}});
}

/// A copy with the media in front and the index at the end, or the other way round.
std::filesystem::path remuxed(const Fixture& fixture, bool isIndexFirst) {
    std::vector<std::string> arguments = {"-i", fixture.path, "-map", "0", "-c", "copy"};
    if (isIndexFirst)
        arguments.insert(arguments.end(), {"-movflags", "+faststart"});
    return cachedMedia((isIndexFirst ? "index-first-" : "index-last-") +
                           fixture.path.filename().string(),
                       arguments);
}

/// How many pictures can be read; checks that they come in order.
std::size_t readablePictures(const std::shared_ptr<const Asset>& asset) {
    VideoReader reader(asset, asset->tracks(MediaType::video).at(0));
    std::size_t count = 0;
    Time last = Time::negativeInfinity();
    while (const auto frame = reader.next()) {
        EXPECT_FALSE(frame->time < last);
        last = frame->time;
        ++count;
    }
    return count;
}

TEST(BadInput, aMissingFileIsToldApart) {
    const TemporaryFolder folder;
    EXPECT_EQ(openError(folder / "missing.mp4"), "The file doesn’t exist.");
    EXPECT_EQ(openError(folder / "missing/a.mp4"), "The file doesn’t exist.");
    EXPECT_EQ(openError(""), "The file doesn’t exist.");
    std::filesystem::create_symlink("missing.mp4", folder / "dangling.mp4");
    EXPECT_EQ(openError(folder / "dangling.mp4"), "The file doesn’t exist.");
    std::filesystem::create_symlink("loop.mp4", folder / "loop.mp4");
    EXPECT_EQ(openError(folder / "loop.mp4"), "The link to the file leads nowhere.");
    EXPECT_EQ(openError(folder / std::string(256, 'x')), "The file name is too long.");
}

TEST(BadInput, aFolderIsNoVideo) {
    const TemporaryFolder folder;
    EXPECT_EQ(openError(folder.path()), "It is a folder, not a video file.");
    EXPECT_EQ(openError("/"), "It is a folder, not a video file.");
}

TEST(BadInput, anEmptyFileIsToldApart) {
    const TemporaryFolder folder;
    writeFile(folder / "empty.mp4", "");
    EXPECT_EQ(openError(folder / "empty.mp4"), "The file is empty.");
}

TEST(BadInput, textAndOtherFilesAreNoVideo) {
    const TemporaryFolder folder;
    std::string noise(100'000, '\0');
    std::uint32_t state = 1;
    for (char& byte : noise) {
        state = state * 1664525 + 1013904223;
        byte = static_cast<char>(state >> 24);
    }
    for (const std::string& contents :
         {std::string("Just a few words.\n"), std::string("{\"a\": [1, 2, 3]}"), noise,
          std::string(100'000, '\0'), std::string("x"), std::string("\x7f") + "ELF\x02\x01\x01",
          std::string("%PDF-1.4\n%\xe2\xe3\xcf\xd3\n"), std::string("#!/bin/sh\nexit 0\n")}) {
        writeFile(folder / "a.mp4", contents);
        EXPECT_EQ(openError(folder / "a.mp4"), kDamaged) << contents.substr(0, 20);
    }
}

TEST(BadInput, pipesSocketsAndDevicesAreRefusedAtOnce) {
    const TemporaryFolder folder;
    ASSERT_EQ(::mkfifo((folder / "pipe.mp4").c_str(), 0666), 0);
    EXPECT_EQ(openError(folder / "pipe.mp4"), kNotRegular);
    EXPECT_EQ(openError("/dev/null"), kNotRegular);
    EXPECT_EQ(openError("/dev/zero"), kNotRegular);
    EXPECT_EQ(openError("/dev/stdin"), kNotRegular);
    const int listener = ::socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    const std::string name = folder / "socket.mp4";
    name.copy(static_cast<char*>(address.sun_path), sizeof address.sun_path - 1);
    ASSERT_EQ(::bind(listener, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    EXPECT_EQ(openError(name), kNotRegular);
    ::close(listener);
}

TEST(BadInput, aFileWithoutPermissionIsToldApart) {
    const TemporaryFolder folder;
    std::filesystem::permissions(folder.path(), static_cast<std::filesystem::perms>(0755));
    std::filesystem::copy_file(makeFixture({}).path, folder / "a.mp4");
    std::filesystem::permissions(folder / "a.mp4", std::filesystem::perms::none);
    const std::string said = inChildProcess(
        [&] { return testsupport::dropPrivileges() ? openError(folder / "a.mp4") : "skip"; });
    if (said == "skip")
        GTEST_SKIP() << "this user cannot become another one";
    EXPECT_EQ(said, "You don’t have permission to read this file.");
}

TEST(BadInput, aStillPictureHasNoVideoTrack) {
    for (const char* name : {"still.png", "still.jpg", "still.bmp", "still.tiff", "still.webp"}) {
        const auto path =
            cachedMedia(name, {"-f", "lavfi", "-i", "testsrc2=s=64x48:d=1", "-frames:v", "1"});
        const auto asset = Asset::open(path);
        EXPECT_THAT(asset->tracks(MediaType::video), IsEmpty()) << name;
        EXPECT_THAT(asset->tracks(MediaType::audio), IsEmpty()) << name;
        EXPECT_EQ(errorOf([&] { const DecodingImageGenerator generator(asset); }),
                  "The file contains no video track.");
    }
}

TEST(BadInput, soundAloneHasNoVideoTrack) {
    for (const char* name : {"sound.m4a", "sound.mp3", "sound.wav", "sound.flac", "sound.ogg"}) {
        const auto asset =
            Asset::open(cachedMedia(name, {"-f", "lavfi", "-i", "sine=d=1", "-ac", "2"}));
        EXPECT_THAT(asset->tracks(MediaType::video), IsEmpty()) << name;
        EXPECT_EQ(asset->tracks(MediaType::audio).size(), 1U) << name;
        const TemporaryFolder folder;
        EXPECT_NE(errorOf([&] {
                      StagedExportSession(compositionOf(asset), folder / "out.mp4", FileType::mpeg4)
                          .run();
                  }),
                  "");
        EXPECT_THAT(namesIn(folder.path()), IsEmpty());
    }
}

TEST(BadInput, anMp4WithoutItsIndexIsDamaged) {
    const TemporaryFolder folder;
    const std::string whole = contentsOf(remuxed(makeFixture({}), false));
    writeFile(folder / "cut.mp4", whole.substr(0, whole.rfind("moov") - 4));
    EXPECT_EQ(openError(folder / "cut.mp4"), kDamaged);
    writeFile(folder / "cut.mp4", whole.substr(0, 48));
    EXPECT_EQ(openError(folder / "cut.mp4"), kDamaged);
}

/// Media that nobody without a key can decode, in a file of which nothing is damaged.
std::filesystem::path encrypted(const std::string& name,
                                const std::vector<std::string>& options = {}) {
    std::vector<std::string> arguments = {"-f", "lavfi", "-i", "testsrc2=s=160x120:d=2"};
    for (const char* argument :
         {"-f", "lavfi", "-i", "sine=d=2", "-pix_fmt", "yuv420p", "-encryption_scheme",
          "cenc-aes-ctr", "-encryption_key", "00112233445566778899aabbccddeeff", "-encryption_kid",
          "00112233445566778899aabbccddeeff"})
        arguments.emplace_back(argument);
    arguments.insert(arguments.end(), options.begin(), options.end());
    return cachedMedia(name, arguments);
}

constexpr auto kEncrypted = "It is encrypted or copy-protected.";

TEST(BadInput, anEncryptedFileIsNotCalledDamaged) {
    EXPECT_EQ(openError(encrypted("encrypted.mp4")), kEncrypted);
    EXPECT_EQ(openError(encrypted("encrypted.mov")), kEncrypted);
}

TEST(BadInput, anEncryptedFileWhoseHeadersCannotBeReadIsNotCalledDamaged) {
    const auto sample = testsupport::sampleMedia("mp4-fragmented-encrypted-clearkey.mp4");
    if (!sample)
        GTEST_SKIP() << "the sample media are not here";
    EXPECT_EQ(openError(*sample), kEncrypted);
}

TEST(BadInput, anEncryptedFileIsCalledThatWhereItIsDamagedToo) {
    const TemporaryFolder folder;
    std::string bytes = contentsOf(encrypted("encrypted.mp4"));
    writeFile(folder / "cut.mp4", bytes.substr(0, bytes.rfind("stts")));
    EXPECT_EQ(openError(folder / "cut.mp4"), kEncrypted);
    // More samples than there are: libav refuses such a file as a whole.
    bytes.replace(bytes.find("senc") + 8, 4, "\0\0\xff\xff", 4);
    writeFile(folder / "damaged.mp4", bytes);
    EXPECT_EQ(openError(folder / "damaged.mp4"), kEncrypted);
}

TEST(BadInput, aDamagedFileIsNotCalledEncrypted) {
    const TemporaryFolder folder;
    const std::string whole = contentsOf(remuxed(makeFixture({}), false));
    writeFile(folder / "cut.mp4", whole.substr(0, whole.find("stts")) + "encvencv");
    EXPECT_THAT(openError(folder / "cut.mp4"), testing::Not(testing::AnyOf("", kEncrypted)));
    writeFile(folder / "cut.mp4", whole.substr(0, whole.rfind("moov") - 4) + "encvencv");
    EXPECT_EQ(openError(folder / "cut.mp4"), kDamaged);
}

TEST(BadInput, anyFileMayHaveATagThatSpeaksOfEncryption) {
    const auto path = cachedMedia("tagged-encryption.mkv",
                                  {"-f", "lavfi", "-i", "testsrc2=s=160x120:d=1", "-metadata",
                                   "encryption=none", "-metadata", "ASF_Protection_Type=none"});
    EXPECT_EQ(openError(path), "");
}

TEST(BadInput, anMp4CutInItsMediaShowsAndExportsWhatIsThere) {
    const TemporaryFolder folder;
    const Fixture fixture = makeFixture({});
    const std::string whole = contentsOf(remuxed(fixture, true));
    writeFile(folder / "cut.mp4", whole.substr(0, whole.size() * 6 / 10));
    const auto asset = Asset::open(folder / "cut.mp4");
    // What a player could show of it is its length.
    EXPECT_GT(asset->duration().seconds(), 1);
    EXPECT_LT(asset->duration().seconds(), 3.5);
    const std::size_t pictures = readablePictures(asset);
    EXPECT_GT(pictures, 30U);
    EXPECT_LT(pictures, fixture.frames.size());

    StagedExportSession(compositionOf(asset), folder / "out.mp4", FileType::mpeg4).run();
    const auto exported = testsupport::readNumberedFrames(folder / "out.mp4");
    EXPECT_GT(exported.size(), 30U);
    // At the cut itself pictures can be missing that are shown before one that is there.
    for (std::size_t i = 0; i < 30; ++i)
        ASSERT_EQ(exported[i].number, static_cast<int>(i));
}

/// Every cut of a small file is either told in a sentence or shows pictures; none ends otherwise.
TEST(BadInput, aFileCutAnywhereEitherOpensOrTellsWhy) {
    const TemporaryFolder folder;
    for (const char* container : {"mp4", "mkv", "ts", "webm"}) {
        const bool isWebM = std::string(container) == "webm";
        const Fixture fixture = makeFixture(
            {.codec = isWebM ? testsupport::VideoCodec::vp9 : testsupport::VideoCodec::h264,
             .container = container,
             .duration = 1});
        const std::string whole = contentsOf(fixture.path);
        for (std::size_t part = 1; part < 16; ++part) {
            SCOPED_TRACE(testing::Message() << container << ' ' << part << "/16");
            writeFile(folder / "cut", whole.substr(0, whole.size() * part / 16));
            std::shared_ptr<const Asset> asset;
            const std::string error = errorOf([&] { asset = Asset::open(folder / "cut"); });
            EXPECT_NE(asset == nullptr, error.empty());
            if (asset && !asset->tracks(MediaType::video).empty()) {
                EXPECT_GT(readablePictures(asset), 0U);
                EXPECT_LE(asset->duration().seconds(), 1.2);
            }
        }
    }
}

TEST(BadInput, damagedBytesEndNothingButTheirPictures) {
    const TemporaryFolder folder;
    for (const char* container : {"mp4", "mkv", "ts"}) {
        std::string bytes = contentsOf(makeFixture({.container = container}).path);
        std::uint32_t state = 7;
        for (std::size_t i = 0; i < bytes.size() / 200; ++i) {
            state = state * 1664525 + 1013904223;
            bytes[bytes.size() / 4 + (state >> 4) % (bytes.size() / 2)] =
                static_cast<char>(state >> 24);
        }
        writeFile(folder / "damaged", bytes);
        const auto asset = Asset::open(folder / "damaged");
        EXPECT_GT(readablePictures(asset), 20U) << container;
        StagedExportSession(compositionOf(asset), folder / "out.mp4", FileType::mpeg4).run();
        EXPECT_GT(testsupport::readNumberedFrames(folder / "out.mp4").size(), 20U) << container;
    }
}

TEST(BadInput, anyNameOfAFileOpensAndExports) {
    const Fixture fixture = makeFixture({.duration = 1});
    const TemporaryFolder folder;
    for (const std::string& name :
         {std::string("with  spaces .mp4"), std::string("'single' \"double\" `back`.mp4"),
          std::string("\xf0\x9f\x8e\xac\xe2\x9c\x82.mp4"), std::string("\xff\xfe\xc3\x28.mp4"),
          std::string("new\nline\t.mp4"), std::string("-i.mp4"), std::string("50%.mp4"),
          std::string("back\\slash.mp4"), std::string(251, 'n') + ".mp4",
          std::string("noextension"), std::string("wrong.txt")}) {
        SCOPED_TRACE(name);
        std::filesystem::copy_file(fixture.path, folder / name);
        EXPECT_EQ(readablePictures(Asset::open(folder / name)), fixture.frames.size());
        std::filesystem::create_directory(folder / "out");
        exportRange(folder / name, 0, 0.5, folder / "out" / name);
        EXPECT_THAT(namesIn(folder / "out"), ElementsAre(name));
        std::filesystem::remove_all(folder / "out");
    }
}

TEST(BadInput, aFileDeletedWhileItIsReadIsReadToItsEnd) {
    const Fixture fixture = makeFixture({});
    const TemporaryFolder folder;
    std::filesystem::copy_file(fixture.path, folder / "a.mp4");
    const auto asset = Asset::open(folder / "a.mp4");
    VideoReader reader(asset, asset->tracks(MediaType::video).at(0));
    EXPECT_TRUE(reader.next());
    std::filesystem::remove(folder / "a.mp4");
    std::size_t count = 1;
    while (reader.next())
        ++count;
    EXPECT_EQ(count, fixture.frames.size());
    reader.seek(Ticks(600));
    EXPECT_EQ(reader.next()->ticks, Ticks(600));
    // Whoever comes anew finds nothing.
    EXPECT_EQ(openError(folder / "a.mp4"), "The file doesn’t exist.");
}

TEST(BadInput, aFileTruncatedWhileItIsReadIsToldAtItsEnd) {
    for (const char* container : {"mp4", "mkv", "ts"}) {
        SCOPED_TRACE(container);
        const Fixture fixture = largeFixture(container);
        const TemporaryFolder folder;
        std::filesystem::copy_file(fixture.path, folder / "a");
        const auto asset = Asset::open(folder / "a");
        VideoReader reader(asset, asset->tracks(MediaType::video).at(0));
        EXPECT_TRUE(reader.next());
        std::filesystem::resize_file(folder / "a", std::filesystem::file_size(folder / "a") / 2);
        std::size_t count = 1;
        EXPECT_EQ(errorOf([&] {
                      while (reader.next())
                          ++count;
                  }),
                  kCutShort);
        EXPECT_GT(count, fixture.frames.size() / 4);
        EXPECT_LT(count, fixture.frames.size() * 3 / 4);
        // What is gone is at most told; what is still there is shown after that as well.
        for (const double seconds : {11.0, 3.0, 8.0, 1.0}) {
            const Ticks ticks = Time::fromSeconds(seconds, kComparisonTimescale).ticks();
            const std::string error = errorOf([&] { reader.seek(ticks); });
            if (seconds > 4)
                continue;
            EXPECT_EQ(error, "");
            const auto frame = reader.next();
            ASSERT_TRUE(frame);
            EXPECT_NEAR(frame->time.seconds(), seconds, 0.04);
        }
    }
}

TEST(BadInput, aFileDeletedWhileItExportsIsExportedToItsEnd) {
    const Fixture fixture = longFixture();
    const TemporaryFolder folder;
    std::filesystem::copy_file(fixture.path, folder / "a.mp4");
    StagedExportSession session(compositionOf(Asset::open(folder / "a.mp4")), folder / "out.mp4",
                                FileType::mpeg4);
    RunningExport running(session);
    EXPECT_TRUE(running.waitForProgress(0.05));
    std::filesystem::remove(folder / "a.mp4");
    running.join();
    EXPECT_EQ(running.error(), "");
    EXPECT_EQ(testsupport::readPackets(folder / "out.mp4").size(), fixture.frames.size());
    EXPECT_THAT(namesIn(folder.path()), ElementsAre("out.mp4"));
}

TEST(BadInput, aFileTruncatedWhileItExportsEndsTheExportWithASentence) {
    const Fixture fixture = largeFixture("mp4");
    const TemporaryFolder folder;
    std::filesystem::copy_file(remuxed(fixture, true), folder / "a.mp4");
    StagedExportSession session(compositionOf(Asset::open(folder / "a.mp4")), folder / "out.mp4",
                                FileType::mpeg4);
    RunningExport running(session);
    EXPECT_TRUE(running.waitForProgress(0.05));
    std::filesystem::resize_file(folder / "a.mp4",
                                 std::filesystem::file_size(folder / "a.mp4") / 2);
    running.join();
    EXPECT_FALSE(running.wasCancelled());
    if (session.state() == ExportSession::State::completed) {
        // It was quicker than the test.
        EXPECT_EQ(testsupport::readPackets(folder / "out.mp4").size(), fixture.frames.size());
        EXPECT_THAT(namesIn(folder.path()), ElementsAre("a.mp4", "out.mp4"));
    } else {
        EXPECT_EQ(running.error(), kCutShort);
        EXPECT_EQ(session.state(), ExportSession::State::failed);
        EXPECT_THAT(namesIn(folder.path()), ElementsAre("a.mp4"));
    }
}

} // namespace
} // namespace media
