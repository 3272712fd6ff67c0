#include "Models/EditStore.h"

#include "TestSupport/TemporaryFolder.h"

#include <QByteArray>
#include <QtGlobal>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

namespace brisklet {

namespace {

namespace fs = std::filesystem;

using testing::ElementsAre;
using testing::IsEmpty;
using Place = EditStore::Place;

/// Two stores of one folder are as two programs that run at the same time: what tells them apart
/// belongs to the store, not to the process.
class EditStoreTest : public testing::Test {
protected:
    static KeptEdit edit(std::uint64_t id, double start = 1) {
        return {.id = id,
                .file = std::filesystem::path("/videos") / std::to_string(id),
                .duration = 10,
                .edit = {.trimStart = start, .trimEnd = 9}};
    }

    std::unique_ptr<EditStore> open() const { return std::make_unique<EditStore>(m_state); }

    static void put(EditStore& store, const KeptEdit& kept, Place place) {
        store.keep(kept, place);
        store.write();
    }

    std::string bytes(const char* name = "edits") const {
        std::stringstream text;
        text << std::ifstream(m_state / name).rdbuf();
        return text.str();
    }

    void overwrite(const std::string& text, const char* name = "edits") const {
        fs::create_directories(m_state);
        std::ofstream(m_state / name) << text;
    }

    std::vector<std::uint64_t> idsOnDisk() const {
        std::vector<std::uint64_t> ids;
        for (const KeptRecord& record : KeptEditText::parse(bytes()).records)
            ids.push_back(record.edit.id);
        return ids;
    }

    static std::uint64_t takenId(EditStore& store, const EditStore::Ids& lastResort = {}) {
        const auto taken = store.takeLast({}, lastResort);
        return taken ? taken->id : 0;
    }

