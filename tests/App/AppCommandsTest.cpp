#include "AppCommands.h"

#include "Activation.h"
#include "FakeDesktop.h"
#include "FocusedValues.h"
#include "Models/EditStateFixture.h"
#include "Platform/Updater/Updater.h"
#include "QtSupport/PrivateBus.h"
#include "SilentUpdateDriver.h"
#include "Support/QuickAction/QuickAction.h"
#include "TestSupport/TemporaryFolder.h"

#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QSettings>
#include <QTemporaryDir>
#include <QVBoxLayout>

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <set>
#include <string>
#include <vector>

namespace brisklet {
namespace {

using testing::ElementsAre;
using testsupport::pumpPending;
using testsupport::pumpUntil;

class AppCommandsTest : public EditStateFixture {
protected:
    static void SetUpTestSuite() {
        // The place of the Quick Action is computed once: all tests share one home.
        static const testsupport::TemporaryFolder home;
        qputenv("HOME", home.path().c_str());
    }

    AppCommandsTest() {
        std::filesystem::remove_all(QuickAction::workflowPath());
        QuickAction::shared().setInstalled(false);
        auto* layout = new QVBoxLayout(&m_window);
        layout->setMenuBar(m_menuBar);
        m_commands.fill(*m_menuBar);
        EXPECT_TRUE(testsupport::showActive(m_window));
    }

    UpdaterConfiguration updates(const char* feed) const {
        return {.feed = QUrl(QString::fromLatin1(feed)),
                .settings = std::make_shared<QSettings>(
                    m_folder.filePath(QStringLiteral("updates.ini")), QSettings::IniFormat)};
    }

    /// Title and key of each entry; "-" for a divider.
    static std::vector<std::string> entries(const QMenu& menu) {
        std::vector<std::string> result;
        for (const QAction* action : menu.actions()) {
            const QString key = action->shortcut().toString(QKeySequence::PortableText);
            const QString entry = key.isEmpty() ? action->text() : action->text() + u'|' + key;
            result.push_back(action->isSeparator() ? "-" : entry.toStdString());
        }
        return result;
    }

    QMenu* menu(int index) const { return m_menuBar->actions().at(index)->menu(); }

    QAction* action(const char* title) const {
        for (QAction* candidate : m_commands.findChildren<QAction*>()) {
            if (candidate->text() == QString::fromUtf8(title))
                return candidate;
        }
        ADD_FAILURE() << "There is no command \"" << title << '"';
        return nullptr;
    }

    void expectVideoCommands(bool enabled) const {
        for (const char* title :
             {"Export…", "Set Trim Start at Playhead", "Set Trim End at Playhead", "Previous Frame",
              "Next Frame", "Go to Time…", "Back One Second", "Forward One Second"})
            EXPECT_EQ(action(title)->isEnabled(), enabled) << title;
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(&m_window, key, modifiers);
    }

