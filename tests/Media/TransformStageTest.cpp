#include "Media/Error.h"
#include "Media/Export/Stages.h"
#include "Media/Export/TransformStage.h"
#include "Media/Pixels/FramePool.h"
#include "Media/Reading/VideoReader.h"
#include "Media/SyntheticPicture.h"
#include "TestSupport/MediaCache.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <ostream>
#include <stop_token>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace media {
namespace {

using testing::HasSubstr;
using testing::Le;
using testing::SizeIs;

using Pictures = std::vector<ScheduledFrame>;

/// A copy that shares the memory.
ScheduledFrame again(const ScheduledFrame& picture) {
    ScheduledFrame copy;
    copy.frame = ffmpeg::referenced(*picture.frame);
    copy.pts = picture.pts;
    copy.isRepeat = picture.isRepeat;
    if (picture.previous)
        copy.previous = ffmpeg::referenced(*picture.previous);
    if (picture.following)
        copy.following = ffmpeg::referenced(*picture.following);
    return copy;
}

Pictures numbered(std::vector<ffmpeg::FramePtr> frames) {
    Pictures pictures;
    for (std::size_t i = 0; i < frames.size(); ++i) {
        ScheduledFrame picture;
        picture.pts = static_cast<std::int64_t>(i);
        if (i > 0)
            picture.previous = ffmpeg::referenced(*frames[i - 1]);
        if (i + 1 < frames.size())
            picture.following = ffmpeg::referenced(*frames[i + 1]);
        picture.frame = ffmpeg::referenced(*frames[i]);
        pictures.push_back(std::move(picture));
    }
    return pictures;
}

std::vector<ffmpeg::FramePtr> decoded(const std::filesystem::path& path) {
    const auto asset = Asset::open(path);
    VideoReader reader(asset, asset->tracks(MediaType::video).at(0));
    std::vector<ffmpeg::FramePtr> frames;
    while (auto frame = reader.next())
        frames.push_back(std::move(frame->frame));
    return frames;
}

/// Random samples, different in each picture.
std::vector<ffmpeg::FramePtr> noise(AVPixelFormat format, int width, int height, int count) {
    // Each picture begins two lines farther down.
    const ffmpeg::FramePtr all = test::drawNoise(format, width, height + 2 * count);
    const int chromaShift = av_pix_fmt_desc_get(format)->log2_chroma_h;
    std::vector<ffmpeg::FramePtr> frames;
    for (int i = 0; i < count; ++i) {
        ffmpeg::FramePtr frame = ffmpeg::referenced(*all);
        for (unsigned plane = 0; plane < 3; ++plane)
            frame->data[plane] += (2 * i >> (plane > 0 ? chromaShift : 0)) * frame->linesize[plane];
        frame->height = height;
        frames.push_back(std::move(frame));
    }
    return frames;
}

/// All samples of a 4:2:0 picture.
std::string samplesOf(const AVFrame& frame) {
    const bool isDeep =
        av_pix_fmt_desc_get(static_cast<AVPixelFormat>(frame.format))->comp[0].depth > 8;
    std::string samples;
    for (const pixels::Plane& plane : pixels::planesOf(frame)) {
        for (int y = 0; y < plane.height; ++y) {
            const auto* line = reinterpret_cast<const char*>(plane.line(y));
            samples.append(line, static_cast<std::size_t>(plane.width * (isDeep ? 2 : 1)));
        }
    }
    return samples;
}

struct Made {
    std::vector<std::int64_t> order;
    std::vector<std::string> samples;
};

/// Sends the pictures through a stage with so many workers.
Made transformed(const PictureMaking& settings, const Pictures& pictures, int workers) {
    const std::stop_source stop;
    BoundedQueue<ScheduledFrame> in(0, stop.get_token());
    BoundedQueue<ScheduledFrame> out(2, stop.get_token());
    TransformStage stage(settings, in, out, stop.get_token());
    Made made;
    Stages stages(stop);
    stages.start("feed", [&] {
        for (const ScheduledFrame& picture : pictures)
            in.push(again(picture));
        in.finish();
    });
    for (int i = 0; i < workers; ++i)
        stages.start("transform", [&] { stage.run(); });
    stages.guard([&] {
        while (auto picture = out.pop()) {
            made.order.push_back(picture->pts);
            made.samples.push_back(samplesOf(*picture->frame));
        }
    });
    stages.join();
    return made;
}

/// A source and what an export does with it.
struct Case {
    std::string name;
    Pictures (*pictures)();
    PictureMaking settings;

