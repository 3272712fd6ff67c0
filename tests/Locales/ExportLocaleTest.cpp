#include "Locales/Locales.h"
#include "TestSupport/TemporaryFolder.h"
#include "WindowExports/ExportTable.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <fstream>
#include <iterator>
#include <map>

/// An export holds the same bytes whatever locale it was made in. Qt's application object takes the
/// user's locale into the C library, where the encoders' options are read: with a decimal comma
/// they were refused, and nobody was told.
namespace {

using testsupport::ExportRow;
using testsupport::exportTable;
using testsupport::ProcessResult;
using testsupport::runInLocale;
using testsupport::TemporaryFolder;

using Files = std::map<std::string, std::string>;

std::string contentsOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

Files filesIn(const TemporaryFolder& folder) {
    Files files;
    for (const ExportRow& row : exportTable())
        files[row.name] = contentsOf(folder / outputName(row));
    return files;
}

std::string text(double number) {
    std::array<char, 32> digits = {};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number);
    return {digits.data(), end.ptr};
}

Files exportedByWindow(const char* locale) {
    const TemporaryFolder folder;
    const ProcessResult result =
        runInLocale(locale, {BRISKLET_WINDOW_EXPORTS, folder.path().string()},
                    {"XDG_CONFIG_HOME=" + folder.path().string()});
    EXPECT_EQ(result.exitStatus, 0) << result.errors;
    return filesIn(folder);
}

std::vector<std::string> toolArguments(const ExportRow& row, const TemporaryFolder& folder) {
    std::vector<std::string> arguments = {BRISKLET_CLI,
                                          "export",
                                          makeFixture(row.source).path.string(),
                                          (folder / outputName(row)).string(),
                                          "--start",
                                          text(row.start),
                                          "--end",
                                          text(row.end),
                                          "--rotate",
                                          std::to_string((4 - row.quarterTurns) % 4 * 90)};
    if (row.crop) {
        arguments.insert(arguments.end(),
                         {"--crop", text(row.crop->x) + "," + text(row.crop->y) + "," +
                                        text(row.crop->width) + "," + text(row.crop->height)});
    }
    if (row.isMuted)
        arguments.emplace_back("--mute");
    if (const auto edge = brisklet::maxShortEdge(row.resolution))
        arguments.insert(arguments.end(), {"--max-short-edge", std::to_string(*edge)});
    return arguments;
}

Files exportedByTool(const char* locale) {
    const TemporaryFolder folder;
    for (const ExportRow& row : exportTable()) {
        const ProcessResult result = runInLocale(locale, toolArguments(row, folder));
        EXPECT_EQ(result.exitStatus, 0) << row.name << ": " << result.errors;
    }
    return filesIn(folder);
}

/// What encoders write of their settings into the stream.
std::string settingsIn(const std::string& file) {
    const std::size_t start = file.find("options: ");
    return start == std::string::npos ? "none" : file.substr(start, file.find('\0', start) - start);
}

void expectSame(const Files& files, const Files& wanted) {
    for (const auto& [name, content] : files) {
        EXPECT_FALSE(content.empty()) << name;
        // Not the bytes themselves, which nobody wants to read.
        EXPECT_TRUE(content == wanted.at(name))
            << name << ": " << content.size() << " bytes, not " << wanted.at(name).size() << "\n"
            << settingsIn(content) << "\nnot\n"
            << settingsIn(wanted.at(name));
    }
}

class ExportLocale : public testing::TestWithParam<const char*> {
protected:
    void SetUp() override {
        if (!testsupport::isInstalled(GetParam()))
            GTEST_SKIP() << "the locale " << GetParam() << " is not installed";
    }
};

TEST_P(ExportLocale, changesNoByteOfWhatAWindowExports) {
    expectSame(exportedByWindow(GetParam()), exportedByWindow("C"));
}

TEST_P(ExportLocale, changesNoByteOfWhatTheToolExports) {
    expectSame(exportedByTool(GetParam()), exportedByTool("C"));
}

INSTANTIATE_TEST_SUITE_P(Foreign, ExportLocale, testing::ValuesIn(testsupport::kForeignLocales),
                         [](const auto& locale) { return std::string(locale.param).substr(0, 5); });

TEST(ExportsOfWindowAndTool, areTheSame) {
    expectSame(exportedByWindow("C"), exportedByTool("C"));
}

} // namespace
