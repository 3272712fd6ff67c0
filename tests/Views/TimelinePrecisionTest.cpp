#include "Views/Timeline/MarkerTimeLabel.h"
#include "Views/TimelineStage.h"

#include <QCursor>

#include <gtest/gtest.h>

#include <array>

namespace {

using namespace brisklet;
using testsupport::keepPicture;
using testsupport::pumpPending;
using testsupport::pumpUntil;

constexpr double kFrame = 1.0 / 30;
constexpr QPoint kNotch(0, 120);
constexpr auto kShift = Qt::ShiftModifier;

/// Fine drags, the wheel, and the exact times of a timeline with room around it, as in the editor.
class TimelinePrecisionTest : public TimelineStage {
protected:
    void SetUp() override {
        ASSERT_TRUE(loadAndWait(kTenSeconds));
        m_window.resize(kWidth, kTop + 200);
        m_view->move(0, kTop);
        pumpPending();
    }

    MarkerTimeLabel* label() { return m_window.findChild<MarkerTimeLabel*>(); }

    QString shownTime() { return label() && label()->isVisible() ? label()->text() : QString(); }

    void press(const QPoint& point, Qt::KeyboardModifiers modifiers = {}) {
        m_pointer.press(point, Qt::LeftButton, modifiers);
    }

    void turn(const QPoint& point, const testsupport::Pointer::Turn& turn) {
        m_pointer.turnWheel(point, turn);
        pumpPending();
    }

    bool waitForTime(double seconds) {
        return pumpUntil([&] { return qAbs(state().currentTime() - seconds) < 1e-3; });
    }

