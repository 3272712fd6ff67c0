#include "Media/Process/Wire/ExportMessages.h"

#include "Media/Process/RandomMedia.h"
#include "Media/Process/SameValues.h"
#include "Media/Process/WireTest.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <memory>
#include <utility>
#include <vector>

namespace media::process {
namespace {

/// Two tracks of pictures and two of sound, without a file.
class FewTracks final : public Asset {
public:
    FewTracks() {
        RandomValues values(10);
        for (int index = 0; index < 4; ++index) {
            AssetTrack track = randomTrack(values);
            track.streamIndex = 3 * index;
            track.type = index % 2 == 0 ? MediaType::video : MediaType::audio;
            m_tracks.push_back(track);
        }
    }

    [[nodiscard]] const std::filesystem::path& path() const override { return m_path; }

    [[nodiscard]] Time duration() const override { return {}; }

    [[nodiscard]] std::vector<AssetTrack> tracks(MediaType type) const override {
        std::vector<AssetTrack> result;
        std::ranges::copy_if(m_tracks, std::back_inserter(result),
                             [type](const AssetTrack& track) { return track.type == type; });
        return result;
    }

    void setLossHandler(std::function<void()> /*handler*/) const override {}

private:
    std::filesystem::path m_path;
    std::vector<AssetTrack> m_tracks;
};

std::shared_ptr<const Asset> fewTracks() {
    static const auto asset = std::make_shared<const FewTracks>();
    return asset;
}

CompositionTrack randomPart(RandomValues& values, MediaType type) {
    const Time start = randomTime(values);
    const Time end = randomTime(values);
    return {fewTracks()->tracks(type)[values.below(2)], {start, end}, randomTransform(values)};
}

struct WiredComposition {
    static constexpr const char* kName = "Composition";
    using Value = Composition;

    static Composition random(RandomValues& values) {
        Composition composition;
        composition.asset = fewTracks();
        if (values.isHeads())
            composition.videoTrack = randomPart(values, MediaType::video);
        for (std::size_t count = values.below(4); count > 0; --count)
            composition.audioTracks.push_back(randomPart(values, MediaType::audio));
        return composition;
    }

    static void write(MessageWriter& writer, const Composition& composition) {
        put(writer, composition);
    }

    static Composition read(MessageReader& reader) { return getComposition(reader, fewTracks()); }

    static bool isSame(const Composition& a, const Composition& b) { return process::isSame(a, b); }

    static void expectBounds(const Composition& composition) {
        EXPECT_EQ(composition.asset, fewTracks());
        if (composition.videoTrack)
            expectPart(*composition.videoTrack, MediaType::video);
        for (const CompositionTrack& track : composition.audioTracks)
            expectPart(track, MediaType::audio);
    }

    static void expectPart(const CompositionTrack& part, MediaType type) {
        EXPECT_EQ(part.source.type, type);
        EXPECT_GE(part.range.start.timescale, 0);
        EXPECT_GE(part.range.end.timescale, 0);
    }
};

struct WiredVideoComposition {
    static constexpr const char* kName = "VideoComposition";
    using Value = std::optional<VideoComposition>;

    static Value random(RandomValues& values) {
        constexpr int kMostSide = 65'536;
        if (values.below(4) == 0)
            return std::nullopt;
        VideoComposition composition;
        composition.transform = randomTransform(values);
        composition.renderWidth = evenAtLeastTwo(values.number<int>(2, kMostSide));
        composition.renderHeight = evenAtLeastTwo(values.number<int>(2, kMostSide));
        composition.frameDuration = randomTime(values);
        return composition;
    }

    static void write(MessageWriter& writer, const Value& value) { put(writer, value); }

    static Value read(MessageReader& reader) { return getVideoComposition(reader); }

    static bool isSame(const Value& a, const Value& b) {
        return a.has_value() == b.has_value() && (!a || process::isSame(*a, *b));
    }

