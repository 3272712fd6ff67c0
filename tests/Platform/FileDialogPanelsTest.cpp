#include "Platform/FileDialogPanels.h"

#include "QtSupport/EventPump.h"
#include "QtSupport/PreferencesFixture.h"
#include "Support/FileUrl.h"
#include "TestSupport/TemporaryFolder.h"

#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>

#include <gtest/gtest.h>

#include <fstream>
#include <memory>

namespace {

using namespace brisklet;
using testsupport::pumpUntil;
using testsupport::Settled;
using testsupport::TemporaryFolder;

using Answer = std::optional<QUrl>;

class FileDialogPanelsTest : public testsupport::PreferencesFixture {
protected:
    FileDialogPanelsTest() { m_window->show(); }

    /// The panel on screen, once there is one other than `before`.
    QFileDialog* waitForPanel(const QFileDialog* before = nullptr) {
        QFileDialog* found = nullptr;
        pumpUntil([&] {
            for (auto* dialog : m_window->findChildren<QFileDialog*>()) {
                if (dialog != before && dialog->isVisible())
                    found = dialog;
            }
            return found != nullptr;
        });
        return found;
    }

    SaveProposal proposal() const {
        return {.fileName = QStringLiteral("Holiday Trimmed.mp4"),
                .folder = urlOf(m_folder.path()),
                .typeName = QStringLiteral("MPEG-4 movie"),
                .extension = QStringLiteral("mp4"),
                .otherExtensions = {QStringLiteral("mov")},
                .source = {}};
    }

    /// The folder that the Open panel begins in; picks `file` there, or nothing.
    QString folderOfOpenPanel(const std::filesystem::path& file = {}) {
        auto task = m_panels.openMovie();
        Settled<Answer> answer;
        auto settling = settle(task, answer);
        QFileDialog* panel = waitForPanel();
        if (panel == nullptr)
            return {};
        const QString folder = panel->directory().absolutePath();
        if (file.empty())
            panel->reject();
        else
            typeAndAccept(panel, QString::fromStdString(file.string()));
        EXPECT_TRUE(pumpUntil([&] { return answer.isSettled; }));
        testsupport::pumpPending();
        return folder;
    }

    static void typeAndAccept(QFileDialog* panel, const QString& name) {
        panel->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(name);
        QMetaObject::invokeMethod(panel, "accept");
    }

