#include "Locales/Locales.h"
#include "TestSupport/Fixture.h"
#include "TestSupport/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

/// brisklet-cli tells people what is wrong in their language, and scripts what it always told them.
namespace {

using testing::HasSubstr;
using testing::StartsWith;
using testsupport::ProcessResult;
using testsupport::runProcess;

/// Asks for a file that is not there, as somebody with these variables alone.
ProcessResult askForNothing(std::vector<std::string> environment) {
    for (const char* name : {"LC_ALL=", "LC_MESSAGES=", "LANG=", "LANGUAGE="}) {
        bool isThere = false;
        for (const std::string& variable : environment)
            isThere = isThere || variable.starts_with(name);
        if (!isThere)
            environment.emplace_back(name);
    }
    return runProcess({BRISKLET_CLI, "probe", "/nowhere/film.mp4"},
                      {.additionalEnvironment = environment});
}

constexpr const char* kEnglish = "Couldn't open “film.mp4”: The file doesn’t exist.\n";
constexpr const char* kGerman =
    "„film.mp4“ konnte nicht geöffnet werden: Die Datei ist nicht vorhanden.\n";

class ToolLanguage : public testing::Test {
protected:
    void SetUp() override {
        if (!testsupport::isInstalled("de_DE.UTF-8"))
            GTEST_SKIP() << "the locale de_DE.UTF-8 is not installed";
    }
};

TEST_F(ToolLanguage, followsTheEnvironmentAsOtherProgramsDo) {
    EXPECT_EQ(askForNothing({"LC_ALL=de_DE.UTF-8"}).errors, kGerman);
    EXPECT_EQ(askForNothing({"LC_MESSAGES=de_DE.UTF-8", "LANG=en_US.UTF-8"}).errors, kGerman);
    EXPECT_EQ(askForNothing({"LANG=de_DE.UTF-8"}).errors, kGerman);
    EXPECT_EQ(askForNothing({"LANG=en_US.UTF-8", "LANGUAGE=hu:de"}).errors, kGerman);
    EXPECT_EQ(askForNothing({"LC_ALL=de_DE.UTF-8", "LANGUAGE=en"}).errors, kEnglish);
    EXPECT_EQ(askForNothing({"LC_ALL=en_GB.UTF-8", "LANG=de_DE.UTF-8"}).errors, kEnglish);
}

TEST_F(ToolLanguage, isEnglishForScripts) {
    for (const char* locale : {"LC_ALL=C", "LC_ALL=C.UTF-8", "LC_ALL=POSIX"})
        EXPECT_EQ(askForNothing({locale, "LANGUAGE=de"}).errors, kEnglish) << locale;
    EXPECT_EQ(askForNothing({}).errors, kEnglish);
}

TEST_F(ToolLanguage, isEnglishWhereTheLocaleIsMissingOrHasOtherLetters) {
    EXPECT_EQ(askForNothing({"LC_ALL=de_LI.NOWHERE"}).errors, kEnglish);
    EXPECT_EQ(askForNothing({"LC_ALL=de_DE.ISO-8859-1"}).errors, kEnglish);
}

TEST_F(ToolLanguage, changesNoExitStatusAndNoAnswer) {
    const std::vector<std::string> german{"LC_ALL=de_DE.UTF-8", "LANGUAGE="};
    EXPECT_EQ(askForNothing(german).exitStatus, 1);
    const auto wrong = runProcess({BRISKLET_CLI, "frob"}, {.additionalEnvironment = german});
    EXPECT_EQ(wrong.exitStatus, 2);
    EXPECT_THAT(wrong.errors, StartsWith("brisklet-cli: „frob“ ist kein Befehl\nAufruf: "));
    const std::string source = testsupport::makeFixture({.duration = 1}).path.string();
    const auto here =
        runProcess({BRISKLET_CLI, "probe", source}, {.additionalEnvironment = german});
    EXPECT_EQ(here.output, runProcess({BRISKLET_CLI, "probe", source}).output);
    const auto help = runProcess({BRISKLET_CLI, "--help"}, {.additionalEnvironment = german});
    EXPECT_EQ(help.exitStatus, 0);
    EXPECT_THAT(help.output, HasSubstr("Exit-Status: 0 fertig"));
}

TEST_F(ToolLanguage, namesTheSystemsReasons) {
    const testsupport::TemporaryFolder folder;
    const std::string source = testsupport::makeFixture({.duration = 1}).path.string();
    const auto result =
        runProcess({BRISKLET_CLI, "frame", source, "0", (folder / "none" / "a.png").string()},
                   {.additionalEnvironment = {"LC_ALL=de_DE.UTF-8", "LANGUAGE="}});
    EXPECT_EQ(result.errors,
              "„a.png“ konnte nicht geschrieben werden: Datei oder Ordner nicht gefunden.\n");
}

} // namespace
