#include "Media/Error.h"
#include "Media/ExportFixture.h"
#include "Media/Faults.h"
#include "TestSupport/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <tuple>

/// Each single call of an export to the system goes wrong once. After that the old file is there,
/// whole, or the new one, and the program is as it was before.
namespace media {
namespace {

using testsupport::SystemCall;
using testsupport::TemporaryFolder;

/// A short video; nothing of it is read while the faults are counted but by the export.
std::shared_ptr<const Asset> shortVideo() {
    return Asset::open(
        testsupport::makeFixture({.duration = 0.5, .width = 160, .height = 120}).path);
}

/// What an export is to find at its destination.
struct Place {
    const char* name;
    bool hasOlderFile = false;
    bool hasUnnamedFiles = true;

    friend void PrintTo(const Place& place, std::ostream* out) { *out << place.name; }
};

constexpr std::array kPlaces = {Place{"newFile", false, true}, Place{"olderFile", true, true},
                                Place{"newFileWithHiddenName", false, false},
                                Place{"olderFileWithHiddenName", true, false}};

class ExportWithAFault : public testing::TestWithParam<std::tuple<Place, FaultKind>> {
protected:
    ExportWithAFault() {
        exportTo("reference.mp4");
        m_whole = contentsOf(m_folder / "reference.mp4");
        std::filesystem::remove(m_folder / "reference.mp4");
    }

    void exportTo(const char* name) const {
        StagedExportSession(compositionOf(m_asset), m_folder / name, FileType::mpeg4).run();
    }

    [[nodiscard]] static const Place& place() { return std::get<Place>(GetParam()); }

    /// As it is before an export.
    void prepare() const {
        std::filesystem::remove(m_folder / "out.mp4");
        std::filesystem::remove(m_folder / "next.mp4");
        if (place().hasOlderFile)
            writeFile(m_folder / "out.mp4", "old");
    }

    /// Of an export in which nothing goes wrong.
    [[nodiscard]] std::vector<SystemCall::Kind> calls() const {
        prepare();
        return runWithFault({.hasUnnamedFiles = place().hasUnnamedFiles},
                            [this] { exportTo("out.mp4"); });
    }

    /// What is wrong after the call with that number has failed; empty if nothing is.
    [[nodiscard]] std::string complaintAfterFaultAt(long number) const {
        prepare();
        const FaultPlan plan{.number = number,
                             .answer = std::get<FaultKind>(GetParam()).answer,
                             .hasUnnamedFiles = place().hasUnnamedFiles};
        const Leftovers leftovers;
        const std::string error =
            failureOf([&] { runWithFault(plan, [this] { exportTo("out.mp4"); }); });
        std::string complaint = leftovers.complaint();
        if (!error.empty())
            complaint += complaintAbout(error);
        const std::string content = contentsOf(m_folder / "out.mp4");
        const std::string before = place().hasOlderFile ? "old" : "";
        if (content != (error.empty() ? m_whole : before))
            complaint += "“" + error + "” leaves " + std::to_string(content.size()) + " bytes; ";
        exportTo("next.mp4");
        if (contentsOf(m_folder / "next.mp4") != m_whole)
            complaint += "the next export is another; ";
        for (const std::string& name : namesIn(m_folder.path())) {
            if (name != "out.mp4" && name != "next.mp4")
                complaint += name + " stays; ";
        }
        return complaint;
    }

    TemporaryFolder m_folder;
    std::shared_ptr<const Asset> m_asset = shortVideo();
    std::string m_whole;
};

TEST_P(ExportWithAFault, losesNothingAtTheFirstCallOfEachKind) {
    const auto kinds = calls();
    for (long number = 0; number < std::ssize(kinds); ++number) {
        const auto here = kinds.begin() + number;
        if (std::find(kinds.begin(), here, *here) != here)
            continue;
        EXPECT_EQ(complaintAfterFaultAt(number), "")
            << "call " << number << ", kind " << static_cast<int>(*here);
    }
}

/// At every call.
class ExhaustiveExportWithAFault : public ExportWithAFault {};

TEST_P(ExhaustiveExportWithAFault, losesNothing) {
    const auto kinds = calls();
    RecordProperty("points", static_cast<int>(kinds.size()));
    for (long number = 0; number < std::ssize(kinds); ++number)
        EXPECT_EQ(complaintAfterFaultAt(number), "")
            << "call " << number << ", kind "
            << static_cast<int>(kinds[static_cast<std::size_t>(number)]);
}

std::string nameOf(const testing::TestParamInfo<ExportWithAFault::ParamType>& info) {
    const auto& [place, kind] = info.param;
    return std::string(place.name) + "_" + kind.name;
}

INSTANTIATE_TEST_SUITE_P(, ExportWithAFault,
                         testing::Values(std::tuple(kPlaces[1], faultKinds()[0]),
                                         std::tuple(kPlaces[3], faultKinds()[5])),
                         nameOf);
INSTANTIATE_TEST_SUITE_P(, ExhaustiveExportWithAFault,
                         testing::Combine(testing::ValuesIn(kPlaces),
                                          testing::ValuesIn(faultKinds())),
                         nameOf);

} // namespace
} // namespace media