    friend std::ostream& operator<<(std::ostream& out, const Case& value) {
        return out << value.name;
    }
};

PictureTransform::Output outputOf(int width, int height,
                                  AVPixelFormat format = AV_PIX_FMT_YUV420P) {
    return {.width = width, .height = height, .format = format};
}

/// Half the size.
const AffineTransform kHalf = AffineTransform::scale(0.5, 0.5);

std::vector<Case> cases() {
    constexpr Size kSize{320, 240};
    return {
        {"smaller",
         [] { return numbered(noise(AV_PIX_FMT_YUV420P, 320, 240, 40)); },
         {.toCanvas = kHalf, .naturalSize = kSize, .output = outputOf(160, 120)}},
        {"croppedAndTurned",
         [] { return numbered(noise(AV_PIX_FMT_YUV420P10, 320, 240, 40)); },
         {.toCanvas =
              test::orientation(2, kSize).concatenated(AffineTransform::translation(-20, -30)),
          .naturalSize = kSize,
          .output = outputOf(180, 220, AV_PIX_FMT_YUV420P10)}},
        {"fullChromaDithered",
         [] { return numbered(noise(AV_PIX_FMT_YUV444P10, 320, 240, 40)); },
         {.toCanvas = {}, .naturalSize = kSize, .output = outputOf(320, 240)}},
        {"packedColours",
         [] {
             std::vector<ffmpeg::FramePtr> frames;
             for (int i = 0; i < 20; ++i) {
                 const double level = i / 20.0;
                 frames.push_back(test::drawPicture(AV_PIX_FMT_RGB24, 320, 240,
                                                    test::flat(level, 1 - level, level / 2)));
             }
             return numbered(std::move(frames));
         },
         {.toCanvas = kHalf, .naturalSize = kSize, .output = outputOf(160, 120)}},
        {"deinterlaced",
         [] {
             return numbered(decoded(testsupport::cachedMedia(
                 "woven-for-workers.mkv",
                 {"-f", "lavfi", "-i", "testsrc2=s=192x144:r=50:d=1", "-vf",
                  "tinterlace=mode=interleave_top,setfield=tff", "-c:v", "ffv1"})));
         },
         {.toCanvas = kHalf,
          .naturalSize = {192, 144},
          .output = outputOf(96, 72),
          .deinterlaces = true}},
        {"fieldByField",
         [] {
             return numbered(decoded(testsupport::cachedMedia(
                 "woven-for-workers-422.mkv",
                 {"-f", "lavfi", "-i", "testsrc2=s=192x144:r=50:d=1", "-vf",
                  "format=yuv422p,tinterlace=mode=interleave_top,setfield=tff", "-c:v", "ffv1"})));
         },
         {.toCanvas = {},
          .naturalSize = {192, 144},
          .output = outputOf(192, 144),
          .keepsFields = true}},
    };
}

class AnyNumberOfWorkers : public testing::TestWithParam<Case> {};

/// Each worker has resamplers and memory of its own: nothing of one picture may get into another.
TEST_P(AnyNumberOfWorkers, makesTheSamePictures) {
    const Pictures pictures = GetParam().pictures();
    ASSERT_GE(pictures.size(), 20U);
    const Made byOne = transformed(GetParam().settings, pictures, 1);
    ASSERT_EQ(byOne.samples.size(), pictures.size());
    ASSERT_TRUE(byOne.samples.front() != byOne.samples.back());
    for (const int workers : {2, 7, 16}) {
        SCOPED_TRACE(workers);
        const Made made = transformed(GetParam().settings, pictures, workers);
        EXPECT_EQ(made.order, byOne.order);
        EXPECT_TRUE(made.samples == byOne.samples);
    }
}

INSTANTIATE_TEST_SUITE_P(TransformStage, AnyNumberOfWorkers, testing::ValuesIn(cases()),
                         [](const auto& tested) { return tested.param.name; });

/// A small picture is ready long before the large one in front of it.
TEST(TransformStage, keepsTheOrderOfPicturesThatTakeUnequallyLong) {
    const auto large = noise(AV_PIX_FMT_YUV420P, 1280, 960, 1);
    const auto small = noise(AV_PIX_FMT_YUV420P, 32, 24, 1);
    std::vector<ffmpeg::FramePtr> frames;
    for (int i = 0; i < 60; ++i)
        frames.push_back(ffmpeg::referenced(i % 4 == 0 ? *large.front() : *small.front()));
    const PictureMaking settings{
        .toCanvas = kHalf, .naturalSize = {320, 240}, .output = outputOf(160, 120)};
    const Made made = transformed(settings, numbered(std::move(frames)), 7);
    ASSERT_THAT(made.order, SizeIs(60));
    EXPECT_TRUE(std::ranges::is_sorted(made.order));
}

/// A repeat is the picture before it, which another worker may still be making.
TEST(TransformStage, repeatsThePictureBefore) {
    Pictures pictures = numbered(noise(AV_PIX_FMT_YUV420P, 320, 240, 40));
    for (std::size_t i = 0; i < pictures.size(); ++i)
        pictures[i].isRepeat = i % 4 != 0;
    const PictureMaking settings{
        .toCanvas = kHalf, .naturalSize = {320, 240}, .output = outputOf(160, 120)};
    const Made made = transformed(settings, pictures, 7);
    ASSERT_THAT(made.samples, SizeIs(40));
    for (std::size_t i = 0; i < made.samples.size(); ++i) {
        EXPECT_TRUE(made.samples[i] == made.samples[i - i % 4]) << i;
        EXPECT_TRUE(i == 0 || i % 4 != 0 || made.samples[i] != made.samples[i - 1]) << i;
    }
}

TEST(TransformStage, reportsAPictureThatCannotBeConverted) {
    Pictures pictures = numbered(noise(AV_PIX_FMT_YUV420P, 320, 240, 40));
    // In groups of four pixels, which is not read.
    pictures[9].frame->format = AV_PIX_FMT_UYYVYY411;
    const PictureMaking settings{
        .toCanvas = kHalf, .naturalSize = {320, 240}, .output = outputOf(160, 120)};
    try {
        transformed(settings, pictures, 7);
        FAIL() << "nothing was thrown";
    } catch (const Error& error) {
        EXPECT_THAT(error.what(), HasSubstr("uyyvyy411"));
    }
}

/// Nobody takes the pictures, so that some workers wait for room and the others for their turn.
TEST(TransformStage, endsWhenItIsStoppedWhileItsWorkersWait) {
    std::stop_source stop;
    BoundedQueue<ScheduledFrame> in(100, stop.get_token());
    BoundedQueue<ScheduledFrame> out(2, stop.get_token());
    TransformStage stage(
        {.toCanvas = kHalf, .naturalSize = {320, 240}, .output = outputOf(160, 120)}, in, out,
        stop.get_token());
    for (const ScheduledFrame& picture : numbered(noise(AV_PIX_FMT_YUV420P, 320, 240, 20)))
        in.push(again(picture));
    std::atomic<int> cancelled = 0;
    std::vector<std::jthread> threads;
    for (int i = 0; i < 5; ++i) {
        threads.emplace_back([&] {
            try {
                stage.run();
            } catch (const Cancelled&) {
                ++cancelled;
            }
        });
    }
    stop.request_stop();
    threads.clear();
    EXPECT_EQ(cancelled, 5);
}

/// Counts the pictures that are alive, by their memory.
class LivePictures {
public:
    ffmpeg::FramePtr picture() {
        ffmpeg::FramePtr frame = ffmpeg::referenced(*m_noise);
        // One more reference to nothing, which goes away with the last reference to the frame.
        frame->opaque_ref = ffmpeg::allocated(av_buffer_create(
            &m_byte, 1,
            [](void* self, std::uint8_t*) { --static_cast<LivePictures*>(self)->m_count; }, this,
            0));
        m_most = std::max(m_most, ++m_count);
        return frame;
    }

