#include "AppFixture.h"

#include "Views/Shortcuts/KeyboardShortcutsView.h"
#include "Views/Shortcuts/ShortcutList.h"

#include <QAction>
#include <QMenuBar>
#include <QPointer>
#include <QShortcut>
#include <QTreeWidget>

namespace brisklet {
namespace {

using testsupport::pumpUntil;

/// The page of keyboard shortcuts of a real window.
class KeyboardShortcutsTest : public AppFixture {
protected:
    KeyboardShortcutsView* open() {
        EXPECT_TRUE(testsupport::showActive(*m_window));
        QTest::keyClick(m_window, Qt::Key_Question, Qt::ControlModifier);
        auto* page = m_window->findChild<KeyboardShortcutsView*>();
        EXPECT_TRUE(page != nullptr && testsupport::showActive(*page));
        return page;
    }

    /// The keys that the page gives for an action; empty where it does not list it.
    QString keysOf(const QString& effect) {
        for (const ShortcutGroup& group : shortcutsOf(*m_window)) {
            for (const Shortcut& shortcut : group.shortcuts) {
                if (shortcut.effect == effect)
                    return shortcut.keys;
            }
        }
        return {};
    }

    QPointer<WindowRootView> m_window = openWindow();
};

TEST_F(KeyboardShortcutsTest, listEachCommandThatHasAKey) {
    int count = 0;
    for (const QAction* menu : m_window->findChild<QMenuBar*>()->actions()) {
        for (const QAction* command : menu->menu()->actions()) {
            if (command->shortcut().isEmpty())
                continue;
            ++count;
            for (const QKeySequence& key : command->shortcuts())
                EXPECT_TRUE(
                    keysOf(command->text()).contains(key.toString(QKeySequence::NativeText)))
                    << command->text().toStdString();
        }
    }
    EXPECT_GE(count, 11);
    EXPECT_EQ(keysOf(QStringLiteral("Close Video")), QStringLiteral("Esc, Ctrl+W"));
}

/// The page stays open while the next step changes.
TEST_F(KeyboardShortcutsTest, nameUndoAndRedoApartFromTheNextStep) {
    ASSERT_TRUE(loadAndWait(*m_window, video(2)));
    m_window->state()->rotateLeft();
    EXPECT_EQ(keysOf(QStringLiteral("Undo Rotate")), QString());
    EXPECT_EQ(keysOf(QStringLiteral("Undo")), QStringLiteral("Ctrl+Z"));
    EXPECT_EQ(keysOf(QStringLiteral("Redo")), QStringLiteral("Ctrl+Shift+Z, Ctrl+Y"));
}

/// A shortcut without a name would stand there without a word.
TEST_F(KeyboardShortcutsTest, nameEachKeyOfAControl) {
    const auto keys = m_window->findChildren<QShortcut*>();
    EXPECT_GE(keys.size(), 4);
    for (const QShortcut* key : keys) {
        ASSERT_NE(key->whatsThis(), QString()) << key->key().toString().toStdString();
        EXPECT_EQ(keysOf(key->whatsThis()), key->key().toString(QKeySequence::NativeText));
    }
}

TEST_F(KeyboardShortcutsTest, listWhatViewsHandleThemselves) {
    EXPECT_EQ(keysOf(QStringLiteral("One frame back")), QStringLiteral("Left, Down"));
    EXPECT_EQ(keysOf(QStringLiteral("One second forward")), QStringLiteral("PgUp"));
    EXPECT_EQ(keysOf(QStringLiteral("Move its right or bottom side")),
              QStringLiteral("Ctrl+Arrow keys"));
    EXPECT_EQ(keysOf(QStringLiteral("Resize the crop")), QStringLiteral("Drag a handle"));
    EXPECT_EQ(keysOf(QStringLiteral("Choose format and resolution")),
              QStringLiteral("Down, Alt+Down, F4"));
}

TEST_F(KeyboardShortcutsTest, fitOverTheSmallestWindowAndScroll) {
    KeyboardShortcutsView* page = open();
    EXPECT_LE(page->width(), m_window->minimumWidth());
    EXPECT_LE(page->height(), m_window->minimumHeight());
    auto* rows = page->findChild<QTreeWidget*>();
    ASSERT_TRUE(rows->hasFocus());
    QTest::keyClick(rows, Qt::Key_End);
    const QTreeWidgetItem* group = rows->topLevelItem(rows->topLevelItemCount() - 1);
    EXPECT_EQ(rows->currentItem(), group->child(group->childCount() - 1));
    EXPECT_TRUE(rows->viewport()->rect().intersects(rows->visualItemRect(rows->currentItem())));
}

TEST_F(KeyboardShortcutsTest, openOnceAndCloseByKey) {
    KeyboardShortcutsView* page = open();
    EXPECT_EQ(open(), page);
    QTest::keyClick(page, Qt::Key_Escape);
    EXPECT_TRUE(
        pumpUntil([this] { return m_window->findChild<KeyboardShortcutsView*>() == nullptr; }));
    page = open();
    QTest::keyClick(page, Qt::Key_W, Qt::ControlModifier);
    EXPECT_TRUE(
        pumpUntil([this] { return m_window->findChild<KeyboardShortcutsView*>() == nullptr; }));
    EXPECT_TRUE(m_window->isVisible());
}

} // namespace
} // namespace brisklet
