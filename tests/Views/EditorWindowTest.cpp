#include "Views/EditorWindow.h"

#include "Models/EditState.h"
#include "QtSupport/EventPump.h"
#include "QtSupport/FakeFilePanels.h"
#include "Support/FileUrl.h"
#include "TestSupport/Fixture.h"
#include "TestSupport/TemporaryFolder.h"
#include "Views/ExportProgressView.h"
#include "Views/PlayerContainerView.h"
#include "Views/PlayerLayerView.h"

#include <QLabel>
#include <QMessageBox>
#include <QMimeData>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

namespace {

using namespace brisklet;
using testsupport::makeFixture;
using testsupport::pumpPending;
using testsupport::pumpUntil;

class EditorWindowTest : public testing::Test {
protected:
    EditorWindowTest() {
        m_state->setFilePanels(m_panels);
        m_window->show();
        m_window->activateWindow();
        // Shortcuts belong to the active window.
        EXPECT_TRUE(QTest::qWaitForWindowActive(m_window));
    }

    ~EditorWindowTest() override {
        delete m_window;
        m_state->cancelExport();
        pumpUntil([this] { return !m_state->exportProgress(); });
    }

    bool loadAndWait(const testsupport::Recipe& recipe) {
        m_state->load(urlOf(makeFixture(recipe).path));
        return pumpUntil([this] { return m_state->videoURL().has_value(); });
    }

    bool hasLabel(const QString& text) const {
        for (const QLabel* label : m_window->findChildren<QLabel*>()) {
            if (label->text().contains(text))
                return true;
        }
        return false;
    }

    template<typename T>
    T* visibleChild() const {
        for (T* child : m_window->findChildren<T*>()) {
            if (child->isVisible())
                return child;
        }
        return nullptr;
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(m_window, key, modifiers);
    }

    /// Starts an export that takes long enough to look at.
    bool startLongExport() {
        if (!loadAndWait({.duration = 30, .width = 640, .height = 480}))
            return false;
        m_state->exportTo(urlOf(m_folder / "out.mp4"));
        return pumpUntil([this] { return visibleChild<ExportProgressView>() != nullptr; });
    }

    testsupport::TemporaryFolder m_folder;
    std::shared_ptr<testsupport::FakeFilePanels> m_panels =
        std::make_shared<testsupport::FakeFilePanels>();
    std::shared_ptr<EditState> m_state = std::make_shared<EditState>();
    QPointer<EditorWindow> m_window = new EditorWindow(m_state);
};

TEST_F(EditorWindowTest, loadsItsVideoOnceItIsShown) {
    const auto video = makeFixture({.duration = 10}).path;
    m_window->loadWhenShown(urlOf(video));
    ASSERT_TRUE(pumpUntil([this] { return m_state->videoURL().has_value(); }));
    EXPECT_EQ(m_window->windowTitle(), displayName(urlOf(video)));
    EXPECT_TRUE(hasLabel(QStringLiteral("00:00.0 / 00:10.0")));
    EXPECT_TRUE(hasLabel(QStringLiteral("[ 00:00.0 – 00:10.0 ]")));
    auto& view = m_window->findChild<PlayerContainerView*>()->layerView();
    EXPECT_TRUE(pumpUntil([&view] { return !view.videoRect().isEmpty(); }));
}

TEST_F(EditorWindowTest, setsTheRangeByKeys) {
    ASSERT_TRUE(loadAndWait({.duration = 10}));
    m_state->seek(2);
    press(Qt::Key_BracketLeft);
    m_state->seek(5);
    press(Qt::Key_BracketRight);
    EXPECT_EQ(m_state->trimStart(), 2);
    EXPECT_EQ(m_state->trimEnd(), 5);
    EXPECT_TRUE(hasLabel(QStringLiteral("[ 00:02.0 – 00:05.0 ]")));
}

TEST_F(EditorWindowTest, playsAndPausesBySpaceAndByTheButton) {
    ASSERT_TRUE(loadAndWait({.duration = 10}));
    press(Qt::Key_Space);
    ASSERT_TRUE(pumpUntil([this] { return m_state->isPlaying(); }));
    press(Qt::Key_Space);
    ASSERT_TRUE(pumpUntil([this] { return !m_state->isPlaying(); }));
    auto* button = m_window->findChild<QToolButton*>();
    QTest::mouseClick(button, Qt::LeftButton);
    ASSERT_TRUE(pumpUntil([this] { return m_state->isPlaying(); }));
    EXPECT_EQ(button->toolTip(), QStringLiteral("Pause"));
}

TEST_F(EditorWindowTest, stepsByFrames) {
    ASSERT_TRUE(loadAndWait({.duration = 10}));
    m_state->seek(4);
    const auto isAt = [this](int frame) {
        return pumpUntil([&] {
            return media::Time::fromSeconds(m_state->currentTime(), 600).value == frame * 20;
        });
    };
    ASSERT_TRUE(isAt(120));
    press(Qt::Key_Right);
    ASSERT_TRUE(isAt(121));
    press(Qt::Key_Left);
    ASSERT_TRUE(isAt(120));
    press(Qt::Key_Left);
    ASSERT_TRUE(isAt(119));
}

TEST_F(EditorWindowTest, mutesAndTurnsByKeys) {
    ASSERT_TRUE(loadAndWait({.duration = 2}));
    press(Qt::Key_M);
    EXPECT_TRUE(m_state->isMuted());
    EXPECT_TRUE(hasLabel(QStringLiteral("muted")));
    press(Qt::Key_M);
    EXPECT_FALSE(m_state->isMuted());
    press(Qt::Key_R);
    EXPECT_EQ(m_state->rotation(), 270);
    EXPECT_EQ(m_window->findChild<PlayerContainerView*>()->layerView().rotation(), 270);
}

TEST_F(EditorWindowTest, ignoresTheEditingKeysWhileItIsEmpty) {
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_BracketLeft, Qt::Key_BracketRight,
                              Qt::Key_Left, Qt::Key_Right, Qt::Key_M, Qt::Key_R})
        press(key);
    pumpPending();
    EXPECT_EQ(m_state->trimStart(), 0);
    EXPECT_EQ(m_state->rotation(), 0);
    EXPECT_FALSE(m_state->isMuted());
    EXPECT_FALSE(m_state->isPlaying());
}

