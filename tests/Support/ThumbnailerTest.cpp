#include "Support/Thumbnailer.h"

#include "QtSupport/EventPump.h"
#include "TestSupport/Fixture.h"
#include "TestSupport/MediaCache.h"
#include "TestSupport/NumberedPicture.h"
#include "TestSupport/TemporaryFolder.h"

#include <QCoroTask>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <limits>
#include <optional>
#include <string>
#include <vector>

namespace {

using namespace brisklet;
using testsupport::Fixture;
using testsupport::makeFixture;

std::optional<int> numberIn(const QImage& image) {
    const QImage grey = image.convertToFormat(QImage::Format_Grayscale8);
    std::vector<std::uint8_t> pixels;
    for (int y = 0; y < grey.height(); ++y)
        pixels.insert(pixels.end(), grey.constScanLine(y), grey.constScanLine(y) + grey.width());
    return testsupport::readNumber(pixels, grey.width(), grey.height());
}

QList<QImage> filmstripOf(const std::filesystem::path& path, int count) {
    const auto asset = media::Asset::open(path);
    return testsupport::await(Thumbnailer::filmstrip(asset, asset->duration().seconds(), count));
}

TEST(Thumbnailer, takesTheMiddleOfEachSliceWithinHalfASecond) {
    // Of the second file the key frames lie a second from each middle: too far to do.
    for (const int groupOfPictures : {12, 60}) {
        const Fixture video =
            makeFixture({.duration = 24, .groupOfPictures = groupOfPictures, .audioTracks = 0});
        const QList<QImage> images = filmstripOf(video.path, 12);
        ASSERT_EQ(images.size(), 12);
        for (int index = 0; index < 12; ++index) {
            const auto number = numberIn(images[index]);
            ASSERT_TRUE(number.has_value()) << index;
            const double shown = video.frames[static_cast<std::size_t>(*number)].seconds;
            EXPECT_NEAR(shown, index * 2 + 1.0, 0.5 + 1.0 / 30) << index;
        }
    }
}

TEST(Thumbnailer, asksForOneImageAtTheMiddleWhenOneIsWanted) {
    const Fixture video = makeFixture({.duration = 24, .groupOfPictures = 12, .audioTracks = 0});
    const QList<QImage> images = filmstripOf(video.path, 1);
    ASSERT_EQ(images.size(), 1);
    const auto number = numberIn(images.first());
    ASSERT_TRUE(number.has_value());
    EXPECT_NEAR(video.frames[static_cast<std::size_t>(*number)].seconds, 12, 0.5 + 1.0 / 30);
}

TEST(Thumbnailer, makesUprightPortraitImagesOfATurnedVideo) {
    const Fixture video = makeFixture({.duration = 4, .displayRotation = 90, .audioTracks = 0});
    const QList<QImage> images = filmstripOf(video.path, 3);
    ASSERT_EQ(images.size(), 3);
    for (const QImage& image : images) {
        EXPECT_EQ(image.size(), QSize(90, 120));
        EXPECT_TRUE(numberIn(image).has_value());
    }
}

TEST(Thumbnailer, makesNothingWithoutADurationOrACount) {
    // There are pictures to be had, so it is not for want of them.
    const auto asset = media::Asset::open(makeFixture({.duration = 4, .audioTracks = 0}).path);
    for (const double duration : {0.0, -1.0, -std::numeric_limits<double>::infinity()})
        EXPECT_TRUE(testsupport::await(Thumbnailer::filmstrip(asset, duration, 12)).isEmpty());
    for (const int count : {0, -1})
        EXPECT_TRUE(testsupport::await(Thumbnailer::filmstrip(asset, 4, count)).isEmpty());
    // No asset either: none of these may so much as create a generator.
    EXPECT_TRUE(testsupport::await(Thumbnailer::filmstrip(nullptr, 0, 12)).isEmpty());
    EXPECT_TRUE(testsupport::await(Thumbnailer::filmstrip(nullptr, -1, 12)).isEmpty());
    EXPECT_TRUE(testsupport::await(Thumbnailer::filmstrip(nullptr, 10, 0)).isEmpty());
    EXPECT_TRUE(testsupport::await(Thumbnailer::filmstrip(nullptr, 10, -1)).isEmpty());
}

TEST(Thumbnailer, leavesOutWhatCannotBeMade) {
    const Fixture video = makeFixture({.duration = 4, .audioTracks = 0});
    const auto asset = media::Asset::open(video.path);
    const double nan = std::nan("");
    EXPECT_TRUE(testsupport::await(Thumbnailer::filmstrip(asset, nan, 12)).isEmpty());
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_TRUE(testsupport::await(Thumbnailer::filmstrip(asset, infinity, 12)).isEmpty());
}

TEST(Thumbnailer, givesFewerImagesWherePicturesCannotBeDecoded) {
    const Fixture video = makeFixture({.codec = testsupport::VideoCodec::mjpeg,
                                       .container = "mov",
                                       .duration = 24,
                                       .bFrames = 0,
                                       .audioTracks = 0});
    const testsupport::TemporaryFolder folder;
    const auto damaged = folder / "damaged.mov";
    std::filesystem::copy_file(video.path, damaged);
    // Pictures of one size each: this takes out those from about 9.6 s to 14 s.
    const auto size = std::filesystem::file_size(damaged);
    std::fstream file(damaged, std::ios::in | std::ios::out | std::ios::binary);
    file.seekp(static_cast<std::streamoff>(size * 40 / 100));
    file << std::string(size * 18 / 100, '\0');
    file.close();

    const QList<QImage> images = filmstripOf(damaged, 12);
    ASSERT_GE(images.size(), 9);
    ASSERT_LT(images.size(), 12);
    std::vector<int> numbers;
    for (const QImage& image : images) {
        // A picture that is partly damaged may show, with no number that can be read.
        if (const auto number = numberIn(image))
            numbers.push_back(*number);
    }
    ASSERT_GE(numbers.size(), 9U);
    EXPECT_TRUE(std::is_sorted(numbers.begin(), numbers.end()));
    EXPECT_NEAR(numbers.front(), 30, 16);
    EXPECT_NEAR(numbers.back(), 690, 16);
}

TEST(Thumbnailer, makesNothingOfAFileWithoutPictures) {
    const auto sound =
        testsupport::cachedMedia("sine-4s.m4a", {"-f", "lavfi", "-i", "sine=d=4", "-c:a", "aac"});
    EXPECT_TRUE(filmstripOf(sound, 12).isEmpty());
}

TEST(Thumbnailer, endsEarlyWhenAskedToStop) {
    const Fixture video = makeFixture({.duration = 4, .audioTracks = 0});
    std::stop_source source;
    source.request_stop();
    const auto asset = media::Asset::open(video.path);
    const auto images =
        testsupport::await(Thumbnailer::filmstrip(asset, 4.0, 12, source.get_token()));
    EXPECT_TRUE(images.isEmpty());
}

} // namespace
