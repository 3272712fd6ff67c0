#include "Media/ExportFixture.h"

#include <gtest/gtest.h>

#include <malloc.h>
#include <thread>

/// libx265 keeps tables for each quantizer that it meets. A process that had exported many videos
/// of ten bits held tens of megabytes more than one that had exported a few.
namespace media {
namespace {

using testsupport::makeFixture;
using testsupport::VideoCodec;

/// Far below what the tables of the quantizers of a few exports take. Bytes.
constexpr std::size_t kMostGrowth = 2 * 1024 * 1024;

class EncoderTablesTest : public ExportTest {
protected:
    void exportDeep(double factor, const std::string& name) {
        EncoderSettings settings;
        settings.hevcCrf = factor;
        StagedExportSession session(compositionOf(Asset::open(m_source)), m_folder / name,
                                    FileType::mpeg4, settings);
        session.run();
    }

    const std::filesystem::path m_source =
        makeFixture({.codec = VideoCodec::hevcTenBit, .duration = 0.5, .width = 160, .height = 120})
            .path;
};

TEST_F(EncoderTablesTest, endWithTheLastEncoder) {
    exportDeep(12, "first.mp4");
    const std::size_t before = ::mallinfo2().uordblks;
    for (const double factor : {20, 28, 36, 44})
        exportDeep(factor, "another.mp4");
    EXPECT_LT(::mallinfo2().uordblks, before + kMostGrowth);
}

TEST_F(EncoderTablesTest, stayWhileAnyEncoderIsOpen) {
    const auto exportSome = [this](const std::string& name) {
        for (const double factor : {12, 20, 28, 36})
            exportDeep(factor, name);
    };
    std::jthread other([&] { exportSome("other.mp4"); });
    EXPECT_NO_THROW(exportSome("one.mp4"));
}

} // namespace
} // namespace media
