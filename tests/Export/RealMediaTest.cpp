#include "Export/AVFoundationExporter.h"
#include "Export/SampleReport.h"
#include "Media/Error.h"
#include "Media/ImageGenerator.h"
#include "Support/FileUrl.h"
#include "TestSupport/Inspection.h"
#include "TestSupport/MediaCache.h"
#include "TestSupport/Process.h"
#include "TestSupport/Representatives.h"
#include "TestSupport/TemporaryFolder.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <ostream>
#include <set>
#include <string>
#include <string_view>

/// Files that phones, cameras, screen recorders and broadcasters made. What can be shown of them
/// can be exported; what cannot be shown is told in a sentence.
namespace brisklet {
namespace {

using media::Asset;
using media::MediaType;
using testsupport::probe;
using testsupport::ProbedFile;
using testsupport::TemporaryFolder;

struct Sample {
    std::string name;
    /// "opens", "no video track" or "cannot open".
    std::string expectation;
    bool firstFrameDecodes = false;
    /// Its container, codecs and display rotations.
    std::set<std::string> features;

    [[nodiscard]] bool canBeShown() const { return expectation == "opens" && firstFrameDecodes; }
};

std::ostream& operator<<(std::ostream& stream, const Sample& sample) {
    return stream << sample.name;
}

std::set<std::string> featuresIn(const QJsonObject& entry) {
    std::set<std::string> features = {"in " + entry[u"container"].toString().toStdString()};
    for (const QJsonValue& stream : entry[u"streams"].toArray()) {
        features.insert(stream[u"type"].toString().toStdString() + " " +
                        stream[u"codec"].toString().toStdString());
        features.insert("turned by " + std::to_string(stream[u"rotation"].toInt()));
    }
    return features;
}

/// Empty where the collection is not there.
std::vector<Sample> allSamples() {
    std::vector<Sample> samples;
    const auto manifest = testsupport::sampleMedia("manifest.json");
    if (!manifest)
        return samples;
    QFile file(QString::fromStdString(manifest->string()));
    if (!file.open(QIODevice::ReadOnly))
        return samples;
    const auto entries = QJsonDocument::fromJson(file.readAll())[u"files"].toArray();
    for (const QJsonValue& entry : entries) {
        samples.push_back({entry[u"name"].toString().toStdString(),
                           entry[u"expect"].toString().toStdString(),
                           entry[u"first_frame_decodes"].toBool(), featuresIn(entry.toObject())});
    }
    return samples;
}

std::vector<Sample> samplesThat(bool canBeShown) {
    std::vector<Sample> samples = allSamples();
    std::erase_if(samples, [&](const Sample& sample) { return sample.canBeShown() != canBeShown; });
    return samples;
}

std::string testName(const testing::TestParamInfo<Sample>& info) {
    std::string name;
    for (const char letter : info.param.name)
        name += std::isalnum(static_cast<unsigned char>(letter)) ? letter : '_';
    return name;
}

std::filesystem::path pathOfSample(const Sample& sample) {
    return testsupport::sampleMedia(sample.name).value();
}

/// Whether ffmpeg decodes anything of a stream, by ffmpeg's name for it.
bool decodes(const std::filesystem::path& path, const std::string& stream) {
    const auto result =
        testsupport::runProcess({"ffmpeg", "-nostdin", "-v", "quiet", "-i", "file:" + path.string(),
                                 "-map", stream, "-frames", "1", "-f", "framemd5", "-"});
    // A line for each frame, after those of the head.
    return result.output.find("\n0,") != std::string::npos;
}

/// How many of a file's audio tracks ffmpeg decodes anything of.
std::size_t audibleTracks(const std::filesystem::path& path) {
    std::size_t audible = 0;
    const std::size_t count = probe(path).streamsOf("audio").size();
    for (std::size_t track = 0; track < count; ++track) {
        if (decodes(path, "0:a:" + std::to_string(track)))
            ++audible;
    }
    return audible;
}

/// A second from the middle of what lasts longer; more for a report.
ExportRequest requestFor(const std::filesystem::path& source, double duration) {
    ExportRequest request;
    request.sourceURL = urlOf(source);
    if (SampleReport::isWanted()) {
        constexpr double kReportedSeconds = 4;
        request.endTime = std::min(duration, kReportedSeconds);
        return request;
    }
    request.startTime = duration > 2 ? duration * 0.4 : 0;
    request.endTime = std::min(duration, request.startTime + 1);
    return request;
}

/// RGB has no matrix of its own, and no range but one: the export states what it is made with.
bool hasOwnMatrix(const media::AssetTrack& track) {
    constexpr std::array<std::string_view, 4> kForeign = {"rgb", "bgr", "gbr", "pal"};
    return std::ranges::none_of(kForeign, [&](const std::string_view name) {
        return track.pixelFormat.find(name) != std::string::npos;
    });
}

void expectColourOf(const media::AssetTrack& source, const std::filesystem::path& output) {
    const auto exported = Asset::open(output)->tracks(MediaType::video).at(0);
    EXPECT_EQ(exported.color.primaries, source.color.primaries);
    EXPECT_EQ(exported.color.transfer, source.color.transfer);
    if (hasOwnMatrix(source)) {
        EXPECT_EQ(exported.color.matrix, source.color.matrix);
        EXPECT_EQ(exported.color.range == "pc", source.color.range == "pc");
    }
}

class RealMedia : public testing::TestWithParam<Sample> {
protected:
    void SetUp() override {
        m_source = pathOfSample(GetParam());
        m_asset = Asset::open(m_source);
    }

