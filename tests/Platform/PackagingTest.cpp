#include "Platform/MimeTypes.h"

#include "TestSupport/Process.h"

#include <QFile>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

#include <filesystem>
#include <regex>
#include <set>
#include <string>

namespace {

using testsupport::runProcess;

const std::string kPackaging = std::string(BRISKLET_SOURCE_DIR) + "/packaging/";

/// Where the build puts what is made of these.
const std::string kLocalized = BRISKLET_LOCALIZED;

bool isThere(const std::string& program) {
    return runProcess({"sh", "-c", "command -v \"$0\"", program}).succeeded();
}

TEST(Packaging, offersTheProgramForTheTypesThatItOpens) {
    QFile file(QString::fromStdString(kPackaging + "com.quorvan.brisklet.desktop"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString expected = QStringLiteral("\nMimeType=") + brisklet::movieMimeTypes().join(u';') +
                             QStringLiteral(";\n");
    EXPECT_TRUE(QString::fromUtf8(file.readAll()).contains(expected)) << expected.toStdString();
}

TEST(Packaging, hasADesktopFileWithoutFaults) {
    if (!isThere("desktop-file-validate"))
        GTEST_SKIP() << "desktop-file-validate is not here";
    for (const std::string& folder : {kPackaging, kLocalized}) {
        const auto result =
            runProcess({"desktop-file-validate", folder + "com.quorvan.brisklet.desktop"});
        EXPECT_EQ(result.output, "");
        EXPECT_EQ(result.exitStatus, 0);
    }
}

QString contentOf(const std::string& name) {
    QFile file(QString::fromStdString(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return QString::fromUtf8(file.readAll());
}

TEST(Packaging, tellsDesktopsAboutTheProgramInOtherLanguages) {
    const QString entry = contentOf(kLocalized + "com.quorvan.brisklet.desktop");
    EXPECT_TRUE(entry.contains(QStringLiteral("\nName=Brisklet\nGenericName=Video Trimmer\n")));
    EXPECT_TRUE(entry.contains(QStringLiteral("\nGenericName[de]=")));
    EXPECT_TRUE(entry.contains(QStringLiteral("\nName[de]=Neues Fenster\n")));
    EXPECT_FALSE(entry.contains(QStringLiteral("Exec[")));
    const QString metainfo = contentOf(kLocalized + "com.quorvan.brisklet.metainfo.xml");
    EXPECT_TRUE(metainfo.contains(QStringLiteral("<summary>Trim, crop and turn videos</summary>")));
    EXPECT_TRUE(metainfo.contains(QStringLiteral("<summary xml:lang=\"de\">")));
    QXmlStreamReader xml(metainfo);
    while (!xml.atEnd())
        xml.readNext();
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
}

/// The names of long options, as they stand in the sources of manual pages.
std::set<std::string> optionsIn(const std::string& page) {
    std::set<std::string> options;
    const std::regex option(R"(\\-\\-[a-z]+(\\-[a-z]+)*)");
    for (std::sregex_iterator found(page.begin(), page.end(), option), end; found != end; ++found)
        options.insert(found->str());
    return options;
}

TEST(Packaging, hasManualPagesWithoutFaults) {
    if (!isThere("man"))
        GTEST_SKIP() << "man is not here";
    for (const char* page : {"man/brisklet.1", "man/brisklet-cli.1"}) {
        const auto result = runProcess({"man", "--warnings", "-l", "-Tutf8", kPackaging + page},
                                       {.additionalEnvironment = {"MANPAGER=cat"}});
        EXPECT_EQ(result.errors, "") << page;
        EXPECT_NE(result.output.find("trim, crop and turn videos"), std::string::npos) << page;
    }
}

TEST(Packaging, tellsOfEveryOptionInEveryLanguagesManualPages) {
    int folders = 0;
    for (const auto& folder : std::filesystem::directory_iterator(kPackaging + "man")) {
        if (!folder.is_directory())
            continue;
        ++folders;
        for (const char* name : {"brisklet.1", "brisklet-cli.1"}) {
            const std::string page = contentOf(folder.path() / name).toStdString();
            EXPECT_EQ(optionsIn(page),
                      optionsIn(contentOf(kPackaging + "man/" + name).toStdString()))
                << folder.path() << name;
        }
    }
    EXPECT_EQ(folders, 15);
}

TEST(Packaging, completesTheToolsCommandsAndOptions) {
    const auto complete = [](const std::string& words) {
        return runProcess({"bash", "-c",
                           "source \"$0\"; COMP_WORDS=(" + words +
                               "); COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _brisklet_cli; "
                               "printf '%s\\n' \"${COMPREPLY[@]}\"",
                           kPackaging + "completions/brisklet-cli.bash"})
            .output;
    };
    EXPECT_EQ(complete("brisklet-cli ex"), "export\n");
    EXPECT_EQ(complete("brisklet-cli export --st"), "--start\n");
    EXPECT_EQ(complete("brisklet-cli export in.mov out --format m"), "mp4\nmov\n");
    EXPECT_EQ(complete("brisklet-cli probe --st"), "\n");
}

} // namespace
