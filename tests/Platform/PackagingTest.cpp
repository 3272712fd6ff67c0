#include "Platform/MimeTypes.h"

#include "TestSupport/Process.h"

#include <QFile>

#include <gtest/gtest.h>

#include <string>

namespace {

using testsupport::runProcess;

const std::string kPackaging = std::string(BRISKLET_SOURCE_DIR) + "/packaging/";

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
    const auto result =
        runProcess({"desktop-file-validate", kPackaging + "com.quorvan.brisklet.desktop"});
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.exitStatus, 0);
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
