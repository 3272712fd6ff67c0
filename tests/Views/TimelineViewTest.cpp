#include "Views/Timeline/TimelineView.h"

#include "Support/Thumbnailer.h"
#include "Views/Painting/Theme.h"
#include "Views/TimelineStage.h"

#include <QMouseEvent>
#include <QPainter>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <stop_token>
#include <utility>

namespace {

using namespace brisklet;
using testsupport::isNear;
using testsupport::keepPicture;
using testsupport::onScreen;
using testsupport::paintedAtOnce;
using testsupport::PaintedRegion;
using testsupport::Pixels;
using testsupport::pumpPending;
using testsupport::pumpUntil;
using testsupport::underBlack;

const QColor kYellow(0xff, 0xcc, 0x00);
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();

class TimelineViewTest : public TimelineStage {
protected:
    void SetUp() override { ASSERT_TRUE(loadAndWait(kTenSeconds)); }

    /// A picture whose left half and right half have a colour each.
    static QImage halves(int width, int height, const QColor& left, const QColor& right) {
        QImage image(width, height, QImage::Format_RGB32);
        image.fill(left);
        QPainter(&image).fillRect(width / 2, 0, width - width / 2, height, right);
        return image;
    }

    /// The filmstrip of such stills, over white.
    QImage painted(const QList<QImage>& stills) {
        TimelineFilmstrip filmstrip;
        QImage canvas(kWidth, 56, QImage::Format_RGB32);
        canvas.fill(Qt::white);
        QPainter painter(&canvas);
        filmstrip.paint(painter, strip().geometryNow(), stills);
        return canvas;
    }
};

using EmptyTimelineViewTest = TimelineStage;

TEST_F(EmptyTimelineViewTest, putsEverythingAtTheStartWithoutADuration) {
    const Pixels pixels(strip());
    EXPECT_TRUE(isNear(pixels.at(2, 10), kYellow)) << "leading handle";
    EXPECT_TRUE(isNear(pixels.at(21, 10), kYellow)) << "trailing handle";
    const QColor placeholder = theme::quaternary(view().palette());
    EXPECT_TRUE(isNear(pixels.at(400, 20), underBlack(placeholder, 0.55)));
    EXPECT_EQ(view().startLabel().text(), QStringLiteral("00:00.0"));
    EXPECT_EQ(view().positionLabel().text(), QStringLiteral("00:00.0 / 00:00.0"));
    EXPECT_EQ(view().endLabel().text(), QStringLiteral("00:00.0"));
}

TEST_F(EmptyTimelineViewTest, yieldsTimeZeroWhereverItIsDraggedWithoutADuration) {
    for (const int x : {0, 12, 400, kWidth})
        EXPECT_EQ(strip().geometryNow().time(x), 0) << x;
    // The model keeps the playhead inside the file by itself, but not the ends of the range.
    state().setTrimStart(2);
    state().setTrimEnd(5);
    m_pointer.drag(leadingHandle(), at(8));
    EXPECT_EQ(state().trimStart(), 0);
    m_pointer.drag(at(5), at(8));
    EXPECT_EQ(state().currentTime(), 0);
}

TEST_F(EmptyTimelineViewTest, survivesDurationsThatAreNoNumbers) {
    for (const double time : {kNotANumber, kInfinity, -kInfinity, 1e300, -1.0}) {
        state().setTrimStart(time);
        state().setTrimEnd(time);
        state().seek(time);
        pumpPending();
        EXPECT_FALSE(Pixels(view()).image().isNull());
        m_pointer.drag(at(1), at(9));
        for (const TimelineMarker* each : strip().markers())
            EXPECT_FALSE(each->valueText().isEmpty());
    }
}

TEST_F(TimelineViewTest, showsTheTimesOfTheRangeAndThePosition) {
    state().setTrimStart(2);
    state().setTrimEnd(7.5);
    state().seek(5.3);
    EXPECT_EQ(view().startLabel().text(), QStringLiteral("00:02.0"));
    EXPECT_EQ(view().positionLabel().text(), QStringLiteral("00:05.3 / 00:10.0"));
    EXPECT_EQ(view().endLabel().text(), QStringLiteral("00:07.5"));
    keepPicture(m_window, QStringLiteral("timeline"));
}

TEST_F(TimelineViewTest, showsTheDurationOfWhatWasLoaded) {
    EXPECT_EQ(view().positionLabel().text(), QStringLiteral("00:00.0 / 00:10.0"));
    ASSERT_TRUE(loadAndWait({.duration = 4}));
    ASSERT_TRUE(pumpUntil([this] { return state().duration() < 5; }));
    EXPECT_EQ(view().positionLabel().text(), QStringLiteral("00:00.0 / 00:04.0"));
    EXPECT_EQ(view().endLabel().text(), QStringLiteral("00:04.0"));
}

TEST_F(TimelineViewTest, keepsItsTimesWhereTheyAre) {
    const auto placesAt = [this](double time) {
        state().seek(time);
        return view().positionLabel().geometry();
    };
    const QRect atStart = placesAt(0);
    EXPECT_EQ(placesAt(1.1), atStart);
    EXPECT_EQ(placesAt(8.8), atStart);
    EXPECT_EQ(view().startLabel().x(), 0);
    EXPECT_EQ(view().endLabel().geometry().right(), view().width() - 1);
    EXPECT_EQ(view().startLabel().y(), 56 + 4);
}

TEST_F(TimelineViewTest, scrubsWhereItIsPressedAndDragged) {
    m_pointer.press(at(3));
    EXPECT_DOUBLE_EQ(state().currentTime(), 3);
    m_pointer.moveTo(at(6.5));
    EXPECT_DOUBLE_EQ(state().currentTime(), 6.5);
    m_pointer.release(at(6.5));
    m_pointer.moveTo(at(1));
    EXPECT_DOUBLE_EQ(state().currentTime(), 6.5);
}

TEST_F(TimelineViewTest, scrubsOutsideTheKeptRange) {
    state().setTrimStart(4);
    state().setTrimEnd(6);
    m_pointer.click(at(1));
    EXPECT_DOUBLE_EQ(state().currentTime(), 1);
    m_pointer.click(at(9));
    EXPECT_DOUBLE_EQ(state().currentTime(), 9);
    EXPECT_EQ(state().trimStart(), 4);
    EXPECT_EQ(state().trimEnd(), 6);
}

TEST_F(TimelineViewTest, stopsScrubbingAtBothEnds) {
    m_pointer.press(at(5));
    m_pointer.moveTo({-300, 28});
    EXPECT_EQ(state().currentTime(), 0);
    m_pointer.moveTo({kWidth + 300, 500});
    EXPECT_EQ(state().currentTime(), 10);
    m_pointer.release({kWidth + 300, 500});
}

TEST_F(TimelineViewTest, goesOnPlayingWhileItScrubs) {
    player().play();
    ASSERT_TRUE(pumpUntil([this] { return state().isPlaying(); }));
    m_pointer.drag(at(2), at(4));
    pumpPending();
    EXPECT_TRUE(state().isPlaying());
    player().pause();
}

TEST_F(TimelineViewTest, ignoresOtherMouseButtons) {
    m_pointer.click(at(4), Qt::RightButton);
    m_pointer.click(at(4), Qt::MiddleButton);
    EXPECT_EQ(state().currentTime(), 0);
}

TEST_F(TimelineViewTest, snapsAnEndToThePointerWhereverTheHandleIsGrabbed) {
    m_pointer.press({2, kMiddle});
    EXPECT_EQ(state().trimStart(), 0);
    m_pointer.moveTo(at(2));
    EXPECT_DOUBLE_EQ(state().trimStart(), 2);
    EXPECT_DOUBLE_EQ(state().currentTime(), 2);
    m_pointer.release(at(2));

    m_pointer.press(trailingHandle());
    m_pointer.moveTo(at(7));
    EXPECT_DOUBLE_EQ(state().trimEnd(), 7);
    EXPECT_DOUBLE_EQ(state().currentTime(), 7);
    m_pointer.release(at(7));
    EXPECT_DOUBLE_EQ(state().trimStart(), 2);

    // A press alone is the start of a drag.
    m_pointer.click(at(7) + QPoint(8, 0));
    EXPECT_DOUBLE_EQ(state().trimEnd(), 7.1);
}

TEST_F(TimelineViewTest, keepsTheRangeATenthOfASecondLong) {
    state().setTrimStart(4);
    state().setTrimEnd(6);
    m_pointer.drag(trailingHandle(), {-100, kMiddle});
    EXPECT_EQ(state().trimEnd(), 4 + 0.1);
    EXPECT_EQ(state().trimStart(), 4);
    state().setTrimEnd(6);
    m_pointer.drag(leadingHandle(), {kWidth + 100, kMiddle});
    EXPECT_EQ(state().trimStart(), 6 - 0.1);
    EXPECT_EQ(state().currentTime(), 6 - 0.1);
    EXPECT_EQ(state().trimEnd(), 6);
}

TEST_F(TimelineViewTest, stopsTheHandlesAtTheEndsOfTheFile) {
    state().setTrimStart(4);
    state().setTrimEnd(6);
    m_pointer.drag(leadingHandle(), {-100, kMiddle});
    EXPECT_EQ(state().trimStart(), 0);
    m_pointer.drag(trailingHandle(), {kWidth + 100, kMiddle});
    EXPECT_EQ(state().trimEnd(), state().duration());
}

TEST_F(TimelineViewTest, writesNothingThatIsNotNew) {
    const QSignalSpy changes(&state(), &EditState::trimStartChanged);
    m_pointer.press({2, kMiddle});
    m_pointer.moveTo({5, kMiddle});
    m_pointer.release({5, kMiddle});
    EXPECT_EQ(changes.count(), 0);
}

TEST_F(TimelineViewTest, pausesWhenAHandleIsDragged) {
    player().play();
    ASSERT_TRUE(pumpUntil([this] { return state().isPlaying(); }));
    m_pointer.press(trailingHandle());
    EXPECT_EQ(player().rate(), 0);
    m_pointer.release(trailingHandle());
}

TEST_F(TimelineViewTest, yieldsTimeZeroWhereTheHandlesLeaveNoRoom) {
    state().seek(5);
    resizeTo(20);
    m_pointer.drag({2, kMiddle}, {19, kMiddle});
    EXPECT_EQ(state().trimStart(), 0);
    EXPECT_EQ(state().currentTime(), 0);
    m_pointer.drag({15, kMiddle}, {19, kMiddle});
    EXPECT_EQ(state().trimEnd(), 0.1);
    EXPECT_EQ(strip().geometryNow().filmstrip().width(), 0);
    EXPECT_FALSE(Pixels(strip()).image().isNull());
}

TEST_F(TimelineViewTest, saysByTheCursorWhatADragWillDo) {
    m_pointer.moveTo(at(5));
    EXPECT_EQ(strip().cursor().shape(), Qt::ArrowCursor);
    m_pointer.moveTo(leadingHandle());
    EXPECT_EQ(strip().cursor().shape(), Qt::SizeHorCursor);
    m_pointer.press(leadingHandle());
    m_pointer.moveTo(at(4));
    EXPECT_EQ(strip().cursor().shape(), Qt::SizeHorCursor);
    m_pointer.release(at(4));
    m_pointer.moveTo(at(6));
    EXPECT_EQ(strip().cursor().shape(), Qt::ArrowCursor);
}

TEST_F(TimelineViewTest, darkensWhatIsCutAwayAndFramesWhatIsKept) {
    const Pixels full(strip());
    state().setTrimStart(2);
    state().setTrimEnd(7);
    state().seek(5);
    const Pixels cut(strip());
    // A row where the range frame is not.
    for (const double second : {0.5, 1.5, 8.5, 9.5}) {
        const double x = kAxisStart + kSecond * second;
        EXPECT_TRUE(isNear(cut.at(x, 20), underBlack(full.at(x, 20), 0.55))) << second;
    }
    const double inside = kAxisStart + kSecond * 4.0;
    EXPECT_TRUE(isNear(cut.at(inside, 20), full.at(inside, 20), 0));
    const double start = kAxisStart + kSecond * 2;
    const double end = kAxisStart + kSecond * 7;
    for (const double y : {0.0, 1.9, 54.0, 55.9})
        EXPECT_TRUE(isNear(cut.at(inside, y), kYellow, 0)) << y;
    EXPECT_FALSE(isNear(cut.at(inside, 2.1), kYellow));
    EXPECT_FALSE(isNear(cut.at(inside, 53.6), kYellow));
    for (const double x : {start, start + 1.9, end - 2, end - 0.1, start - 2, end + 2})
        EXPECT_TRUE(isNear(cut.at(x, 8), kYellow, 0)) << x;
    EXPECT_FALSE(isNear(cut.at(start + 2.1, 8), kYellow));
    EXPECT_FALSE(isNear(cut.at(end - 2.6, 8), kYellow));
}

TEST_F(TimelineViewTest, drawsThePlayheadInSharpWhiteWithASoftShadow) {
    const Pixels without(strip());
    state().seek(5);
    const Pixels with(strip());
    const double x = kAxisStart + kSecond * 5;
    EXPECT_TRUE(isNear(with.at(x - 1, 20), Qt::white, 0));
    EXPECT_TRUE(isNear(with.at(x + 0.9, 20), Qt::white, 0));
    EXPECT_LT(with.at(x + 1.1, 20).lightness(), without.at(x + 1.1, 20).lightness());
    EXPECT_LT(with.at(x - 1.6, 20).lightness(), without.at(x - 1.6, 20).lightness());
    EXPECT_TRUE(isNear(with.at(x + 4, 20), without.at(x + 4, 20), 0));
}

TEST_F(TimelineViewTest, roundsOnlyTheOuterCornersOfTheHandles) {
    state().setTrimStart(2);
    state().setTrimEnd(7);
    const Pixels pixels(strip());
    const double leading = kAxisStart + kSecond * 2 - 12;
    const double trailing = kAxisStart + kSecond * 7;
    EXPECT_FALSE(isNear(pixels.at(leading, 0), kYellow, 60));
    EXPECT_FALSE(isNear(pixels.at(leading, 55.9), kYellow, 60));
    EXPECT_TRUE(isNear(pixels.at(leading + 11.9, 0), kYellow, 0));
    EXPECT_TRUE(isNear(pixels.at(trailing, 55.9), kYellow, 0));
    EXPECT_FALSE(isNear(pixels.at(trailing + 11.9, 55.9), kYellow, 60));
    EXPECT_TRUE(isNear(pixels.at(leading + 4.3, 28), underBlack(kYellow, 0.6), 40)) << "symbol";
    EXPECT_TRUE(isNear(pixels.at(trailing + 7.6, 28), underBlack(kYellow, 0.6), 40)) << "symbol";
}

TEST_F(TimelineViewTest, leavesNoTracesOfEarlierPlaces) {
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&m_window));
    for (const double time : {5.0, 2.01, 7.77, 0.0, 10.0, 5.0}) {
        state().seek(time);
        state().setTrimStart(time / 3);
        pumpPending();
        state().setTrimEnd(10 - time / 5);
        pumpPending();
        ASSERT_EQ(onScreen(m_window).size(), paintedAtOnce(m_window).size());
        EXPECT_TRUE(onScreen(m_window) == paintedAtOnce(m_window)) << time;
    }
}

