#include "EscapeMonitor.h"

#include "Activation.h"
#include "QtSupport/Keys.h"

#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <QMenuBar>
#include <QWidget>

#include <gtest/gtest.h>

namespace {

using brisklet::EscapeMonitor;

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

} // namespace
