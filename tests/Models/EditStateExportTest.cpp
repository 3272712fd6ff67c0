#include "Models/EditStateFixture.h"

#include "Export/ExportSettings.h"
#include "TestSupport/Inspection.h"
#include "TestSupport/TemporaryFolder.h"

#include <QSignalSpy>

#include <gmock/gmock.h>

#include <filesystem>
#include <vector>

namespace brisklet {

namespace {

using media::Rect;
using testsupport::makeFixture;
using testsupport::probe;
using testsupport::pumpPending;
using testsupport::pumpUntil;
using testsupport::TemporaryFolder;

class EditStateExportTest : public EditStateFixture {
protected:
    EditStateExportTest() {
        ExportSettings::shared().setFormat(ExportFormat::mp4);
        ExportSettings::shared().setResolution(ExportResolution::original);
    }

    bool waitForExport() {
        return pumpUntil([this] { return !state().exportProgress(); });
    }

    /// Exports the edit and gives the size of the picture that came out.
    media::Size exportedSize() {
        const auto output = m_folder / "size.mp4";
        state().exportTo(urlOf(output));
        EXPECT_TRUE(waitForExport());
        EXPECT_EQ(state().errorMessage(), std::nullopt);
        const auto video = probe(output).streamsOf("video").at(0);
        return {*video.number("width"), *video.number("height")};
    }

    TemporaryFolder m_folder;
};

TEST_F(EditStateExportTest, exportsTheKeptRange) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    state().setTrimStart(2);
    state().setTrimEnd(3);
    state().exportTo(urlOf(m_folder / "out.mp4"));
    EXPECT_EQ(state().exportProgress(), 0.0);
    ASSERT_TRUE(waitForExport());
    EXPECT_EQ(state().errorMessage(), std::nullopt);
    const auto frames = testsupport::readNumberedFrames(m_folder / "out.mp4");
    ASSERT_EQ(frames.size(), 30U);
    EXPECT_EQ(frames.front().number, 60);
    // The edit stays as it was.
    EXPECT_EQ(state().trimStart(), 2);
    EXPECT_EQ(state().trimEnd(), 3);
}

TEST_F(EditStateExportTest, leavesOutTheSoundWhenMuted) {
    ASSERT_TRUE(loadAndWait({.duration = 1}));
    state().setMuted(true);
    state().exportTo(urlOf(m_folder / "out.mp4"));
    ASSERT_TRUE(waitForExport());
    EXPECT_TRUE(probe(m_folder / "out.mp4").streamsOf("audio").empty());
}

TEST_F(EditStateExportTest, refusesAtOnceWhatClearlyDoesNotFit) {
    ASSERT_TRUE(loadAndWait({.duration = 1}));
    // More than any disk of today.
    state().setExportForecast(*state().plannedExport(),
                              {.bytes = 4'000'000'000'000'000'000, .seconds = 1});
    state().exportTo(urlOf(m_folder / "out.mp4"));
    ASSERT_TRUE(waitForExport());
    ASSERT_TRUE(state().errorMessage());
    const std::string message = state().errorMessage()->toStdString();
    EXPECT_THAT(message, testing::MatchesRegex("Export failed: There is not enough free space: the "
                                               "video takes about .* EB, and .*B are free\\."));
    EXPECT_TRUE(std::filesystem::is_empty(m_folder.path()));
    EXPECT_EQ(state().lastExport(), std::nullopt);
}

TEST_F(EditStateExportTest, doesNotRefuseByTheForecastOfAnotherEdit) {
    ASSERT_TRUE(loadAndWait({.duration = 1}));
    state().setExportForecast(*state().plannedExport(),
                              {.bytes = 4'000'000'000'000'000'000, .seconds = 1});
    state().setTrimEnd(0.5);
    state().exportTo(urlOf(m_folder / "out.mp4"));
    ASSERT_TRUE(waitForExport());
    EXPECT_EQ(state().errorMessage(), std::nullopt);
}

TEST_F(EditStateExportTest, knowsItsLatestFile) {
    ASSERT_TRUE(loadAndWait({.duration = 1}));
    EXPECT_EQ(state().lastExport(), std::nullopt);
    for (const char* name : {"a.mp4", "b.mp4"}) {
        state().exportTo(urlOf(m_folder / name));
        ASSERT_TRUE(waitForExport());
        EXPECT_EQ(state().lastExport(), urlOf(m_folder / name));
    }
    state().exportTo(urlOf(m_folder / "missing" / "c.mp4"));
    ASSERT_TRUE(waitForExport());
    EXPECT_EQ(state().lastExport(), urlOf(m_folder / "b.mp4"));
}

TEST_F(EditStateExportTest, freezesTheEditWhenItStarts) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    state().setTrimEnd(2);
    state().exportTo(urlOf(m_folder / "out.mp4"));
    state().setTrimEnd(1);
    state().rotateLeft();
    ASSERT_TRUE(waitForExport());
    EXPECT_EQ(testsupport::readNumberedFrames(m_folder / "out.mp4").size(), 60U);
    EXPECT_EQ(probe(m_folder / "out.mp4").streamsOf("video").at(0).number("width"), 320);
}