    static constexpr int kTop = 100;
};

TEST_F(TimelinePrecisionTest, movesAnEndATenthAsFarWithShift) {
    state().setTrimEnd(8);
    const QPoint start = trailingHandle();
    press(start, kShift);
    EXPECT_DOUBLE_EQ(state().trimEnd(), 8) << "the handle jumped to the pointer";
    EXPECT_DOUBLE_EQ(state().currentTime(), 8);
    m_pointer.moveTo(start - QPoint(kSecond, 0), kShift);
    EXPECT_NEAR(state().trimEnd(), 7.9, 1e-9);
    EXPECT_NEAR(state().currentTime(), 7.9, 1e-9);
    m_pointer.release(start - QPoint(kSecond, 0));
    EXPECT_NEAR(state().trimEnd(), 7.9, 1e-9);
    EXPECT_EQ(state().trimStart(), 0);
}

TEST_F(TimelinePrecisionTest, movesAHundredthAsFarAwayFromTheStrip) {
    const QPoint start = leadingHandle();
    press(start, kShift);
    m_pointer.moveTo(start - QPoint(0, 100), kShift);
    EXPECT_NEAR(state().trimStart(), 0, 1e-9);
    m_pointer.moveTo(start + QPoint(kSecond, -100), kShift);
    EXPECT_NEAR(state().trimStart(), 0.01, 1e-9);
    // Without Shift the distance does not matter.
    m_pointer.moveTo(start + QPoint(2 * kSecond, -100));
    EXPECT_NEAR(state().trimStart(), 1.01, 1e-9);
    m_pointer.release(start);
}

TEST_F(TimelinePrecisionTest, goesOnWithoutAJumpWhenShiftIsPressedAndReleased) {
    press(at(2));
    m_pointer.moveTo(at(4));
    m_pointer.moveTo(at(4), kShift);
    EXPECT_DOUBLE_EQ(state().currentTime(), 4);
    m_pointer.moveTo(at(5), kShift);
    EXPECT_NEAR(state().currentTime(), 4.1, 1e-9);
    m_pointer.moveTo(at(5));
    EXPECT_NEAR(state().currentTime(), 4.1, 1e-9);
    m_pointer.moveTo(at(6));
    EXPECT_NEAR(state().currentTime(), 5.1, 1e-9);
    m_pointer.release(at(6));
    // The next drag is at the pointer again.
    press(at(6));
    EXPECT_DOUBLE_EQ(state().currentTime(), 6);
    m_pointer.release(at(6));
}

TEST_F(TimelinePrecisionTest, scrubsFromThePressWithShiftButGrabsThePlayheadWhereItIs) {
    state().seek(5);
    press(at(2), kShift);
    EXPECT_DOUBLE_EQ(state().currentTime(), 2);
    m_pointer.moveTo(at(3), kShift);
    EXPECT_NEAR(state().currentTime(), 2.1, 1e-9);
    m_pointer.release(at(3));
    state().seek(5);
    press(at(5) + QPoint(4, 0), kShift);
    EXPECT_DOUBLE_EQ(state().currentTime(), 5);
    m_pointer.moveTo(at(5) + QPoint(4 - kSecond, 0), kShift);
    EXPECT_NEAR(state().currentTime(), 4.9, 1e-9);
    m_pointer.release(at(4));
}

TEST_F(TimelinePrecisionTest, turnsRoundAtOnceWhereAnEndCannotGoFarther) {
    state().setTrimStart(4);
    const QPoint start = trailingHandle();
    press(start, kShift);
    m_pointer.moveTo(start + QPoint(300, 0), kShift);
    EXPECT_EQ(state().trimEnd(), 10);
    m_pointer.moveTo(start + QPoint(300 - kSecond, 0), kShift);
    EXPECT_NEAR(state().trimEnd(), 9.9, 1e-9);
    m_pointer.moveTo(start - QPoint(100'000, 0), kShift);
    EXPECT_DOUBLE_EQ(state().trimEnd(), 4.1);
    m_pointer.release(start);
}

TEST_F(TimelinePrecisionTest, saysTheSpeedInThePointerAndBesideTheTime) {
    const QPoint start = trailingHandle();
    press(start);
    EXPECT_FALSE(shownTime().contains(QStringLiteral("speed")));
    // Before the mouse moves.
    QTest::keyPress(m_window.windowHandle(), Qt::Key_Shift);
    EXPECT_TRUE(shownTime().endsWith(QStringLiteral(" · 1/10 speed"))) << qPrintable(shownTime());
    EXPECT_EQ(strip().cursor().shape(), Qt::SplitHCursor);
    m_pointer.moveTo(start - QPoint(0, 100), kShift);
    EXPECT_TRUE(shownTime().endsWith(QStringLiteral(" · 1/100 speed")));
    EXPECT_EQ(strip().cursor().shape(), Qt::CrossCursor);
    keepPicture(m_window, QStringLiteral("fine-drag"));
    QTest::keyRelease(m_window.windowHandle(), Qt::Key_Shift, kShift);
    EXPECT_FALSE(shownTime().contains(QStringLiteral("speed")));
    EXPECT_EQ(strip().cursor().shape(), Qt::SizeHorCursor);
    m_pointer.release(start);
}

TEST_F(TimelinePrecisionTest, stepsThePlayheadByTheWheel) {
    turn(at(5), {.angle = kNotch});
    EXPECT_TRUE(waitForTime(kFrame));
    turn(at(5), {.angle = kNotch, .modifiers = kShift});
    EXPECT_TRUE(waitForTime(11 * kFrame));
    turn(at(5), {.angle = -kNotch});
    EXPECT_TRUE(waitForTime(10 * kFrame));
    // To the right is forward, too.
    turn(at(5), {.angle = QPoint(-120, 0)});
    EXPECT_TRUE(waitForTime(11 * kFrame));
    turn(at(5), {.angle = QPoint(120, 0)});
    EXPECT_TRUE(waitForTime(10 * kFrame));
    EXPECT_EQ(state().trimStart(), 0);
    EXPECT_EQ(state().trimEnd(), 10);
}

TEST_F(TimelinePrecisionTest, followsTheFingersWhereTheSystemScrollsNaturally) {
    turn(at(5), {.angle = -kNotch, .isInverted = true});
    EXPECT_TRUE(waitForTime(kFrame));
}

TEST_F(TimelinePrecisionTest, keepsWhatIsLeftOfAFrame) {
    state().seek(5);
    for (int i = 0; i < 3; ++i)
        turn(at(5), {.angle = kNotch / 4});
    EXPECT_EQ(state().currentTime(), 5);
    turn(at(5), {.angle = kNotch / 4});
    EXPECT_TRUE(waitForTime(5 + kFrame));
    // Of a touchpad, in pixels; twelve are a frame.
    for (int i = 0; i < 5; ++i)
        turn(at(5), {.angle = kNotch, .pixels = QPoint(0, 5)});
    EXPECT_TRUE(waitForTime(5 + 3 * kFrame));
    // The other direction begins anew.
    turn(at(5), {.angle = -kNotch, .pixels = QPoint(0, -11)});
    EXPECT_TRUE(waitForTime(5 + 3 * kFrame));
    turn(at(5), {.angle = -kNotch, .pixels = QPoint(0, -1)});
    EXPECT_TRUE(waitForTime(5 + 2 * kFrame));
}

TEST_F(TimelinePrecisionTest, movesTheHandleUnderThePointerByTheWheel) {
    turn(leadingHandle(), {.angle = kNotch});
    EXPECT_DOUBLE_EQ(state().trimStart(), kFrame);
    EXPECT_DOUBLE_EQ(state().currentTime(), kFrame);
    turn(trailingHandle(), {.angle = -kNotch, .modifiers = kShift});
    EXPECT_DOUBLE_EQ(state().trimEnd(), 10 - 10 * kFrame);
    EXPECT_DOUBLE_EQ(state().trimStart(), kFrame);
}

// The first notches moved the handle away from under the pointer, and the next ones the playhead.
TEST_F(TimelinePrecisionTest, goesOnWithAHandleThatHasMovedAwayUnderThePointer) {
    const QPoint place = leadingHandle();
    for (int i = 0; i < 10; ++i)
        turn(place, {.angle = kNotch});
    EXPECT_DOUBLE_EQ(state().trimStart(), 10 * kFrame);
    // Elsewhere, or after a rest, it is the playhead's.
    turn(place, {.angle = kNotch, .timestamp = 5000});
    EXPECT_DOUBLE_EQ(state().trimStart(), 10 * kFrame);
    EXPECT_TRUE(waitForTime(11 * kFrame));
    turn(at(5), {.angle = kNotch, .timestamp = 5000});
    EXPECT_TRUE(waitForTime(12 * kFrame));
}

TEST_F(TimelinePrecisionTest, leavesTheWheelAloneDuringADrag) {
    press(at(4));
    turn(at(4), {.angle = kNotch});
    EXPECT_DOUBLE_EQ(state().currentTime(), 4);
    m_pointer.release(at(4));
}

TEST_F(TimelinePrecisionTest, showsTheExactTimeWhileAMarkerIsDragged) {
    EXPECT_EQ(shownTime(), QString());
    press(leadingHandle());
    m_pointer.moveTo(at(3));
    EXPECT_EQ(shownTime(), QStringLiteral("0:00:03.000 · #90"));
    m_pointer.moveTo(at(5.5));
    EXPECT_EQ(shownTime(), QStringLiteral("0:00:05.500 · #165"));
    keepPicture(m_window, QStringLiteral("exact-time"));
    m_pointer.release(at(5.5));
    m_pointer.moveTo(at(8));
    EXPECT_EQ(shownTime(), QString()) << "the pointer is over no marker any more";
    EXPECT_EQ(view().startLabel().text(), QStringLiteral("00:05.5"));
}

TEST_F(TimelinePrecisionTest, showsTheExactTimeUnderThePointer) {
    state().seek(5);
    m_pointer.moveTo(at(2));
    EXPECT_EQ(shownTime(), QString());
    m_pointer.moveTo(trailingHandle());
    EXPECT_EQ(shownTime(), QStringLiteral("0:00:10.000 · #299"));
    m_pointer.moveTo(at(5));
    EXPECT_EQ(shownTime(), QStringLiteral("0:00:05.000 · #150"));
    m_pointer.moveTo({kWidth / 2, -50});
    EXPECT_EQ(shownTime(), QString());
}

TEST_F(TimelinePrecisionTest, showsTheExactTimeForAMomentAfterAStep) {
    state().stepFrames(1);
    EXPECT_TRUE(pumpUntil([this] { return shownTime() == QStringLiteral("0:00:00.033 · #1"); }));
    marker(EditMarker::trimEnd).setFocus(Qt::TabFocusReason);
    QTest::keyClick(m_window.windowHandle(), Qt::Key_Left);
    EXPECT_EQ(shownTime(), QStringLiteral("0:00:09.967 · #299"));
    EXPECT_TRUE(pumpUntil([this] { return shownTime().isEmpty(); })) << "it stays";
}

TEST_F(TimelinePrecisionTest, isSilentWhileTheVideoPlays) {
    player().play();
    ASSERT_TRUE(pumpUntil([this] { return state().currentTime() > 0.2; }));
    EXPECT_EQ(shownTime(), QString());
    player().pause();
}

TEST_F(TimelinePrecisionTest, showsNoNumberWhereItIsNotKnown) {
    ASSERT_TRUE(loadAndWait({.duration = 10, .hasVariableFrameRate = true}));
    ASSERT_TRUE(pumpUntil([this] { return !state().frameNumbers().areKnown(); }));
    press(at(5));
    EXPECT_FALSE(shownTime().isEmpty());
    EXPECT_FALSE(shownTime().contains(u'#'));
    m_pointer.release(at(5));
}

TEST_F(TimelinePrecisionTest, keepsTheExactTimeInsideTheWindowAndOffTheStrip) {
    const QRect around = m_window.rect();
    const QRect stripRect(strip().mapTo(&m_window, QPoint()), strip().size());
    for (const QPoint& from : {leadingHandle(), trailingHandle(), at(1), at(9)}) {
        press(from);
        for (const int x : {-500, 0, 13, 60, kWidth / 2, kWidth - 60, kWidth - 1, kWidth + 500}) {
            m_pointer.moveTo({x, kMiddle}, x == 60 ? kShift : Qt::NoModifier);
            ASSERT_FALSE(shownTime().isEmpty());
            const QRect shown = label()->geometry();
            EXPECT_TRUE(around.contains(shown)) << x;
            EXPECT_FALSE(shown.intersects(stripRect)) << x;
            EXPECT_EQ(shown.size(), label()->sizeHint()) << "the text is cut at " << x;
        }
        m_pointer.release({kWidth / 2, kMiddle});
    }
}

TEST_F(TimelinePrecisionTest, tellsTheLengthOfARangeThatIsNotTheWhole) {
    EXPECT_FALSE(view().lengthLabel().isVisible());
    state().setTrimStart(2);
    EXPECT_TRUE(view().lengthLabel().isVisible());
    EXPECT_EQ(view().lengthLabel().text(), QStringLiteral("Range 0:00:08.000"));
    state().setTrimEnd(2 + 10 * kFrame);
    EXPECT_EQ(view().lengthLabel().text(), QStringLiteral("Range 0:00:00.333"));
    EXPECT_EQ(view().lengthLabel().font(), view().endLabel().font());
    EXPECT_EQ(view().lengthLabel().y(), view().endLabel().y());
    const QRect length = view().lengthLabel().geometry();
    EXPECT_GT(length.left(), view().positionLabel().geometry().right());
    EXPECT_LT(length.right(), view().endLabel().geometry().left());
    // No room for it.
    resizeTo(view().minimumSizeHint().width());
    EXPECT_FALSE(view().lengthLabel().isVisible());
    resizeTo(kWidth);
    EXPECT_TRUE(view().lengthLabel().isVisible());
    state().setTrimStart(0);
    state().setTrimEnd(10);
    EXPECT_FALSE(view().lengthLabel().isVisible());
}

} // namespace
