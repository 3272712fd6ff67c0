#pragma once

#include "Media/Threading/Guarded.h"
#include "Models/KeptEdit.h"
#include "Models/KeptEditText.h"
#include "Models/SessionLocks.h"

#include <atomic>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <mutex>
#include <optional>
#include <set>
#include <vector>

namespace brisklet {

/// The kept edits on disk: those that are open in the windows of the programs that run, and the
/// last few that were closed. One file, which is only ever replaced as a whole; each change is made
/// to what stands in it at that moment, so programs that run at the same time do not lose each
/// other's edits. An edit whose program has ended without closing it counts as closed.
///
/// A file that is damaged is set aside as "edits.damaged" before it is replaced; what can be read
/// of it is kept. One of a later release of the program is left as it is: another file is used.
///
/// Any thread. keep() and remove() only note what is to be done; what touches the disk says so.
class EditStore final {
public:
    /// How many edits are kept that were closed; beside them all that a crash left.
    static constexpr std::size_t kMostClosed = 10;

    enum class Place { open, closed };

    using Ids = std::set<std::uint64_t>;

    /// Where the user's programs keep their state: "brisklet" in XDG_STATE_HOME, by default
    /// ~/.local/state. Empty if the user has no home.
    static std::filesystem::path userFolder();

    /// Touches no disk.
    explicit EditStore(const std::filesystem::path& folder);

    /// Makes this the latest of all edits, in the place of the one with its id.
    void keep(const KeptEdit& edit, Place place);
    void remove(std::uint64_t id);

    /// After a change: returns true if the caller must call write() on some thread, false if a
    /// call is coming already. So a disk that does not answer holds up two threads at most.
    [[nodiscard]] bool beginWrite() { return !m_isWriteComing.exchange(true); }

    /// Makes the changes noted so far, also on a disk that loses its power now. Blocks. Changes
    /// that can't be made, as on a full disk, are tried again with the next ones.
    void write();

    /// Makes the changes, and takes the latest closed edit, which is open in this program from then
    /// on; none if there is none. Never one of `without`, and one of `lastResort` only if there
    /// is no other. Blocks.
    std::optional<KeptEdit> takeLast(const Ids& without, const Ids& lastResort);

    /// Whether there was a closed edit when the disk was last looked at; before that, false.
    [[nodiscard]] bool hasClosed() const { return m_hasClosed.load(); }

private:
    struct Change {
        std::uint64_t id = 0;
        /// None removes it.
        std::optional<KeptEdit> edit;
        Place place = Place::closed;
    };

    using Changes = std::vector<Change>;
    using Records = std::vector<KeptRecord>;

    void note(Change change);
    void update(const std::function<void(Records&)>& further);
    bool updateLocked(const Changes& changes, const std::function<void(Records&)>& further);
    void apply(const Changes& changes, Records& records) const;
    void dropOldest(Records& records) const;
    [[nodiscard]] bool isClosed(const KeptRecord& record) const;

    std::filesystem::path m_folder;
    media::Guarded<Changes> m_changes;
    std::atomic<bool> m_hasClosed = false;
    std::atomic<bool> m_isWriteComing = false;
    /// Held by the thread that works on the disk; guards what follows.
    std::mutex m_disk;
    SessionLocks m_locks;
};

} // namespace brisklet
