#include "AppFixture.h"

#include "Views/ContentView.h"
#include "QtSupport/Keys.h"
#include "Views/Controls/ControlsView.h"
#include "Views/Controls/FlatButton.h"

#include <QAction>
#include <QDialog>
#include <QMenuBar>
#include <QPointer>
#include <QPushButton>
#include <QWindow>

#include <filesystem>

namespace brisklet {
namespace {

using testsupport::pumpPending;
using testsupport::pumpUntil;

class WindowRootViewTest : public AppFixture {
protected:
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(m_window, key, modifiers);
    }

    /// A command of the window's own menus.
    static QAction* command(const WindowRootView& window, const char* title) {
        for (const QAction* menu : window.findChild<QMenuBar*>()->actions()) {
            for (QAction* entry : menu->menu()->actions()) {
                if (entry->text() == QString::fromUtf8(title))
                    return entry;
            }
        }
        ADD_FAILURE() << "There is no command \"" << title << '"';
        return nullptr;
    }

    QPointer<WindowRootView> m_window = openWindow();
};

TEST_F(WindowRootViewTest, isNoSmallerThanItsContentNeeds) {
    EXPECT_EQ(m_window->minimumSize(), QSize(720, 480));
    m_window->resize(10, 10);
    EXPECT_GE(m_window->width(), 720);
    EXPECT_GE(m_window->height(), 480);
}

TEST_F(WindowRootViewTest, isNamedAfterItsVideo) {
    EXPECT_EQ(m_window->windowTitle(), QStringLiteral("Brisklet"));
    const QUrl url = video(1);
    ASSERT_TRUE(loadAndWait(*m_window, url));
    EXPECT_EQ(m_window->windowTitle(), displayName(url));
    WindowRootView* second = openWindow();
    EXPECT_EQ(second->windowTitle(), QStringLiteral("Brisklet"));
    const QUrl other = video(2);
    ASSERT_TRUE(loadAndWait(*second, other));
    EXPECT_EQ(second->windowTitle(), displayName(other));
    EXPECT_EQ(m_window->windowTitle(), displayName(url));
}

TEST_F(WindowRootViewTest, publishesTheModelOfTheActiveWindow) {
    FocusedValues& values = m_app->focusedValues();
    EXPECT_EQ(values.editState(), m_window->state());
    QPointer<WindowRootView> second = openWindow();
    EXPECT_EQ(values.editState(), second->state());
    ASSERT_TRUE(testsupport::showActive(*m_window));
    EXPECT_EQ(values.editState(), m_window->state());
    delete m_window;
    ASSERT_TRUE(testsupport::showActive(*second));
    EXPECT_EQ(values.editState(), second->state());
    delete second;
    EXPECT_EQ(values.editState(), nullptr);
}

TEST_F(WindowRootViewTest, takesTheKeysOfCommandsAndControls) {
    ASSERT_TRUE(loadAndWait(*m_window, video(10)));
    EditState& state = *m_window->state();
    state.seek(2);
    press(Qt::Key_BracketLeft);
    EXPECT_DOUBLE_EQ(state.trimStart(), 2);
    press(Qt::Key_M);
    EXPECT_TRUE(state.isMuted());
    press(Qt::Key_R);
    EXPECT_EQ(state.rotation(), 270);
    press(Qt::Key_Space);
    ASSERT_TRUE(pumpUntil([&state] { return state.isPlaying(); }));
    press(Qt::Key_Right);
    ASSERT_TRUE(pumpUntil([&state] { return !state.isPlaying(); }));
}

TEST_F(WindowRootViewTest, ignoresTheEditingKeysWhileItIsEmpty) {
    for (const Qt::Key key :
         {Qt::Key_BracketLeft, Qt::Key_BracketRight, Qt::Key_Left, Qt::Key_Right})
        press(key);
    pumpPending();
    EXPECT_EQ(m_window->state()->trimStart(), 0);
    EXPECT_EQ(m_window->state()->currentTime(), 0);
}

TEST_F(WindowRootViewTest, opensAnotherWindowByItsKey) {
    press(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(m_app->windows().size(), 2);
}

TEST_F(WindowRootViewTest, closesByEscapeAndEndsItsModel) {
    const std::weak_ptr<EditState> state = m_window->state();
    press(Qt::Key_Escape);
    EXPECT_TRUE(pumpUntil([this] { return m_window.isNull(); }));
    pumpPending();
    EXPECT_TRUE(state.expired());
}

TEST_F(WindowRootViewTest, keepsTheWindowWhenEscapeDismissesItsAlert) {
    m_window->state()->load(urlOf(m_folder / "missing.mov"));
    ASSERT_TRUE(pumpUntil([this] { return m_window->state()->errorMessage().has_value(); }));
    QWidget* alert = m_window->content().attachedSheet();
    ASSERT_NE(alert, nullptr);
    ASSERT_TRUE(testsupport::showActive(*alert));
    QTest::keyClick(alert, Qt::Key_Escape);
    ASSERT_TRUE(pumpUntil([this] { return !m_window->state()->errorMessage(); }));
    EXPECT_TRUE(m_window->isVisible());
}

TEST_F(WindowRootViewTest, keepsTheWindowAndTheExportWhenEscapeIsPressedOnItsSheet) {
    ASSERT_TRUE(startLongExport(*m_window));
    QWidget* sheet = m_window->content().attachedSheet();
    ASSERT_NE(sheet, nullptr);
    QTest::keyClick(sheet, Qt::Key_Escape);
    pumpPending();
    EXPECT_TRUE(m_window->isVisible());
    EXPECT_TRUE(m_window->state()->exportProgress());
}

TEST_F(WindowRootViewTest, asksBeforeItStopsAnExportToClose) {
    ASSERT_TRUE(startLongExport(*m_window));
    m_window->close();
    EXPECT_TRUE(m_window->isVisible());
    QMessageBox* question = visibleQuestion(*m_window);
    ASSERT_NE(question, nullptr);
    EXPECT_EQ(question->text(), QStringLiteral("Stop the export and close?"));
    clickRole(*question, QMessageBox::RejectRole);
    pumpPending();
    EXPECT_TRUE(m_window->state()->exportProgress().has_value());
    EXPECT_TRUE(m_window->isVisible());

    m_window->close();
    question = visibleQuestion(*m_window);
    ASSERT_NE(question, nullptr);
    clickRole(*question, QMessageBox::AcceptRole);
    ASSERT_TRUE(pumpUntil([this] { return m_window.isNull(); }));
    EXPECT_TRUE(std::filesystem::is_empty(m_folder.path()));
}

/// The frame of the sheet stood around the smaller question, neither in its middle.
TEST_F(WindowRootViewTest, coversTheSheetOfTheExportByTheQuestion) {
    ASSERT_TRUE(startLongExport(*m_window));
    m_window->close();
    const QMessageBox* question = visibleQuestion(*m_window);
    ASSERT_NE(question, nullptr);
    pumpPending();
    const QRect sheet = m_window->content().attachedSheet()->geometry();
    EXPECT_TRUE(question->geometry().contains(sheet));
    EXPECT_EQ(question->geometry().center(), sheet.center());
}

/// Both the sheet and the question over it had a "Cancel", one to stop the export, the other to
/// keep it.
TEST_F(WindowRootViewTest, namesTheAnswersAfterWhatBecomesOfTheExport) {
    ASSERT_TRUE(startLongExport(*m_window));
    m_window->close();
    QMessageBox* question = visibleQuestion(*m_window);
    ASSERT_NE(question, nullptr);
    QStringList names;
    for (const QAbstractButton* button : question->buttons())
        names << button->text().remove(u'&');
    names.sort();
    EXPECT_EQ(names,
              QStringList({QStringLiteral("Keep Exporting"), QStringLiteral("Stop and Close")}));
    EXPECT_EQ(question->defaultButton()->text(), QStringLiteral("Keep Exporting"));
    QTest::keyClick(question, Qt::Key_Escape);
    pumpPending();
    EXPECT_EQ(visibleQuestion(*m_window), nullptr);
    EXPECT_TRUE(m_window->state()->exportProgress());
}

/// An assistive program can press what stands below a question.
TEST_F(WindowRootViewTest, leavesOneAnswerOnlyBesideTheQuestion) {
    ASSERT_TRUE(startLongExport(*m_window));
    QWidget* sheet = m_window->content().attachedSheet();
    ASSERT_NE(sheet, nullptr);
    const auto* cancel = sheet->findChild<QPushButton*>();
    ASSERT_NE(cancel, nullptr);
    EXPECT_TRUE(cancel->isVisible());
    m_window->close();
    QMessageBox* question = visibleQuestion(*m_window);
    ASSERT_NE(question, nullptr);
    EXPECT_FALSE(cancel->isVisible());
    clickRole(*question, QMessageBox::RejectRole);
    pumpPending();
    EXPECT_TRUE(cancel->isVisible());
}

/// The keyboard is with the sheet, which took the keys and did nothing.
TEST_F(WindowRootViewTest, asksByTheKeysOfTheWindowWhileTheSheetHasTheKeyboard) {
    ASSERT_TRUE(startLongExport(*m_window));
    for (const Qt::Key key : {Qt::Key_W, Qt::Key_Q}) {
        QWidget* sheet = m_window->content().attachedSheet();
        ASSERT_NE(sheet, nullptr);
        ASSERT_TRUE(testsupport::showActive(*sheet));
        QTest::keyClick(sheet, key, Qt::ControlModifier);
        QMessageBox* question = visibleQuestion(*m_window);
        ASSERT_NE(question, nullptr) << key;
        clickRole(*question, QMessageBox::RejectRole);
        pumpPending();
    }
    EXPECT_TRUE(m_window->state()->exportProgress());
}

/// Qt drops what a window manager says to a window behind a modal dialog. The walk with two windows
/// presses the button itself.
TEST_F(WindowRootViewTest, hearsItsCloseButtonBehindTheSheet) {
    ASSERT_TRUE(startLongExport(*m_window));
    ASSERT_TRUE(m_window->content().attachedSheet()->isVisible());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(WindowRootViewTest, takesNoInputBehindTheSheet) {
    ASSERT_TRUE(startLongExport(*m_window));
    QWindow* handle = m_window->windowHandle();
    testsupport::clickKey(handle, Qt::Key_M);
    testsupport::clickKey(handle, Qt::Key_K);
    const QPoint crop =
        m_window->findChild<ControlsView*>()->cropButton().mapTo(m_window.data(), QPoint(10, 10));
    QTest::mouseClick(handle, Qt::LeftButton, Qt::NoModifier, crop);
    pumpPending();
    EXPECT_FALSE(m_window->state()->isMuted());
    EXPECT_FALSE(m_window->state()->cropRect());
    // What was clicked behind the sheet gives the keyboard back to it.
    QWidget* sheet = m_window->content().attachedSheet();
    EXPECT_TRUE(pumpUntil([&] { return QApplication::activeWindow() == sheet; }));

    m_window->state()->cancelExport();
    ASSERT_TRUE(pumpUntil([this] { return !m_window->state()->exportProgress(); }));
    ASSERT_TRUE(testsupport::showActive(*m_window));
    QTest::mouseClick(handle, Qt::LeftButton, Qt::NoModifier, crop);
    EXPECT_TRUE(m_window->state()->cropRect());
}

TEST_F(WindowRootViewTest, givesItsSheetsNoButtonsOfAWindow) {
    ASSERT_TRUE(startLongExport(*m_window));
    m_window->close();
    m_window->state()->setErrorMessage(QStringLiteral("What went wrong."));
    int count = 0;
    for (const auto* dialog : m_window->findChildren<QDialog*>()) {
        if (!dialog->isVisible())
            continue;
        ++count;
        EXPECT_TRUE(dialog->windowFlags().testFlag(Qt::FramelessWindowHint));
        EXPECT_FALSE(dialog->windowFlags() & Qt::WindowMinMaxButtonsHint);
    }
    EXPECT_EQ(count, 3);
}

TEST_F(WindowRootViewTest, takesTheQuestionBackWhenTheExportEnds) {
    ASSERT_TRUE(loadAndWait(*m_window, video(1)));
    m_window->state()->exportTo(urlOf(m_folder / "out.mp4"));
    m_window->close();
    ASSERT_NE(visibleQuestion(*m_window), nullptr);
    ASSERT_TRUE(pumpUntil([this] { return !m_window->state()->exportProgress(); }));
    pumpPending();
    ASSERT_TRUE(m_window);
    EXPECT_TRUE(m_window->isVisible());
    EXPECT_EQ(visibleQuestion(*m_window), nullptr);
    EXPECT_TRUE(std::filesystem::exists(m_folder / "out.mp4"));
}

/// Assistive technology chooses entries of any menu. Those of a window that was not the active one
/// changed and closed the active one.
TEST_F(WindowRootViewTest, obeysItsOwnMenusWhileAnotherWindowIsActive) {
    ASSERT_TRUE(loadAndWait(*m_window, video(10)));
    m_window->state()->seek(2);
    QPointer<WindowRootView> second = openWindow();
    ASSERT_EQ(QApplication::activeWindow(), second);
    EXPECT_TRUE(command(*m_window, "Export…")->isEnabled());
    EXPECT_FALSE(command(*second, "Export…")->isEnabled());
    command(*m_window, "Set Trim Start at Playhead")->trigger();
    EXPECT_EQ(m_window->state()->trimStart(), 2);

    ASSERT_TRUE(loadAndWait(*second, video(5)));
    second->state()->seek(1);
    command(*m_window, "Next Frame")->trigger();
    EXPECT_TRUE(pumpUntil([this] { return m_window->state()->currentTime() > 2; }));
    EXPECT_EQ(second->state()->currentTime(), 1);

    command(*m_window, "Close Video")->trigger();
    EXPECT_TRUE(pumpUntil([this] { return m_window.isNull(); }));
    EXPECT_TRUE(second && second->isVisible());
}

TEST_F(WindowRootViewTest, offersToCloseByItsOwnMenuWhileAnotherWindowExports) {
    WindowRootView* second = openWindow();
    ASSERT_TRUE(startLongExport(*second));
    EXPECT_FALSE(command(*second, "Close Video")->isEnabled());
    EXPECT_TRUE(command(*m_window, "Close Video")->isEnabled());
}

TEST_F(WindowRootViewTest, tellsAboutTheProgramOverTheWindowOfTheMenu) {
    WindowRootView* second = openWindow();
    command(*m_window, "About Brisklet")->trigger();
    EXPECT_NE(visibleQuestion(*m_window), nullptr);
    EXPECT_EQ(visibleQuestion(*second), nullptr);
}

TEST_F(WindowRootViewTest, mayGoWhileItsVideoLoadsAndPlays) {
    m_window->state()->load(video(10));
    delete m_window;
    m_window = openWindow();
    ASSERT_TRUE(loadAndWait(*m_window, video(10)));
    m_window->state()->togglePlayback();
    ASSERT_TRUE(pumpUntil([this] { return m_window->state()->isPlaying(); }));
    delete m_window;
    pumpPending();
}

} // namespace
} // namespace brisklet