    [[nodiscard]] int most() const { return m_most; }

private:
    const ffmpeg::FramePtr m_noise = test::drawNoise(AV_PIX_FMT_YUV420P, 320, 240);
    std::uint8_t m_byte = 0;
    std::atomic<int> m_count = 0;
    int m_most = 0;
};

/// A picture of 2160p takes 12 to 25 MB. What comes out carries the reference too, so all pictures
/// on their way are counted.
TEST(TransformStage, hasOnePicturePerWorkerOnItsWay) {
    constexpr int kWorkers = 4;
    constexpr int kWaiting = 2;
    std::stop_source stop;
    LivePictures live;
    BoundedQueue<ScheduledFrame> in(0, stop.get_token());
    BoundedQueue<ScheduledFrame> out(kWaiting, stop.get_token());
    TransformStage stage(
        {.toCanvas = kHalf, .naturalSize = {320, 240}, .output = outputOf(160, 120)}, in, out,
        stop.get_token());
    Stages stages(stop);
    std::atomic<int> pushed = 0;
    stages.start("feed", [&] {
        for (int i = 0; i < 100; ++i) {
            ScheduledFrame picture;
            picture.frame = live.picture();
            in.push(std::move(picture));
            ++pushed;
        }
        in.finish();
    });
    for (int i = 0; i < kWorkers; ++i)
        stages.start("transform", [&] { stage.run(); });
    // As an encoder that is slower than all else.
    while (pushed < kWorkers + kWaiting)
        std::this_thread::yield();
    int count = 0;
    while (out.pop())
        ++count;
    stages.join();
    EXPECT_EQ(count, 100);
    // And one each in the hands of the feeder, of a waiting worker and of the reader.
    EXPECT_THAT(live.most(), Le(kWorkers + kWaiting + 3));
}

TEST(TransformStage, hasWorkersForTheProcessorsAndTheMemory) {
    const PictureMaking half{
        .toCanvas = kHalf, .naturalSize = {3840, 2160}, .output = outputOf(1920, 1080)};
    const auto workers = [&half](AVPixelFormat format, int width, int height, int processors) {
        return TransformStage::usefulWorkers(half, format, width, height, processors);
    };
    EXPECT_EQ(workers(AV_PIX_FMT_YUV420P, 3840, 2160, 1), 1);
    EXPECT_EQ(workers(AV_PIX_FMT_YUV420P, 3840, 2160, 2), 1);
    EXPECT_EQ(workers(AV_PIX_FMT_YUV420P, 3840, 2160, 8), 7);
    EXPECT_EQ(workers(AV_PIX_FMT_YUV420P, 3840, 2160, 64), 16);
    EXPECT_EQ(workers(AV_PIX_FMT_GBRP12, 7680, 4320, 64), 4);
    EXPECT_EQ(workers(AV_PIX_FMT_GBRP12, 7680, 4320, 2), 1);
}

TEST(TransformStage, hasOneWorkerForPicturesThatAreHandedOn) {
    const PictureMaking settings{
        .toCanvas = {}, .naturalSize = {320, 240}, .output = outputOf(320, 240)};
    EXPECT_EQ(TransformStage::usefulWorkers(settings, AV_PIX_FMT_YUV420P, 320, 240, 16), 1);
    EXPECT_EQ(TransformStage::usefulWorkers(settings, AV_PIX_FMT_YUV444P, 320, 240, 16), 15);
}

} // namespace
} // namespace media
