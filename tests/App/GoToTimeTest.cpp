#include "AppFixture.h"

#include "QtSupport/Keys.h"
#include "Views/Controls/ControlsView.h"
#include "Views/Controls/ExportButton.h"
#include "Views/Crop/CropOverlayView.h"
#include "Views/EditorView.h"
#include "Views/GoToTimePanel.h"
#include "Views/Painting/Theme.h"
#include "Views/Timeline/TimelineMarker.h"
#include "Views/Timeline/TimelineStrip.h"
#include "Views/Timeline/TimelineView.h"
#include "Views/VideoArea.h"

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>

namespace brisklet {
namespace {

using testsupport::pumpPending;
using testsupport::pumpUntil;

/// The menu "Go" of a real window, by its keys.
class GoToTimeTest : public AppFixture {
protected:
    void SetUp() override {
        ASSERT_TRUE(testsupport::showActive(*m_window));
        ASSERT_TRUE(loadAndWait(*m_window, video(10)));
    }

    EditState& state() { return *m_window->state(); }

    EditorView& editor() { return *m_window->findChild<EditorView*>(); }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        testsupport::clickKey(m_window->windowHandle(), key, modifiers);
    }

    bool waitForTime(double seconds) {
        return pumpUntil([&] { return qAbs(state().currentTime() - seconds) < 1e-3; });
    }

    QPointer<GoToTimePanel> openPanel() {
        // The panel before this one may have had the keyboard.
        EXPECT_TRUE(testsupport::showActive(*m_window));
        press(Qt::Key_G, Qt::ControlModifier);
        QPointer<GoToTimePanel> panel;
        EXPECT_TRUE(pumpUntil([&] {
            panel = m_window->findChild<GoToTimePanel*>();
            return panel && panel->isVisible();
        }));
        EXPECT_TRUE(testsupport::showActive(*panel));
        return panel;
    }

    static void type(const QPointer<GoToTimePanel>& panel, const QString& text) {
        // Over what is selected.
        QTest::keyClicks(&panel->field(), text);
        testsupport::clickKey(panel->windowHandle(), Qt::Key_Return);
    }

    bool goesTo(const QString& text) {
        const QPointer<GoToTimePanel> panel = openPanel();
        type(panel, text);
        return pumpUntil([&panel] { return panel.isNull(); });
    }