    QTemporaryDir m_folder;
    testsupport::SilentUpdateDriver m_driver;
    Updater m_updater{updates(""), m_driver, false};
    FocusedValues m_focusedValues;
    AppCommands m_commands{m_updater, m_focusedValues};
    QWidget m_window;
    QMenuBar* m_menuBar = new QMenuBar;
};

TEST_F(AppCommandsTest, standInTheirMenusInOrder) {
    std::vector<std::string> titles;
    for (const QAction* action : m_menuBar->actions())
        titles.push_back(action->text().remove(u'&').toStdString());
    EXPECT_THAT(titles, ElementsAre("Brisklet", "File", "Edit", "Clip", "Go", "Help"));
    EXPECT_THAT(entries(*menu(0)), ElementsAre("About Brisklet", "Check for Updates…", "-",
                                               "Install Finder Quick Action", "-", "Quit|Ctrl+Q"));
    EXPECT_THAT(entries(*menu(1)), ElementsAre("New Window|Ctrl+N", "Open Video…|Ctrl+O",
                                               "Reopen Last Edit|Ctrl+Shift+T", "Export…|Ctrl+E",
                                               "Show Last Export", "Close Video|Esc"));
    EXPECT_THAT(entries(*menu(2)), ElementsAre("Undo|Ctrl+Z", "Redo|Ctrl+Shift+Z"));
    EXPECT_THAT(entries(*menu(3)),
                ElementsAre("Set Trim Start at Playhead|[", "Set Trim End at Playhead|]", "-",
                            "Previous Frame|Left", "Next Frame|Right", "-", "Loop Playback|L"));
    EXPECT_THAT(entries(*menu(4)),
                ElementsAre("Go to Time…|Ctrl+G", "-", "Range Start, Then Start of Video|Home",
                            "Range End, Then End of Video|End", "Back One Second|Down",
                            "Forward One Second|Up"));
    EXPECT_THAT(entries(*menu(5)), ElementsAre("Keyboard Shortcuts|Ctrl+?"));
}

TEST_F(AppCommandsTest, isMostlyDisabledWithoutAWindow) {
    expectVideoCommands(false);
    EXPECT_FALSE(action("Open Video…")->isEnabled());
    EXPECT_TRUE(action("Close Video")->isEnabled());
    EXPECT_TRUE(action("Loop Playback")->isEnabled());
    EXPECT_TRUE(action("Install Finder Quick Action")->isEnabled());
}

TEST_F(AppCommandsTest, opensAndClosesButEditsNothingInAnEmptyWindow) {
    m_focusedValues.setEditState(m_state);
    EXPECT_TRUE(action("Open Video…")->isEnabled());
    EXPECT_TRUE(action("Close Video")->isEnabled());
    expectVideoCommands(false);
}

TEST_F(AppCommandsTest, followsTheFocusedModelAtOnce) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    m_focusedValues.setEditState(m_state);
    expectVideoCommands(true);
    const auto other = std::make_shared<EditState>();
    m_focusedValues.setEditState(other);
    expectVideoCommands(false);
    m_focusedValues.setEditState(nullptr);
    EXPECT_FALSE(action("Open Video…")->isEnabled());
    m_focusedValues.setEditState(other);
    other->load(urlOf(testsupport::makeFixture({.duration = 1}).path));
    ASSERT_TRUE(pumpUntil([&other] { return other->videoURL().has_value(); }));
    expectVideoCommands(true);
}

TEST_F(AppCommandsTest, closesAWindowByTheUsualKeyOfTheDesktopToo) {
    m_focusedValues.setEditState(m_state);
    press(Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(m_window.isVisible());
}

TEST_F(AppCommandsTest, doesNotCloseAWindowThatExports) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    m_focusedValues.setEditState(m_state);
    testsupport::TemporaryFolder folder;
    m_state->exportTo(urlOf(folder / "out.mp4"));
    EXPECT_FALSE(action("Close Video")->isEnabled());
    press(Qt::Key_Escape);
    press(Qt::Key_W, Qt::ControlModifier);
    EXPECT_TRUE(m_window.isVisible());
    m_state->cancelExport();
    ASSERT_TRUE(pumpUntil([this] { return !m_state->exportProgress(); }));
    EXPECT_TRUE(action("Close Video")->isEnabled());
    press(Qt::Key_Escape);
    EXPECT_FALSE(m_window.isVisible());
}

TEST_F(AppCommandsTest, showsTheLastExportInItsFolder) {
    const testsupport::PrivateBus bus;
    if (!bus.isRunning())
        GTEST_SKIP() << "dbus-daemon is not here";
    const testsupport::FakeFileManager fileManager(bus.connect());
    m_commands.setBus(bus.connect());
    ASSERT_TRUE(loadAndWait({.duration = 1}));
    m_focusedValues.setEditState(m_state);
    QAction* show = action("Show Last Export");
    EXPECT_FALSE(show->isEnabled());

    const testsupport::TemporaryFolder parent;
    const auto folder = parent / "ex ports";
    std::filesystem::create_directory(folder);
    const QUrl file = urlOf(folder / "o#ut.mp4");
    state().exportTo(file);
    ASSERT_TRUE(pumpUntil([this] { return !state().exportProgress(); }));
    EXPECT_TRUE(show->isEnabled());
    EXPECT_EQ(state().errorMessage(), std::nullopt);
    show->trigger();
    ASSERT_TRUE(pumpUntil([&] { return !fileManager.items.isEmpty(); }));
    EXPECT_EQ(fileManager.items, QStringList{QString::fromLatin1(file.toEncoded())});

    // The file has gone meanwhile: its folder is left.
    std::filesystem::remove(folder / "o#ut.mp4");
    show->trigger();
    ASSERT_TRUE(pumpUntil([&] { return !fileManager.folders.isEmpty(); }));
    EXPECT_EQ(fileManager.folders, QStringList{QString::fromLatin1(urlOf(folder).toEncoded())});
    EXPECT_EQ(fileManager.items.size(), 1);

    std::filesystem::remove(folder);
    show->trigger();
    ASSERT_TRUE(waitForError());
    EXPECT_EQ(state().errorMessage(), QStringLiteral("The folder “ex ports” is no longer there."));
}

TEST_F(AppCommandsTest, saysWhyTheLastExportIsNotShown) {
    const testsupport::PrivateBus bus;
    if (!bus.isRunning())
        GTEST_SKIP() << "dbus-daemon is not here";
    m_commands.setBus(bus.connect());
    ASSERT_TRUE(loadAndWait({.duration = 1}));
    m_focusedValues.setEditState(m_state);
    const testsupport::TemporaryFolder parent;
    std::filesystem::create_directory(parent / "exports");
    state().exportTo(urlOf(parent / "exports" / "out.mp4"));
    ASSERT_TRUE(pumpUntil([this] { return state().lastExport().has_value(); }));
    action("Show Last Export")->trigger();
    ASSERT_TRUE(waitForError());
    EXPECT_EQ(state().errorMessage(),
              QStringLiteral("There is no file manager to show the folder “exports”."));
}

TEST_F(AppCommandsTest, asksForFilesThroughTheFocusedModel) {
    m_panels->toOpen = urlOf(testsupport::makeFixture({.duration = 1}).path);
    m_focusedValues.setEditState(m_state);
    press(Qt::Key_O, Qt::ControlModifier);
    ASSERT_TRUE(pumpUntil([this] { return m_state->videoURL().has_value(); }));
    press(Qt::Key_E, Qt::ControlModifier);
    ASSERT_TRUE(pumpUntil([this] { return !m_panels->proposals.empty(); }));
}

TEST_F(AppCommandsTest, setsTheEndsOfTheRangeByBareKeys) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    m_focusedValues.setEditState(m_state);
    m_state->seek(2);
    press(Qt::Key_BracketLeft);
    EXPECT_DOUBLE_EQ(m_state->trimStart(), 2);
    m_state->seek(8);
    press(Qt::Key_BracketRight);
    EXPECT_DOUBLE_EQ(m_state->trimEnd(), 8);
}