TEST_F(EditStateExportTest, sendsACropThatCoversThePictureAsNone) {
    // A rendered canvas has an even size, an untouched odd one keeps its display matrix: the
    // matrix tells the two apart.
    ASSERT_TRUE(loadAndWait({.duration = 1, .displayRotation = 90}));
    const auto hasMatrix = [this] {
        state().exportTo(urlOf(m_folder / "out.mp4"));
        EXPECT_TRUE(waitForExport());
        const auto video = probe(m_folder / "out.mp4").streamsOf("video").at(0);
        return !video.text("side_data_list.side_data.0.rotation").empty();
    };
    state().setTrimEnd(0.1);
    const auto shortBy = [](double left, double top, double right, double bottom) {
        return Rect{left, top, 1 - left - right, 1 - top - bottom};
    };
    constexpr double kWithin = 0.0009;
    constexpr double kBeyond = 0.0011;
    for (const Rect& whole :
         {shortBy(0, 0, 0, 0), Rect{0.0005, 0, 0.9995, 1}, shortBy(kWithin, 0, 0, 0),
          shortBy(0, kWithin, 0, 0), shortBy(0, 0, kWithin, 0), shortBy(0, 0, 0, kWithin),
          shortBy(kWithin, kWithin, kWithin, kWithin)}) {
        state().setCropRect(whole);
        EXPECT_TRUE(hasMatrix()) << whole.x << ' ' << whole.y << ' ' << whole.width << ' '
                                 << whole.height;
    }
    for (const Rect& crop :
         {Rect{0.01, 0, 0.99, 1}, shortBy(kBeyond, 0, 0, 0), shortBy(0, kBeyond, 0, 0),
          shortBy(0, 0, kBeyond, 0), shortBy(0, 0, 0, kBeyond)}) {
        state().setCropRect(crop);
        EXPECT_FALSE(hasMatrix()) << crop.x << ' ' << crop.y << ' ' << crop.width << ' '
                                  << crop.height;
    }
}

TEST_F(EditStateExportTest, rendersACropUnchanged) {
    ASSERT_TRUE(loadAndWait({.duration = 1}));
    state().setCropRect(Rect{0.25, 0.5, 0.5, 0.25});
    EXPECT_EQ(exportedSize(), (media::Size{160, 60}));
}

TEST_F(EditStateExportTest, capsTheShortEdgeAtTheChosenResolution) {
    ASSERT_TRUE(loadAndWait({.duration = 1, .width = 1440, .height = 1080}));
    EXPECT_EQ(exportedSize(), (media::Size{1440, 1080}));
    ExportSettings::shared().setResolution(ExportResolution::hd720);
    EXPECT_EQ(exportedSize(), (media::Size{960, 720}));
    ExportSettings::shared().setResolution(ExportResolution::uhd2160);
    EXPECT_EQ(exportedSize(), (media::Size{1440, 1080}));
}

TEST_F(EditStateExportTest, turnsThePicture) {
    ASSERT_TRUE(loadAndWait({.duration = 1}));
    state().rotateLeft();
    EXPECT_EQ(exportedSize(), (media::Size{240, 320}));
}

