#include "Models/EditStore.h"

#include "Models/StateFile.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <system_error>
#include <utility>

namespace brisklet {

namespace {

namespace fs = std::filesystem;

constexpr const char* kFileName = "edits";
/// The file of this release where one of a later release has the name.
constexpr const char* kOwnFileName = "edits-1";
constexpr const char* kDamagedFileName = "edits.damaged";
constexpr const char* kLockFileName = "edits.lock";

fs::path pathFrom(const char* variable) {
    // NOLINTNEXTLINE(concurrency-mt-unsafe): nobody changes the environment while the program runs.
    const char* value = std::getenv(variable);
    return value != nullptr ? fs::path(value) : fs::path();
}

/// What stands on disk, and where this release writes.
struct Contents {
    fs::path path;
    KeptEditText text;
};

/// None if the file can't be read.
std::optional<Contents> contentsOf(const fs::path& path) {
    const auto bytes = readStateFile(path, KeptEditText::kMostBytes + 1);
    if (!bytes)
        return std::nullopt;
    return Contents{.path = path, .text = KeptEditText::parse(*bytes)};
}

std::optional<Contents> contentsIn(const fs::path& folder) {
    const auto found = contentsOf(folder / kFileName);
    return found && found->text.isNewer ? contentsOf(folder / kOwnFileName) : found;
}

void eraseById(std::vector<KeptRecord>& records, std::uint64_t id) {
    std::erase_if(records, [id](const KeptRecord& record) { return record.edit.id == id; });
}

} // namespace

fs::path EditStore::userFolder() {
    fs::path state = pathFrom("XDG_STATE_HOME");
    // The standard has relative paths ignored.
    if (!state.is_absolute())
        state = pathFrom("HOME") / ".local" / "state";
    return state.is_absolute() ? state / "brisklet" : fs::path();
}

EditStore::EditStore(const fs::path& folder) : m_folder(folder), m_locks(folder / kLockFileName) {}

void EditStore::keep(const KeptEdit& edit, Place place) {
    note({.id = edit.id, .edit = edit, .place = place});
}

void EditStore::remove(std::uint64_t id) {
    note({.id = id});
}

void EditStore::note(Change change) {
    const auto changes = m_changes.lock();
    std::erase_if(*changes, [&](const Change& older) { return older.id == change.id; });
    changes->push_back(std::move(change));
}

void EditStore::write() {
    update([](Records&) {});
}

std::optional<KeptEdit> EditStore::takeLast(const Ids& without, const Ids& lastResort) {
    std::optional<KeptEdit> taken;
    update([&](Records& records) {
        const auto find = [&](const Ids& others) {
            return std::find_if(records.rbegin(), records.rend(), [&](const KeptRecord& record) {
                const std::uint64_t id = record.edit.id;
                return isClosed(record) && !without.contains(id) && !others.contains(id);
            });
        };
        auto found = find(lastResort);
        if (found == records.rend())
            found = find({});
        if (found == records.rend())
            return;
        found->session = m_locks.session();
        taken = found->edit;
    });
    return taken;
}

void EditStore::update(const std::function<void(Records&)>& further) {
    const std::lock_guard disk(m_disk);
    // What is noted from here on needs another write.
    m_isWriteComing = false;
    Changes changes = std::exchange(*m_changes.lock(), {});
    // Nothing is made on a disk for somebody who edits nothing.
    std::error_code ignored;
    if (changes.empty() && !fs::exists(m_folder, ignored)) {
        m_hasClosed = false;
        return;
    }
    bool isDone = makeStateFolder(m_folder) && m_locks.lock();
    if (isDone) {
        isDone = updateLocked(changes, further);
        m_locks.unlock();
    }
    if (isDone)
        return;
    // What was noted meanwhile is newer.
    const auto newer = m_changes.lock();
    std::erase_if(changes, [&](const Change& change) {
        return std::ranges::find(*newer, change.id, &Change::id) != newer->end();
    });
    newer->insert(newer->begin(), changes.begin(), changes.end());
}

/// False if the changes are not on the disk.
bool EditStore::updateLocked(const Changes& changes, const std::function<void(Records&)>& further) {
    const auto contents = contentsIn(m_folder);
    if (!contents)
        return false;
    Records records = contents->text.records;
    apply(changes, records);
    further(records);
    dropOldest(records);
    m_hasClosed =
        std::ranges::any_of(records, [this](const KeptRecord& each) { return isClosed(each); });
    if (records == contents->text.records)
        return true;
    if (contents->text.isDamaged && !setAsideStateFile(contents->path, m_folder / kDamagedFileName))
        return false;
    return replaceStateFile(contents->path, KeptEditText::format(records));
}

void EditStore::apply(const Changes& changes, Records& records) const {
    for (const Change& change : changes) {
        eraseById(records, change.id);
        if (change.edit)
            records.push_back(
                {.edit = *change.edit,
                 .session = change.place == Place::open ? m_locks.session() : std::uint64_t{0}});
    }
}

void EditStore::dropOldest(Records& records) const {
    std::size_t count = 0;
    const auto isTooOld = [&](const KeptRecord& record) {
        // All windows of a program that crashed are left at once: none of them drives another out.
        return record.session == 0 && ++count > kMostClosed;
    };
    Records kept;
    std::copy_if(records.rbegin(), records.rend(), std::back_inserter(kept),
                 [&](const KeptRecord& record) { return !isTooOld(record); });
    std::ranges::reverse(kept);
    records = std::move(kept);
}

bool EditStore::isClosed(const KeptRecord& record) const {
    return !m_locks.isRunning(record.session);
}

} // namespace brisklet