TEST_F(EmptyTimelineViewTest, showsTheFilmstripAsSoonAsItIsThere) {
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&m_window));
    state().load(urlOf(testsupport::makeFixture(kTenSeconds).path));
    ASSERT_TRUE(pumpUntil([this] { return state().videoURL().has_value(); }));
    pumpPending();
    ASSERT_TRUE(pumpUntil([this] { return !state().thumbnails().isEmpty(); }));
    pumpPending();
    EXPECT_TRUE(onScreen(m_window) == paintedAtOnce(m_window));
}

/// The strip stayed grey without a word. Strips are made one at a time, so one of another video
/// that has no end for now holds this one up.
TEST_F(EmptyTimelineViewTest, saysThatASlowFilmstripIsComing) {
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&m_window));
    const auto other = media::Asset::open(testsupport::makeFixture(kTenSeconds).path);
    std::stop_source end;
    auto endless = Thumbnailer::filmstrip(other, 10, 1000000, end.get_token());
    state().load(urlOf(testsupport::makeFixture({.duration = 5}).path));
    ASSERT_TRUE(pumpUntil([this] { return state().isMakingThumbnails(); }));
    const QRect middle(kWidth / 2 - 100, 10, 200, 36);
    const QImage silent = strip().grab(middle).toImage();
    EXPECT_TRUE(pumpUntil([&] { return strip().grab(middle).toImage() != silent; }));
    keepPicture(m_window, QStringLiteral("filmstrip-coming"));
    end.request_stop();
    ASSERT_TRUE(pumpUntil([this] { return !state().thumbnails().isEmpty(); }));
    EXPECT_FALSE(state().isMakingThumbnails());
    EXPECT_TRUE(pumpUntil([this] { return onScreen(m_window) == paintedAtOnce(m_window); }));
    testsupport::await(std::move(endless));
}

