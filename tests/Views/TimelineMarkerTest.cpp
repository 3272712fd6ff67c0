#include "Views/Timeline/TimelineMarker.h"

#include "Views/TimelineStage.h"

#include <QAccessible>
#include <QApplication>
#include <QKeySequence>
#include <QMenuBar>
#include <QShortcut>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <optional>

namespace {

using namespace brisklet;
using testsupport::keepPicture;
using testsupport::pumpPending;
using testsupport::pumpUntil;
using Kind = TimelineMove::Kind;

constexpr double kFrame = 1.0 / 30;

TEST(TimelineMove, standsBehindTheKeysOfASlider) {
    struct Case {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        std::optional<TimelineMove> move;
    };

    for (const Case& each : {Case{Qt::Key_Left, {}, TimelineMove{Kind::byFrames, -1}},
                             {Qt::Key_Right, {}, TimelineMove{Kind::byFrames, 1}},
                             {Qt::Key_Right, Qt::KeypadModifier, TimelineMove{Kind::byFrames, 1}},
                             {Qt::Key_Down, {}, TimelineMove{Kind::byFrames, -1}},
                             {Qt::Key_Up, {}, TimelineMove{Kind::byFrames, 1}},
                             {Qt::Key_Left, Qt::ShiftModifier, TimelineMove{Kind::byFrames, -10}},
                             {Qt::Key_PageUp, {}, TimelineMove{Kind::bySeconds, 1}},
                             {Qt::Key_PageDown, {}, TimelineMove{Kind::bySeconds, -1}},
                             {Qt::Key_PageUp, Qt::ShiftModifier, TimelineMove{Kind::bySeconds, 10}},
                             {Qt::Key_Home, {}, TimelineMove{Kind::toMinimum}},
                             {Qt::Key_End, {}, TimelineMove{Kind::toMaximum}},
                             {Qt::Key_Left, Qt::ControlModifier, std::nullopt},
                             {Qt::Key_Left, Qt::AltModifier, std::nullopt},
                             {Qt::Key_Space, {}, std::nullopt}})
        EXPECT_EQ(TimelineMove::of(each.key, each.modifiers), each.move) << each.key;
}

class TimelineMarkerTest : public TimelineStage {
protected:
    void SetUp() override { ASSERT_TRUE(loadAndWait(kTenSeconds)); }

    void focus(EditMarker which) {
        marker(which).setFocus(Qt::TabFocusReason);
        ASSERT_TRUE(marker(which).hasFocus());
    }

    /// To the window, as a real key press.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(m_window.windowHandle(), key, modifiers);
    }

    bool waitForTime(double seconds) {
        return pumpUntil([&] { return qAbs(state().currentTime() - seconds) < 1e-3; });
    }

    QAccessibleInterface& accessible(EditMarker which) {
        return *QAccessible::queryAccessibleInterface(&marker(which));
    }
};

TEST_F(TimelineMarkerTest, isReachedByTabInTheOrderOfReading) {
    focus(EditMarker::trimStart);
    press(Qt::Key_Tab);
    EXPECT_TRUE(marker(EditMarker::playhead).hasFocus());
    press(Qt::Key_Tab);
    EXPECT_TRUE(marker(EditMarker::trimEnd).hasFocus());
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(marker(EditMarker::playhead).hasFocus());
}