    QPointer<WindowRootView> m_window = openWindow();
};

TEST_F(GoToTimeTest, movesThePlayheadToWhatIsTyped) {
    ASSERT_TRUE(goesTo(QStringLiteral("0:02.5")));
    EXPECT_TRUE(waitForTime(2.5));
    ASSERT_TRUE(goesTo(QStringLiteral("3,2")));
    EXPECT_TRUE(waitForTime(3.2));
    ASSERT_TRUE(goesTo(QStringLiteral("+10f")));
    EXPECT_TRUE(waitForTime(3.2 + 10.0 / 30));
    ASSERT_TRUE(goesTo(QStringLiteral("-10f")));
    EXPECT_TRUE(waitForTime(3.2));
    ASSERT_TRUE(goesTo(QStringLiteral("#150")));
    EXPECT_TRUE(waitForTime(5));
    ASSERT_TRUE(goesTo(QStringLiteral("-1.5")));
    EXPECT_TRUE(waitForTime(3.5));
    EXPECT_EQ(state().trimStart(), 0);
    EXPECT_EQ(state().trimEnd(), 10);
}

/// Each frame on the way was decoded before: half a minute for a thousand of them.
TEST_F(GoToTimeTest, jumpsOverTheFramesInBetween) {
    ASSERT_TRUE(goesTo(QStringLiteral("1")));
    ASSERT_TRUE(waitForTime(1));
    const QPointer<GoToTimePanel> panel = openPanel();
    type(panel, QStringLiteral("+120f"));
    EXPECT_NEAR(state().currentTime(), 5, 0.001) << "at once, as after a seek";
}

TEST_F(GoToTimeTest, offersTheTimeThatItIs) {
    state().seek(2.5);
    const QPointer<GoToTimePanel> panel = openPanel();
    EXPECT_EQ(panel->field().text(), QStringLiteral("0:00:02.500"));
    EXPECT_EQ(panel->field().selectedText(), panel->field().text());
    EXPECT_TRUE(panel->field().hasFocus());
    testsupport::clickKey(panel->windowHandle(), Qt::Key_Return);
    EXPECT_TRUE(pumpUntil([&panel] { return panel.isNull(); }));
    EXPECT_EQ(state().currentTime(), 2.5);
}

TEST_F(GoToTimeTest, tellsInTheFieldWhatIsWrong) {
    state().seek(4);
    const QPointer<GoToTimePanel> panel = openPanel();
    const QString hint = panel->message().text();
    QAccessibleInterface& field = *QAccessible::queryAccessibleInterface(&panel->field());
    EXPECT_EQ(field.text(QAccessible::Name), QStringLiteral("Go to Time"));
    EXPECT_EQ(field.text(QAccessible::Description), hint);
    for (const auto& [text, reason] :
         {std::pair(QStringLiteral("soon"), QStringLiteral("This is no time.")),
          {QStringLiteral("1:75"), QStringLiteral("This is no time.")},
          {QStringLiteral("10.5"), QStringLiteral("The video ends at 0:00:10.000.")},
          // As far from the playhead, the same was taken for the end of the video.
          {QStringLiteral("+6.5"), QStringLiteral("The video ends at 0:00:10.000.")},
          {QStringLiteral("-4.5"), QStringLiteral("The video starts at 0:00:00.000.")},
          {QStringLiteral("+181f"), QStringLiteral("The last frame is #299.")},
          {QStringLiteral("-121f"), QStringLiteral("The video starts at 0:00:00.000.")},
          {QStringLiteral("+999999999999999f"), QStringLiteral("The last frame is #299.")},
          // From here, or from the first one?
          {QStringLiteral("10f"), QStringLiteral("Type +10f to move by frames, or #10 ")},
          {QStringLiteral("#300"), QStringLiteral("The last frame is #299.")}}) {
        type(panel, text);
        ASSERT_TRUE(panel);
        EXPECT_TRUE(panel->message().text().startsWith(reason))
            << qPrintable(panel->message().text());
        EXPECT_EQ(field.text(QAccessible::Description), panel->message().text());
        EXPECT_EQ(panel->field().palette().color(QPalette::Text), theme::red(panel->palette()));
        EXPECT_TRUE(panel->field().hasFocus());
        EXPECT_EQ(state().currentTime(), 4);
    }
    // Typing on takes it away.
    QTest::keyClicks(&panel->field(), QStringLiteral("5"));
    EXPECT_EQ(panel->message().text(), hint);
    EXPECT_NE(panel->field().palette().color(QPalette::Text), theme::red(panel->palette()));
    testsupport::clickKey(panel->windowHandle(), Qt::Key_Escape);
    EXPECT_TRUE(pumpUntil([&panel] { return panel.isNull(); }));
    EXPECT_TRUE(m_window && m_window->isVisible()) << "Escape closed the window, too";
    EXPECT_EQ(state().currentTime(), 4);
}

TEST_F(GoToTimeTest, goesAsFarAsTheEndsFromHere) {
    state().seek(4);
    ASSERT_TRUE(goesTo(QStringLiteral("+6")));
    EXPECT_TRUE(waitForTime(10));
    ASSERT_TRUE(goesTo(QStringLiteral("-10")));
    EXPECT_TRUE(waitForTime(0));
    ASSERT_TRUE(goesTo(QStringLiteral("+299f")));
    EXPECT_TRUE(waitForTime(299.0 / 30));
    ASSERT_TRUE(goesTo(QStringLiteral("-299f")));
    EXPECT_TRUE(waitForTime(0));
}

TEST_F(GoToTimeTest, isASheetWithoutButtonsOfTheWindowManager) {
    const QPointer<GoToTimePanel> panel = openPanel();
    EXPECT_TRUE(panel->windowFlags().testFlag(Qt::FramelessWindowHint));
    EXPECT_TRUE(panel->isModal());
    panel->reject();
}

TEST_F(GoToTimeTest, keepsItsLettersFromTheWindow) {
    state().setTrimStart(1);
    state().seek(4);
    const QPointer<GoToTimePanel> panel = openPanel();
    for (const Qt::Key key :
         {Qt::Key_BracketLeft, Qt::Key_L, Qt::Key_Home, Qt::Key_Up, Qt::Key_Left, Qt::Key_End})
        testsupport::clickKey(panel->windowHandle(), key);
    pumpPending();
    EXPECT_EQ(state().trimStart(), 1);
    EXPECT_EQ(state().currentTime(), 4);
    panel->reject();
}

TEST_F(GoToTimeTest, closesWhenAnotherVideoIsLoaded) {
    const QPointer<GoToTimePanel> panel = openPanel();
    state().load(video(1));
    EXPECT_TRUE(pumpUntil([&panel] { return panel.isNull(); }));
}

TEST_F(GoToTimeTest, goesToTheEndsOfTheRangeAndThenOfTheFile) {
    state().setTrimStart(2);
    state().setTrimEnd(8);
    state().seek(5);
    press(Qt::Key_Home);
    EXPECT_EQ(state().currentTime(), 2);
    press(Qt::Key_Home);
    EXPECT_EQ(state().currentTime(), 0);
    press(Qt::Key_End);
    EXPECT_EQ(state().currentTime(), 8);
    press(Qt::Key_End);
    EXPECT_EQ(state().currentTime(), 10);
    EXPECT_EQ(state().trimStart(), 2);
    EXPECT_EQ(state().trimEnd(), 8);
}

TEST_F(GoToTimeTest, goesBackAndForthBySeconds) {
    press(Qt::Key_Up);
    press(Qt::Key_Up);
    EXPECT_TRUE(waitForTime(2));
    press(Qt::Key_Down);
    EXPECT_TRUE(waitForTime(1));
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    EXPECT_TRUE(waitForTime(0));
}

TEST_F(GoToTimeTest, leavesTheKeysOfWhatHasTheFocusAlone) {
    state().setTrimStart(2);
    state().seek(5);
    TimelineMarker& start = editor().timeline().strip().marker(EditMarker::trimStart);
    start.setFocus(Qt::TabFocusReason);
    press(Qt::Key_Home);
    EXPECT_EQ(state().trimStart(), 0);
    press(Qt::Key_Up);
    EXPECT_NEAR(state().trimStart(), 1.0 / 30, 1e-9);

    state().setCropRect(media::Rect{0.25, 0.25, 0.5, 0.5});
    editor().videoArea().cropOverlay().setFocus(Qt::TabFocusReason);
    const double before = state().currentTime();
    press(Qt::Key_Down);
    EXPECT_GT(state().cropRect()->y, 0.25);
    EXPECT_EQ(state().currentTime(), before);

    ExportButton& button = editor().controls().exportButton();
    button.setFocus(Qt::TabFocusReason);
    press(Qt::Key_Down);
    EXPECT_TRUE(pumpUntil([&button] { return button.menu()->isVisible(); }));
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Home, Qt::Key_End})
        testsupport::clickKey(button.menu()->windowHandle(), key);
    EXPECT_EQ(state().currentTime(), before);
    button.menu()->close();
    pumpPending();
}

} // namespace
} // namespace brisklet
