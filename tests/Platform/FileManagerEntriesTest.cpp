#include "Platform/FileManagerEntries.h"

#include "TestSupport/Process.h"
#include "TestSupport/TemporaryFolder.h"

#include <QCoreApplication>
#include <QTranslator>

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;
namespace entries = brisklet::FileManagerEntries;

const std::vector<std::string> kPlaces = {
    "kio/servicemenus/com.quorvan.brisklet.trim-video.desktop", "nautilus/scripts/Trim Video",
    "nemo/actions/com.quorvan.brisklet.trim-video.nemo_action",
    "Thunar/sendto/com.quorvan.brisklet.trim-video.desktop"};

std::string contentOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream content;
    content << file.rdbuf();
    return content.str();
}

bool isExecutable(const fs::path& path) {
    return (fs::status(path).permissions() & fs::perms::owner_exec) != fs::perms::none;
}

class FileManagerEntriesTest : public testing::Test {
protected:
    void install() { entries::install(m_data.path(), "/usr/bin/brisklet"); }

    testsupport::TemporaryFolder m_data;
};

TEST_F(FileManagerEntriesTest, writesOneForEachFileManager) {
    install();
    for (const std::string& place : kPlaces)
        EXPECT_NE(contentOf(m_data / place).find("/usr/bin/brisklet"), std::string::npos) << place;
    EXPECT_TRUE(isExecutable(m_data / kPlaces[0]));
    EXPECT_TRUE(isExecutable(m_data / kPlaces[1]));
    for (const std::size_t named : {0U, 2U, 3U})
        EXPECT_NE(contentOf(m_data / kPlaces[named]).find("\nName=Trim Video\n"),
                  std::string::npos);
}

/// The program in German.
class German final {
public:
    German() {
        EXPECT_TRUE(m_translator.load(QStringLiteral(":/translations/brisklet_de")));
        QCoreApplication::installTranslator(&m_translator);
    }

    German(const German&) = delete;
    German& operator=(const German&) = delete;

    ~German() { QCoreApplication::removeTranslator(&m_translator); }

private:
    QTranslator m_translator;
};

TEST_F(FileManagerEntriesTest, isThereInAllLanguagesWhateverTheProgramSpeaks) {
    install();
    for (const std::size_t named : {0U, 2U, 3U})
        EXPECT_NE(contentOf(m_data / kPlaces[named]).find("\nName[de]=Video kürzen\n"),
                  std::string::npos);
}

// Nautilus shows the file's name.
TEST_F(FileManagerEntriesTest, hasOneScriptAlsoAfterAChangeOfLanguage) {
    const fs::path german = m_data / "nautilus/scripts/Video kürzen";
    install();
    {
        const German language;
        install();
    }
    EXPECT_TRUE(fs::exists(german));
    EXPECT_FALSE(fs::exists(m_data / kPlaces[1]));
    entries::uninstall(m_data.path());
    EXPECT_TRUE(fs::is_empty(m_data.path()));
}

TEST_F(FileManagerEntriesTest, isRemovedWithTheFoldersItMade) {
    install();
    entries::uninstall(m_data.path());
    EXPECT_TRUE(fs::is_empty(m_data.path()));
    // Nothing there is nothing to do.
    entries::uninstall(m_data.path());
}

TEST_F(FileManagerEntriesTest, leavesTheFilesOfOthersAlone) {
    fs::create_directories(m_data / "nautilus/scripts");
    fs::create_directories(m_data / "Thunar/sendto");
    std::ofstream(m_data / kPlaces[1]) << "mine";
    fs::create_symlink("nowhere", m_data / kPlaces[3]);
    std::ofstream(m_data / "nautilus/scripts/Other") << "mine too";
    install();
    EXPECT_EQ(contentOf(m_data / kPlaces[1]), "mine");
    EXPECT_TRUE(fs::is_symlink(m_data / kPlaces[3]));
    EXPECT_TRUE(fs::exists(m_data / kPlaces[0]));
    entries::uninstall(m_data.path());
    EXPECT_EQ(contentOf(m_data / kPlaces[1]), "mine");
    EXPECT_EQ(contentOf(m_data / "nautilus/scripts/Other"), "mine too");
    EXPECT_TRUE(fs::is_symlink(m_data / kPlaces[3]));
    EXPECT_FALSE(fs::exists(m_data / kPlaces[0]));
}