TEST_F(AppCommandsTest, undoesAndRedoesByKeysAndNamesTheStep) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    m_focusedValues.setEditState(m_state);
    EXPECT_FALSE(action("Undo")->isEnabled());
    EXPECT_FALSE(action("Redo")->isEnabled());
    press(Qt::Key_Z, Qt::ControlModifier);
    m_state->toggleCrop();
    m_state->rotateLeft();
    EXPECT_TRUE(action("Undo Rotate")->isEnabled());
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(m_state->rotation(), 0);
    EXPECT_TRUE(m_state->cropRect());
    EXPECT_NE(action("Undo Crop"), nullptr);
    EXPECT_TRUE(action("Redo Rotate")->isEnabled());
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_FALSE(m_state->cropRect());
    press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(m_state->cropRect());
    press(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(m_state->rotation(), 270);
    EXPECT_FALSE(action("Redo")->isEnabled());
}

TEST_F(AppCommandsTest, undoesInTheModelThatIsFocused) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    m_focusedValues.setEditState(m_state);
    m_state->toggleCrop();
    m_focusedValues.setEditState(std::make_shared<EditState>());
    EXPECT_FALSE(action("Undo")->isEnabled());
    m_state->rotateLeft();
    EXPECT_FALSE(action("Undo")->isEnabled());
    m_focusedValues.setEditState(m_state);
    EXPECT_TRUE(action("Undo Rotate")->isEnabled());
}

