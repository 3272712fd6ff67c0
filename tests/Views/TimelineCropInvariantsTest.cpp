#include "Models/EditStateFixture.h"
#include "QtSupport/Pointer.h"
#include "Views/Crop/CropOverlayView.h"
#include "Views/Timeline/TimelineView.h"

#include <QApplication>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>

namespace {

using namespace brisklet;
using testsupport::pumpPending;

/// A crop over a timeline in one window, and a person who presses, drags and types at random; the
/// numbers are the same in each run.
class TimelineCropInvariantsTest : public EditStateFixture {
protected:
    TimelineCropInvariantsTest() {
        m_window.resize(640, 480);
        m_overlay->setGeometry(0, 0, 640, 360);
        m_overlay->setVideoRect({0, 0, 640, 360});
        m_timeline->setGeometry(0, 380, 640, 80);
        m_window.show();
        m_window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
    }

    int below(int limit) { return std::uniform_int_distribution(0, limit - 1)(m_random); }

    QPoint anywhere() {
        // One in two on the strip, which is small.
        if (below(2) == 0)
            return {below(640), 380 + below(56)};
        return {below(640), below(480)};
    }

    void actAtRandom() {
        constexpr std::array kKeys{Qt::Key_Left, Qt::Key_Right,  Qt::Key_Up,     Qt::Key_Down,
                                   Qt::Key_Home, Qt::Key_End,    Qt::Key_PageUp, Qt::Key_PageDown,
                                   Qt::Key_Tab,  Qt::Key_Backtab};
        constexpr std::array kModifiers{Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier,
                                        Qt::AltModifier};
        switch (below(8)) {
        case 0:
            m_pointer.press(anywhere());
            m_isPressed = true;
            return;
        case 1:
            m_pointer.release(anywhere());
            m_isPressed = false;
            return;
        case 2:
            QTest::keyClick(m_window.windowHandle(), kKeys.at(static_cast<std::size_t>(below(10))),
                            kModifiers.at(static_cast<std::size_t>(below(4))));
            return;
        case 3:
            actOnTheModel();
            return;
        default:
            m_pointer.moveTo(anywhere());
        }
    }

    void actOnTheModel() {
        switch (below(6)) {
        case 0:
            state().setCropRect(media::Rect{0.1, 0.1, 0.8, 0.8});
            return;
        case 1:
            if (below(4) == 0)
                state().setCropRect(std::nullopt);
            return;
        case 2:
            state().rotateLeft();
            return;
        case 3:
            state().setTrimStartToPlayhead();
            return;
        case 4:
            state().setTrimEndToPlayhead();
            return;
        default:
            pumpPending();
        }
    }

    void expectInvariants() {
        constexpr double kRounding = 1e-9;
        ASSERT_GE(state().trimStart(), 0);
        const double shortest = std::min(0.1, state().duration());
        ASSERT_LE(state().trimStart(), state().trimEnd() - shortest + kRounding);
        ASSERT_LE(state().trimStart(), state().trimEnd());
        ASSERT_LE(state().trimEnd(), state().duration());
        ASSERT_GE(state().currentTime(), 0);
        ASSERT_LE(state().currentTime(), state().duration());
        if (const auto& crop = state().cropRect()) {
            ASSERT_GE(crop->minX(), -kRounding);
            ASSERT_GE(crop->minY(), -kRounding);
            ASSERT_LE(crop->maxX(), 1 + kRounding);
            ASSERT_LE(crop->maxY(), 1 + kRounding);
            ASSERT_GE(crop->width, 0.05 - kRounding);
            ASSERT_GE(crop->height, 0.05 - kRounding);
        }
    }

    void actManyTimes(int count) {
        for (int action = 0; action < count; ++action) {
            actAtRandom();
            expectInvariants();
            if (HasFatalFailure())
                FAIL() << "after action " << action;
        }
        if (m_isPressed)
            m_pointer.release({1, 1});
        pumpPending();
        expectInvariants();
    }

    std::mt19937 m_random{20};
    QWidget m_window;
    CropOverlayView* m_overlay = new CropOverlayView(m_state, 12, &m_window);
    TimelineView* m_timeline = new TimelineView(m_state, 56, 12, &m_window);
    testsupport::Pointer m_pointer{m_window};
    bool m_isPressed = false;
};

TEST_F(TimelineCropInvariantsTest, holdWhateverMouseAndKeysDo) {
    ASSERT_TRUE(loadAndWait({.duration = 5}));
    actManyTimes(4000);
}

TEST_F(TimelineCropInvariantsTest, holdInAFileShorterThanTheShortestRange) {
    ASSERT_TRUE(loadAndWait(kTwoFrames));
    ASSERT_LT(state().duration(), 0.1);
    actManyTimes(500);
}

} // namespace
