#include "Media/Process/Client/ForkServer.h"

#include "Media/Error.h"
#include "Media/ExportFixture.h"
#include "Media/Faults.h"
#include "TestSupport/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <string>

/// Programs in place of the one that helpers are forked from.
namespace media::process {
namespace {

class ForkServerTest : public testing::Test {
protected:
    /// A program of these lines of shell, whose channel is its descriptor 3.
    std::filesystem::path program(const std::string& lines) {
        auto path = m_folder / "engine";
        writeFile(path, "#!/bin/sh\n" + lines + "\n");
        std::filesystem::permissions(path, std::filesystem::perms::owner_all);
        return path;
    }

    /// What forking from the program fails with.
    static std::optional<ErrorKind> errorOfFork(const std::filesystem::path& program) {
        const Leftovers before;
        std::optional<ErrorKind> kind;
        try {
            ForkServer server(program);
            static_cast<void>(server.fork());
        } catch (const Error& error) {
            kind = error.failure().kind;
        }
        EXPECT_EQ(before.complaint(), "");
        return kind;
    }

    testsupport::TemporaryFolder m_folder;
};

TEST_F(ForkServerTest, forksFromTheRealProgram) {
    EXPECT_EQ(errorOfFork(BRISKLET_ENGINE_PROGRAM), std::nullopt);
}

TEST_F(ForkServerTest, needsAProgram) {
    EXPECT_EQ(errorOfFork(m_folder / "missing"), ErrorKind::engineNotFound);
    const auto noProgram = m_folder / "no-program";
    writeFile(noProgram, "text");
    EXPECT_EQ(errorOfFork(noProgram), ErrorKind::engineNotFound);
}

TEST_F(ForkServerTest, takesAProgramThatEndsForOneThatLacksItsLibraries) {
    EXPECT_EQ(errorOfFork(program("exit 1")), ErrorKind::incompleteInstallation);
}

TEST_F(ForkServerTest, takesNoProgramOfAnotherBuild) {
    // A text of four bytes, and its length before it.
    EXPECT_EQ(errorOfFork(program(R"(printf '\004\000\000\000text' >&3; cat <&3)")),
              ErrorKind::updatedMeanwhile);
}

TEST_F(ForkServerTest, takesNoProgramThatGreetsInAnotherWay) {
    EXPECT_EQ(errorOfFork(program("printf x >&3; cat <&3")), ErrorKind::updatedMeanwhile);
    EXPECT_EQ(errorOfFork(program(R"(printf '\377\377\377\377text' >&3; cat <&3)")),
              ErrorKind::updatedMeanwhile);
}

} // namespace
} // namespace media::process