    static void expectBounds(const Value& value) {
        if (!value)
            return;
        EXPECT_EQ(value->renderWidth, evenAtLeastTwo(value->renderWidth));
        EXPECT_EQ(value->renderHeight, evenAtLeastTwo(value->renderHeight));
        EXPECT_LE(std::max(value->renderWidth, value->renderHeight), 65'536);
        EXPECT_GE(value->frameDuration.timescale, 0);
    }
};

struct WiredSettings {
    static constexpr const char* kName = "Settings";
    using Value = EncoderSettings;

    static EncoderSettings random(RandomValues& values) {
        EncoderSettings settings;
        settings.h264Preset = randomPreset(values);
        settings.h264Parameters = randomParameters(values);
        settings.h264Crf = values.number<double>();
        settings.h264ReducedCrf = values.number<double>();
        settings.hevcPreset = randomPreset(values);
        settings.hevcParameters = randomParameters(values);
        settings.hevcCrf = values.number<double>();
        return settings;
    }

    static void write(MessageWriter& writer, const EncoderSettings& settings) {
        put(writer, settings);
    }

    static EncoderSettings read(MessageReader& reader) { return getSettings(reader); }

    static bool isSame(const EncoderSettings& a, const EncoderSettings& b) {
        return process::isSame(a, b);
    }

    static void expectBounds(const EncoderSettings& settings) {
        EXPECT_LE(settings.h264Preset, EncoderPreset::placebo);
        EXPECT_GE(settings.h264Preset, EncoderPreset::ultrafast);
        EXPECT_LE(settings.hevcPreset, EncoderPreset::placebo);
        EXPECT_GE(settings.hevcPreset, EncoderPreset::ultrafast);
        for (const double crf : {settings.h264Crf, settings.h264ReducedCrf, settings.hevcCrf})
            EXPECT_TRUE(std::isfinite(crf));
    }

    static EncoderPreset randomPreset(RandomValues& values) {
        return kEncoderPresets.at(values.below(kEncoderPresets.size())).first;
    }

    static EncoderParameter::Value randomParameter(RandomValues& values) {
        switch (values.below(4)) {
        case 0:
            return values.number<int>();
        case 1:
            return values.number<double>();
        case 2: {
            const int first = values.number<int>();
            return std::pair(first, values.number<int>());
        }
        default:
            return values.text();
        }
    }

    static EncoderParameters randomParameters(RandomValues& values) {
        EncoderParameters parameters;
        for (std::size_t count = values.below(6); count > 0; --count) {
            std::string name = values.text();
            parameters.push_back({std::move(name), randomParameter(values)});
        }
        return parameters;
    }
};

struct WiredForecast {
    static constexpr const char* kName = "Forecast";
    using Value = std::optional<ExportForecast>;

    static Value random(RandomValues& values) {
        if (values.below(4) == 0)
            return std::nullopt;
        const auto bytes = values.number<std::int64_t>(0);
        return ExportForecast{bytes, values.number<double>(0)};
    }

    static void write(MessageWriter& writer, const Value& value) { put(writer, value); }

    static Value read(MessageReader& reader) { return getForecast(reader); }

    static bool isSame(const Value& a, const Value& b) { return a == b; }

    static void expectBounds(const Value& value) {
        if (!value)
            return;
        EXPECT_GE(value->bytes, 0);
        EXPECT_GE(value->seconds, 0);
        EXPECT_TRUE(std::isfinite(value->seconds));
    }
};

using ExportKinds =
    testing::Types<WiredComposition, WiredVideoComposition, WiredSettings, WiredForecast>;
INSTANTIATE_TYPED_TEST_SUITE_P(Exports, WireTest, ExportKinds, WiredName);

TEST(ExportMessages, bringTheSettingsThatTheProgramHas) {
    MessageWriter writer;
    put(writer, EncoderSettings());
    MessageReader reader(copyOf(writer.message()));
    EXPECT_TRUE(isSame(getSettings(reader), EncoderSettings()));
}

TEST(ExportMessages, nameNoTrackOfAnotherKind) {
    Composition composition;
    composition.videoTrack = {fewTracks()->tracks(MediaType::audio)[0], {}, {}};
    MessageWriter writer;
    put(writer, composition);
    MessageReader reader(copyOf(writer.message()));
    EXPECT_THROW(static_cast<void>(getComposition(reader, fewTracks())), BadMessage);
}

} // namespace
} // namespace media::process