TEST_F(AppCommandsTest, leavesTheUndoOfATextToItsField) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    m_focusedValues.setEditState(m_state);
    m_state->toggleCrop();
    auto* field = new QLineEdit;
    m_window.layout()->addWidget(field);
    field->setFocus();
    QTest::keyClicks(field, QStringLiteral("abc"));
    QTest::keyClick(m_window.windowHandle(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(field->text(), QString());
    EXPECT_TRUE(m_state->cropRect());
}

TEST_F(AppCommandsTest, pausesBeforeItSteps) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    m_focusedValues.setEditState(m_state);
    m_state->seek(2);
    m_state->togglePlayback();
    ASSERT_TRUE(pumpUntil([this] { return m_state->isPlaying(); }));
    press(Qt::Key_Right);
    EXPECT_EQ(player().rate(), 0.0F);
    ASSERT_TRUE(pumpUntil([this] { return !m_state->isPlaying(); }));
}

TEST_F(AppCommandsTest, stepsByFrames) {
    const auto fixture = testsupport::makeFixture(kTenSeconds);
    ASSERT_TRUE(loadAndWait(fixture.path));
    m_focusedValues.setEditState(m_state);
    const auto isAt = [&](std::size_t frame) {
        return pumpUntil([&, frame] {
            return std::abs(m_state->currentTime() - fixture.frames.at(frame).seconds) < 0.01;
        });
    };
    press(Qt::Key_Right);
    ASSERT_TRUE(isAt(1));
    press(Qt::Key_Right);
    ASSERT_TRUE(isAt(2));
    press(Qt::Key_Left);
    ASSERT_TRUE(isAt(1));
}

TEST_F(AppCommandsTest, tellsTheTimeAtOnceWhenItSteps) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    m_focusedValues.setEditState(m_state);
    pumpPending();
    PlayerController& controller = m_state->playerController();
    int ticks = 0;
    controller.onTick = [&ticks](double) { ++ticks; };
    press(Qt::Key_Right);
    EXPECT_GE(ticks, 1) << "before the player reports";
}

TEST_F(AppCommandsTest, togglesTheLoopInBothDirections) {
    EXPECT_FALSE(action("Loop Playback")->isChecked());
    press(Qt::Key_L);
    EXPECT_TRUE(PlaybackSettings::shared().isLoopEnabled());
    EXPECT_TRUE(action("Loop Playback")->isChecked());
    PlaybackSettings::shared().setLoopEnabled(false);
    EXPECT_FALSE(action("Loop Playback")->isChecked());
}

TEST_F(AppCommandsTest, showsInANewWindowThatTheLoopIsOn) {
    PlaybackSettings::shared().setLoopEnabled(true);
    AppCommands commands(m_updater, m_focusedValues);
    QMenuBar menuBar;
    commands.fill(menuBar);
    EXPECT_TRUE(menuBar.actions().at(3)->menu()->actions().last()->isChecked());
    PlaybackSettings::shared().setLoopEnabled(false);
}

TEST_F(AppCommandsTest, repeatOnlyTheStepsWhileAKeyIsHeld) {
    const std::set<QAction*> steps{
        action("Previous Frame"),     action("Next Frame"), action("Back One Second"),
        action("Forward One Second"), action("Undo"),       action("Redo")};
    for (QAction* each : m_commands.findChildren<QAction*>())
        EXPECT_EQ(each->autoRepeat(), steps.contains(each)) << each->text().toStdString();
}

TEST_F(AppCommandsTest, tellsTheVersionOfTheProgram) {
    const QString version = QApplication::applicationVersion();
    QApplication::setApplicationVersion(QStringLiteral("98.7"));
    action("About Brisklet")->trigger();
    const auto* box = m_window.findChild<QMessageBox*>();
    ASSERT_NE(box, nullptr);
    EXPECT_TRUE(box->isVisible());
    EXPECT_EQ(box->text(), QStringLiteral("Brisklet 98.7"));
    EXPECT_TRUE(box->informativeText().contains(QStringLiteral("GNU General Public License")));
    QApplication::setApplicationVersion(version);
}

TEST_F(AppCommandsTest, checksForUpdatesWhereThereIsAFeed) {
    EXPECT_FALSE(action("Check for Updates…")->isEnabled());
    // Nothing listens there, and nothing needs to.
    Updater updater(updates("http://127.0.0.1:1/feed.xml"), m_driver, false);
    AppCommands commands(updater, m_focusedValues);
    QMenuBar menuBar;
    commands.fill(menuBar);
    QAction* check = menuBar.actions().first()->menu()->actions().at(1);
    EXPECT_TRUE(check->isEnabled());
    check->trigger();
    EXPECT_EQ(m_driver.checkingCount, 1);
    EXPECT_FALSE(check->isEnabled());
    EXPECT_TRUE(pumpUntil([check] { return check->isEnabled(); }));
}