TEST_F(TimelineMarkerTest, movesTheStartByKeys) {
    focus(EditMarker::trimStart);
    press(Qt::Key_Right);
    EXPECT_DOUBLE_EQ(state().trimStart(), kFrame);
    EXPECT_DOUBLE_EQ(state().currentTime(), kFrame);
    press(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_DOUBLE_EQ(state().trimStart(), 11 * kFrame);
    press(Qt::Key_Left);
    EXPECT_NEAR(state().trimStart(), 10 * kFrame, 1e-12);
    press(Qt::Key_PageUp);
    EXPECT_NEAR(state().trimStart(), 1 + 10 * kFrame, 1e-12);
    press(Qt::Key_End);
    EXPECT_EQ(state().trimStart(), 10 - 0.1);
    press(Qt::Key_PageUp, Qt::ShiftModifier);
    EXPECT_EQ(state().trimStart(), 10 - 0.1);
    press(Qt::Key_Home);
    EXPECT_EQ(state().trimStart(), 0);
    press(Qt::Key_Left);
    EXPECT_EQ(state().trimStart(), 0);
}

TEST_F(TimelineMarkerTest, movesTheEndByKeys) {
    state().setTrimStart(4);
    focus(EditMarker::trimEnd);
    press(Qt::Key_Left);
    EXPECT_DOUBLE_EQ(state().trimEnd(), 10 - kFrame);
    press(Qt::Key_PageDown);
    EXPECT_DOUBLE_EQ(state().trimEnd(), 9 - kFrame);
    press(Qt::Key_Home);
    EXPECT_EQ(state().trimEnd(), 4 + 0.1);
    press(Qt::Key_End);
    EXPECT_EQ(state().trimEnd(), 10);
    EXPECT_EQ(state().trimStart(), 4);
}

TEST_F(TimelineMarkerTest, movesThePlayheadByKeys) {
    focus(EditMarker::playhead);
    press(Qt::Key_PageUp);
    EXPECT_EQ(state().currentTime(), 1);
    press(Qt::Key_Right);
    EXPECT_TRUE(waitForTime(1 + kFrame));
    press(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_TRUE(waitForTime(1 + 11 * kFrame));
    press(Qt::Key_Left);
    EXPECT_TRUE(waitForTime(1 + 10 * kFrame));
    press(Qt::Key_End);
    EXPECT_EQ(state().currentTime(), 10);
    press(Qt::Key_Home);
    EXPECT_EQ(state().currentTime(), 0);
    EXPECT_EQ(state().trimStart(), 0);
    EXPECT_EQ(state().trimEnd(), 10);
}

TEST_F(TimelineMarkerTest, takesItsKeysFromTheShortcutsOfTheWindow) {
    const QShortcut step(QKeySequence(Qt::Key_Right), &m_window);
    const QShortcut play(QKeySequence(Qt::Key_Space), &m_window);
    const QSignalSpy steps(&step, &QShortcut::activated);
    const QSignalSpy plays(&play, &QShortcut::activated);
    focus(EditMarker::trimStart);
    press(Qt::Key_Right);
    EXPECT_EQ(steps.count(), 0);
    EXPECT_DOUBLE_EQ(state().trimStart(), kFrame);
    press(Qt::Key_Space);
    EXPECT_EQ(plays.count(), 1);
    marker(EditMarker::trimStart).clearFocus();
    press(Qt::Key_Right);
    EXPECT_EQ(steps.count(), 1);
    EXPECT_DOUBLE_EQ(state().trimStart(), kFrame);
}

TEST_F(TimelineMarkerTest, movesBackToTheLeftInEveryLanguage) {
    QApplication::setLayoutDirection(Qt::RightToLeft);
    pumpPending();
    focus(EditMarker::trimStart);
    press(Qt::Key_Right);
    EXPECT_DOUBLE_EQ(state().trimStart(), kFrame);
    EXPECT_EQ(view().startLabel().x(), 0);
    m_pointer.click(at(2));
    EXPECT_DOUBLE_EQ(state().currentTime(), 2);
    keepPicture(m_window, QStringLiteral("timeline-rtl"));
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

TEST_F(TimelineMarkerTest, showsTheFocusThatCameByTheKeyboard) {
    EXPECT_FALSE(marker(EditMarker::trimStart).isFocusShown());
    const QImage before = m_window.grab().toImage();
    for (const EditMarker which :
         {EditMarker::trimStart, EditMarker::playhead, EditMarker::trimEnd}) {
        focus(which);
        EXPECT_TRUE(marker(which).isFocusShown());
        EXPECT_FALSE(m_window.grab().toImage() == before);
        keepPicture(m_window, QStringLiteral("focus-%1").arg(static_cast<int>(which)));
    }
    marker(EditMarker::trimEnd).clearFocus();
    EXPECT_TRUE(m_window.grab().toImage() == before);
}

TEST_F(TimelineMarkerTest, leavesTheFocusAloneWhenTheMouseIsUsed) {
    QWidget other(&m_window);
    other.setFocusPolicy(Qt::TabFocus);
    other.show();
    other.setFocus(Qt::TabFocusReason);
    m_pointer.click(at(4));
    EXPECT_TRUE(other.hasFocus());
    m_pointer.drag(leadingHandle(), at(2));
    EXPECT_TRUE(other.hasFocus());
}

TEST_F(TimelineMarkerTest, leavesAWindowWithoutAFocusToThePlayhead) {
    EXPECT_EQ(m_window.focusWidget(), &marker(EditMarker::playhead));
    EXPECT_FALSE(marker(EditMarker::playhead).isFocusShown());
}

TEST_F(TimelineMarkerTest, leavesTheRangeAloneWhereTheWindowPutTheFocusOnAHandle) {
    marker(EditMarker::trimStart).clearFocus();
    marker(EditMarker::trimStart).setFocus(Qt::ActiveWindowFocusReason);
    ASSERT_TRUE(marker(EditMarker::trimStart).hasFocus());
    const QShortcut step(QKeySequence(Qt::Key_Right), &m_window);
    const QSignalSpy steps(&step, &QShortcut::activated);
    press(Qt::Key_Right);
    EXPECT_EQ(steps.count(), 1);
    EXPECT_EQ(state().trimStart(), 0);
    EXPECT_FALSE(marker(EditMarker::trimStart).isFocusShown());
}

/// A look into the menus took the ring and the keys from the handle.
TEST_F(TimelineMarkerTest, hasItsRingAndItsKeysAgainAfterTheMenuBar) {
    QMenuBar bar(&m_window);
    bar.addMenu(QStringLiteral("&File"))->addAction(QStringLiteral("Entry"));
    bar.show();
    for (const EditMarker which : {EditMarker::trimStart, EditMarker::trimEnd}) {
        focus(which);
        press(Qt::Key_F, Qt::AltModifier);
        QWidget* menu = QApplication::activePopupWidget();
        ASSERT_NE(menu, nullptr);
        EXPECT_FALSE(marker(which).isFocusShown());
        QTest::keyClick(menu, Qt::Key_Escape);
        press(Qt::Key_Escape);
        ASSERT_TRUE(marker(which).hasFocus());
        EXPECT_TRUE(marker(which).isFocusShown());
    }
    press(Qt::Key_Left);
    EXPECT_NEAR(state().trimEnd(), 10 - kFrame, 1e-9);
}

TEST_F(TimelineMarkerTest, hasItsRingAgainWhenItsWindowIsActiveAgain) {
    focus(EditMarker::trimStart);
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    EXPECT_FALSE(marker(EditMarker::trimStart).isFocusShown());
    m_window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&m_window));
    EXPECT_TRUE(marker(EditMarker::trimStart).isFocusShown());
}

/// The ring of earlier came back with a focus that nobody asked for, and the keys with it.
TEST_F(TimelineMarkerTest, forgetsItsRingWhenTheFocusReallyGoesElsewhere) {
    focus(EditMarker::trimStart);
    marker(EditMarker::trimStart).clearFocus();
    marker(EditMarker::trimStart).setFocus(Qt::ActiveWindowFocusReason);
    EXPECT_FALSE(marker(EditMarker::trimStart).isFocusShown());
}

TEST_F(TimelineMarkerTest, staysInAFileShorterThanTheShortestRange) {
    ASSERT_TRUE(loadAndWait(kTwoFrames));
    ASSERT_TRUE(pumpUntil([this] { return state().duration() < 0.1; }));
    const double duration = state().duration();
    for (const EditMarker which : {EditMarker::trimStart, EditMarker::trimEnd}) {
        const double only = which == EditMarker::trimStart ? 0 : duration;
        EXPECT_EQ(accessible(which).valueInterface()->minimumValue().toDouble(), only);
        EXPECT_EQ(accessible(which).valueInterface()->maximumValue().toDouble(), only);
        focus(which);
        for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Home, Qt::Key_End})
            press(key);
        accessible(which).valueInterface()->setCurrentValue(0.05);
        EXPECT_EQ(state().trimStart(), 0);
        EXPECT_EQ(state().trimEnd(), duration);
    }
    m_pointer.drag(leadingHandle(), {400, kMiddle});
    m_pointer.drag(trailingHandle(), {400, kMiddle});
    EXPECT_EQ(state().trimStart(), 0);
    EXPECT_EQ(state().trimEnd(), duration);
    EXPECT_TRUE(
        QRectF(strip().rect()).contains(strip().geometryNow().marker(EditMarker::trimStart)));
}