// The release goes to a dialog that came meanwhile.
TEST_F(TimelineViewTest, endsADragWhoseReleaseItDidNotSee) {
    m_pointer.press(at(3));
    m_pointer.moveTo(at(4));
    ASSERT_DOUBLE_EQ(state().currentTime(), 4);
    const QPointF point(at(7));
    QMouseEvent move(QEvent::MouseMove, point, strip().mapToGlobal(point), Qt::NoButton,
                     Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&strip(), &move);
    EXPECT_DOUBLE_EQ(state().currentTime(), 4);
    m_pointer.release(at(7));
}

TEST_F(TimelineViewTest, paintsOnlyTheTwoPlacesOfThePlayhead) {
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&m_window));
    state().seek(2);
    pumpPending();
    PaintedRegion painted(strip());
    state().seek(8);
    pumpPending();
    EXPECT_GT(painted.area(), 0);
    EXPECT_LE(painted.area(), 2 * 20 * 56);
}

TEST_F(TimelineViewTest, stretchesOneStillOverTheWholeStrip) {
    // A video without a filmstrip yet shows the placeholder; the model gives all stills at once, so
    // one alone comes from a file of which only one decodes near its middle.
    QImage still = halves(160, 90, Qt::red, Qt::blue);
    // As wide as the strip it is 450 points high, of which the middle 56 are seen.
    QPainter bands(&still);
    bands.fillRect(0, 0, 160, 30, Qt::green);
    bands.fillRect(0, 60, 160, 30, Qt::green);
    bands.end();
    const QImage strip = painted({still});
    EXPECT_EQ(strip.pixelColor(11, 20), QColor(Qt::white));
    for (const int x : {12, 100, kWidth / 2 - 10}) {
        for (const int y : {0, 28, 55})
            EXPECT_EQ(strip.pixelColor(x, y), QColor(Qt::red)) << x << ' ' << y;
    }
    for (const int x : {kWidth / 2 + 10, kWidth - 100, kWidth - 13}) {
        for (const int y : {0, 28, 55})
            EXPECT_EQ(strip.pixelColor(x, y), QColor(Qt::blue)) << x << ' ' << y;
    }
    EXPECT_EQ(strip.pixelColor(kWidth - 12, 20), QColor(Qt::white));
}

TEST_F(TimelineViewTest, showsTheStillsSideBySideInTheirOrder) {
    const QImage strip = painted(
        {halves(100, 56, Qt::red, Qt::darkRed), halves(100, 56, Qt::green, Qt::darkGreen),
         halves(100, 56, Qt::blue, Qt::darkBlue), halves(100, 56, Qt::yellow, Qt::darkYellow)});
    const std::array<QColor, 8> colours{Qt::red,  Qt::darkRed,  Qt::green,  Qt::darkGreen,
                                        Qt::blue, Qt::darkBlue, Qt::yellow, Qt::darkYellow};
    for (int half = 0; half < 8; ++half) {
        for (const int beside : {-40, 40})
            EXPECT_EQ(strip.pixelColor(kAxisStart + 50 + 100 * half + beside, 28),
                      colours.at(static_cast<std::size_t>(half)))
                << half;
    }
}

} // namespace
