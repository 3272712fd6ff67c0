#include "Platform/MimeTypes.h"

#include "TestSupport/Process.h"

#include <QFile>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

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

TEST(Packaging, hasManualPagesWithoutFaults) {
    if (!isThere("man"))
        GTEST_SKIP() << "man is not here";
    for (const char* page :
         {"man/brisklet.1", "man/brisklet-cli.1", "man/de/brisklet.1", "man/de/brisklet-cli.1"}) {
        const auto result = runProcess({"man", "--warnings", "-l", "-Tutf8", kPackaging + page},
                                       {.additionalEnvironment = {"MANPAGER=cat"}});
        EXPECT_EQ(result.errors, "") << page;
        const bool isGerman = std::string(page).starts_with("man/de");
        EXPECT_NE(result.output.find(isGerman ? "kürzen, beschneiden und drehen"
                                              : "trim, crop and turn videos"),
                  std::string::npos)
            << page;
    }
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
