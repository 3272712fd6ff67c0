#include "Views/LostVideoView.h"

#include "LosableVideos/LosableVideos.h"
#include "Models/EditStateFixture.h"
#include "Views/ContentView.h"
#include "Views/ContentViewStage.h"
#include "Views/Controls/ControlsView.h"
#include "Views/Controls/ExportButton.h"
#include "Views/Controls/FlatButton.h"
#include "Views/Crop/CropOverlayView.h"
#include "Views/EditorView.h"
#include "Views/ErrorAlert.h"
#include "Views/ExportProgressView.h"
#include "Views/Timeline/TimelineMarker.h"
#include "Views/Timeline/TimelineStrip.h"
#include "Views/Timeline/TimelineView.h"
#include "Views/VideoArea.h"

#include <QAccessible>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QTest>

namespace brisklet {
namespace {

using testsupport::LosableVideos;
using testsupport::pumpPending;
using testsupport::pumpUntil;

class LostVideoViewTest : public ContentViewStage {
protected:
    void SetUp() override { ASSERT_TRUE(loadAndWait(m_file)); }

    bool lose() {
        LosableVideos::lose(m_file);
        return pumpUntil([this] { return state().isVideoLost(); });
    }

    bool loseAndDismiss() {
        if (!lose() || !pumpUntil([this] { return shown<ErrorAlert>() != nullptr; }))
            return false;
        QTest::keyClick(shown<ErrorAlert>(), Qt::Key_Escape);
        return hasKeyboardAgain();
    }

    /// Once the alert has gone.
    bool hasKeyboardAgain() {
        if (!pumpUntil([this] { return m_content->attachedSheet() == nullptr; }))
            return false;
        m_content->activateWindow();
        return QTest::qWaitForWindowActive(m_content.get());
    }

    bool comesBack() {
        return pumpUntil([this] { return !state().isVideoLost(); });
    }

    /// The button of the alert with that title.
    QPushButton* button(const QString& title) const {
        const auto* alert = shown<ErrorAlert>();
        for (auto* each : alert->findChildren<QPushButton*>()) {
            if (each->text() == title)
                return each;
        }
        return nullptr;
    }

    QPushButton& openAgainButton() const {
        return m_content->findChild<LostVideoView*>()->openAgainButton();
    }