TEST_F(AppCommandsTest, namesTheQuickActionAfterWhatItDoesNext) {
    action("Install Finder Quick Action")->trigger();
    EXPECT_TRUE(std::filesystem::exists(QuickAction::workflowPath()));
    action("Remove Finder Quick Action")->trigger();
    EXPECT_FALSE(std::filesystem::exists(QuickAction::workflowPath()));
    EXPECT_NE(action("Install Finder Quick Action"), nullptr);
}

TEST_F(AppCommandsTest, showsWhyTheQuickActionCannotBeRemovedInTheFocusedWindow) {
    QuickAction::shared().setInstalled(true);
    m_focusedValues.setEditState(m_state);
    action("Remove Finder Quick Action")->trigger();
    EXPECT_EQ(m_state->errorMessage(),
              QStringLiteral("Couldn't update the Quick Action: “Trim Video.workflow” couldn’t be "
                             "removed: It doesn’t exist."));
    EXPECT_TRUE(QuickAction::shared().isInstalled());
}

// The file managers kept their entries when the user had deleted the Library folder.
TEST_F(AppCommandsTest, removesTheEntriesOfFileManagersAlsoWhereTheWorkflowIsGone) {
    const std::filesystem::path data = qgetenv("XDG_DATA_HOME").toStdString();
    m_focusedValues.setEditState(m_state);
    action("Install Finder Quick Action")->trigger();
    EXPECT_TRUE(std::filesystem::exists(data / "nautilus/scripts/Trim Video"));
    std::filesystem::remove_all(QuickAction::workflowPath().parent_path().parent_path());
    action("Remove Finder Quick Action")->trigger();
    EXPECT_FALSE(std::filesystem::exists(data / "nautilus"));
    EXPECT_FALSE(std::filesystem::exists(data / "Thunar"));
    EXPECT_EQ(m_state->errorMessage(),
              QStringLiteral("Couldn't update the Quick Action: “Trim Video.workflow” couldn’t be "
                             "removed: It doesn’t exist."));
    EXPECT_TRUE(QuickAction::shared().isInstalled());
}

TEST_F(AppCommandsTest, removesAnInstallationThatIsIncomplete) {
    const std::filesystem::path data = qgetenv("XDG_DATA_HOME").toStdString();
    m_focusedValues.setEditState(m_state);
    std::filesystem::create_directories(data / "nemo");
    std::ofstream(data / "nemo/actions") << "no folder";
    action("Install Finder Quick Action")->trigger();
    EXPECT_TRUE(m_state->errorMessage().has_value());
    m_state->clearErrorMessage();
    action("Remove Finder Quick Action")->trigger();
    EXPECT_EQ(m_state->errorMessage(), std::nullopt);
    EXPECT_FALSE(std::filesystem::exists(QuickAction::workflowPath()));
    EXPECT_FALSE(std::filesystem::exists(data / "nautilus"));
    EXPECT_NE(action("Install Finder Quick Action"), nullptr);
    std::filesystem::remove_all(data / "nemo");
}

TEST_F(AppCommandsTest, keepsTheFailureOfTheQuickActionToItselfWithoutAWindow) {
    QuickAction::shared().setInstalled(true);
    action("Remove Finder Quick Action")->trigger();
    EXPECT_TRUE(QuickAction::shared().isInstalled());
    EXPECT_EQ(m_state->errorMessage(), std::nullopt);
    EXPECT_NE(action("Remove Finder Quick Action"), nullptr);
}

TEST_F(AppCommandsTest, leavesTheKeysToADialogOverTheWindow) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    m_focusedValues.setEditState(m_state);
    m_state->seek(2);
    QWidget dialog(&m_window, Qt::Dialog);
    ASSERT_TRUE(testsupport::showActive(dialog));
    QTest::keyClick(&dialog, Qt::Key_BracketLeft);
    EXPECT_EQ(m_state->trimStart(), 0);
}

} // namespace
} // namespace brisklet