TEST_F(EditorWindowTest, opensAndExportsByCommands) {
    m_panels->toOpen = urlOf(makeFixture({.duration = 1}).path);
    press(Qt::Key_O, Qt::ControlModifier);
    ASSERT_TRUE(pumpUntil([this] { return m_state->videoURL().has_value(); }));
    m_panels->toSave = urlOf(m_folder / "out.mp4");
    press(Qt::Key_E, Qt::ControlModifier);
    ASSERT_TRUE(pumpUntil([this] { return std::filesystem::exists(m_folder / "out.mp4"); }));
    ASSERT_TRUE(pumpUntil([this] { return !m_state->exportProgress(); }));
    EXPECT_EQ(m_state->errorMessage(), std::nullopt);
}

TEST_F(EditorWindowTest, showsTheProgressAndCancels) {
    ASSERT_TRUE(startLongExport());
    auto* dialog = visibleChild<ExportProgressView>();
    EXPECT_EQ(dialog->windowModality(), Qt::WindowModal);
    auto* bar = dialog->findChild<QProgressBar*>();
    ASSERT_TRUE(pumpUntil([bar] { return bar->value() > 0; }));
    QTest::mouseClick(dialog->findChild<QPushButton*>(), Qt::LeftButton);
    ASSERT_TRUE(pumpUntil([this] { return !m_state->exportProgress(); }));
    EXPECT_EQ(visibleChild<ExportProgressView>(), nullptr);
    EXPECT_EQ(visibleChild<QMessageBox>(), nullptr);
    EXPECT_TRUE(std::filesystem::is_empty(m_folder.path()));
}