TEST_F(FileManagerEntriesTest, replacesItsOwn) {
    entries::install(m_data.path(), "/opt/old/brisklet");
    install();
    for (const std::string& place : kPlaces)
        EXPECT_EQ(contentOf(m_data / place).find("/opt/old"), std::string::npos) << place;
}

TEST_F(FileManagerEntriesTest, saysWhichCannotBeWritten) {
    std::ofstream(m_data / "kio") << "no folder";
    try {
        install();
        FAIL() << "A file inside a file was written.";
    } catch (const std::runtime_error& error) {
        EXPECT_NE(std::string(error.what()).find("kio/servicemenus"), std::string::npos);
    }
}

TEST_F(FileManagerEntriesTest, removesAllThatCanBeAndSaysWhatCannot) {
    install();
    // A link to itself: nobody can remove anything in there.
    fs::remove_all(m_data / "kio");
    fs::create_symlink("kio", m_data / "kio");
    try {
        entries::uninstall(m_data.path());
        FAIL() << "A file behind a link to itself was removed.";
    } catch (const std::runtime_error& error) {
        EXPECT_NE(std::string(error.what()).find("kio/servicemenus"), std::string::npos);
    }
    for (const std::size_t other : {1U, 2U, 3U})
        EXPECT_FALSE(fs::exists(m_data / kPlaces[other])) << kPlaces[other];
}

// In a folder of another computer Nautilus gives addresses instead of names.
TEST_F(FileManagerEntriesTest, startsTheProgramWithTheAddressesOfVideosElsewhere) {
    const fs::path program = m_data / "program";
    std::ofstream(program) << "#!/bin/sh\nprintf '%s\\n' \"$@\"\n";
    fs::permissions(program, fs::perms::owner_all);
    entries::install(m_data.path(), program);
    const auto result = testsupport::runProcess(
        {(m_data / kPlaces[1]).string()},
        {.additionalEnvironment = {
             "NAUTILUS_SCRIPT_SELECTED_URIS=sftp://nas/a%20b.mp4\nsftp://nas/*.mov\n"}});
    EXPECT_EQ(result.output, "--\nsftp://nas/a%20b.mp4\nsftp://nas/*.mov\n");
    for (const std::size_t named : {0U, 2U, 3U})
        EXPECT_NE(contentOf(m_data / kPlaces[named]).find(" %U\n"), std::string::npos)
            << kPlaces[named];
}

TEST_F(FileManagerEntriesTest, startsTheProgramWithTheSelectedVideosWhateverTheirNames) {
    const fs::path program = m_data / "it's a $(program)";
    std::ofstream(program) << "#!/bin/sh\nprintf '%s\\n' \"$@\"\n";
    fs::permissions(program, fs::perms::owner_all);
    entries::install(m_data.path(), program);
    fs::create_directory(m_data / "bin");
    // Stands for the desktop's own judge of types.
    std::ofstream(m_data / "bin/xdg-mime")
        << "#!/bin/sh\ncase $3 in *.txt) echo text/plain ;; *) echo video/mp4 ;; esac\n";
    fs::permissions(m_data / "bin/xdg-mime", fs::perms::owner_all);
    const auto path = "PATH=" + (m_data / "bin").string() + ":/usr/bin:/bin";
    const auto result = testsupport::runProcess(
        {(m_data / kPlaces[1]).string(), "a b.mp4", "note.txt", "-x.mov", "$HOME'\".mkv"},
        {.additionalEnvironment = {path}});
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.output, "--\na b.mp4\n-x.mov\n$HOME'\".mkv\n");
}

TEST_F(FileManagerEntriesTest, keepsToTheRulesOfDesktopFiles) {
    entries::install(m_data.path(), "/opt/100% \"good\"/$x`y\\z/brisklet");
    const fs::path entry = m_data / kPlaces[3];
    EXPECT_NE(contentOf(entry).find("Exec=\"/opt/100%% \\\\\"good\\\\\"/\\\\$x\\\\`y\\\\\\\\z/"
                                    "brisklet\" %U\n"),
              std::string::npos)
        << contentOf(entry);
    if (testsupport::runProcess({"sh", "-c", "command -v desktop-file-validate"}).exitStatus != 0)
        GTEST_SKIP() << "desktop-file-validate is not here";
    const auto result = testsupport::runProcess({"desktop-file-validate", entry.string()});
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.exitStatus, 0);
}

} // namespace