    TemporaryFolder m_folder;
    std::unique_ptr<QWidget> m_window = std::make_unique<QWidget>();
    FileDialogPanels m_panels{m_window.get()};
};

TEST_F(FileDialogPanelsTest, proposesANameInTheGivenFolder) {
    auto task = m_panels.saveMovie(proposal());
    Settled<Answer> answer;
    auto settling = settle(task, answer);
    QFileDialog* panel = waitForPanel();
    ASSERT_NE(panel, nullptr);
    EXPECT_EQ(panel->windowModality(), Qt::WindowModal);
    EXPECT_EQ(panel->selectedUrls(), QList<QUrl>{urlOf(m_folder / "Holiday Trimmed.mp4")});
    EXPECT_EQ(panel->nameFilters(), QStringList{QStringLiteral("MPEG-4 movie (*.mp4)")});
    QMetaObject::invokeMethod(panel, "accept");
    ASSERT_TRUE(pumpUntil([&] { return answer.isSettled; }));
    EXPECT_EQ(*answer.value, urlOf(m_folder / "Holiday Trimmed.mp4"));
}

TEST_F(FileDialogPanelsTest, answersNothingWhenCancelled) {
    auto task = m_panels.openMovie();
    Settled<Answer> answer;
    auto settling = settle(task, answer);
    QFileDialog* panel = waitForPanel();
    ASSERT_NE(panel, nullptr);
    panel->reject();
    ASSERT_TRUE(pumpUntil([&] { return answer.isSettled; }));
    EXPECT_EQ(*answer.value, std::nullopt);
}

TEST_F(FileDialogPanelsTest, opensOneMovie) {
    std::ofstream(m_folder / "a.MOV") << "x";
    auto task = m_panels.openMovie();
    Settled<Answer> answer;
    auto settling = settle(task, answer);
    QFileDialog* panel = waitForPanel();
    ASSERT_NE(panel, nullptr);
    EXPECT_EQ(panel->fileMode(), QFileDialog::ExistingFile);
    EXPECT_TRUE(panel->nameFilters().first().contains(QStringLiteral("*.mov")));
    typeAndAccept(panel, QString::fromStdString((m_folder / "a.MOV").string()));
    ASSERT_TRUE(pumpUntil([&] { return answer.isSettled; }));
    EXPECT_EQ(*answer.value, urlOf(m_folder / "a.MOV"));
}

TEST_F(FileDialogPanelsTest, beginsWhereTheUserKeepsVideos) {
    const auto configuration = qEnvironmentVariable("XDG_CONFIG_HOME").toStdString();
    const std::filesystem::path userFolders =
        std::filesystem::path(configuration) / "user-dirs.dirs";
    std::filesystem::create_directory(m_folder / "Films");
    std::ofstream(userFolders) << "XDG_VIDEOS_DIR=\"" << (m_folder / "Films").string() << "\"\n";
    EXPECT_EQ(folderOfOpenPanel(), QString::fromStdString((m_folder / "Films").string()));
    std::filesystem::remove(m_folder / "Films");
    EXPECT_EQ(folderOfOpenPanel(), QDir::homePath());
    std::filesystem::remove(userFolders);
}

TEST_F(FileDialogPanelsTest, beginsWhereAVideoWasPickedLast) {
    const auto folder = m_folder / "Holiday #1";
    std::filesystem::create_directory(folder);
    std::ofstream(folder / "a.mov") << "x";
    const QString before = folderOfOpenPanel(folder / "a.mov");
    const QString picked = QString::fromStdString(folder.string());
    EXPECT_NE(before, picked);
    EXPECT_EQ(folderOfOpenPanel(), picked);
    std::filesystem::remove_all(folder);
    EXPECT_EQ(folderOfOpenPanel(), before);
}

TEST_F(FileDialogPanelsTest, namesVideosWithoutTheirPatterns) {
    auto task = m_panels.openMovie();
    Settled<Answer> answer;
    auto settling = settle(task, answer);
    QFileDialog* panel = waitForPanel();
    ASSERT_NE(panel, nullptr);
    const auto* types = panel->findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
    ASSERT_NE(types, nullptr);
    EXPECT_EQ(types->currentText(), QStringLiteral("Videos"));
    panel->reject();
    ASSERT_TRUE(pumpUntil([&] { return answer.isSettled; }));
}

TEST_F(FileDialogPanelsTest, completesANameThatLacksTheExtension) {
    auto task = m_panels.saveMovie(proposal());
    Settled<Answer> answer;
    auto settling = settle(task, answer);
    QFileDialog* panel = waitForPanel();
    ASSERT_NE(panel, nullptr);
    typeAndAccept(panel, QStringLiteral("holiday v1.2"));
    ASSERT_TRUE(pumpUntil([&] { return answer.isSettled; }));
    EXPECT_EQ(*answer.value, urlOf(m_folder / "holiday v1.2.mp4"));
}

TEST_F(FileDialogPanelsTest, takesQuickTimeMoviesOnlyWhereThatFormatIsChosen) {
    struct Case {
        const char* typed;
        const char* answered;
    };

    for (const Case& name :
         {Case{"Holiday", "Holiday.mov"}, Case{"holiday v1.2", "holiday v1.2.mov"},
          Case{"Holiday.mp4", "Holiday.mov"}, Case{"Holiday.MOV", "Holiday.MOV"}}) {
        auto task = m_panels.saveMovie({.fileName = QStringLiteral("Holiday Trimmed.mov"),
                                        .folder = urlOf(m_folder.path()),
                                        .typeName = QStringLiteral("QuickTime movie"),
                                        .extension = QStringLiteral("mov"),
                                        .otherExtensions = {QStringLiteral("mp4")},
                                        .source = QUrl()});
        Settled<Answer> answer;
        auto settling = settle(task, answer);
        QFileDialog* panel = waitForPanel();
        ASSERT_NE(panel, nullptr);
        EXPECT_EQ(panel->nameFilters(), QStringList{QStringLiteral("QuickTime movie (*.mov)")});
        EXPECT_EQ(panel->selectedUrls(), QList<QUrl>{urlOf(m_folder / "Holiday Trimmed.mov")});
        typeAndAccept(panel, QString::fromLatin1(name.typed));
        ASSERT_TRUE(pumpUntil([&] { return answer.isSettled; }));
        EXPECT_EQ(*answer.value, urlOf(m_folder / name.answered)) << name.typed;
        testsupport::pumpPending();
    }
}

TEST_F(FileDialogPanelsTest, looksAmongTheFilesOfThisComputerOnly) {
    for (const bool isToSave : {false, true}) {
        auto task = isToSave ? m_panels.saveMovie(proposal()) : m_panels.openMovie();
        Settled<Answer> answer;
        auto settling = settle(task, answer);
        QFileDialog* panel = waitForPanel();
        ASSERT_NE(panel, nullptr);
        EXPECT_EQ(panel->supportedSchemes(), QStringList{QStringLiteral("file")});
        panel->reject();
        ASSERT_TRUE(pumpUntil([&] { return answer.isSettled; }));
        testsupport::pumpPending();
    }
}

// It became b.mov.mp4.
TEST_F(FileDialogPanelsTest, takesItsOwnExtensionForThatOfTheOtherFormat) {
    struct Case {
        const char* typed;
        const char* answered;
    };

    for (const Case& name :
         {Case{"b.mov", "b.mp4"}, Case{"b.MOV", "b.mp4"}, Case{"b.c.mov", "b.c.mp4"},
          Case{"b.mp4", "b.mp4"}, Case{"b.MP4", "b.MP4"}, Case{"holiday.2024", "holiday.2024.mp4"},
          Case{".mov", ".mov.mp4"}, Case{"b.movie", "b.movie.mp4"}}) {
        auto task = m_panels.saveMovie(proposal());
        Settled<Answer> answer;
        auto settling = settle(task, answer);
        QFileDialog* panel = waitForPanel();
        ASSERT_NE(panel, nullptr);
        typeAndAccept(panel, QString::fromLatin1(name.typed));
        ASSERT_TRUE(pumpUntil([&] { return answer.isSettled; }));
        EXPECT_EQ(*answer.value, urlOf(m_folder / name.answered)) << name.typed;
        testsupport::pumpPending();
    }
}

TEST_F(FileDialogPanelsTest, asksAgainWhenTheNameWithItsOwnExtensionIsTaken) {
    std::ofstream(m_folder / "b.mp4") << "old";
    auto task = m_panels.saveMovie(proposal());
    Settled<Answer> answer;
    auto settling = settle(task, answer);
    QFileDialog* panel = waitForPanel();
    ASSERT_NE(panel, nullptr);
    typeAndAccept(panel, QStringLiteral("b.mov"));
    QFileDialog* second = waitForPanel(panel);
    ASSERT_NE(second, nullptr);
    EXPECT_EQ(second->selectedUrls(), QList<QUrl>{urlOf(m_folder / "b.mp4")});
    second->reject();
    ASSERT_TRUE(pumpUntil([&] { return answer.isSettled; }));
    EXPECT_EQ(*answer.value, std::nullopt);
}

TEST_F(FileDialogPanelsTest, takesTheExtensionInCapitals) {
    auto task = m_panels.saveMovie(proposal());
    Settled<Answer> answer;
    auto settling = settle(task, answer);
    QFileDialog* panel = waitForPanel();
    ASSERT_NE(panel, nullptr);
    typeAndAccept(panel, QStringLiteral("HOLIDAY.MP4"));
    ASSERT_TRUE(pumpUntil([&] { return answer.isSettled; }));
    EXPECT_EQ(*answer.value, urlOf(m_folder / "HOLIDAY.MP4"));
}

// The Turkish capital of an i is another letter than I.
TEST_F(FileDialogPanelsTest, completesANameWithAnotherExtensionInCapitals) {
    auto task = m_panels.saveMovie(proposal());
    Settled<Answer> answer;
    auto settling = settle(task, answer);
    QFileDialog* panel = waitForPanel();
    ASSERT_NE(panel, nullptr);
    typeAndAccept(panel, QStringLiteral(u"film.AVİ"));
    ASSERT_TRUE(pumpUntil([&] { return answer.isSettled; }));
    EXPECT_EQ(*answer.value, urlOf(m_folder / "film.AVİ.mp4"));
}

// The dialog confirms the name that was typed, which is not the one that would be replaced.
TEST_F(FileDialogPanelsTest, asksAgainWhenACompletedNameIsTaken) {
    std::ofstream(m_folder / "holiday v1.2.mp4") << "old";
    auto task = m_panels.saveMovie(proposal());
    Settled<Answer> answer;
    auto settling = settle(task, answer);
    QFileDialog* panel = waitForPanel();
    ASSERT_NE(panel, nullptr);
    typeAndAccept(panel, QStringLiteral("holiday v1.2"));
    QFileDialog* second = waitForPanel(panel);
    ASSERT_NE(second, nullptr);
    EXPECT_FALSE(answer.isSettled);
    EXPECT_EQ(second->selectedUrls(), QList<QUrl>{urlOf(m_folder / "holiday v1.2.mp4")});
    second->reject();
    ASSERT_TRUE(pumpUntil([&] { return answer.isSettled; }));
    EXPECT_EQ(*answer.value, std::nullopt);
}

TEST_F(FileDialogPanelsTest, savesByReturnAndTurnsBackByEscape) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        auto task = m_panels.saveMovie(proposal());
        Settled<Answer> answer;
        auto settling = settle(task, answer);
        QFileDialog* panel = waitForPanel();
        ASSERT_NE(panel, nullptr);
        ASSERT_TRUE(pumpUntil([&] { return panel->focusWidget() != nullptr; }));
        QTest::keyClick(panel->focusWidget(), key);
        ASSERT_TRUE(pumpUntil([&] { return answer.isSettled; }));
        const Answer file = urlOf(m_folder / "Holiday Trimmed.mp4");
        EXPECT_EQ(*answer.value, key == Qt::Key_Return ? file : std::nullopt);
        testsupport::pumpPending();
    }
}

TEST_F(FileDialogPanelsTest, answersNothingWhenItsWindowGoes) {
    auto task = m_panels.saveMovie(proposal());
    Settled<Answer> answer;
    auto settling = settle(task, answer);
    ASSERT_NE(waitForPanel(), nullptr);
    m_window.reset();
    ASSERT_TRUE(pumpUntil([&] { return answer.isSettled; }));
    EXPECT_EQ(*answer.value, std::nullopt);
}

} // namespace
