#include "Platform/SavePlace.h"

#include "QtSupport/EventPump.h"
#include "QtSupport/FakeRemoteFiles.h"
#include "Support/FileUrl.h"
#include "Support/Workers.h"
#include "TestSupport/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>

namespace {

using namespace brisklet;
using testsupport::FakeRemoteFiles;

/// What comes of the answer of a panel that is not Qt's own: those name places elsewhere too.
class SavePlaceTest : public testing::Test {
protected:
    SavePlaceTest() { std::ofstream(m_folder / "clip.mp4") << "source"; }

    ~SavePlaceTest() override { waitForWorkers(); }

    SavePlace placeOf(const QUrl& answer) {
        return testsupport::await(findSavePlace(m_remoteFiles, answer,
                                                {.fileName = {},
                                                 .folder = {},
                                                 .typeName = {},
                                                 .extension = QStringLiteral("mp4"),
                                                 .otherExtensions = {QStringLiteral("mov")},
                                                 .source = urlOf(m_folder / "clip.mp4")}));
    }

    SavePlace placeOf(const char* name) { return placeOf(urlOf(m_folder / name)); }

    testsupport::TemporaryFolder m_folder;
    std::shared_ptr<FakeRemoteFiles> m_remoteFiles = std::make_shared<FakeRemoteFiles>();
};

TEST_F(SavePlaceTest, isInTheFolderWhereTheDesktopHasMountedTheOneElsewhere) {
    m_remoteFiles->places.insert(QUrl(QStringLiteral("smb://nas/films/")), urlOf(m_folder.path()));
    const SavePlace place = placeOf(QUrl::fromEncoded("smb://nas/films/caf%E9%20b.mov"));
    EXPECT_EQ(place.objection, QString());
    EXPECT_EQ(pathOf(place.file), m_folder / "caf\xe9 b.mp4");
    EXPECT_FALSE(place.isToBeConfirmed);
    // The source again, by the name that it has elsewhere.
    EXPECT_FALSE(placeOf(QUrl(QStringLiteral("smb://nas/films/clip.mp4"))).objection.isEmpty());
}

TEST_F(SavePlaceTest, isRefusedByNameWhereNoFolderLeadsToIt) {
    const QString address =
        QStringLiteral("sftp://nas") + QString::fromStdString((m_folder / "b.mp4").string());
    EXPECT_EQ(placeOf(QUrl(address)).objection,
              QStringLiteral("“%1” is not on this computer, and no folder here leads to it.")
                  .arg(address));
    const QUrl elsewhere = QUrl::fromEncoded("file://otherhost/tmp/b.mp4");
    EXPECT_TRUE(placeOf(elsewhere).objection.contains(QStringLiteral("file://otherhost/tmp")));
}

TEST_F(SavePlaceTest, isToBeConfirmedWhereAnotherNameThanTheTypedOneIsTaken) {
    std::ofstream(m_folder / "b.mp4") << "old";
    EXPECT_FALSE(placeOf("b.mp4").isToBeConfirmed);
    EXPECT_TRUE(placeOf("b").isToBeConfirmed);
    EXPECT_TRUE(placeOf("b.mov").isToBeConfirmed);
    EXPECT_FALSE(placeOf("c.mov").isToBeConfirmed);
    // A link that leads nowhere is replaced too.
    std::filesystem::create_symlink("nowhere", m_folder / "d.mp4");
    EXPECT_TRUE(placeOf("d").isToBeConfirmed);
}

TEST_F(SavePlaceTest, isNotTheSourceByWhateverName) {
    std::filesystem::create_symlink("clip.mp4", m_folder / "link.mp4");
    std::filesystem::create_hard_link(m_folder / "clip.mp4", m_folder / "other name.mp4");
    for (const char* name : {"clip.mp4", "clip", "clip.mov", "link.mp4", "other name.mp4"})
        EXPECT_FALSE(placeOf(name).objection.isEmpty()) << name;
    EXPECT_TRUE(placeOf("b.mp4").objection.isEmpty());
}

} // namespace
