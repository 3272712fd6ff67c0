#include "AppFixture.h"

#include "OddNames.h"
#include "Support/FileNames.h"
#include "Views/ErrorAlert.h"

#include <QAccessible>
#include <QAction>
#include <QFileDialog>
#include <QLabel>
#include <QWindow>

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace brisklet {
namespace {

using testsupport::pumpUntil;

/// What stands in the faces of the program where files have odd names.
class NamesOfFilesTest : public AppFixture, public testing::WithParamInterface<std::string> {
protected:
    [[nodiscard]] QUrl copyOfVideo() const {
        std::filesystem::copy_file(pathOf(video(1)), m_folder / GetParam());
        return urlOf(m_folder / GetParam());
    }

    /// Without what acts on the text around it.
    [[nodiscard]] QString shown() const { return shownName(urlOf(m_folder / GetParam())); }

    static bool isLegible(const QString& text) { return legible(text) == text; }

    static QString spoken(QWidget& widget, QAccessible::Text what) {
        return QAccessible::queryAccessibleInterface(&widget)->text(what);
    }

    /// Names stand in labels of plain text, and in no menu, tool tip or button at all.
    void expectNowhereElse() const {
        const QString name = shown();
        for (const auto* label : m_window->findChildren<QLabel*>()) {
            const bool isName = label->text().contains(u'“');
            EXPECT_TRUE(!isName || label->textFormat() == Qt::PlainText);
        }
        for (const auto* action : m_window->findChildren<QAction*>())
            EXPECT_FALSE(action->text().contains(name) || action->toolTip().contains(name));
        for (const auto* widget : m_window->findChildren<QWidget*>())
            EXPECT_FALSE(widget->toolTip().contains(name));
        for (const auto* button : m_window->findChildren<QAbstractButton*>())
            EXPECT_FALSE(button->text().contains(name));
    }

    WindowRootView* m_window = openWindow();
};

TEST_P(NamesOfFilesTest, standsInTheTitleToTheLetter) {
    ASSERT_TRUE(loadAndWait(*m_window, copyOfVideo()));
    const QString title = m_window->windowHandle()->title();
    EXPECT_TRUE(title.startsWith(shown())) << title.toStdString();
    EXPECT_TRUE(isLegible(title));
    expectNowhereElse();
}

TEST_P(NamesOfFilesTest, standsInAlertsToTheLetter) {
    std::ofstream(m_folder / GetParam()) << "no video";
    m_window->state()->load(urlOf(m_folder / GetParam()));
    ASSERT_TRUE(pumpUntil([this] { return m_window->state()->errorMessage().has_value(); }));
    const QString message = QStringLiteral("Couldn't open “") + shown() +
                            QStringLiteral("”: It is not a video file, or it is damaged.");
    EXPECT_EQ(*m_window->state()->errorMessage(), message);
    auto* alert = m_window->findChild<ErrorAlert*>();
    ASSERT_NE(alert, nullptr);
    EXPECT_EQ(spoken(*alert, QAccessible::Description), message);
    // Long words have places where they may break.
    const auto isMessage = [&message](const QLabel* label) {
        return label->text().remove(QChar(0x200b)) == message;
    };
    EXPECT_EQ(std::ranges::count_if(alert->findChildren<QLabel*>(), isMessage), 1);
    expectNowhereElse();
}

TEST_P(NamesOfFilesTest, isProposedForTheNewFile) {
    ASSERT_TRUE(loadAndWait(*m_window, copyOfVideo()));
    m_window->state()->presentExportPanel();
    QFileDialog* panel = nullptr;
    ASSERT_TRUE(pumpUntil([&] {
        panel = m_window->findChild<QFileDialog*>();
        return panel != nullptr && panel->isVisible();
    }));
    const QString base = displayBaseName(urlOf(m_folder / GetParam()));
    const QString expected = truncatedName(base, QStringLiteral(" Trimmed.mp4"), 255);
    QMetaObject::invokeMethod(panel, "accept");
    ASSERT_TRUE(pumpUntil(
        [this] { return m_window->state()->lastExport() || m_window->state()->errorMessage(); }));
    EXPECT_EQ(m_window->state()->errorMessage(), std::nullopt);
    ASSERT_TRUE(m_window->state()->lastExport());
    EXPECT_EQ(displayName(*m_window->state()->lastExport()), expected);
    EXPECT_TRUE(std::filesystem::exists(pathOf(*m_window->state()->lastExport())));
}

INSTANTIATE_TEST_SUITE_P(, NamesOfFilesTest, testing::ValuesIn(testsupport::oddNames()),
                         [](const auto& name) { return std::to_string(name.index); });

} // namespace
} // namespace brisklet