    /// Exports in one format and looks at what came out.
    ProbedFile exported(ExportRequest request, ExportFormat format) {
        const auto output = m_folder / (format == ExportFormat::mov ? "out.mov" : "out.mp4");
        request.outputURL = urlOf(output);
        request.format = format;
        AVFoundationExporter::run(request, {}, {});

        EXPECT_EQ(testsupport::warningsWhilePlaying(output), "");
        expectColourOf(m_asset->tracks(MediaType::video).at(0), output);
        const auto frames = testsupport::readPackets(output);
        const auto first = std::ranges::min_element(frames, {}, &testsupport::ProbedPacket::pts);
        EXPECT_NE(first, frames.end());
        if (first != frames.end()) {
            EXPECT_NEAR(first->pts, 0, 0.001);
        }
        ProbedFile file = probe(output);
        EXPECT_EQ(file.streamsOf("video").size(), 1U);
        const double length = static_cast<double>(std::llround(request.endTime * 600) -
                                                  std::llround(request.startTime * 600)) /
                              600;
        EXPECT_NEAR(file.format.number("duration").value_or(0), length, 0.002);
        EXPECT_NEAR(file.streamsOf("video").at(0).number("duration").value_or(0), length, 0.002);
        EXPECT_NEAR(file.format.number("start_time").value_or(1), 0, 0.001);
        SampleReport::add(GetParam().name, {m_source, output, length, !HasFailure()});
        return file;
    }

    std::filesystem::path m_source;
    std::shared_ptr<const Asset> m_asset;
    TemporaryFolder m_folder;
};

TEST_P(RealMedia, isShownInTheFilmstrip) {
    const auto generator = media::ImageGenerator::make(m_asset);
    generator->setMaximumSize(0, 120);
    const double duration = m_asset->duration().seconds();
    EXPECT_GT(duration, 0);
    generator->setTolerance(media::Time::fromSeconds(0.5, 600), media::Time::fromSeconds(0.5, 600));
    const auto still = generator->image(media::Time::fromSeconds(duration / 2, 600));
    EXPECT_GT(still.image->width, 0);
    EXPECT_GT(still.image->height, 0);
    EXPECT_LE(still.image->height, 120);
}

TEST_P(RealMedia, isExportedAsItIs) {
    const std::size_t audible = audibleTracks(m_source);
    for (const ExportFormat format : {ExportFormat::mp4, ExportFormat::mov}) {
        const ExportRequest request = requestFor(m_source, m_asset->duration().seconds());
        const ProbedFile file = exported(request, format);
        EXPECT_EQ(file.streamsOf("audio").size(), audible);
    }
}

TEST_P(RealMedia, isExportedTurnedCroppedAndSmaller) {
    const media::AssetTrack track = m_asset->tracks(MediaType::video).at(0);
    for (const ExportFormat format : {ExportFormat::mp4, ExportFormat::mov}) {
        ExportRequest request = requestFor(m_source, m_asset->duration().seconds());
        request.rotation = 90;
        request.cropRect = media::Rect{0.1, 0.25, 0.6, 0.5};
        request.maxShortEdge = 240;
        const auto expected = AVFoundationExporter::transformComposition(
            track, request.rotation, request.cropRect, request.maxShortEdge);
        const ProbedFile file = exported(request, format);
        const auto video = file.streamsOf("video").at(0);
        EXPECT_EQ(video.number("width"), expected.renderWidth);
        EXPECT_EQ(video.number("height"), expected.renderHeight);
        EXPECT_EQ(file.streamsOf("audio").size(), m_asset->tracks(MediaType::audio).size());
    }
}

testsupport::Selection<Sample> selection() {
    return testsupport::selectRepresentatives(samplesThat(true), &Sample::features);
}

INSTANTIATE_TEST_SUITE_P(Sample, RealMedia, testing::ValuesIn(selection().representatives),
                         testName);
INSTANTIATE_TEST_SUITE_P(Exhaustive, RealMedia, testing::ValuesIn(selection().others), testName);

class UnfitMedia : public testing::TestWithParam<Sample> {};

TEST_P(UnfitMedia, isToldInASentence) {
    const Sample& sample = GetParam();
    const TemporaryFolder folder;
    ExportRequest request = requestFor(pathOfSample(sample), 1);
    request.outputURL = urlOf(folder / "out.mp4");
    if (sample.expectation == "opens" && decodes(pathOfSample(sample), "0:v:0")) {
        // Newer releases of ffmpeg know more codecs.
        AVFoundationExporter::run(request, {}, {});
        EXPECT_EQ(testsupport::warningsWhilePlaying(folder / "out.mp4"), "");
        EXPECT_FALSE(testsupport::readPackets(folder / "out.mp4").empty());
        return;
    }
    try {
        AVFoundationExporter::run(request, {}, {});
        FAIL() << "no error";
    } catch (const AVFoundationExporter::ExportError& error) {
        EXPECT_EQ(sample.expectation, "no video track");
        EXPECT_EQ(error.kind(), AVFoundationExporter::ExportError::Kind::noVideoTrack);
    } catch (const media::Error& error) {
        EXPECT_NE(sample.expectation, "no video track");
        EXPECT_THAT(error.what(), testing::EndsWith("."));
    }
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

INSTANTIATE_TEST_SUITE_P(Sample, UnfitMedia, testing::ValuesIn(samplesThat(false)), testName);

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(RealMedia);
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(UnfitMedia);

TEST(RealMediaCollection, isThere) {
    if (!testsupport::sampleMedia("manifest.json"))
        GTEST_SKIP() << "sample media are not here";
    EXPECT_GT(samplesThat(true).size(), 50U);
    EXPECT_GT(samplesThat(false).size(), 5U);
}

} // namespace
} // namespace brisklet
