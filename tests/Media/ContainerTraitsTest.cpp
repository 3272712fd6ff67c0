#include "Media/FFmpeg/ContainerTraits.h"

#include <gtest/gtest.h>

namespace media::ffmpeg {
namespace {

using Mark = ContainerTraits::EncryptionMark;

/// Of the demuxer that libav finds by this name.
ContainerTraits traitsOf(const char* name) {
    const AVInputFormat* format = av_find_input_format(name);
    if (!format) {
        ADD_FAILURE() << "libav has no " << name;
        return {};
    }
    return containerTraits(*format);
}

TEST(ContainerTraits, knowContainersByAnyOfTheirNames) {
    for (const char* name : {"mov", "mp4", "3gp"}) {
        EXPECT_TRUE(traitsOf(name).statesPresentationTimes) << name;
        EXPECT_TRUE(traitsOf(name).statesDecodingTimes) << name;
        EXPECT_TRUE(traitsOf(name).statesParameters) << name;
        EXPECT_TRUE(traitsOf(name).indexesEverySample) << name;
        EXPECT_FALSE(traitsOf(name).isIndexedByPictures) << name;
    }
    for (const char* name : {"matroska", "webm"}) {
        EXPECT_TRUE(traitsOf(name).statesPresentationTimes) << name;
        EXPECT_FALSE(traitsOf(name).statesDecodingTimes) << name;
        EXPECT_FALSE(traitsOf(name).statesParameters) << name;
        EXPECT_TRUE(traitsOf(name).isIndexedByPictures) << name;
        EXPECT_TRUE(traitsOf(name).countsSoundPriming) << name;
        EXPECT_FALSE(traitsOf(name).indexesEverySample) << name;
        EXPECT_EQ(traitsOf(name).encryptionMark, Mark::trackMetadata) << name;
    }
    for (const char* name : {"flv", "live_flv"})
        EXPECT_TRUE(traitsOf(name).isIndexedByPictures) << name;
    EXPECT_EQ(traitsOf("asf").encryptionMark, Mark::fileMetadata);
}

TEST(ContainerTraits, relyOnNothingInFormatsThatAreNotKnown) {
    for (const char* name : {"mpegts", "avi", "mpeg", "yuv4mpegpipe"}) {
        const ContainerTraits traits = traitsOf(name);
        EXPECT_FALSE(traits.statesPresentationTimes || traits.statesDecodingTimes ||
                     traits.statesParameters || traits.indexesEverySample ||
                     traits.isIndexedByPictures || traits.countsSoundPriming ||
                     traits.isBareBitstream || traits.hasOrderedPictures || traits.isStillPicture)
            << name;
        EXPECT_EQ(traits.encryptionMark, Mark::none) << name;
    }
}

TEST(ContainerTraits, tellBitstreamsAndStillPicturesFromContainers) {
    for (const char* name : {"h264", "hevc", "mpegvideo", "m4v"})
        EXPECT_TRUE(traitsOf(name).isBareBitstream && traitsOf(name).hasOrderedPictures) << name;
    for (const char* name : {"h263", "h261", "obu", "vc1", "dirac", "cavsvideo"})
        EXPECT_TRUE(traitsOf(name).isBareBitstream && !traitsOf(name).hasOrderedPictures) << name;
    for (const char* name : {"png_pipe", "gif_pipe"})
        EXPECT_TRUE(traitsOf(name).isStillPicture) << name;
}

} // namespace
} // namespace media::ffmpeg
