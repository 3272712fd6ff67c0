#include "AppFixture.h"

#include "QtSupport/Keys.h"
#include "Views/ContentView.h"
#include "Views/Controls/ControlsView.h"
#include "Views/Controls/ExportButton.h"
#include "Views/Controls/FlatButton.h"
#include "Views/Crop/CropOverlayView.h"
#include "Views/EditorView.h"
#include "Views/Timeline/TimelineMarker.h"
#include "Views/Timeline/TimelineStrip.h"
#include "Views/Timeline/TimelineView.h"
#include "Views/VideoArea.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QPointer>

namespace brisklet {
namespace {

using testsupport::pumpPending;
using testsupport::pumpUntil;

/// The keyboard of a window as the program opens it, with all that listens to keys.
class WindowKeysTest : public AppFixture {
protected:
    void SetUp() override {
        m_app->launch({});
        m_window = m_app->windows().first();
        ASSERT_TRUE(testsupport::showActive(*m_window));
    }

    /// By the window system's road, as a real key comes.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        testsupport::clickKey(m_window->windowHandle(), key, modifiers);
    }

    EditState& state() { return *m_window->state(); }

    EditorView& editor() { return *m_window->findChild<EditorView*>(); }

    QPointer<WindowRootView> m_window;
};

// The menu's own key is a bare Escape; with Shift it is the monitor alone that closes.
TEST_F(WindowKeysTest, closeTheWindowByEscapeWithShift) {
    press(Qt::Key_Escape, Qt::ShiftModifier);
    EXPECT_TRUE(pumpUntil([this] { return m_window.isNull(); }));
}

TEST_F(WindowKeysTest, closeTheWindowByEscapeWithShiftWhereAControlHasTheKeyboard) {
    ASSERT_TRUE(loadAndWait(*m_window, video(1)));
    editor().controls().exportButton().setFocus(Qt::TabFocusReason);
    press(Qt::Key_Escape, Qt::ShiftModifier);
    EXPECT_TRUE(pumpUntil([this] { return m_window.isNull(); }));
}

TEST_F(WindowKeysTest, leaveTheWindowOpenByEscapeWithOtherModifiers) {
    for (const Qt::KeyboardModifier modifier :
         {Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier}) {
        press(Qt::Key_Escape, modifier);
        press(Qt::Key_Escape, Qt::ShiftModifier | modifier);
    }
    pumpPending();
    ASSERT_TRUE(m_window);
    EXPECT_TRUE(m_window->isVisible());
    press(Qt::Key_Escape);
    EXPECT_TRUE(pumpUntil([this] { return m_window.isNull(); }));
}

TEST_F(WindowKeysTest, areTextWhereATextFieldHasTheKeyboard) {
    ASSERT_TRUE(loadAndWait(*m_window, video(10)));
    state().setTrimStart(1);
    state().setTrimEnd(9);
    state().seek(4);
    QLineEdit field(&m_window->content());
    field.show();
    field.setFocus();
    ASSERT_TRUE(field.hasFocus());
    for (const Qt::Key key : {Qt::Key_BracketLeft, Qt::Key_L, Qt::Key_K, Qt::Key_BracketRight})
        press(key);
    EXPECT_EQ(field.text().toLower(), QStringLiteral("[lk]"));
    EXPECT_EQ(state().trimStart(), 1);
    EXPECT_EQ(state().trimEnd(), 9);
    EXPECT_FALSE(state().cropRect());
    // The same keys without it.
    field.clearFocus();
    press(Qt::Key_BracketLeft);
    EXPECT_EQ(state().trimStart(), 4);
    state().seek(6);
    press(Qt::Key_BracketRight);
    EXPECT_EQ(state().trimEnd(), 6);
    EXPECT_EQ(field.text().size(), 4);
}

TEST_F(WindowKeysTest, areTextInTheNameFieldOfAPanel) {
    ASSERT_TRUE(loadAndWait(*m_window, video(10)));
    state().seek(4);
    press(Qt::Key_O, Qt::ControlModifier);
    QPointer<QFileDialog> panel;
    ASSERT_TRUE(pumpUntil([&] {
        panel = m_window->findChild<QFileDialog*>();
        return panel && panel->isVisible();
    }));
    auto* field = panel->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    ASSERT_NE(field, nullptr);
    ASSERT_TRUE(testsupport::showActive(*panel));
    field->setFocus();
    for (const Qt::Key key : {Qt::Key_BracketLeft, Qt::Key_BracketRight})
        testsupport::clickKey(panel->windowHandle(), key);
    EXPECT_EQ(field->text(), QStringLiteral("[]"));
    EXPECT_EQ(state().trimStart(), 0);
    EXPECT_EQ(state().trimEnd(), state().duration());
    panel->reject();
    EXPECT_TRUE(pumpUntil([&panel] { return panel.isNull(); }));
}

// The keyboard went on to the trim start, and the arrow keys moved it.
TEST_F(WindowKeysTest, stepFramesAfterTheCropThatHadTheKeyboardIsRemoved) {
    ASSERT_TRUE(loadAndWait(*m_window, video(10)));
    state().setCropRect(media::Rect{0.1, 0.1, 0.8, 0.8});
    CropOverlayView& overlay = editor().videoArea().cropOverlay();
    overlay.setFocus(Qt::TabFocusReason);
    press(Qt::Key_Right);
    ASSERT_NE(state().cropRect()->x, 0.1) << "The crop has no keyboard to lose.";
    press(Qt::Key_K);
    ASSERT_FALSE(state().cropRect());
    EXPECT_FALSE(overlay.isVisible());
    press(Qt::Key_Right);
    EXPECT_TRUE(pumpUntil([this] { return state().currentTime() > 0; }));
    EXPECT_EQ(state().trimStart(), 0);
    EXPECT_EQ(state().trimEnd(), state().duration());
}

TEST_F(WindowKeysTest, areTheWindowsUntilTheUserGivesThemToAControl) {
    ASSERT_TRUE(loadAndWait(*m_window, video(10)));
    EXPECT_EQ(QApplication::focusWidget(), &editor());
    press(Qt::Key_Right);
    EXPECT_TRUE(pumpUntil([this] { return state().currentTime() > 0; }));
    EXPECT_EQ(state().trimStart(), 0);
    press(Qt::Key_R);
    EXPECT_EQ(state().rotation(), 270);
}

TEST_F(WindowKeysTest, stepFramesAgainOnceTheTimelineIsClicked) {
    ASSERT_TRUE(loadAndWait(*m_window, video(10)));
    TimelineStrip& strip = editor().timeline().strip();
    strip.markers().front()->setFocus(Qt::TabFocusReason);
    press(Qt::Key_PageUp);
    ASSERT_EQ(state().trimStart(), 1) << "The handle has no keyboard to lose.";
    const QPoint middle(qRound(strip.geometryNow().x(5)), strip.height() / 2);
    QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      strip.mapTo(m_window.data(), middle));
    const double clicked = state().currentTime();
    ASSERT_NEAR(clicked, 5, 0.1);
    press(Qt::Key_Right);
    EXPECT_TRUE(pumpUntil([&] { return state().currentTime() > clicked; }));
    EXPECT_EQ(state().trimStart(), 1);
    for (const TimelineMarker* marker : strip.markers())
        EXPECT_FALSE(marker->isFocusShown() && marker->marker() != EditMarker::playhead);
}

