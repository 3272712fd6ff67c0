#pragma once

#include "Models/EditStateFixture.h"
#include "QtSupport/Pixels.h"
#include "QtSupport/Pointer.h"
#include "Views/Painting/TabularLabel.h"
#include "Views/Timeline/TimelineGeometry.h"
#include "Views/Timeline/TimelineMarker.h"
#include "Views/Timeline/TimelineStrip.h"
#include "Views/Timeline/TimelineView.h"

#include <QTest>
#include <QWidget>

namespace brisklet {

/// A timeline in a window of its own, over a real model. At its width of 824 the axis of ten
/// seconds is 800 points long: a second is 80 points, and starts at 12.
class TimelineStage : public EditStateFixture {
protected:
    static constexpr int kWidth = 824;
    static constexpr int kAxisStart = 12;
    static constexpr int kSecond = 80;
    static constexpr int kMiddle = 28;

    TimelineStage() {
        m_window.resize(kWidth, 100);
        m_view->setGeometry(0, 0, kWidth, m_view->sizeHint().height());
        m_window.show();
        m_window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
    }

    TimelineView& view() { return *m_view; }

    TimelineStrip& strip() { return m_view->strip(); }

    TimelineMarker& marker(EditMarker marker) { return strip().marker(marker); }

    /// A point on the strip at so many seconds of ten.
    static QPoint at(double seconds) { return {qRound(kAxisStart + kSecond * seconds), kMiddle}; }

    /// Points in the middle of the handles.
    QPoint leadingHandle() {
        return strip().geometryNow().marker(EditMarker::trimStart).center().toPoint();
    }

    QPoint trailingHandle() {
        return strip().geometryNow().marker(EditMarker::trimEnd).center().toPoint();
    }

    void resizeTo(int width) {
        m_view->setGeometry(0, 0, width, m_view->height());
        testsupport::pumpPending();
    }

    QWidget m_window;
    TimelineView* m_view = new TimelineView(m_state, 56, 12, &m_window);
    testsupport::Pointer m_pointer{m_view->strip()};
};

} // namespace brisklet
