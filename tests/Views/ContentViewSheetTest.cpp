#include "Views/ContentView.h"

#include "Models/EditStateFixture.h"
#include "QtSupport/Pointer.h"
#include "Views/ContentViewStage.h"
#include "Views/DropZoneView.h"
#include "Views/EditorView.h"
#include "Views/ErrorAlert.h"
#include "Views/ExportProgressView.h"

#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>

#include <fstream>

namespace brisklet {
namespace {

using testsupport::pumpPending;
using testsupport::pumpUntil;

class ContentViewSheetTest : public ContentViewStage {
protected:
    /// Starts an export that takes long enough to look at.
    bool startLongExport() {
        if (!loadAndWait(testsupport::Recipe{.duration = 30, .width = 640, .height = 480}))
            return false;
        state().exportTo(urlOf(m_folder / "out.mp4"));
        return testsupport::pumpUntil([this] { return shown<ExportProgressView>() != nullptr; });
    }
};

TEST_F(ContentViewSheetTest, tellsThatADroppedTextIsNoVideoAndKeepsItsFace) {
    const auto notes = m_folder / "notes.txt";
    std::ofstream(notes) << "not a video";
    EXPECT_TRUE(drop({urlOf(notes)}));
    ASSERT_TRUE(pumpUntil([this] { return shown<ErrorAlert>() != nullptr; }));
    const QPointer<ErrorAlert> alert = shown<ErrorAlert>();
    EXPECT_EQ(alert->windowTitle(), QStringLiteral("Something Went Wrong"));
    EXPECT_EQ(alert->message(), state().errorMessage());
    EXPECT_TRUE(alert->message().startsWith(QStringLiteral("Couldn't open “notes.txt”: ")));
    EXPECT_EQ(alert->windowModality(), Qt::WindowModal);
    auto* button = alert->findChild<QPushButton*>();
    EXPECT_EQ(button->text(), QStringLiteral("OK"));
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_TRUE(pumpUntil([&alert] { return !alert; }));
    EXPECT_FALSE(state().errorMessage());
    EXPECT_NE(shown<DropZoneView>(), nullptr);
    EXPECT_FALSE(state().videoURL());
}

TEST_F(ContentViewSheetTest, keepsTheVideoWhenAnotherFileCannotBeLoaded) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    const auto before = state().videoURL();
    drop({urlOf(m_folder / "missing.mov")});
    ASSERT_TRUE(pumpUntil([this] { return shown<ErrorAlert>() != nullptr; }));
    QTest::keyClick(shown<ErrorAlert>(), Qt::Key_Escape);
    EXPECT_TRUE(pumpUntil([this] { return !state().errorMessage(); }));
    EXPECT_NE(shown<EditorView>(), nullptr);
    EXPECT_EQ(state().videoURL(), before);
}

/// The next message went into the dialog that was on its way out, and vanished with it.
TEST_F(ContentViewSheetTest, showsAFailureThatComesWhileAnAlertIsDismissed) {
    state().setErrorMessage(QStringLiteral("First"));
    const QPointer<ErrorAlert> first = shown<ErrorAlert>();
    ASSERT_TRUE(first);
    QTest::mouseClick(first->findChild<QPushButton*>(), Qt::LeftButton);
    EXPECT_FALSE(state().errorMessage());
    state().setErrorMessage(QStringLiteral("Second"));
    ASSERT_TRUE(pumpUntil([&first] { return !first; }));
    pumpPending();
    auto* second = shown<ErrorAlert>();
    ASSERT_NE(second, nullptr);
    EXPECT_EQ(second->message(), QStringLiteral("Second"));
    EXPECT_EQ(m_content->attachedSheet(), second);
    QTest::keyClick(second, Qt::Key_Escape);
    EXPECT_TRUE(pumpUntil([this] { return !state().errorMessage(); }));
    EXPECT_TRUE(pumpUntil([this] { return m_content->attachedSheet() == nullptr; }));
}

/// A file can fail before the window manager has found a place for its window. The alert was put
/// over the place that the window would have had, where other windows are.
TEST_F(ContentViewSheetTest, waitsForThePlaceOfItsWindowBeforeItShowsAnAlert) {
    m_content->hide();
    ContentView content(m_state);
    state().setErrorMessage(QStringLiteral("Message"));
    EXPECT_EQ(content.attachedSheet(), nullptr);
    content.show();
    ASSERT_TRUE(pumpUntil([&content] {
        const QWidget* alert = content.attachedSheet();
        return alert != nullptr && alert->isVisible();
    }));
    state().clearErrorMessage();
    EXPECT_TRUE(pumpUntil([&content] { return content.attachedSheet() == nullptr; }));
}

TEST_F(ContentViewSheetTest, showsALongNameInAnAlertNoWiderThanTheOthers) {
    state().load(urlOf(m_folder / (std::string(250, 'x') + ".mov")));
    ASSERT_TRUE(pumpUntil([this] { return shown<ErrorAlert>() != nullptr; }));
    EXPECT_LT(shown<ErrorAlert>()->width(), 480);
    // And whole: it is broken into lines that fit.
    int labels = 0;
    for (const QLabel* label : shown<ErrorAlert>()->findChildren<QLabel*>()) {
        const QRect room(0, 0, label->width(), 10000);
        const QRect text = label->fontMetrics().boundingRect(
            room, static_cast<int>(Qt::AlignHCenter) | Qt::TextWordWrap, label->text());
        EXPECT_LE(text.width(), room.width()) << label->text().toStdString();
        EXPECT_LE(text.height(), label->height()) << label->text().toStdString();
        labels += label->text().isEmpty() ? 0 : 1;
    }
    EXPECT_EQ(labels, 2) << "the title and the message";
}

TEST_F(ContentViewSheetTest, fillsTheBarOfAnExportWithItsProgress) {
    ExportProgressView sheet(m_state, m_content.get());
    const auto* bar = sheet.findChild<QProgressBar*>();
    for (const double fraction : {0.0, 0.25, 0.5, 1.0}) {
        sheet.setProgress(fraction);
        EXPECT_EQ(bar->value() - bar->minimum(), fraction * (bar->maximum() - bar->minimum()));
    }
}

TEST_F(ContentViewSheetTest, saysHowMuchLongerAnExportTakes) {
    ExportProgressView sheet(m_state, m_content.get());
    const auto* bar = sheet.findChild<QProgressBar*>();
    const QSize size = sheet.sizeHint();
    sheet.setProgress(0.25);
    EXPECT_EQ(bar->accessibleDescription(), QStringLiteral("25%"));
    const auto caption = [&sheet] {
        for (const QLabel* label : sheet.findChildren<QLabel*>()) {
            if (label->text().startsWith(QStringLiteral("about ")))
                return label->text();
        }
        return QString();
    };
    EXPECT_EQ(caption(), QString());
    // By the clock, without further progress.
    ASSERT_TRUE(pumpUntil([&] { return !caption().isEmpty(); }));
    EXPECT_TRUE(caption().endsWith(QStringLiteral(" s left"))) << caption().toStdString();
    EXPECT_EQ(bar->accessibleDescription(), QStringLiteral("25%, ") + caption());
    EXPECT_EQ(sheet.sizeHint(), size);
}

TEST_F(ContentViewSheetTest, keepsTheExportSheetUntilTheExportHasEnded) {
    ASSERT_TRUE(startLongExport());
    const QPointer<ExportProgressView> sheet = shown<ExportProgressView>();
    EXPECT_EQ(m_content->attachedSheet(), sheet);
    auto* bar = sheet->findChild<QProgressBar*>();
    EXPECT_EQ(bar->width(), 260);
    ASSERT_TRUE(pumpUntil([bar] { return bar->value() > 0; }));

    QTest::keyClick(sheet, Qt::Key_Escape);
    sheet->close();
    QTest::mouseClick(m_content.get(), Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
    pumpPending();
    ASSERT_TRUE(sheet);
    EXPECT_TRUE(sheet->isVisible());
    EXPECT_TRUE(state().exportProgress());

    auto* cancel = sheet->findChild<QPushButton*>();
    EXPECT_EQ(cancel->text(), QStringLiteral("Cancel"));
    QTest::mouseClick(cancel, Qt::LeftButton);
    EXPECT_TRUE(pumpUntil([&sheet] { return !sheet; }));
    EXPECT_FALSE(state().exportProgress());
    EXPECT_EQ(m_content->attachedSheet(), nullptr);
    EXPECT_EQ(shown<ErrorAlert>(), nullptr);
    EXPECT_TRUE(std::filesystem::is_empty(m_folder.path()));
}

TEST_F(ContentViewSheetTest, mayGoWhileItsVideoPlaysAndExports) {
    ASSERT_TRUE(startLongExport());
    m_content.reset();
    EXPECT_TRUE(state().exportProgress());
    state().togglePlayback();
    pumpPending();
}

} // namespace
} // namespace brisklet