// It went on to the crop, which the arrow keys moved after the export.
TEST_F(WindowKeysTest, areTheExportButtonsAgainAfterAnExport) {
    ASSERT_TRUE(loadAndWait(*m_window, video(1)));
    state().setCropRect(media::Rect{0.1, 0.1, 0.8, 0.8});
    ExportButton& button = editor().controls().exportButton();
    button.setFocus(Qt::TabFocusReason);
    state().exportTo(urlOf(m_folder / "out.mp4"));
    ASSERT_FALSE(button.isEnabled());
    EXPECT_EQ(m_window->focusWidget(), &editor());
    ASSERT_TRUE(pumpUntil([this] { return !state().exportProgress(); }));
    ASSERT_TRUE(testsupport::showActive(*m_window));
    EXPECT_EQ(QApplication::focusWidget(), &button);
    press(Qt::Key_Right);
    EXPECT_EQ(state().cropRect(), (media::Rect{0.1, 0.1, 0.8, 0.8}));
}

TEST_F(WindowKeysTest, playAfterAnotherButtonWasClicked) {
    ASSERT_TRUE(loadAndWait(*m_window, video(10)));
    FlatButton& mute = editor().controls().muteButton();
    const QPoint middle = mute.mapTo(m_window.data(), mute.rect().center());
    QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, Qt::NoModifier, middle);
    EXPECT_TRUE(state().isMuted());
    EXPECT_FALSE(mute.hasFocus());
    press(Qt::Key_Space);
    EXPECT_TRUE(pumpUntil([this] { return state().isPlaying(); }));
    EXPECT_TRUE(state().isMuted());
}

} // namespace
} // namespace brisklet