    testsupport::TemporaryFolder m_folder;
    fs::path m_state = m_folder / "state" / "brisklet";
};

TEST_F(EditStoreTest, givesBackTheClosedEditsTheLatestFirst) {
    const auto store = open();
    for (const std::uint64_t id : {1U, 2U, 3U})
        put(*store, edit(id), Place::closed);
    EXPECT_TRUE(store->hasClosed());
    EXPECT_EQ(store->takeLast({}, {}), edit(3));
    EXPECT_EQ(takenId(*store), 2U);
    EXPECT_EQ(takenId(*store), 1U);
    EXPECT_EQ(takenId(*store), 0U);
    EXPECT_FALSE(store->hasClosed());
    // They are open now, and would come back after a crash.
    EXPECT_THAT(idsOnDisk(), ElementsAre(1, 2, 3));
}

TEST_F(EditStoreTest, makesNothingForSomebodyWhoEditsNothing) {
    const auto store = open();
    store->write();
    EXPECT_EQ(takenId(*store), 0U);
    EXPECT_FALSE(store->hasClosed());
    EXPECT_FALSE(fs::exists(m_state));
}

TEST_F(EditStoreTest, replacesAnEditByItsLaterState) {
    const auto store = open();
    put(*store, edit(1), Place::open);
    put(*store, edit(2), Place::open);
    put(*store, edit(1, 5), Place::closed);
    EXPECT_THAT(idsOnDisk(), ElementsAre(2, 1));
    EXPECT_EQ(store->takeLast({}, {}), edit(1, 5));
    store->remove(1);
    store->write();
    EXPECT_THAT(idsOnDisk(), ElementsAre(2));
}

TEST_F(EditStoreTest, keepsTenClosedEditsBesideThoseThatAreOpen) {
    const auto store = open();
    put(*store, edit(100), Place::open);
    for (std::uint64_t id = 1; id <= 12; ++id)
        put(*store, edit(id), Place::closed);
    EXPECT_THAT(idsOnDisk(), ElementsAre(100, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12));
}

TEST_F(EditStoreTest, takesWhatAProgramLeftThatEndedWithoutClosing) {
    auto crashed = open();
    const auto store = open();
    put(*crashed, edit(1), Place::open);
    store->write();
    EXPECT_FALSE(store->hasClosed()) << "it still runs";
    EXPECT_EQ(takenId(*store), 0U);
    crashed.reset();
    store->write();
    EXPECT_TRUE(store->hasClosed());
    EXPECT_EQ(takenId(*store), 1U);
    EXPECT_EQ(takenId(*open()), 0U) << "open in the other one now";
}

TEST_F(EditStoreTest, losesNothingOfAProgramThatEndedWithMoreWindowsThanClosedEditsAreKept) {
    auto crashed = open();
    for (std::uint64_t id = 1; id <= 12; ++id)
        put(*crashed, edit(id), Place::open);
    crashed.reset();
    const auto store = open();
    for (const std::uint64_t id : {101U, 102U})
        put(*store, edit(id), Place::closed);
    EXPECT_THAT(idsOnDisk(), ElementsAre(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 101, 102));
}

TEST_F(EditStoreTest, triesEditsThatFailedLastAndOpenOnesNever) {
    const auto store = open();
    for (const std::uint64_t id : {1U, 2U, 3U})
        put(*store, edit(id), Place::closed);
    EXPECT_EQ(store->takeLast({3}, {2})->id, 1U);
    EXPECT_EQ(store->takeLast({3}, {2})->id, 2U);
    EXPECT_EQ(store->takeLast({3}, {2}), std::nullopt);
}

TEST_F(EditStoreTest, losesNothingWhereTwoProgramsWriteAtOnce) {
    constexpr std::uint64_t kEach = 40;
    const std::array stores{open(), open(), open()};
    {
        std::vector<std::jthread> threads;
        for (std::size_t which = 0; which < stores.size(); ++which) {
            threads.emplace_back([&, which] {
                for (std::uint64_t count = 1; count <= kEach; ++count)
                    put(*stores.at(which), edit(1000 * (which + 1) + count), Place::open);
            });
        }
    }
    EXPECT_EQ(idsOnDisk().size(), kEach * stores.size());
    EXPECT_FALSE(KeptEditText::parse(bytes()).isDamaged);
}

TEST_F(EditStoreTest, setsADamagedFileAsideAndKeepsWhatIsWhole) {
    put(*open(), edit(1), Place::closed);
    const std::string damaged = bytes() + "id=2 file=/b.mov end=";
    overwrite(damaged);
    const auto store = open();
    store->write();
    EXPECT_EQ(bytes(), damaged) << "nobody has changed anything";
    EXPECT_TRUE(store->hasClosed());
    put(*store, edit(3), Place::closed);
    EXPECT_THAT(idsOnDisk(), ElementsAre(1, 3));
    EXPECT_EQ(bytes("edits.damaged"), damaged);
}

TEST_F(EditStoreTest, leavesTheFileOfALaterReleaseAlone) {
    const std::string later = "brisklet-edits 2\nwhatever\n";
    overwrite(later);
    put(*open(), edit(1), Place::closed);
    EXPECT_EQ(bytes(), later);
    EXPECT_EQ(takenId(*open()), 1U);
}

TEST_F(EditStoreTest, doesNotReplaceWhatItCannotRead) {
    fs::create_directories(m_state / "edits");
    const auto store = open();
    put(*store, edit(1), Place::closed);
    EXPECT_TRUE(fs::is_directory(m_state / "edits"));
    // What could not be written is written with the next change.
    fs::remove(m_state / "edits");
    put(*store, edit(2), Place::closed);
    EXPECT_THAT(idsOnDisk(), ElementsAre(1, 2));
}

TEST_F(EditStoreTest, goesOnWhereSomebodyEmptiedTheFolder) {
    const auto store = open();
    put(*store, edit(1), Place::open);
    fs::remove_all(m_state);
    put(*store, edit(2), Place::open);
    EXPECT_THAT(idsOnDisk(), ElementsAre(2));
    EXPECT_EQ(takenId(*open()), 0U) << "the first one still shows that it runs";
}

TEST_F(EditStoreTest, letsNobodyElseRead) {
    put(*open(), edit(1), Place::closed);
    const auto others = fs::perms::group_all | fs::perms::others_all;
    EXPECT_EQ(fs::status(m_state).permissions() & others, fs::perms::none);
    for (const auto& entry : fs::directory_iterator(m_state))
        EXPECT_EQ(entry.status().permissions() & others, fs::perms::none) << entry.path();
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(m_state))
        names.push_back(entry.path().filename());
    EXPECT_THAT(names, testing::UnorderedElementsAre("edits", "edits.lock"));
}

TEST_F(EditStoreTest, knowsTheFolderOfTheStandard) {
    const QByteArray before = qgetenv("XDG_STATE_HOME");
    qputenv("XDG_STATE_HOME", "/somewhere");
    EXPECT_EQ(EditStore::userFolder(), "/somewhere/brisklet");
    qputenv("XDG_STATE_HOME", "relative");
    EXPECT_EQ(EditStore::userFolder(),
              fs::path(qgetenv("HOME").toStdString()) / ".local/state/brisklet");
    qputenv("XDG_STATE_HOME", before);
}

} // namespace

} // namespace brisklet