TEST_F(EditStateExportTest, proposesTheSourcesNameInTheChosenFormat) {
    std::filesystem::copy_file(makeFixture({.duration = 1}).path, m_folder / "Holiday.MOV");
    ASSERT_TRUE(loadAndWait(m_folder / "Holiday.MOV"));
    state().presentExportPanel();
    ExportSettings::shared().setFormat(ExportFormat::mov);
    state().presentExportPanel();
    pumpPending();
    ASSERT_EQ(m_panels->proposals.size(), 2U);
    EXPECT_EQ(m_panels->proposals[0].fileName, QStringLiteral("Holiday Trimmed.mp4"));
    EXPECT_EQ(m_panels->proposals[0].extension, QStringLiteral("mp4"));
    EXPECT_EQ(m_panels->proposals[0].typeName, QStringLiteral("MPEG-4 movie"));
    EXPECT_EQ(m_panels->proposals[1].fileName, QStringLiteral("Holiday Trimmed.mov"));
    EXPECT_EQ(m_panels->proposals[1].extension, QStringLiteral("mov"));
    EXPECT_EQ(m_panels->proposals[1].typeName, QStringLiteral("QuickTime movie"));
    EXPECT_EQ(m_panels->proposals[1].otherExtensions, QStringList(QStringLiteral("mp4")));
    EXPECT_EQ(m_panels->proposals[1].source, urlOf(m_folder / "Holiday.MOV"));
    EXPECT_EQ(pathOf(m_panels->proposals[1].folder), m_folder.path());
    // Both were cancelled.
    EXPECT_EQ(state().exportProgress(), std::nullopt);
    EXPECT_EQ(state().errorMessage(), std::nullopt);
}

TEST_F(EditStateExportTest, exportsToWhatTheSavePanelAnswers) {
    ASSERT_TRUE(loadAndWait({.duration = 1}));
    ExportSettings::shared().setFormat(ExportFormat::mov);
    m_panels->toSave = urlOf(m_folder / "out.mov");
    state().presentExportPanel();
    ASSERT_TRUE(pumpUntil([this] { return state().exportProgress().has_value(); }));
    ASSERT_TRUE(waitForExport());
    EXPECT_EQ(probe(m_folder / "out.mov").format.text("tags.major_brand"), "qt  ");
}

// The format is everybody's: chosen in another window meanwhile, it made a QuickTime file of the
// name that was proposed for an MPEG-4 one.
TEST_F(EditStateExportTest, exportsInTheFormatThatThePanelWasOpenedFor) {
    ASSERT_TRUE(loadAndWait({.duration = 1}));
    m_panels->toSave = urlOf(m_folder / "out.mp4");
    m_panels->whileOpen = [] { ExportSettings::shared().setFormat(ExportFormat::mov); };
    state().presentExportPanel();
    ASSERT_TRUE(pumpUntil([this] { return state().exportProgress().has_value(); }));
    ASSERT_TRUE(waitForExport());
    EXPECT_NE(probe(m_folder / "out.mp4").format.text("tags.major_brand"), "qt  ");
    // Without a panel it is the one chosen now.
    state().exportTo(urlOf(m_folder / "out.mov"));
    ASSERT_TRUE(waitForExport());
    EXPECT_EQ(probe(m_folder / "out.mov").format.text("tags.major_brand"), "qt  ");
}

// So did the size.
TEST_F(EditStateExportTest, exportsInTheSizeThatThePanelWasOpenedFor) {
    ASSERT_TRUE(loadAndWait({.duration = 1, .width = 960, .height = 720}));
    ExportSettings::shared().setResolution(ExportResolution::sd480);
    m_panels->toSave = urlOf(m_folder / "out.mp4");
    m_panels->whileOpen = [] {
        ExportSettings::shared().setResolution(ExportResolution::original);
    };
    state().presentExportPanel();
    ASSERT_TRUE(pumpUntil([this] { return state().exportProgress().has_value(); }));
    ASSERT_TRUE(waitForExport());
    EXPECT_EQ(probe(m_folder / "out.mp4").streamsOf("video").at(0).number("height"), 480);
}

TEST_F(EditStateExportTest, exportsNoOtherVideoThanThePanelWasOpenedFor) {
    ASSERT_TRUE(loadAndWait({.duration = 1}));
    m_panels->toSave = urlOf(m_folder / "out.mp4");
    m_panels->whileOpen = [this] {
        const QUrl other = urlOf(makeFixture({.duration = 2}).path);
        state().load(other);
        ASSERT_TRUE(pumpUntil([&] { return state().videoURL() == other; }));
    };
    state().presentExportPanel();
    EXPECT_EQ(state().exportProgress(), std::nullopt);
    EXPECT_FALSE(std::filesystem::exists(m_folder / "out.mp4"));
}

