#include "Media/EncoderSettings.h"

#include "Media/Error.h"
#include "Media/ExportFixture.h"
#include "Media/FFmpeg/EncoderOptions.h"

#include <gmock/gmock.h>

#include <clocale>
#include <limits>

/// An export is made with all the settings that were asked for, or not at all: an encoder that did
/// not take one went on without it, and said so to nobody.
namespace media {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testsupport::makeFixture;
using testsupport::probe;
using testsupport::Recipe;
using testsupport::VideoCodec;

Recipe tiny(VideoCodec codec) {
    return {.codec = codec, .duration = 0.5, .width = 160, .height = 120};
}

/// The process's numbers as they are written in Germany, for as long as this lives.
class GermanNumbers {
public:
    GermanNumbers() : m_isThere(std::setlocale(LC_NUMERIC, "de_DE.UTF-8") != nullptr) {}

    GermanNumbers(const GermanNumbers&) = delete;
    GermanNumbers& operator=(const GermanNumbers&) = delete;

    ~GermanNumbers() { std::setlocale(LC_NUMERIC, "C"); }

    [[nodiscard]] bool isThere() const { return m_isThere; }

private:
    bool m_isThere;
};

class EncoderSettingsTest : public ExportTest {
protected:
    /// The sentence with which the export fails; empty if it does not.
    std::string failureOf(VideoCodec source, const EncoderSettings& settings) {
        return errorOf([&] {
            StagedExportSession session(compositionOf(Asset::open(makeFixture(tiny(source)).path)),
                                        m_folder / "out.mp4", FileType::mpeg4, settings);
            session.run();
        });
    }

    std::string exportedBytes(const Recipe& source, FileType type = FileType::mpeg4) {
        return contentsOf(exported(makeFixture(source).path, 0.1, 0.4, type));
    }

    /// The same export in the locale of C and in a process with German numbers.
    void expectSameInGerman(const Recipe& source) {
        const std::string plain = exportedBytes(source);
        const GermanNumbers german;
        if (!german.isThere())
            GTEST_SKIP() << "the locale de_DE.UTF-8 is not installed";
        EXPECT_TRUE(exportedBytes(source) == plain);
    }
};

TEST_F(EncoderSettingsTest, failTheExportWhereX264DoesNotKnowAName) {
    EncoderSettings settings;
    settings.h264Parameters.push_back({"qkomp", 0.85});
    EXPECT_EQ(failureOf(VideoCodec::h264, settings),
              "The encoder libx264 doesn’t take the setting “qkomp=0.85”.");
    EXPECT_THAT(namesIn(m_folder.path()), IsEmpty());
}

TEST_F(EncoderSettingsTest, failTheExportWhereX264CannotReadAValue) {
    EncoderSettings settings;
    settings.h264Parameters.push_back({"qcomp", "0,85"});
    EXPECT_EQ(failureOf(VideoCodec::h264, settings),
              "The encoder libx264 doesn’t take the setting “qcomp=0,85”.");
    EXPECT_THAT(namesIn(m_folder.path()), IsEmpty());
}

TEST_F(EncoderSettingsTest, failTheExportWhereX265DoesNotKnowAName) {
    EncoderSettings settings;
    settings.hevcParameters.push_back({"psi-rd", 0.5});
    EXPECT_EQ(failureOf(VideoCodec::hevcTenBit, settings),
              "The encoder libx265 doesn’t take the setting “psi-rd=0.5”.");
    EXPECT_THAT(namesIn(m_folder.path()), IsEmpty());
}

TEST_F(EncoderSettingsTest, failTheExportWhereX265CannotReadAValue) {
    EncoderSettings settings;
    settings.hevcParameters.push_back({"psy-rd", "much"});
    EXPECT_EQ(failureOf(VideoCodec::hevcTenBit, settings),
              "The encoder libx265 doesn’t take the setting “psy-rd=much”.");
    EXPECT_THAT(namesIn(m_folder.path()), IsEmpty());
}

TEST_F(EncoderSettingsTest, failTheExportWhereAFactorIsNone) {
    for (const double factor : {-1.0, 51.5, std::numeric_limits<double>::quiet_NaN()}) {
        EncoderSettings settings;
        settings.h264Crf = factor;
        settings.hevcCrf = factor;
        EXPECT_THAT(failureOf(VideoCodec::h264, settings), HasSubstr("“crf="));
        EXPECT_THAT(failureOf(VideoCodec::hevcTenBit, settings), HasSubstr("“crf="));
    }
}

TEST_F(EncoderSettingsTest, concernTheirOwnEncoderOnly) {
    EncoderSettings settings;
    settings.hevcParameters.push_back({"psi-rd", 0.5});
    EXPECT_EQ(failureOf(VideoCodec::h264, settings), "");
}

TEST_F(EncoderSettingsTest, standInTheStreamAsTheyWereAskedFor) {
    EXPECT_THAT(exportedBytes(tiny(VideoCodec::h264)),
                AllOf(HasSubstr(" subme=2 "), HasSubstr(" qcomp=0.85 "), HasSubstr(" b_adapt=0 "),
                      HasSubstr(" aq=2:0.90"), HasSubstr(" crf=17.1 "),
                      HasSubstr(" deblock=1:1:1 "), HasSubstr(" analyse=0x3:0x2 ")));
    EXPECT_THAT(exportedBytes(tiny(VideoCodec::hevcTenBit)),
                AllOf(HasSubstr(" psy-rd=0.00 "), HasSubstr(" deblock=2:2 "), HasSubstr(" ctu=16 "),
                      HasSubstr(" crf=11.0 "), HasSubstr(" frame-threads=1 ")));
}

TEST_F(EncoderSettingsTest, areTheSameInAProcessWithDecimalCommas) {
    expectSameInGerman(tiny(VideoCodec::h264));
}

TEST_F(EncoderSettingsTest, areTheSameForTenBitsInAProcessWithDecimalCommas) {
    expectSameInGerman(tiny(VideoCodec::hevcTenBit));
}

// The place of a recording is text in one of the formats and two numbers in the other; libav turns
// one into the other.
TEST_F(EncoderSettingsTest, leaveThePlaceOfARecordingInAProcessWithDecimalCommas) {
    for (const FileType type : {FileType::mpeg4, FileType::quickTimeMovie}) {
        Recipe source = tiny(VideoCodec::h264);
        source.container = type == FileType::mpeg4 ? "mov" : "mp4";
        source.additionalArguments = {"-metadata", "location=+48.1173+011.5167/"};
        const auto path = makeFixture(source).path;
        const GermanNumbers german;
        if (!german.isThere())
            GTEST_SKIP() << "the locale de_DE.UTF-8 is not installed";
        EXPECT_EQ(probe(exported(path, 0.1, 0.4, type)).format.text("tags.location"),
                  "+48.1173+011.5167/");
    }
}

TEST(EncoderValues, areWrittenAsTheEncodersReadThem) {
    using ffmpeg::textOf;
    EXPECT_EQ(textOf(0), "0");
    EXPECT_EQ(textOf(-12), "-12");
    EXPECT_EQ(textOf(0.85), "0.85");
    EXPECT_EQ(textOf(17.1), "17.1");
    EXPECT_EQ(textOf(std::pair(1, -2)), "1,-2");
    EXPECT_EQ(textOf("i8x8"), "i8x8");
    const GermanNumbers german;
    EXPECT_EQ(textOf(1234.5), "1234.5");
}

} // namespace
} // namespace media
