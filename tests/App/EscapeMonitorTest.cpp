#include "EscapeMonitor.h"

#include "AppFixture.h"
#include "QtSupport/Keys.h"
#include "Views/ContentView.h"
#include "Views/ErrorAlert.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QPushButton>
#include <QWidget>

#include <gtest/gtest.h>

namespace brisklet {
namespace {

using testsupport::pumpPending;
using testsupport::pumpUntil;

/// How long a key counts as meant for a sheet that has gone.
class DoubleClickInterval final {
public:
    static constexpr int kAnHour = 3'600'000;

    explicit DoubleClickInterval(int ms) { QApplication::setDoubleClickInterval(ms); }

    ~DoubleClickInterval() { QApplication::setDoubleClickInterval(m_before); }

    DoubleClickInterval(const DoubleClickInterval&) = delete;
    DoubleClickInterval& operator=(const DoubleClickInterval&) = delete;

private:
    int m_before = QApplication::doubleClickInterval();
};

class EscapeMonitorTest : public testing::Test {
protected:
    EscapeMonitorTest() {
        qApp->installEventFilter(&m_monitor);
        show(m_window);
    }

    static void show(QWidget& window) { EXPECT_TRUE(testsupport::showActive(window)); }

    static void press(QWidget& window, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        // By the window system's road, as a real key comes.
        testsupport::clickKey(window.windowHandle(), Qt::Key_Escape, modifiers);
    }

