#include "Models/EditStateFixture.h"

#include "TestSupport/TemporaryFolder.h"

#include <QSignalSpy>

#include <gmock/gmock.h>

#include <cmath>
#include <fstream>
#include <string>
#include <sys/stat.h>

namespace brisklet {

namespace {

using media::Rect;
using media::Size;
using testsupport::makeFixture;
using testsupport::pumpPending;
using testsupport::pumpUntil;

class EditStateTest : public EditStateFixture {};

TEST_F(EditStateTest, beginsEmpty) {
    EXPECT_EQ(state().videoURL(), std::nullopt);
    EXPECT_EQ(state().duration(), 0);
    EXPECT_EQ(state().displaySize(), (Size{0, 0}));
    EXPECT_EQ(state().rotatedDisplaySize(), (Size{0, 0}));
    EXPECT_TRUE(state().thumbnails().isEmpty());
    EXPECT_EQ(state().currentTime(), 0);
    EXPECT_FALSE(state().isPlaying());
    EXPECT_EQ(state().trimStart(), 0);
    EXPECT_EQ(state().trimEnd(), 0);
    EXPECT_FALSE(state().isMuted());
    EXPECT_EQ(state().cropRect(), std::nullopt);
    EXPECT_EQ(state().rotation(), 0);
    EXPECT_EQ(state().exportProgress(), std::nullopt);
    EXPECT_EQ(state().errorMessage(), std::nullopt);
    EXPECT_EQ(player().currentItem(), nullptr);
}

TEST_F(EditStateTest, loadsAVideoAndThenItsFilmstrip) {
    const auto video = makeFixture(kTenSeconds).path;
    bool wasStripEmptyAtFirst = false;
    QObject::connect(&state(), &EditState::videoURLChanged, &state(),
                     [&] { wasStripEmptyAtFirst = state().thumbnails().isEmpty(); });
    state().load(urlOf(video));
    // Nothing is reset before the new video is ready.
    EXPECT_EQ(state().videoURL(), std::nullopt);
    ASSERT_TRUE(pumpUntil([this] { return state().videoURL().has_value(); }));
    EXPECT_EQ(state().videoURL(), urlOf(video));
    EXPECT_NEAR(state().duration(), 10, 0.03);
    EXPECT_EQ(state().displaySize(), (Size{320, 240}));
    EXPECT_EQ(state().trimStart(), 0);
    EXPECT_EQ(state().trimEnd(), state().duration());
    EXPECT_EQ(state().currentTime(), 0);
    EXPECT_EQ(state().rotation(), 0);
    EXPECT_EQ(state().cropRect(), std::nullopt);
    EXPECT_FALSE(state().isMuted());
    EXPECT_TRUE(wasStripEmptyAtFirst);
    ASSERT_TRUE(pumpUntil([this] { return !state().thumbnails().isEmpty(); }));
    EXPECT_EQ(state().thumbnails().size(), 12);
    EXPECT_EQ(state().errorMessage(), std::nullopt);
    ASSERT_NE(player().currentItem(), nullptr);
    EXPECT_EQ(player().currentItem()->asset()->path(), video);
}

/// Story: the filmstrip began with the file, and its decoder took turns with the one that decoded
/// the first picture.
TEST_F(EditStateTest, makesTheFilmstripOnceThePictureIsThere) {
    const auto video = makeFixture(kTenSeconds).path;
    state().load(urlOf(video));
    ASSERT_TRUE(pumpUntil([this] { return state().videoURL().has_value(); }));
    // A strip that was begun by now would be ready.
    waitForWorkers();
    testsupport::pumpPending();
    EXPECT_TRUE(state().thumbnails().isEmpty());
    ASSERT_TRUE(pumpUntil([this] { return !state().thumbnails().isEmpty(); }));
}

TEST_F(EditStateTest, loadsWhatWasOpenedAhead) {
    const testsupport::TemporaryFolder folder;
    const auto video = folder.path() / "ahead.mp4";
    std::filesystem::copy_file(makeFixture(kTwoFrames).path, video);
    openVideoAhead(urlOf(video));
    waitForWorkers();
    std::filesystem::remove(video);
    state().load(urlOf(video));
    ASSERT_TRUE(pumpUntil([this] { return state().videoURL().has_value(); }));
    // Only once: from now on the name counts.
    state().load(urlOf(video));
    ASSERT_TRUE(waitForError());
}

TEST_F(EditStateTest, opensAnotherFileThanTheOneOpenedAhead) {
    openVideoAhead(urlOf(soundOnly()));
    EXPECT_TRUE(loadAndWait(kTenSeconds));
    EXPECT_EQ(state().errorMessage(), std::nullopt);
}

TEST_F(EditStateTest, resetsTheEditWithEachVideo) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    state().setTrimStart(2);
    state().setTrimEnd(3);
    state().setCropRect(Rect{0.1, 0.1, 0.5, 0.5});
    state().rotateLeft();
    state().setMuted(true);
    state().seek(2.5);
    const auto other = makeFixture({.duration = 2}).path;
    state().load(urlOf(other));
    ASSERT_TRUE(pumpUntil([&] { return state().videoURL() == urlOf(other); }));
    EXPECT_EQ(state().trimStart(), 0);
    EXPECT_EQ(state().trimEnd(), state().duration());
    EXPECT_NEAR(state().duration(), 2, 0.03);
    EXPECT_EQ(state().currentTime(), 0);
    EXPECT_EQ(state().cropRect(), std::nullopt);
    EXPECT_EQ(state().rotation(), 0);
    EXPECT_FALSE(state().isMuted());
    EXPECT_FALSE(player().isMuted());
    EXPECT_TRUE(state().thumbnails().isEmpty());
}

TEST_F(EditStateTest, keepsPlayingWhenAnotherVideoIsLoaded) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    state().togglePlayback();
    ASSERT_TRUE(pumpUntil([this] { return state().isPlaying() && state().currentTime() > 0.1; }));
    const auto other = makeFixture({.duration = 8}).path;
    state().load(urlOf(other));
    ASSERT_TRUE(pumpUntil([&] { return state().videoURL() == urlOf(other); }));
    EXPECT_EQ(player().rate(), 1.0F);
    EXPECT_TRUE(state().isPlaying());
}

