#include "FaultySystem/FaultySystem.h"
#include "Media/ExportFixture.h"
#include "TestSupport/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <map>
#include <mutex>
#include <ostream>
#include <string>
#include <sys/stat.h>
#include <vector>

/// The power fails after any of an export’s calls to the system, and what had not been flushed is
/// lost: the file of that name is the old one, none, or the whole new one.
namespace media {
namespace {

using testsupport::SystemAnswer;
using testsupport::SystemCall;
using testsupport::TemporaryFolder;

/// One change of what is on the disk.
struct Change {
    enum class Kind { write, flushFile, naming, flushFolder };

    Kind kind;
    /// Which file; of a naming the one that has the destination’s name from then on.
    ino_t file = 0;
    off_t offset = 0;
    std::string data;
};

struct stat statusOf(int descriptor) {
    struct stat status = {};
    ::fstat(descriptor, &status);
    return status;
}

/// The file that is given another name: by its path, or by its descriptor in /proc.
ino_t named(std::string_view path) {
    struct stat status = {};
    ::stat(std::string(path).c_str(), &status);
    return status.st_ino;
}

/// Writes down what an export changes.
class Recorder {
public:
    explicit Recorder(std::string destination) : m_destination(std::move(destination)) {}

    void note(const SystemCall& call) {
        const std::lock_guard lock(m_mutex);
        if (call.kind == SystemCall::Kind::write) {
            m_changes.push_back({Change::Kind::write,
                                 statusOf(call.descriptor).st_ino,
                                 call.offset,
                                 {static_cast<const char*>(call.data), call.size}});
        } else if (call.kind == SystemCall::Kind::flush) {
            const struct stat status = statusOf(call.descriptor);
            m_changes.push_back(
                {S_ISDIR(status.st_mode) ? Change::Kind::flushFolder : Change::Kind::flushFile,
                 status.st_ino, 0, ""});
        } else if (call.newPath == m_destination && !isRefused(call)) {
            m_changes.push_back({Change::Kind::naming, named(call.path), 0, ""});
        }
    }

    [[nodiscard]] const std::vector<Change>& changes() const { return m_changes; }

private:
    /// A link to a name that is taken changes nothing.
    [[nodiscard]] bool isRefused(const SystemCall& call) const {
        struct stat status = {};
        return call.kind == SystemCall::Kind::link && ::lstat(m_destination.c_str(), &status) == 0;
    }

    std::string m_destination;
    std::mutex m_mutex;
    std::vector<Change> m_changes;
};

/// A disk that keeps of each change only what it must.
class ForgetfulDisk {
public:
    void change(const Change& change) {
        switch (change.kind) {
        case Change::Kind::write:
            m_unflushed[change.file].push_back(change);
            break;
        case Change::Kind::flushFile:
            for (const Change& write : m_unflushed[change.file])
                apply(write);
            m_unflushed.erase(change.file);
            break;
        case Change::Kind::naming:
            m_possible.push_back(&m_files[change.file]);
            break;
        case Change::Kind::flushFolder:
            m_possible.erase(m_possible.begin(), m_possible.end() - 1);
            break;
        }
    }

    /// What may be found under the destination’s name after a power cut; null for what was there
    /// before.
    [[nodiscard]] const std::vector<const std::string*>& possible() const { return m_possible; }

private:
    void apply(const Change& write) {
        std::string& content = m_files[write.file];
        const auto offset = static_cast<std::size_t>(write.offset);
        content.resize(std::max(content.size(), offset + write.data.size()));
        content.replace(offset, write.data.size(), write.data);
    }

    std::map<ino_t, std::string> m_files;
    std::map<ino_t, std::vector<Change>> m_unflushed;
    std::vector<const std::string*> m_possible{nullptr};
};

/// What is wrong at some power cut, or at one after the last change; empty if nothing is.
std::string complaintAbout(const std::vector<Change>& changes, const std::string& whole) {
    ForgetfulDisk disk;
    for (std::size_t i = 0; i < changes.size(); ++i) {
        disk.change(changes[i]);
        for (const std::string* content : disk.possible()) {
            if (content != nullptr && *content != whole)
                return "after change " + std::to_string(i) + " of " +
                       std::to_string(changes.size()) + ": " + std::to_string(content->size()) +
                       " bytes";
        }
    }
    if (disk.possible().size() != 1 || disk.possible()[0] == nullptr)
        return "the new file may be lost though the export has ended";
    return "";
}

struct Place {
    const char* name;
    bool hasOlderFile;
    bool hasUnnamedFiles;

    friend void PrintTo(const Place& place, std::ostream* out) { *out << place.name; }
};

class PowerCut : public testing::TestWithParam<Place> {
protected:
    /// What an export changes.
    [[nodiscard]] std::vector<Change> changesOfAnExport() const {
        if (GetParam().hasOlderFile)
            writeFile(output(), "old");
        const auto asset = Asset::open(testsupport::makeFixture({.duration = 1}).path);
        Recorder recorder(output().string());
        testsupport::setSystemJudge([&](const SystemCall& call) {
            constexpr int kUnnamed = O_TMPFILE;
            if (!GetParam().hasUnnamedFiles && (call.flags & kUnnamed) == kUnnamed)
                return SystemAnswer{.error = EOPNOTSUPP};
            recorder.note(call);
            return SystemAnswer{};
        });
        StagedExportSession(compositionOf(asset), output(), FileType::mpeg4).run();
        testsupport::setSystemJudge({});
        return recorder.changes();
    }

    [[nodiscard]] std::filesystem::path output() const { return m_folder / "out.mp4"; }

    TemporaryFolder m_folder;
};

TEST_P(PowerCut, leavesTheOldFileOrTheWholeNewOne) {
    const auto changes = changesOfAnExport();
    ASSERT_GT(std::ranges::count(changes, Change::Kind::write, &Change::kind), 2);
    EXPECT_EQ(complaintAbout(changes, contentsOf(output())), "");
}

/// The judge itself: it notices when the file or the folder is not flushed.
TEST_P(PowerCut, wouldBeNoticedWithoutAFlush) {
    const auto changes = changesOfAnExport();
    for (const Change::Kind kind : {Change::Kind::flushFile, Change::Kind::flushFolder}) {
        auto fewer = changes;
        ASSERT_GT(std::erase_if(fewer, [&](const Change& change) { return change.kind == kind; }),
                  0U);
        EXPECT_NE(complaintAbout(fewer, contentsOf(output())), "");
    }
}

INSTANTIATE_TEST_SUITE_P(, PowerCut,
                         testing::Values(Place{"newFile", false, true},
                                         Place{"olderFile", true, true},
                                         Place{"newFileWithHiddenName", false, false},
                                         Place{"olderFileWithHiddenName", true, false}),
                         [](const auto& place) { return std::string(place.param.name); });

} // namespace
} // namespace media