TEST_F(EditorWindowTest, showsWhatWentWrongAndForgetsItOnceItHasBeenSeen) {
    m_state->load(urlOf(m_folder / "<b>missing<b>.mov"));
    ASSERT_TRUE(pumpUntil([this] { return visibleChild<QMessageBox>() != nullptr; }));
    auto* alert = visibleChild<QMessageBox>();
    EXPECT_EQ(alert->text(), QStringLiteral("Something Went Wrong"));
    EXPECT_EQ(alert->informativeText(), m_state->errorMessage());
    EXPECT_EQ(alert->windowModality(), Qt::WindowModal);
    // The name of a file is no markup.
    for (const QLabel* label : alert->findChildren<QLabel*>())
        EXPECT_EQ(label->textFormat(), Qt::PlainText);
    QTest::mouseClick(alert->button(QMessageBox::Ok), Qt::LeftButton);
    ASSERT_TRUE(pumpUntil([this] { return !m_state->errorMessage(); }));
    EXPECT_EQ(visibleChild<QMessageBox>(), nullptr);

    // The next one shows too.
    m_state->load(urlOf(m_folder / "other.mov"));
    ASSERT_TRUE(pumpUntil([this] { return visibleChild<QMessageBox>() != nullptr; }));
    EXPECT_TRUE(
        visibleChild<QMessageBox>()->informativeText().contains(QStringLiteral("other.mov")));
}

TEST_F(EditorWindowTest, showsALongNameInAnAlertNoWiderThanTheScreen) {
    m_state->load(urlOf(m_folder / (std::string(251, 'n') + ".mov")));
    ASSERT_TRUE(pumpUntil([this] { return visibleChild<QMessageBox>() != nullptr; }));
    EXPECT_LT(visibleChild<QMessageBox>()->sizeHint().width(), 640);
}

TEST_F(EditorWindowTest, loadsADroppedFileWhateverItsName) {
    const auto name = m_folder / "caf\xe9 #1.mp4";
    std::filesystem::copy_file(makeFixture({.duration = 1}).path, name);
    QMimeData data;
    data.setUrls({urlOf(name)});
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(m_window, &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(m_window, &drop);
    ASSERT_TRUE(pumpUntil([this] { return m_state->videoURL().has_value(); }));
    EXPECT_EQ(pathOf(*m_state->videoURL()), name);
}

TEST_F(EditorWindowTest, refusesADropThatIsNoFile) {
    QMimeData data;
    data.setUrls({QUrl(QStringLiteral("https://example.org/video.mp4"))});
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(m_window, &enter);
    EXPECT_FALSE(enter.isAccepted());
}

TEST_F(EditorWindowTest, closesWithoutAQuestionWhenNothingIsExported) {
    ASSERT_TRUE(loadAndWait({.duration = 1}));
    m_window->close();
    EXPECT_TRUE(pumpUntil([this] { return m_window.isNull(); }));
}

TEST_F(EditorWindowTest, asksBeforeItStopsAnExportToClose) {
    ASSERT_TRUE(startLongExport());
    m_window->close();
    EXPECT_TRUE(m_window->isVisible());
    ASSERT_TRUE(pumpUntil([this] { return visibleChild<QMessageBox>() != nullptr; }));
    EXPECT_EQ(visibleChild<QMessageBox>()->text(), QStringLiteral("Stop the export and close?"));
    // No: the export goes on.
    QTest::mouseClick(visibleChild<QMessageBox>()->button(QMessageBox::Cancel), Qt::LeftButton);
    pumpPending();
    EXPECT_TRUE(m_state->exportProgress().has_value());
    EXPECT_TRUE(m_window->isVisible());

    m_window->close();
    ASSERT_TRUE(pumpUntil([this] { return visibleChild<QMessageBox>() != nullptr; }));
    auto* question = visibleChild<QMessageBox>();
    for (QAbstractButton* button : question->buttons()) {
        if (question->buttonRole(button) == QMessageBox::AcceptRole)
            QTest::mouseClick(button, Qt::LeftButton);
    }
    ASSERT_TRUE(pumpUntil([this] { return m_window.isNull(); }));
    EXPECT_EQ(m_state->exportProgress(), std::nullopt);
    EXPECT_TRUE(std::filesystem::is_empty(m_folder.path()));
}

TEST_F(EditorWindowTest, mayGoWhileItsVideoLoadsAndPlays) {
    m_state->load(urlOf(makeFixture({.duration = 10}).path));
    delete m_window;
    m_window = new EditorWindow(m_state);
    m_window->show();
    ASSERT_TRUE(pumpUntil([this] { return m_state->videoURL().has_value(); }));
    press(Qt::Key_Space);
    ASSERT_TRUE(pumpUntil([this] { return m_state->isPlaying(); }));
    m_state.reset();
    delete m_window;
    pumpPending();
    m_state = std::make_shared<EditState>();
}

} // namespace