TEST_F(EditStateTest, showsTheSizeOfATurnedSourceUpright) {
    ASSERT_TRUE(loadAndWait({.width = 1920, .height = 1080, .displayRotation = 90}));
    EXPECT_EQ(state().displaySize(), (Size{1080, 1920}));
    EXPECT_EQ(state().rotatedDisplaySize(), (Size{1080, 1920}));
    state().rotateLeft();
    EXPECT_EQ(state().rotation(), 270);
    EXPECT_EQ(state().rotatedDisplaySize(), (Size{1920, 1080}));
    state().rotateLeft();
    EXPECT_EQ(state().rotatedDisplaySize(), (Size{1080, 1920}));
    state().rotateLeft();
    EXPECT_EQ(state().rotation(), 90);
    EXPECT_EQ(state().rotatedDisplaySize(), (Size{1920, 1080}));
}

TEST_F(EditStateTest, saysThatAFileHasNoVideoTrackAndKeepsThePreviousVideo) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    const auto before = state().videoURL();
    const auto item = player().currentItem();
    state().setTrimStart(2);
    state().load(urlOf(soundOnly()));
    ASSERT_TRUE(waitForError());
    EXPECT_EQ(state().errorMessage(),
              QStringLiteral("\u201Csong.m4a\u201D contains no video track."));
    EXPECT_EQ(state().videoURL(), before);
    EXPECT_EQ(player().currentItem(), item);
    EXPECT_EQ(state().trimStart(), 2);
    EXPECT_EQ(state().thumbnails().size(), 12);
}

TEST_F(EditStateTest, saysWhyAFileCannotBeOpened) {
    const testsupport::TemporaryFolder folder;
    std::ofstream(folder / "notes.txt") << "These are no pictures.\n";
    std::ofstream(folder / "empty.mp4").flush();
    std::filesystem::create_directory(folder / "folder.mov");
    ASSERT_EQ(::mkfifo((folder / "pipe.mov").c_str(), 0600), 0);
    for (const char* name :
         {"notes.txt", "empty.mp4", "folder.mov", "pipe.mov", "missing.mov", "\xff.mov"}) {
        state().load(urlOf(folder / name));
        ASSERT_TRUE(waitForError()) << name;
        const QString message = *state().errorMessage();
        const QString shownName = displayName(urlOf(folder / name));
        EXPECT_TRUE(
            message.startsWith(QStringLiteral("Couldn't open \u201C%1\u201D: ").arg(shownName)))
            << message.toStdString();
        EXPECT_FALSE(message.endsWith(QStringLiteral(": "))) << message.toStdString();
        EXPECT_EQ(state().videoURL(), std::nullopt);
        state().clearErrorMessage();
    }
    EXPECT_EQ(state().errorMessage(), std::nullopt);
}