// A name may have 255 bytes, and the proposal is longer than the name of its source.
TEST_F(EditStateExportTest, proposesANameThatTheFolderCanHold) {
    // 3 bytes and one letter on the screen; 25 bytes and one letter.
    const std::string accented = "e\u0301";
    const std::string family = "\U0001F468\u200D\U0001F469\u200D\U0001F467\u200D\U0001F466";

    struct Case {
        std::string letter;
        int count;
        int kept;
    };

    for (const Case& name :
         {Case{"a", 250, 243}, Case{"a", 243, 243}, Case{accented, 83, 81}, Case{family, 10, 9}}) {
        std::string base;
        for (int i = 0; i < name.count; ++i)
            base += name.letter;
        const auto source = m_folder / (base + ".mp4");
        std::filesystem::copy_file(makeFixture({.duration = 1}).path, source);
        state().load(urlOf(source));
        ASSERT_TRUE(pumpUntil([&] { return state().videoURL() == urlOf(source); }));
        m_panels->toSave = std::nullopt;
        state().presentExportPanel();
        ASSERT_TRUE(pumpUntil([this] { return !m_panels->proposals.empty(); }));
        const std::string proposed = m_panels->proposals.back().fileName.toStdString();
        m_panels->proposals.clear();
        base.resize(name.letter.size() * static_cast<std::size_t>(name.kept));
        EXPECT_EQ(proposed, base + " Trimmed.mp4");
        EXPECT_LE(proposed.size(), 255U);
        // And the export finds room for it.
        state().exportTo(urlOf(m_folder / proposed));
        ASSERT_TRUE(waitForExport());
        EXPECT_EQ(state().errorMessage(), std::nullopt);
        EXPECT_TRUE(std::filesystem::exists(m_folder / proposed));
    }
}

TEST_F(EditStateExportTest, doesNothingWithoutAVideo) {
    m_panels->toSave = urlOf(m_folder / "out.mp4");
    state().presentExportPanel();
    state().exportTo(urlOf(m_folder / "out.mp4"));
    state().cancelExport();
    pumpPending();
    EXPECT_TRUE(m_panels->proposals.empty());
    EXPECT_EQ(state().exportProgress(), std::nullopt);
    EXPECT_EQ(state().errorMessage(), std::nullopt);
}

TEST_F(EditStateExportTest, ignoresThePanelsCommandDuringAnExport) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    state().exportTo(urlOf(m_folder / "out.mp4"));
    m_panels->toSave = urlOf(m_folder / "other.mp4");
    state().presentExportPanel();
    state().exportTo(urlOf(m_folder / "another.mp4"));
    ASSERT_TRUE(waitForExport());
    EXPECT_TRUE(m_panels->proposals.empty());
    EXPECT_TRUE(std::filesystem::exists(m_folder / "out.mp4"));
    EXPECT_FALSE(std::filesystem::exists(m_folder / "other.mp4"));
    EXPECT_FALSE(std::filesystem::exists(m_folder / "another.mp4"));
}

TEST_F(EditStateExportTest, pausesThePreview) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    state().togglePlayback();
    ASSERT_TRUE(pumpUntil([this] { return state().isPlaying(); }));
    state().exportTo(urlOf(m_folder / "out.mp4"));
    EXPECT_EQ(player().rate(), 0.0F);
    ASSERT_TRUE(pumpUntil([this] { return !state().isPlaying(); }));
    state().cancelExport();
    ASSERT_TRUE(waitForExport());
}

TEST_F(EditStateExportTest, showsRisingProgressAndThenNone) {
    ASSERT_TRUE(loadAndWait({.duration = 30, .width = 640, .height = 480}));
    std::vector<std::optional<double>> values;
    QObject::connect(&state(), &EditState::exportProgressChanged, &state(),
                     [&] { values.push_back(state().exportProgress()); });
    state().exportTo(urlOf(m_folder / "out.mp4"));
    ASSERT_TRUE(waitForExport());
    pumpPending();
    ASSERT_GE(values.size(), 3U);
    EXPECT_EQ(values.front(), 0.0);
    EXPECT_EQ(values.back(), std::nullopt);
    for (std::size_t index = 1; index + 1 < values.size(); ++index) {
        ASSERT_TRUE(values[index].has_value());
        EXPECT_GE(*values[index], *values[index - 1]);
        EXPECT_LE(*values[index], 1.0);
    }
}

TEST_F(EditStateExportTest, isCancelledWithoutAMessageAndLeavesNothing) {
    ASSERT_TRUE(loadAndWait({.duration = 30, .width = 640, .height = 480}));
    state().exportTo(urlOf(m_folder / "out.mp4"));
    ASSERT_TRUE(pumpUntil([this] { return state().exportProgress().value_or(0) > 0; }));
    state().cancelExport();
    ASSERT_TRUE(waitForExport());
    EXPECT_EQ(state().errorMessage(), std::nullopt);
    EXPECT_TRUE(std::filesystem::is_empty(m_folder.path()));
    // Ready for the next one at once.
    state().setTrimEnd(1);
    EXPECT_EQ(exportedSize(), (media::Size{640, 480}));
}

