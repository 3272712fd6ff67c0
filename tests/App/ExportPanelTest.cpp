#include "AppFixture.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QPixmapCache>
#include <QPointer>
#include <QTimer>

#include <filesystem>

namespace brisklet {
namespace {

using testsupport::pumpUntil;

/// The export panel of a real window.
class ExportPanelTest : public AppFixture {
protected:
    void SetUp() override {
        std::filesystem::copy_file(pathOf(video(1)), m_folder / "clip.mp4");
        std::filesystem::create_symlink("clip.mp4", m_folder / "link.mp4");
        ASSERT_TRUE(loadAndWait(*m_window, urlOf(m_folder / "clip.mp4")));
    }

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

    /// Types a name and confirms that the file of that name is to be replaced.
    static void saveOver(QFileDialog* panel, const QString& name) {
        QTimer confirmation;
        QObject::connect(&confirmation, &QTimer::timeout, panel, [panel] {
            if (auto* question = panel->findChild<QMessageBox*>())
                clickRole(*question, QMessageBox::YesRole);
        });
        confirmation.start(std::chrono::milliseconds(10));
        panel->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(name);
        QMetaObject::invokeMethod(panel, "accept");
    }

    QMessageBox* waitForAlert() {
        QMessageBox* found = nullptr;
        pumpUntil([&] {
            found = visibleQuestion(*m_window);
            return found != nullptr || m_window->state()->errorMessage().has_value();
        });
        return found;
    }

    WindowRootView* m_window = openWindow();
};

TEST_F(ExportPanelTest, refusesTheVideoThatIsEditedAndComesAgain) {
    for (const char* name : {"clip.mp4", "link.mp4"}) {
        m_window->state()->presentExportPanel();
        QFileDialog* panel = waitForPanel();
        ASSERT_NE(panel, nullptr);
        saveOver(panel, QString::fromLatin1(name));
        QMessageBox* alert = waitForAlert();
        ASSERT_NE(alert, nullptr);
        EXPECT_EQ(alert->textFormat(), Qt::PlainText);
        EXPECT_EQ(alert->text(),
                  QStringLiteral("“%1” is the video that is being edited. Choose another name.")
                      .arg(QString::fromLatin1(name)));
        clickRole(*alert, QMessageBox::AcceptRole);
        QFileDialog* second = waitForPanel(panel);
        ASSERT_NE(second, nullptr);
        second->reject();
        testsupport::pumpPending();
        EXPECT_EQ(m_window->state()->exportProgress(), std::nullopt);
        EXPECT_EQ(m_window->state()->errorMessage(), std::nullopt);
    }
    EXPECT_EQ(std::filesystem::file_size(m_folder / "clip.mp4"),
              std::filesystem::file_size(pathOf(video(1))));
}

// Each panel left the pictures of its icons in Qt’s cache, up to ten megabytes of them.
TEST_F(ExportPanelTest, leavesNoPicturesOfItsIcons) {
    const QString key = QStringLiteral("kept before the panel is closed");
    m_window->state()->presentExportPanel();
    const QPointer<QFileDialog> panel = waitForPanel();
    ASSERT_NE(panel, nullptr);
    ASSERT_TRUE(QPixmapCache::insert(key, QPixmap(16, 16)));
    panel->reject();
    ASSERT_TRUE(pumpUntil([&] { return !panel; }));
    QPixmap found;
    EXPECT_FALSE(QPixmapCache::find(key, &found));
}

TEST_F(ExportPanelTest, replacesAnotherFileOnceItIsConfirmed) {
    std::filesystem::copy_file(pathOf(video(2)), m_folder / "other.mp4");
    m_window->state()->presentExportPanel();
    QFileDialog* panel = waitForPanel();
    ASSERT_NE(panel, nullptr);
    saveOver(panel, QStringLiteral("other.mp4"));
    ASSERT_TRUE(pumpUntil([this] { return m_window->state()->exportProgress().has_value(); }));
    ASSERT_TRUE(pumpUntil([this] { return !m_window->state()->exportProgress(); }));
    EXPECT_EQ(m_window->state()->errorMessage(), std::nullopt);
    EXPECT_NE(std::filesystem::file_size(m_folder / "other.mp4"),
              std::filesystem::file_size(pathOf(video(2))));
}

} // namespace
} // namespace brisklet