TEST_F(EditStateTest, opensFilesOfAnyName) {
    const testsupport::TemporaryFolder folder;
    const auto video = makeFixture({.duration = 1}).path;
    const std::string longName = std::string(251, 'x') + ".mp4";
    for (const std::string& name :
         {std::string("a b \"'&<i>#?%41.mp4"), std::string("\xf0\x9f\x98\x80.mp4"),
          std::string("\xff\xfe.mp4"), std::string("-n\n.mp4"), longName}) {
        std::filesystem::copy_file(video, folder / name);
        state().load(urlOf(folder / name));
        ASSERT_TRUE(pumpUntil(
            [&] { return state().videoURL() == urlOf(folder / name) || state().errorMessage(); }));
        EXPECT_EQ(state().errorMessage(), std::nullopt) << name;
    }
}

TEST_F(EditStateTest, keepsTheEndsInTheFileThoughThePlayerReportsATimeOutsideIt) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    state().setTrimStart(1);
    state().setTrimEnd(9);
    state().playerController().onTick(12);
    state().setTrimEndToPlayhead();
    EXPECT_EQ(state().trimEnd(), state().duration());
    state().playerController().onTick(-1);
    state().setTrimStartToPlayhead();
    EXPECT_EQ(state().trimStart(), 0);
}

TEST_F(EditStateTest, seeksWithinTheFileAtOnce) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    state().seek(-3);
    EXPECT_EQ(state().currentTime(), 0);
    state().seek(1e9);
    EXPECT_EQ(state().currentTime(), state().duration());
    state().seek(4);
    EXPECT_EQ(state().currentTime(), 4);
    EXPECT_EQ(player().currentTime(), (media::Time{4, 1}));
    state().setTrimStart(6);
    state().seek(2);
    EXPECT_EQ(state().currentTime(), 2);
    EXPECT_EQ(player().rate(), 0.0F);
    state().seek(std::nan(""));
    EXPECT_TRUE(std::isnan(state().currentTime()));
}

TEST_F(EditStateTest, keepsATenthOfASecondWhenAnEndIsSetToThePlayhead) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    state().setTrimEnd(4);
    state().seek(7);
    state().setTrimStartToPlayhead();
    EXPECT_DOUBLE_EQ(state().trimStart(), 3.9);
    EXPECT_EQ(state().trimEnd(), 4);

    state().setTrimStart(4);
    state().setTrimEnd(9);
    state().seek(2);
    state().setTrimEndToPlayhead();
    EXPECT_DOUBLE_EQ(state().trimEnd(), 4.1);
    EXPECT_EQ(state().trimStart(), 4);
    EXPECT_EQ(state().currentTime(), 2);
}

/// The range of a shorter file began before the file, or ended after it.
TEST_F(EditStateTest, keepsAFileWholeThatIsShorterThanTheShortestRange) {
    ASSERT_TRUE(loadAndWait(kTwoFrames));
    const double duration = state().duration();
    ASSERT_LT(duration, 0.1);
    for (const double time : {0.0, duration / 2, duration}) {
        state().seek(time);
        state().setTrimStartToPlayhead();
        EXPECT_EQ(state().trimStart(), 0) << time;
        state().setTrimEndToPlayhead();
        EXPECT_EQ(state().trimEnd(), duration) << time;
    }
}

TEST_F(EditStateTest, setsEachEndToThePlayhead) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    state().seek(3);
    state().setTrimStartToPlayhead();
    EXPECT_EQ(state().trimStart(), 3);
    state().seek(6);
    state().setTrimEndToPlayhead();
    EXPECT_EQ(state().trimEnd(), 6);
    state().seek(std::nan(""));
    state().setTrimStartToPlayhead();
    EXPECT_EQ(state().trimStart(), 0);
}

TEST_F(EditStateTest, turnsTheCropWithThePicture) {
    const Rect crop{0.1, 0.2, 0.3, 0.4};
    state().setCropRect(crop);
    state().rotateLeft();
    ASSERT_TRUE(state().cropRect().has_value());
    EXPECT_NEAR(state().cropRect()->x, 0.2, 1e-12);
    EXPECT_NEAR(state().cropRect()->y, 0.6, 1e-12);
    EXPECT_NEAR(state().cropRect()->width, 0.4, 1e-12);
    EXPECT_NEAR(state().cropRect()->height, 0.3, 1e-12);
    for (const int rotation : {180, 90, 0}) {
        state().rotateLeft();
        EXPECT_EQ(state().rotation(), rotation);
    }
    EXPECT_NEAR(state().cropRect()->x, crop.x, 1e-12);
    EXPECT_NEAR(state().cropRect()->y, crop.y, 1e-12);
    EXPECT_NEAR(state().cropRect()->width, crop.width, 1e-12);
    EXPECT_NEAR(state().cropRect()->height, crop.height, 1e-12);
}

