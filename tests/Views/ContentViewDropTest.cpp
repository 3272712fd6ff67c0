#include "Views/ContentView.h"

#include "Models/EditStateFixture.h"
#include "QtSupport/Pointer.h"
#include "Views/ContentViewStage.h"
#include "Views/DropZoneView.h"
#include "Views/EditorView.h"

#include <QDragEnterEvent>
#include <QDragLeaveEvent>
#include <QMimeData>
#include <QPushButton>
#include <QTest>

namespace brisklet {
namespace {

using testsupport::pumpUntil;

class ContentViewDropTest : public ContentViewStage {};

TEST_F(ContentViewDropTest, invitesADropUntilAVideoIsLoaded) {
    EXPECT_NE(shown<DropZoneView>(), nullptr);
    EXPECT_EQ(shown<EditorView>(), nullptr);
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    EXPECT_EQ(shown<DropZoneView>(), nullptr);
    EXPECT_NE(shown<EditorView>(), nullptr);
}

TEST_F(ContentViewDropTest, opensAVideoByTheButtonOfTheDropZone) {
    const auto video = testsupport::makeFixture(kTenSeconds).path;
    m_panels->toOpen = urlOf(video);
    auto* button = shown<QPushButton>();
    EXPECT_EQ(button->text(), QStringLiteral("Open Video…"));
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_TRUE(hasVideo(video));
}

TEST_F(ContentViewDropTest, loadsOnlyTheFirstOfThreeDroppedFiles) {
    const auto first = testsupport::makeFixture({.duration = 10}).path;
    const auto second = testsupport::makeFixture({.duration = 4}).path;
    const auto third = testsupport::makeFixture({.duration = 2}).path;
    EXPECT_TRUE(drop({urlOf(first), urlOf(second), urlOf(third)}));
    ASSERT_TRUE(hasVideo(first));
    ASSERT_TRUE(pumpUntil([this] { return !state().thumbnails().isEmpty(); }));
    EXPECT_EQ(state().videoURL(), urlOf(first));
}

TEST_F(ContentViewDropTest, replacesTheVideoByADroppedOne) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    const auto other = testsupport::makeFixture({.duration = 4}).path;
    EXPECT_TRUE(drop({urlOf(other)}));
    EXPECT_TRUE(hasVideo(other));
}

TEST_F(ContentViewDropTest, refusesADropOfNothing) {
    EXPECT_FALSE(drop(QList<QUrl>()));
    QMimeData text;
    text.setText(QStringLiteral("not a file"));
    EXPECT_FALSE(drop(text));
}

TEST_F(ContentViewDropTest, leavesTheDraggedFileWhereItIs) {
    EXPECT_TRUE(drop({urlOf(testsupport::makeFixture(kTenSeconds).path)}));
    EXPECT_EQ(m_dropAction, Qt::CopyAction);
}

TEST_F(ContentViewDropTest, lightsTheDropZoneUpWhileAFileIsOverIt) {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QStringLiteral("/a.mov"))});
    const auto* zone = shown<DropZoneView>();
    QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_content.get(), &enter);
    EXPECT_TRUE(zone->isLit());
    QDragLeaveEvent leave;
    QCoreApplication::sendEvent(m_content.get(), &leave);
    EXPECT_FALSE(zone->isLit());
}

TEST_F(ContentViewDropTest, showsThatADroppedFileWouldBeTaken) {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QStringLiteral("/a.mov"))});
    const auto hover = [&] {
        QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m_content.get(), &enter);
    };
    const auto leave = [&] {
        QDragLeaveEvent event;
        QCoreApplication::sendEvent(m_content.get(), &event);
    };
    const auto picture = [this] { return m_content->grab().toImage(); };
    // Where the border of the drop zone runs, and where the frame around the editor does.
    for (const int distance : {25, 4}) {
        const QImage before = picture();
        const qreal scale = before.devicePixelRatio();
        const QPoint border(qRound(distance * scale), before.height() / 2 + 4);
        hover();
        const QImage over = picture();
        EXPECT_NE(over.pixel(border), before.pixel(border)) << distance;
        leave();
        EXPECT_TRUE(picture() == before) << distance;
        if (!state().videoURL()) {
            ASSERT_TRUE(loadAndWait(kTenSeconds));
        }
    }
}

TEST_F(ContentViewDropTest, loadsTheFileBehindATransferOfASandboxedProgram) {
    const auto video = testsupport::makeFixture(kTenSeconds).path;
    QMimeData data;
    data.setData(QStringLiteral("application/vnd.portal.filetransfer"), QByteArray("4711\0", 5));
    EXPECT_FALSE(drop(data)) << "nobody can say what the key stands for";
    QByteArray asked;
    m_content->setFileTransfer([&](const QByteArray& key, const auto& done) {
        asked = key;
        done({urlOf(video)});
    });
    EXPECT_TRUE(drop(data));
    EXPECT_EQ(asked, "4711");
    EXPECT_TRUE(hasVideo(video));
}

} // namespace
} // namespace brisklet