    LosableVideos m_losable;
    std::filesystem::path m_file = testsupport::makeFixture({.duration = 3}).path;
};

TEST_F(LostVideoViewTest, isAskedAboutInAnAlertOfItsWindow) {
    EXPECT_EQ(shown<LostVideoView>(), nullptr);
    ASSERT_TRUE(lose());
    auto* alert = shown<ErrorAlert>();
    ASSERT_NE(alert, nullptr);
    EXPECT_EQ(shown<LostVideoView>(), nullptr) << "says the same below";
    EXPECT_EQ(m_content->attachedSheet(), alert);
    EXPECT_EQ(alert->windowModality(), Qt::WindowModal);
    EXPECT_EQ(alert->windowTitle(), QStringLiteral("Something Went Wrong"));
    EXPECT_EQ(alert->message(), state().lossMessage());
    EXPECT_EQ(alert->accessibleDescription(), state().lossMessage());
    EXPECT_EQ(alert->findChildren<QPushButton*>().size(), 2);
    ASSERT_NE(button(QStringLiteral("Cancel")), nullptr);
    ASSERT_NE(button(QStringLiteral("Open Again")), nullptr);
    EXPECT_TRUE(button(QStringLiteral("Open Again"))->isDefault());
    EXPECT_EQ(alert->focusWidget(), button(QStringLiteral("Open Again")));
}

TEST_F(LostVideoViewTest, isOpenedAgainByReturn) {
    state().setTrimEnd(2);
    ASSERT_TRUE(lose());
    const QPointer<ErrorAlert> alert = shown<ErrorAlert>();
    ASSERT_TRUE(alert);
    QTest::keyClick(alert, Qt::Key_Return);
    EXPECT_TRUE(comesBack());
    EXPECT_TRUE(pumpUntil([&alert] { return !alert; }));
    EXPECT_EQ(m_content->attachedSheet(), nullptr);
    EXPECT_EQ(shown<LostVideoView>(), nullptr);
    EXPECT_EQ(state().trimEnd(), 2);
}

TEST_F(LostVideoViewTest, staysLostWhenTheAlertIsDismissed) {
    ASSERT_TRUE(lose());
    const QPointer<ErrorAlert> alert = shown<ErrorAlert>();
    ASSERT_TRUE(alert);
    QTest::mouseClick(button(QStringLiteral("Cancel")), Qt::LeftButton);
    EXPECT_TRUE(pumpUntil([&alert] { return !alert; }));
    EXPECT_TRUE(state().isVideoLost());
    EXPECT_FALSE(state().isOpenAgainOffered());
    EXPECT_NE(shown<EditorView>(), nullptr);
    EXPECT_NE(shown<LostVideoView>(), nullptr);
}

TEST_F(LostVideoViewTest, hasAButtonInPlaceOfItsPicture) {
    state().setCropRect(media::Rect{0, 0, 1, 1});
    ASSERT_TRUE(loseAndDismiss());
    const auto* place = shown<LostVideoView>();
    ASSERT_NE(place, nullptr);
    EXPECT_EQ(place->geometry(), shown<VideoArea>()->geometry());
    EXPECT_EQ(shown<CropOverlayView>(), nullptr) << "there is nothing to crop";
    // Nothing lies over it.
    QWidget* button = &openAgainButton();
    const QPoint middle = button->mapTo(m_content.get(), button->rect().center());
    EXPECT_EQ(m_content->childAt(middle), button);
    QTest::mouseClick(m_content->windowHandle(), Qt::LeftButton, Qt::NoModifier, middle);
    EXPECT_TRUE(comesBack());
    EXPECT_EQ(shown<LostVideoView>(), nullptr);
    EXPECT_NE(shown<CropOverlayView>(), nullptr);
}

TEST_F(LostVideoViewTest, isTabbedToInReadingOrder) {
    ASSERT_TRUE(loseAndDismiss());
    openAgainButton().setFocus(Qt::TabFocusReason);
    const auto& [trimStart, playhead, trimEnd] = shown<EditorView>()->timeline().strip().markers();
    QTest::keyClick(m_content->windowHandle(), Qt::Key_Tab);
    EXPECT_EQ(m_content->focusWidget(), trimStart);
    QTest::keyClick(m_content->windowHandle(), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(m_content->focusWidget(), &openAgainButton());
}

TEST_F(LostVideoViewTest, isOpenedAgainByTheKeysOfAButton) {
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return}) {
        ASSERT_TRUE(loseAndDismiss());
        openAgainButton().setFocus(Qt::TabFocusReason);
        QTest::keyClick(m_content->windowHandle(), key);
        EXPECT_EQ(shown<ErrorAlert>(), nullptr) << "the key was the window's";
        EXPECT_TRUE(comesBack());
        EXPECT_EQ(m_content->focusWidget(), shown<EditorView>()) << "no control has the focus";
    }
}

TEST_F(LostVideoViewTest, isAskedAboutAgainByKeysAndButtonsThatNeedIt) {
    ASSERT_TRUE(loseAndDismiss());
    const auto asks = [this](const auto& act) {
        act();
        if (!pumpUntil([this] { return shown<ErrorAlert>() != nullptr; }))
            return false;
        QTest::keyClick(shown<ErrorAlert>(), Qt::Key_Escape);
        return hasKeyboardAgain();
    };
    const ControlsView& controls = shown<EditorView>()->controls();
    EXPECT_TRUE(asks([this] { QTest::keyClick(m_content->windowHandle(), Qt::Key_Space); }));
    EXPECT_TRUE(asks([&] { controls.playButton().click(); }));
    EXPECT_TRUE(asks([&] { controls.exportButton().click(); }));
    EXPECT_TRUE(m_panels->proposals.empty());
}

TEST_F(LostVideoViewTest, isDescribedToScreenReaders) {
    ASSERT_TRUE(loseAndDismiss());
    QAccessibleInterface* button = QAccessible::queryAccessibleInterface(&openAgainButton());
    EXPECT_EQ(button->text(QAccessible::Name), QStringLiteral("Open Again"));
    EXPECT_EQ(button->text(QAccessible::Description), state().lossMessage());
    EXPECT_EQ(button->parent()->object(), shown<LostVideoView>());
    EXPECT_FALSE(button->state().invisible);
}

/// One alert over the other would leave the lower one in sight, and out of reach.
TEST_F(LostVideoViewTest, isAskedAboutAfterAnotherMessage) {
    state().setErrorMessage(QStringLiteral("Another message"));
    const QPointer<ErrorAlert> first = shown<ErrorAlert>();
    ASSERT_TRUE(first);
    ASSERT_TRUE(lose());
    pumpPending();
    EXPECT_EQ(m_content->attachedSheet(), first);
    EXPECT_EQ(first->message(), QStringLiteral("Another message"));
    QTest::keyClick(first, Qt::Key_Escape);
    ASSERT_TRUE(pumpUntil([this] { return state().isOpenAgainOffered() && shown<ErrorAlert>(); }));
    ASSERT_TRUE(pumpUntil([&first] { return !first; }));
    EXPECT_EQ(shown<ErrorAlert>()->message(), state().lossMessage());
}

TEST_F(LostVideoViewTest, givesWayToAnotherMessageAndIsAskedAboutAgain) {
    ASSERT_TRUE(lose());
    state().setErrorMessage(QStringLiteral("Another message"));
    pumpPending();
    EXPECT_EQ(m_content->findChildren<ErrorAlert*>().size(), 1);
    EXPECT_EQ(shown<ErrorAlert>()->message(), QStringLiteral("Another message"));
    EXPECT_TRUE(state().isOpenAgainOffered());
    state().clearErrorMessage();
    pumpPending();
    EXPECT_EQ(shown<ErrorAlert>()->message(), state().lossMessage());
}

TEST_F(LostVideoViewTest, isAskedAboutAfterTheExportThatRuns) {
    state().exportTo(urlOf(m_folder / "out.mp4"));
    ASSERT_TRUE(lose());
    EXPECT_EQ(shown<ErrorAlert>(), nullptr);
    EXPECT_NE(shown<ExportProgressView>(), nullptr);
    ASSERT_TRUE(pumpUntil([this] { return !state().exportProgress(); }));
    EXPECT_TRUE(pumpUntil([this] { return shown<ErrorAlert>() != nullptr; }));
    EXPECT_EQ(state().errorMessage(), std::nullopt);
    EXPECT_TRUE(state().lastExport());
}

TEST_F(LostVideoViewTest, isNotAskedAboutOnceAnotherVideoIsThere) {
    ASSERT_TRUE(lose());
    const auto other = testsupport::makeFixture({.duration = 2}).path;
    state().load(urlOf(other));
    ASSERT_TRUE(hasVideo(other));
    pumpPending();
    EXPECT_EQ(m_content->attachedSheet(), nullptr);
    EXPECT_EQ(shown<LostVideoView>(), nullptr);
}

TEST_F(LostVideoViewTest, saysWhatPreventsItsOpening) {
    const auto copy = m_folder / "clip.mp4";
    std::filesystem::copy_file(m_file, copy);
    ASSERT_TRUE(loadAndWait(copy));
    m_file = copy;
    ASSERT_TRUE(loseAndDismiss());
    std::filesystem::remove(copy);
    openAgainButton().click();
    EXPECT_EQ(shown<LostVideoView>(), nullptr) << "it is being opened";
    ASSERT_TRUE(pumpUntil([this] { return shown<ErrorAlert>() != nullptr; }));
    EXPECT_EQ(shown<ErrorAlert>()->message(), state().errorMessage());
    EXPECT_EQ(shown<ErrorAlert>()->findChildren<QPushButton*>().size(), 1);
    EXPECT_NE(shown<LostVideoView>(), nullptr);
}

/// A name can have 255 letters and no space.
TEST_F(LostVideoViewTest, showsALongNameWhole) {
    const auto copy = m_folder / (std::string(240, 'x') + ".mp4");
    std::filesystem::copy_file(m_file, copy);
    m_content->resize(720, 440);
    ASSERT_TRUE(loadAndWait(copy));
    m_file = copy;
    ASSERT_TRUE(loseAndDismiss());
    pumpPending();
    const auto* place = shown<LostVideoView>();
    const auto* label = place->findChild<QLabel*>();
    const QRect text = label->fontMetrics().boundingRect(
        QRect(0, 0, label->width(), 10000), static_cast<int>(Qt::AlignHCenter) | Qt::TextWordWrap,
        label->text());
    EXPECT_LE(text.width(), label->width());
    EXPECT_LE(text.height(), label->height());
    EXPECT_TRUE(place->rect().contains(openAgainButton().geometry()));
}

} // namespace
} // namespace brisklet