TEST_F(EditStateTest, showsNoFilmstripOfTheVideoBefore) {
    const auto before =
        makeFixture({.duration = 30, .groupOfPictures = 250, .width = 640, .height = 480}).path;
    const auto portrait = makeFixture({.duration = 2, .displayRotation = 90}).path;
    bool isOfAnother = false;
    QObject::connect(&state(), &EditState::thumbnailsChanged, &state(), [&] {
        for (const QImage& image : state().thumbnails())
            isOfAnother = isOfAnother ||
                          (state().videoURL() == urlOf(portrait) && image.width() > image.height());
    });
    state().load(urlOf(before));
    ASSERT_TRUE(pumpUntil([&] { return state().videoURL() == urlOf(before); }));
    // While the strip of the one before is being made.
    state().load(urlOf(portrait));
    ASSERT_TRUE(pumpUntil([&] { return state().videoURL() == urlOf(portrait); }));
    ASSERT_TRUE(pumpUntil([&] {
        return !state().thumbnails().isEmpty() &&
               state().thumbnails().first().width() < state().thumbnails().first().height();
    }));
    EXPECT_FALSE(isOfAnother);
}

TEST_F(EditStateTest, mutesThePlayerAtOnce) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    state().setMuted(true);
    EXPECT_TRUE(player().isMuted());
    state().setMuted(false);
    EXPECT_FALSE(player().isMuted());
    // The flag wins over whatever has been done to the player meanwhile, changed or not.
    player().setMuted(true);
    const QSignalSpy spy(&state(), &EditState::isMutedChanged);
    state().setMuted(false);
    EXPECT_FALSE(player().isMuted());
    EXPECT_EQ(spy.count(), 0);
}

TEST_F(EditStateTest, tellsObserversOfChangesOnly) {
    const QSignalSpy trims(&state(), &EditState::trimStartChanged);
    const QSignalSpy crops(&state(), &EditState::cropRectChanged);
    state().setTrimStart(0);
    state().setCropRect(std::nullopt);
    EXPECT_EQ(trims.count() + crops.count(), 0);
    state().setTrimStart(1);
    state().setTrimStart(1);
    state().setCropRect(Rect{0, 0, 0.5, 0.5});
    state().setCropRect(Rect{0, 0, 0.5, 0.5});
    EXPECT_EQ(trims.count(), 1);
    EXPECT_EQ(crops.count(), 1);
}

TEST_F(EditStateTest, loadsWhatTheOpenPanelAnswers) {
    m_panels->toOpen = urlOf(makeFixture(kTenSeconds).path);
    state().presentOpenPanel();
    ASSERT_TRUE(pumpUntil([this] { return state().videoURL().has_value(); }));
    EXPECT_EQ(state().videoURL(), m_panels->toOpen);
    EXPECT_EQ(m_panels->openCount, 1);
}

TEST_F(EditStateTest, changesNothingWhenTheOpenPanelIsCancelled) {
    state().presentOpenPanel();
    pumpPending();
    EXPECT_EQ(m_panels->openCount, 1);
    EXPECT_EQ(state().videoURL(), std::nullopt);
    EXPECT_EQ(state().errorMessage(), std::nullopt);
}

TEST_F(EditStateTest, mayBeReleasedWhileItLoads) {
    const auto video = urlOf(makeFixture(kTenSeconds).path);
    const std::weak_ptr<EditState> weak = m_state;
    state().load(video);
    m_state.reset();
    EXPECT_TRUE(weak.expired());
    pumpPending();

    // And while it makes the filmstrip.
    m_state = std::make_shared<EditState>();
    state().load(video);
    ASSERT_TRUE(pumpUntil([this] { return state().videoURL().has_value(); }));
    m_state.reset();
    pumpPending();
}

TEST_F(EditStateTest, mayBeReleasedByAnObserver) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    const std::weak_ptr<EditState> weak = m_state;
    QObject::connect(m_state.get(), &EditState::currentTimeChanged, m_state.get(),
                     [this] { m_state.reset(); });
    player().play();
    EXPECT_TRUE(pumpUntil([&weak] { return weak.expired(); }));
}

TEST_F(EditStateTest, takesTheLastOfTwoVideosLoadedAtOnce) {
    const auto one = urlOf(makeFixture(kTenSeconds).path);
    const auto other = urlOf(makeFixture({.duration = 2}).path);
    int published = 0;
    QObject::connect(&state(), &EditState::videoURLChanged, &state(), [&] { ++published; });
    state().load(one);
    state().load(other);
    ASSERT_TRUE(pumpUntil([&] { return published == 2; }));
    // Whichever came last, all the fields are of one video.
    const bool isLong = state().videoURL() == one;
    EXPECT_NEAR(state().duration(), isLong ? 10 : 2, 0.03);
    EXPECT_EQ(state().trimEnd(), state().duration());
    EXPECT_EQ(player().currentItem()->asset()->path(), pathOf(*state().videoURL()));
}

} // namespace

} // namespace brisklet
