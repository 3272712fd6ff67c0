#include "Export/SampleReport.h"

#include "TestSupport/Inspection.h"
#include "TestSupport/Process.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <fstream>
#include <iomanip>
#include <map>
#include <sstream>
#include <vector>

namespace brisklet {

namespace {

struct Row {
    std::string source;
    std::vector<std::string> exports;
};

std::map<std::string, Row>& rows() {
    static std::map<std::string, Row> rows;
    return rows;
}

std::string picture(const testsupport::ProbedFields& stream) {
    std::string text = stream.text("codec_name") + " " + stream.text("pix_fmt") + " " +
                       stream.text("width") + "×" + stream.text("height");
    const std::string transfer = stream.text("color_transfer");
    if (!transfer.empty() && transfer != "unknown")
        text += " " + transfer;
    return text;
}

std::string summary(const testsupport::ProbedFile& file) {
    std::string text;
    for (const auto& stream : file.streamsOf("video")) {
        if (stream.text("disposition.attached_pic") == "1")
            continue;
        text += text.empty() ? picture(stream) : " (and another)";
    }
    if (const std::size_t sounds = file.streamsOf("audio").size(); sounds > 0)
        text += ", " + std::to_string(sounds) + " × sound";
    return text;
}

/// What mpv says while it plays picture and sound as fast as it can. One after the other: together
/// they would drift apart at that pace.
std::string mpvWarnings(const std::filesystem::path& path) {
    std::vector<std::vector<std::string>> ways = {{"--no-audio", "--vo=null", "--untimed"}};
    if (!testsupport::probe(path).streamsOf("audio").empty())
        ways.push_back({"--no-video", "--ao=pcm", "--ao-pcm-file=/dev/null"});
    std::string said;
    for (const auto& options : ways) {
        std::vector<std::string> command = {"mpv", "--no-config", "--msg-level=all=warn"};
        command.insert(command.end(), options.begin(), options.end());
        command.insert(command.end(), {"--", path.string()});
        const auto result = testsupport::runProcess(command);
        said += result.output + result.errors;
        if (!result.succeeded())
            said += "mpv failed";
    }
    return said;
}

class Writer final : public testing::Environment {
public:
    void TearDown() override {
        if (!SampleReport::isWanted() || rows().empty())
            return;
        std::ofstream report(std::getenv("BRISKLET_SAMPLE_REPORT"));
        report
            << "# Exports of sample files\n\n"
               "Written by the tests: `BRISKLET_SAMPLE_REPORT=docs/sample-exports.md "
               "export-tests --gtest_filter='*RealMedia*'`.\n\n"
               "Each file (its first four seconds) is exported to MP4 and MOV, as it is and with "
               "crop, quarter turn and\ncap. \"Right\": ffmpeg and mpv play it without a "
               "warning, it starts at 0, is as long as the range\n(within 2 ms), has the "
               "source's tracks and colour tags, and the size that was asked for.\n\n"
               "| file | source | exports |\n|---|---|---|\n";
        for (const auto& [name, row] : rows()) {
            report << "| " << name << " | " << row.source << " | ";
            for (std::size_t i = 0; i < row.exports.size(); ++i)
                report << (i > 0 ? "<br>" : "") << row.exports[i];
            report << " |\n";
        }
    }
};

// GoogleTest owns it.
[[maybe_unused]] const auto* const writer = testing::AddGlobalTestEnvironment(new Writer);

} // namespace

bool SampleReport::isWanted() {
    return std::getenv("BRISKLET_SAMPLE_REPORT") != nullptr;
}

void SampleReport::add(const std::string& name, const Export& exported) {
    if (!isWanted())
        return;
    Row& row = rows()[name];
    if (row.source.empty())
        row.source = summary(testsupport::probe(exported.source));
    const std::string warnings = mpvWarnings(exported.output);
    EXPECT_EQ(warnings, "") << name;
    std::ostringstream text;
    text << exported.output.extension().string().substr(1) << ", " << std::fixed
         << std::setprecision(3) << exported.seconds
         << " s: " << summary(testsupport::probe(exported.output)) << ": "
         << (exported.isRight && warnings.empty() ? "right" : "**wrong**");
    row.exports.push_back(text.str());
}

} // namespace brisklet
