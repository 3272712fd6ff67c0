#include "Platform/Updater/UpdateDialogs.h"

#include "QtSupport/EventPump.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>

#include <chrono>
#include <optional>

namespace {

using namespace brisklet;
using testsupport::pumpPending;

class UpdateDialogsTest : public testing::Test {
protected:
    /// The one that is shown.
    static QDialog* dialog() {
        QDialog* shown = nullptr;
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            auto* candidate = qobject_cast<QDialog*>(widget);
            if (candidate == nullptr || !candidate->isVisible())
                continue;
            EXPECT_EQ(shown, nullptr) << "One takes the place of the other.";
            shown = candidate;
        }
        return shown;
    }

    static void click(const char* title) {
        ASSERT_NE(dialog(), nullptr);
        for (auto* button : dialog()->findChildren<QAbstractButton*>()) {
            if (button->text().remove(u'&') == QString::fromUtf8(title)) {
                QTest::mouseClick(button, Qt::LeftButton);
                return;
            }
        }
        ADD_FAILURE() << "There is no button \"" << title << '"';
    }

    void offer() {
        m_dialogs.showUpdate(m_item, QStringLiteral("1.2"),
                             [this](UpdateChoice choice) { m_choice = choice; });
    }

    const AppcastItem m_item{.version = QStringLiteral("1.3"),
                             .shortVersion = QStringLiteral("1.3 <b>x</b>"),
                             .releaseNotes = QStringLiteral("Faster\n<b>Not bold</b>"),
                             .length = 1000};
    std::optional<UpdateChoice> m_choice;
    UpdateDialogs m_dialogs;
};

TEST_F(UpdateDialogsTest, showsWhatTheFeedSaysAsPlainText) {
    offer();
    EXPECT_EQ(dialog()->findChild<QPlainTextEdit*>()->toPlainText(), m_item.releaseNotes);
    bool isNamed = false;
    for (const QLabel* label : dialog()->findChildren<QLabel*>()) {
        EXPECT_EQ(label->textFormat(), Qt::PlainText);
        isNamed = isNamed || label->text().contains(m_item.shortVersion);
    }
    EXPECT_TRUE(isNamed);
    EXPECT_FALSE(dialog()->isModal());
}

TEST_F(UpdateDialogsTest, answersWithTheButton) {
    offer();
    click("Install Update");
    EXPECT_EQ(m_choice, UpdateChoice::install);
    offer();
    click("Skip This Version");
    EXPECT_EQ(m_choice, UpdateChoice::skipThisVersion);
    offer();
    click("Remind Me Later");
    EXPECT_EQ(m_choice, UpdateChoice::remindLater);
    m_choice.reset();
    offer();
    QTest::keyClick(dialog(), Qt::Key_Escape);
    EXPECT_EQ(m_choice, UpdateChoice::remindLater);
}

TEST_F(UpdateDialogsTest, showsOneDialogAtATimeAndGetsNoAnswerFromTheOthers) {
    offer();
    m_dialogs.showFailure(QStringLiteral("It <i>failed</i>."));
    EXPECT_EQ(m_choice, std::nullopt);
    ASSERT_NE(dialog(), nullptr);
    m_dialogs.dismiss();
    EXPECT_EQ(dialog(), nullptr);
    pumpPending();
}

TEST_F(UpdateDialogsTest, showsHowFarTheDownloadIsAndCancels) {
    bool isCancelled = false;
    m_dialogs.showDownload(m_item, [&isCancelled] { isCancelled = true; });
    m_dialogs.showDownloaded(250);
    const auto* bar = dialog()->findChild<QProgressBar*>();
    EXPECT_EQ(bar->value() * 4, bar->maximum());
    click("Cancel");
    EXPECT_TRUE(isCancelled);
    // What still comes changes nothing.
    m_dialogs.showDownloaded(500);
}

TEST_F(UpdateDialogsTest, letsTheProgramEndWithItsLastWindow) {
    QWidget window;
    window.show();
    offer();
    bool isLast = false;
    QObject::connect(qApp, &QApplication::lastWindowClosed, &window, [&isLast] {
        isLast = true;
        QApplication::quit();
    });
    QTimer::singleShot(0, &window, &QWidget::close);
    // Ends a hang.
    QTimer::singleShot(std::chrono::seconds(10), &window, [] { QApplication::quit(); });
    QApplication::exec();
    EXPECT_TRUE(isLast);
}

TEST_F(UpdateDialogsTest, asksBeforeItChecksByItself) {
    std::optional<bool> answer;
    m_dialogs.askForAutomaticChecks([&answer](bool allowed) { answer = allowed; });
    click("Yes");
    EXPECT_EQ(answer, true);
    m_dialogs.askForAutomaticChecks([&answer](bool allowed) { answer = allowed; });
    QTest::keyClick(dialog(), Qt::Key_Escape);
    EXPECT_EQ(answer, false);
}

} // namespace