TEST_F(TimelineMarkerTest, givesTheFocusToThePlayheadWhenTheMouseTakesOver) {
    focus(EditMarker::trimStart);
    m_pointer.click(at(4));
    EXPECT_TRUE(marker(EditMarker::playhead).hasFocus());
    EXPECT_FALSE(marker(EditMarker::playhead).isFocusShown());
    press(Qt::Key_PageUp);
    EXPECT_DOUBLE_EQ(state().currentTime(), 5);
    EXPECT_TRUE(marker(EditMarker::playhead).isFocusShown());
    EXPECT_EQ(state().trimStart(), 0);
}

TEST_F(TimelineMarkerTest, takesTheFocusThatIsGivenToTheTimeline) {
    view().setFocus(Qt::OtherFocusReason);
    EXPECT_TRUE(marker(EditMarker::playhead).hasFocus());
    EXPECT_FALSE(marker(EditMarker::playhead).isFocusShown());
}

TEST_F(TimelineMarkerTest, isASliderForAssistiveTechnology) {
    state().setTrimStart(2.25);
    state().setTrimEnd(7);
    state().seek(5.3);

    struct Case {
        EditMarker which;
        QString name;
        QString text;
        double minimum;
        double maximum;
    };

    for (const Case& each :
         {Case{EditMarker::trimStart, QStringLiteral("Trim start"), QStringLiteral("00:02.2"), 0,
               6.9},
          Case{EditMarker::playhead, QStringLiteral("Playhead"), QStringLiteral("00:05.3"), 0, 10},
          Case{EditMarker::trimEnd, QStringLiteral("Trim end"), QStringLiteral("00:07.0"), 2.35,
               10}}) {
        QAccessibleInterface& slider = accessible(each.which);
        EXPECT_EQ(slider.role(), QAccessible::Slider);
        EXPECT_EQ(slider.text(QAccessible::Name), each.name);
        EXPECT_EQ(slider.text(QAccessible::Value), each.text);
        EXPECT_EQ(slider.text(QAccessible::Description), each.text);
        EXPECT_TRUE(slider.state().focusable);
        ASSERT_NE(slider.valueInterface(), nullptr);
        EXPECT_DOUBLE_EQ(slider.valueInterface()->minimumValue().toDouble(), each.minimum);
        EXPECT_DOUBLE_EQ(slider.valueInterface()->maximumValue().toDouble(), each.maximum);
        EXPECT_DOUBLE_EQ(slider.valueInterface()->currentValue().toDouble(),
                         marker(each.which).value());
    }
}

TEST_F(TimelineMarkerTest, isMovedByAssistiveTechnologyWithinItsLimits) {
    const auto set = [this](EditMarker which, double value) {
        accessible(which).valueInterface()->setCurrentValue(value);
    };
    set(EditMarker::trimStart, 3);
    EXPECT_EQ(state().trimStart(), 3);
    EXPECT_EQ(state().currentTime(), 3);
    set(EditMarker::trimEnd, 1);
    EXPECT_EQ(state().trimEnd(), 3.1);
    set(EditMarker::playhead, 99);
    EXPECT_EQ(state().currentTime(), 10);
}

using EmptyTimelineMarkerTest = TimelineStage;

TEST_F(EmptyTimelineMarkerTest, ignoresItsKeysWithoutAVideo) {
    for (const EditMarker which :
         {EditMarker::trimStart, EditMarker::playhead, EditMarker::trimEnd}) {
        marker(which).setFocus(Qt::TabFocusReason);
        for (const Qt::Key key : {Qt::Key_Right, Qt::Key_PageUp, Qt::Key_End})
            QTest::keyClick(m_window.windowHandle(), key);
    }
    EXPECT_EQ(state().trimEnd(), 0);
    EXPECT_EQ(state().currentTime(), 0);
}

} // namespace
