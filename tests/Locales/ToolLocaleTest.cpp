#include "Locales/Locales.h"
#include "TestSupport/Fixture.h"
#include "TestSupport/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <fstream>
#include <iterator>

/// brisklet-cli reads and writes the same in every locale: scripts do not know which one they run
/// in.
namespace {

using testing::StartsWith;
using testsupport::ProcessResult;
using testsupport::Recipe;
using testsupport::runInLocale;
using testsupport::TemporaryFolder;

const Recipe kPlaced{.frameRate = {30000, 1001},
                     .duration = 2,
                     .width = 160,
                     .height = 120,
                     .pixelAspect = {4, 3},
                     .additionalArguments = {"-metadata", "location=+48.1173+011.5167/"}};

std::string contentsOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

class ToolLocale : public testing::TestWithParam<const char*> {
protected:
    void SetUp() override {
        if (!testsupport::isInstalled(GetParam()))
            GTEST_SKIP() << "the locale " << GetParam() << " is not installed";
    }

    static ProcessResult cli(const char* locale, std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), BRISKLET_CLI);
        return runInLocale(locale, arguments);
    }

    /// What the tool prints in the locale; expects it to be what it prints in C's.
    static std::string printed(const std::vector<std::string>& arguments) {
        const ProcessResult result = cli(GetParam(), arguments);
        EXPECT_EQ(result.exitStatus, 0) << result.errors;
        EXPECT_EQ(result.output, cli("C", arguments).output);
        return result.output;
    }

    TemporaryFolder m_folder;
};

TEST_P(ToolLocale, changesNothingThatAProbePrints) {
    EXPECT_THAT(printed({"probe", makeFixture(kPlaced).path.string()}), StartsWith("{"));
}

TEST_P(ToolLocale, changesNeitherAPictureNorTheReadingOfItsTime) {
    const std::string source = makeFixture(kPlaced).path.string();
    const auto here = m_folder / "here.png";
    const auto plain = m_folder / "plain.png";
    const auto other = m_folder / "other.png";
    EXPECT_EQ(cli(GetParam(), {"frame", source, "1.5", here.string()}).exitStatus, 0);
    EXPECT_EQ(cli("C", {"frame", source, "1.5", plain.string()}).exitStatus, 0);
    EXPECT_EQ(cli("C", {"frame", source, "1", other.string()}).exitStatus, 0);
    EXPECT_TRUE(contentsOf(here) == contentsOf(plain));
    EXPECT_FALSE(contentsOf(here) == contentsOf(other));
}

TEST_P(ToolLocale, changesNoTimeOfAFilmstrip) {
    printed({"filmstrip", makeFixture(kPlaced).path.string(), (m_folder / "strip").string(),
             "--count", "3"});
}

TEST_P(ToolLocale, takesNoDecimalComma) {
    const ProcessResult result = cli(GetParam(), {"frame", makeFixture(kPlaced).path.string(),
                                                  "1,5", (m_folder / "picture.png").string()});
    EXPECT_EQ(result.exitStatus, 2);
}

TEST_P(ToolLocale, reportsProgressInTheSameNumbers) {
    const ProcessResult result =
        cli(GetParam(), {"export", makeFixture(kPlaced).path.string(),
                         (m_folder / "out.mp4").string(), "--progress", "json"});
    EXPECT_EQ(result.exitStatus, 0) << result.errors;
    EXPECT_THAT(result.output, StartsWith("{\"progress\":"));
    EXPECT_EQ(result.output.find(','), std::string::npos);
}

// In Turkish the capital of an i has a dot, and the small letter of an I has none.
TEST_P(ToolLocale, changesNoNameOfAFile) {
    const auto source = makeFixture(kPlaced).path;
    const std::string expected = cli("C", {"probe", source.string()}).output;
    for (const char* name : {"CLIP.MP4", "CLIP.MKV", "film.AVİ", "kısa.mı", "İIıi.Mp4"}) {
        const auto copy = m_folder / name;
        std::filesystem::copy_file(source, copy);
        EXPECT_EQ(printed({"probe", copy.string()}), expected) << name;
    }
}

TEST_P(ToolLocale, knowsTheFormatOfANameInAnyCase) {
    const std::string source = makeFixture(kPlaced).path.string();
    for (const char* name : {"X.MP4", "X.Mov", "İIıi.mOV"}) {
        const ProcessResult result =
            cli(GetParam(), {"export", source, (m_folder / name).string(), "--end", "0.2"});
        EXPECT_EQ(result.exitStatus, 0) << name << ": " << result.errors;
        EXPECT_TRUE(std::filesystem::exists(m_folder / name)) << name;
    }
    EXPECT_EQ(cli(GetParam(), {"export", source, (m_folder / "film.AVİ").string()}).exitStatus, 2);
}

INSTANTIATE_TEST_SUITE_P(Foreign, ToolLocale,
                         testing::Values("de_DE.UTF-8", "tr_TR.UTF-8", "ar_EG.UTF-8",
                                         "ja_JP.UTF-8"),
                         [](const auto& locale) { return std::string(locale.param).substr(0, 5); });

} // namespace