    EscapeMonitor m_monitor;
    QWidget m_window;
};

TEST_F(EscapeMonitorTest, closesTheActiveWindow) {
    press(m_window);
    EXPECT_FALSE(m_window.isVisible());
}

TEST_F(EscapeMonitorTest, ignoresShift) {
    press(m_window, Qt::ShiftModifier);
    EXPECT_FALSE(m_window.isVisible());
}

TEST_F(EscapeMonitorTest, leavesTheKeyAloneWithOtherModifiers) {
    for (const Qt::KeyboardModifier modifier :
         {Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier}) {
        press(m_window, modifier);
        press(m_window, Qt::ShiftModifier | modifier);
    }
    EXPECT_TRUE(m_window.isVisible());
}

TEST_F(EscapeMonitorTest, leavesTheWindowBehindASheetOpen) {
    QDialog sheet(&m_window);
    sheet.open();
    show(sheet);
    press(sheet);
    EXPECT_TRUE(m_window.isVisible());
    EXPECT_FALSE(sheet.isVisible()) << "The dialog has the key for itself.";
}

TEST_F(EscapeMonitorTest, closesNoWindowThatHasASheetThoughItIsActive) {
    QDialog sheet(&m_window);
    sheet.open();
    m_window.activateWindow();
    QTest::keyClick(&m_window, Qt::Key_Escape);
    EXPECT_TRUE(m_window.isVisible());
}

TEST_F(EscapeMonitorTest, leavesTheKeyToPanels) {
    QWidget panel(&m_window, Qt::Tool);
    show(panel);
    press(panel);
    EXPECT_TRUE(panel.isVisible());
    EXPECT_TRUE(m_window.isVisible());
}

/// Who leaves an open menu presses the key twice, and lost the window.
TEST_F(EscapeMonitorTest, leavesTheKeyToAMenuBarThatHasTheKeyboard) {
    QMenuBar bar(&m_window);
    bar.addMenu(QStringLiteral("&File"))->addAction(QStringLiteral("Entry"));
    bar.show();
    QTest::keyClick(m_window.windowHandle(), Qt::Key_F, Qt::AltModifier);
    QWidget* menu = QApplication::activePopupWidget();
    ASSERT_NE(menu, nullptr);
    QTest::keyClick(menu, Qt::Key_Escape);
    ASSERT_EQ(QApplication::focusWidget(), &bar);
    press(m_window);
    EXPECT_TRUE(m_window.isVisible());
    press(m_window);
    EXPECT_FALSE(m_window.isVisible());
}

TEST_F(EscapeMonitorTest, closesNoWindowThatCannotBeClosed) {
    QWidget window(nullptr, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    show(window);
    press(window);
    EXPECT_TRUE(window.isVisible());
}

TEST_F(EscapeMonitorTest, leavesTheKeyToAnOpenMenu) {
    QMenu menu(&m_window);
    menu.addAction(QStringLiteral("Entry"));
    menu.popup({10, 10});
    QTest::keyClick(&menu, Qt::Key_Escape);
    EXPECT_FALSE(menu.isVisible());
    EXPECT_TRUE(m_window.isVisible());
}

TEST_F(EscapeMonitorTest, leavesOtherKeysAlone) {
    QTest::keyClick(m_window.windowHandle(), Qt::Key_Return);
    EXPECT_TRUE(m_window.isVisible());
}

TEST_F(EscapeMonitorTest, leavesTheWindowOpenForAKeyThatWasMeantForASheet) {
    const DoubleClickInterval interval(DoubleClickInterval::kAnHour);
    m_monitor.sheetGone(m_window);
    press(m_window);
    EXPECT_TRUE(m_window.isVisible());
    press(m_window);
    EXPECT_FALSE(m_window.isVisible());
}

TEST_F(EscapeMonitorTest, closesTheWindowWhenTheSheetHasBeenGoneForLong) {
    const DoubleClickInterval interval(0);
    m_monitor.sheetGone(m_window);
    press(m_window);
    EXPECT_FALSE(m_window.isVisible());
}

TEST_F(EscapeMonitorTest, closesAnotherWindowThanThatOfTheSheet) {
    const DoubleClickInterval interval(DoubleClickInterval::kAnHour);
    m_monitor.sheetGone(m_window);
    QWidget other;
    show(other);
    press(other);
    EXPECT_FALSE(other.isVisible());
    show(m_window);
    press(m_window);
    EXPECT_TRUE(m_window.isVisible());
}

/// Who holds the key does so since the sheet was there.
TEST_F(EscapeMonitorTest, leavesTheWindowOpenAsLongAsTheKeyIsHeld) {
    const DoubleClickInterval interval(DoubleClickInterval::kAnHour);
    m_monitor.sheetGone(m_window);
    constexpr bool kIsRepeated = true;
    for (int count = 0; count < 3; ++count) {
        for (const QEvent::Type type : {QEvent::ShortcutOverride, QEvent::KeyPress}) {
            QKeyEvent repeated(type, Qt::Key_Escape, Qt::NoModifier, {}, kIsRepeated);
            QCoreApplication::sendEvent(m_window.windowHandle(), &repeated);
        }
        EXPECT_TRUE(m_window.isVisible());
    }
    press(m_window);
    EXPECT_FALSE(m_window.isVisible());
}

/// Escape at the very moment when an export ends, in the whole program.
class EscapeAfterExportTest : public AppFixture {
protected:
    void SetUp() override {
        m_app->launch({});
        m_window = m_app->windows().first();
        ASSERT_TRUE(testsupport::showActive(*m_window));
    }

    EditState& state() { return *m_window->state(); }

    bool waitForEnd() {
        return pumpUntil([this] { return !state().exportProgress(); }) &&
               testsupport::showActive(*m_window);
    }

    static void pressEscape(QWidget& window) {
        testsupport::clickKey(window.windowHandle(), Qt::Key_Escape);
        pumpPending();
    }

    const DoubleClickInterval m_interval{DoubleClickInterval::kAnHour};
    QPointer<WindowRootView> m_window;
};

/// It closed the window: the sheet that would have swallowed it had just gone.
TEST_F(EscapeAfterExportTest, doesNothingOnce) {
    ASSERT_TRUE(loadAndWait(*m_window, video(1)));
    state().exportTo(urlOf(m_folder / "out.mp4"));
    ASSERT_TRUE(waitForEnd());
    ASSERT_EQ(state().errorMessage(), std::nullopt);
    pressEscape(*m_window);
    ASSERT_TRUE(m_window && m_window->isVisible());
    pressEscape(*m_window);
    EXPECT_FALSE(m_window && m_window->isVisible());
}

TEST_F(EscapeAfterExportTest, dismissesNoAlertUnread) {
    ASSERT_TRUE(loadAndWait(*m_window, video(1)));
    state().exportTo(urlOf(m_folder / "missing" / "out.mp4"));
    ASSERT_TRUE(pumpUntil([this] { return !state().exportProgress(); }));
    auto* alert = m_window->findChild<ErrorAlert*>();
    ASSERT_NE(alert, nullptr);
    ASSERT_TRUE(testsupport::showActive(*alert));
    pressEscape(*alert);
    ASSERT_TRUE(state().errorMessage());
    pressEscape(*alert);
    EXPECT_FALSE(state().errorMessage());
}

TEST_F(EscapeAfterExportTest, closesTheWindowAfterACancellation) {
    ASSERT_TRUE(startLongExport(*m_window));
    QPointer<QWidget> sheet;
    ASSERT_TRUE(pumpUntil([&] {
        sheet = m_window->content().attachedSheet();
        return sheet && sheet->isVisible();
    }));
    QTest::mouseClick(sheet->findChild<QPushButton*>(), Qt::LeftButton);
    ASSERT_TRUE(waitForEnd());
    pressEscape(*m_window);
    EXPECT_FALSE(m_window && m_window->isVisible());
}

} // namespace
} // namespace brisklet