TEST_F(EditStateExportTest, isCancelledBeforeItHasBegun) {
    ASSERT_TRUE(loadAndWait({.duration = 1}));
    state().exportTo(urlOf(m_folder / "out.mp4"));
    state().cancelExport();
    ASSERT_TRUE(waitForExport());
    EXPECT_EQ(state().errorMessage(), std::nullopt);
    EXPECT_TRUE(std::filesystem::is_empty(m_folder.path()));
}

TEST_F(EditStateExportTest, showsWhyItFailedAndIsReadyAgain) {
    ASSERT_TRUE(loadAndWait({.duration = 1}));
    std::vector<bool> wasExportingAtMessage;
    QObject::connect(&state(), &EditState::errorMessageChanged, &state(), [&] {
        wasExportingAtMessage.push_back(state().exportProgress().has_value());
    });
    state().exportTo(urlOf(m_folder / "missing" / "out.mp4"));
    ASSERT_TRUE(waitForExport());
    ASSERT_TRUE(state().errorMessage().has_value());
    EXPECT_TRUE(state().errorMessage()->startsWith(QStringLiteral("Export failed: ")));
    EXPECT_GT(state().errorMessage()->size(), 20);
    EXPECT_THAT(wasExportingAtMessage, testing::ElementsAre(true));
    state().clearErrorMessage();
    EXPECT_EQ(exportedSize(), (media::Size{320, 240}));
}

TEST_F(EditStateExportTest, passesOnTheExportersOwnWords) {
    std::filesystem::copy_file(makeFixture({.duration = 1}).path, m_folder / "clip.mp4");
    ASSERT_TRUE(loadAndWait(m_folder / "clip.mp4"));
    state().exportTo(urlOf(m_folder / "clip.mp4"));
    ASSERT_TRUE(waitForExport());
    EXPECT_EQ(state().errorMessage(),
              QStringLiteral("Export failed: Couldn't create an export session for this video."));
    EXPECT_EQ(testsupport::readNumberedFrames(m_folder / "clip.mp4").size(), 30U);
}

TEST_F(EditStateExportTest, mayStartTheNextOneTheMomentOneEnds) {
    ASSERT_TRUE(loadAndWait({.duration = 1}));
    int ends = 0;
    QObject::connect(&state(), &EditState::exportProgressChanged, &state(), [&] {
        if (!state().exportProgress() && ++ends == 1)
            state().exportTo(urlOf(m_folder / "second.mp4"));
    });
    state().exportTo(urlOf(m_folder / "first.mp4"));
    ASSERT_TRUE(pumpUntil([&] { return ends == 2; }));
    EXPECT_TRUE(std::filesystem::exists(m_folder / "first.mp4"));
    EXPECT_TRUE(std::filesystem::exists(m_folder / "second.mp4"));
}

TEST_F(EditStateExportTest, keepsTheModelAliveUntilItEnds) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    const std::weak_ptr<EditState> weak = m_state;
    state().exportTo(urlOf(m_folder / "out.mp4"));
    m_state.reset();
    EXPECT_FALSE(weak.expired());
    ASSERT_TRUE(pumpUntil([&weak] { return weak.expired(); }));
    EXPECT_EQ(testsupport::readNumberedFrames(m_folder / "out.mp4").size(), 300U);
}

TEST_F(EditStateExportTest, exportsInTwoWindowsAtOnce) {
    ASSERT_TRUE(loadAndWait({.duration = 2}));
    const auto other = std::make_shared<EditState>();
    other->load(*state().videoURL());
    ASSERT_TRUE(pumpUntil([&] { return other->videoURL().has_value(); }));
    state().exportTo(urlOf(m_folder / "one.mp4"));
    other->exportTo(urlOf(m_folder / "other.mp4"));
    ASSERT_TRUE(pumpUntil([&] { return !state().exportProgress() && !other->exportProgress(); }));
    EXPECT_EQ(testsupport::readNumberedFrames(m_folder / "one.mp4").size(), 60U);
    EXPECT_EQ(testsupport::readNumberedFrames(m_folder / "other.mp4").size(), 60U);
}

} // namespace

} // namespace brisklet
